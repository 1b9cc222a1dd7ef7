// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/line_font.h"
#include "foundation/chance.h"

namespace velm::test {
namespace {

std::uint32_t nextLightColour() {
    return (static_cast<std::uint32_t>(chance()) & 0x7F7F7FU) + 0x808080U;
}

TEST(Lfont, WritesTextAndNumbers) {
    const PixelPen pen(12, 8);
    const auto goTo = [&pen](std::int32_t x, std::int32_t y) { pen->position->x = x, pen->position->y = y; };
    goTo(0, 0), LFONT_drawHexByte(pen, 0xAF), LFONT_drawHexWord(pen, 0x09C0);
    goTo(0, 1), LFONT_drawHexLong(pen, 0x12AB);
    goTo(0, 2), LFONT_drawDecimal(pen, 42);
    goTo(0, 3), LFONT_drawDecimal(pen, 4294967295U);
    goTo(0, 4), LFONT_drawLine(pen, "AB?\xC1_\nD"); // neither '?' nor 0xC1 has a glyph
    goTo(2, 5), LFONT_drawText(pen, "1\n\n2?3");
    EXPECT_EQ(pen->position->x, 4);
    const char* const expected[8] = {"AF09C0......", "000012AB....", "0000000042..", "4294967295..",
                                     "AB_.........", "..1.........", "............", "..23........"};
    for (std::int32_t y = 0; y < 8; ++y) {
        EXPECT_EQ(pen.row(y), expected[y]);
    }
}

TEST(Lfont, PosesTheGlyph) {
    const PixelPen pen(64, 96);
    auto* dot = static_cast<SEG2D*>(LIST_get(pen.font['A']->segments, 0));
    dot->a->x = dot->b->x = 3;
    pen->spacing->x = pen->spacing->y = 16;
    pen->scale->x = -2, pen->scale->y = 4;
    pen->angle = 256; // (-6, 0) turns to (0, -6)
    pen->position->x = 40, pen->position->y = 20;
    LFONT_drawText(pen, "A\nA");
    EXPECT_EQ(IMG_getPixel(pen.target, 40, 14), std::uint32_t{'A'});
    EXPECT_EQ(IMG_getPixel(pen.target, 40, 14 + 64), std::uint32_t{'A'});
    EXPECT_EQ(pen->position->x, 40 - 32);
}

TEST(Lfont, ColoursComeFromTheLastGlyphToTheFirst) {
    const PixelPen pen(4, 1);
    chanceSeed(5);
    LFONT_randomColours(pen);
    for (const std::int32_t code : {63, 5, 4000, -1, 65}) { // '?', ..., 'A', the only glyph among them
        pen->character = code;
        LFONT_drawCharRandomColour(pen);
    }
    const int after = chance();
    chanceSeed(5);
    for (std::int32_t code = '`'; code >= ' '; --code) {
        const bool none = code == '?';
        const std::uint32_t drawn = none ? 0 : nextLightColour();
        EXPECT_TRUE(none || code == 'A' || pen.font[code]->colour == drawn) << code;
    }
    EXPECT_EQ(pen.target->pixels[0], nextLightColour());
    EXPECT_EQ(after, chance());
    LFONT_setColour(pen, 0x123456);
    EXPECT_EQ(pen.font[' ']->colour, 0x123456U);
}

TEST(Lfont, LFONT_randomColourLeavesRangeToList) {
    const PixelPen pen(4, 1);
    pen->character = 4000;
    LFONT_verbose = LIST_verbose = 1;
    EXPECT_EQ(printedBy([&] { LFONT_drawChar(pen); }), "LFONT Error.\n");
    EXPECT_EQ(printedBy([&] { LFONT_drawCharRandomColour(pen); }), "LIST error\nLFONT Error.\n");
    LFONT_verbose = LIST_verbose = 0;
}

TEST(Lfont, LFONT_deleteLeavesList) {
    LFONT* pen = LFONT_new();
    LIST* glyphs = pen->glyphs = LIST_new();
    LIST_append(glyphs, OBJ2D_new()); // whose leak the sanitizers would tell
    LFONT_delete(&pen);
    EXPECT_EQ(glyphs->count, 1);
    LIST_delete(&glyphs);
}

} // namespace
} // namespace velm::test
