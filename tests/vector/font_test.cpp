// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "image/imgfx.h"
#include "support/owned.h"
#include "vector/font.h"

namespace velm::test {
namespace {

/// A pen over a sheet whose pixel n is n, drawing into a black target.
struct Pen {
    Pen(std::int32_t sheetWidth, std::int32_t sheetHeight, std::int32_t cell, std::int32_t targetSize)
        : font(FONT_new()), target(IMG_newSized(targetSize, targetSize)),
          sheet(IMG_newSized(sheetWidth, sheetHeight)) {
        std::iota(sheet->pixels, rowOf(*sheet, sheetHeight), 0U);
        *static_cast<FONT*>(font) = {
            .x = 0, .y = 0, .width = cell, .height = cell, .character = 0, .image = sheet, .target = target};
    }

    Owned<FONT_delete> font;
    Picture target;
    IMG* sheet; ///< the font's own
};

TEST(Font, FindsTheCellOfACode) {
    const auto firstPixel = [](std::int32_t sheetWidth, std::int32_t sheetHeight, std::int32_t code) {
        const Pen pen(sheetWidth, sheetHeight, 16, 16);
        pen.font->character = code;
        FONT_drawChar(pen.font);
        EXPECT_EQ(pen.font->x, 16);
        return IMG_getPixel(pen.target, 0, 0);
    };
    EXPECT_EQ(firstPixel(256, 256, 17), 16U + 16 * 256);
    EXPECT_EQ(firstPixel(16, 256, 5), 80U * 16);
    EXPECT_EQ(firstPixel(40, 64, 3), 8U + 16 * 40); // a cell may begin anywhere in its row
    for (const std::int32_t outside : {256, 0x7FFFFFF7, -1}) {
        EXPECT_EQ(firstPixel(256, 256, outside), 0U);
    }
}

TEST(Font, WritesNumbersAndText) {
    const Pen pen(256, 1, 1, 11);
    FONT* const f = pen.font;
    const auto goTo = [f](std::int32_t x, std::int32_t y) { f->x = x, f->y = y; };
    goTo(0, 0), FONT_drawHexByte(f, 0xAF), FONT_drawHexWord(f, 0x09A0);
    goTo(0, 1), FONT_drawHexLong(f, 0xFEDC1234);
    goTo(0, 2), FONT_drawDecimal(f, 7);
    goTo(0, 3), FONT_drawDecimal(f, 4294967295U);
    goTo(0, 4), FONT_drawString(f, "\xE9!\nC");
    IMG_putPixel(f->image, '_', 0, 0);
    goTo(0, 5), FONT_drawString(f, "XXXXX");
    goTo(2, 5), FONT_drawText(f, "\xE9_\nC");
    const char* const expected[] = {"AF09A0.....",    "FEDC1234...",    "0000000007.", "4294967295.",
                                    "\xE9!.........", "XX\xE9.X......", "..C........"};
    for (std::int32_t y = 0; y < 7; ++y) {
        EXPECT_EQ(rowText(pen.target, y), expected[y]);
    }
}

TEST(Font, EveryKindOfCharacterIsARectangleCopyOfItsCell) {
    constexpr std::pair<void (*)(FONT*), decltype(&IMG_blit)> kinds[] = {
        {FONT_drawChar, IMG_blit},
        {FONT_drawCharVariant1, IMGFX_opaqueBlit},
        {FONT_drawCharVariant2, IMGFX_addBlit}};
    for (const auto& [draw, copy] : kinds) {
        const Pen pen(20, 18, 7, 12);
        const Picture target(noise(12, 12, 2));
        const Picture expected(IMG_clone(target));
        *static_cast<FONT*>(pen.font) = {
            .x = -2, .y = 6, .width = 7, .height = 5, .character = 5, .image = pen.sheet, .target = target};
        std::fill_n(rowOf(*pen.sheet, 7), 20, 0); // transparent, or black
        draw(pen.font);
        copy(pen.sheet, expected, 15, 5, -2, 6, 7, 5);
        EXPECT_EQ(difference(target, expected), "");
        EXPECT_EQ(pen.font->x, 5);
    }
}

TEST(Font, BigGlyphsAreMosaicsOfSmallOnes) {
    const Pen big(3, 2, 2, 8);
    const Pen small(8, 1, 1, 1);
    IMG_putPixel(big.sheet, 0, 0, 9), IMG_putPixel(big.sheet, 1, 0, 0);
    big.font->x = 2;
    big.font->y = 1;
    small.font->width = 2;
    small.font->height = 3;
    small.font->character = 3;
    FONT_drawBig(big.font, small.font);
    EXPECT_EQ(big.font->x, 6);
    EXPECT_EQ(rowText(big.target, 1), "..\6\7....");
    EXPECT_EQ(rowText(big.target, 2), "........");
    EXPECT_EQ(rowText(big.target, 4), "..\6\7\6\7..");
}

TEST(Font, PensThatCannotDrawAreReported) {
    const Pen other(8, 1, 1, 1);
    const Owned<FONT_delete> pen(FONT_new());
    pen->image = IMG_newSized(0, 5);
    for (FONT* font : {static_cast<FONT*>(nullptr), static_cast<FONT*>(pen)}) {
        expectReports(FONT_verbose, 5, "FONT Error.", [&] {
            FONT_drawChar(font), FONT_drawHexLong(font, 1), FONT_drawDecimal(font, 1);
            FONT_drawText(font, "A"), FONT_drawBig(other.font, font);
        });
    }
    expectReports(FONT_verbose, 1, "FONT Error.", [&] { FONT_drawString(other.font, nullptr); });
}

} // namespace
} // namespace velm::test
