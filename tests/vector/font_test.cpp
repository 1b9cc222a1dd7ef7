// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "image/rgb888.h"
#include "support/owned.h"
#include "vector/font.h"

namespace velm::test {
namespace {

/// A pen over a sheet whose pixel n is n + 1, drawing into a black target.
struct Pen {
    Pen(std::int32_t sheetWidth, std::int32_t sheetHeight, std::int32_t cell, std::int32_t targetSize)
        : font(FONT_new()), target(IMG_newSized(targetSize, targetSize)),
          sheet(IMG_newSized(sheetWidth, sheetHeight)) {
        for (std::int32_t i = 0; i < sheetWidth * sheetHeight; ++i) {
            sheet->pixels[i] = static_cast<std::uint32_t>(i) + 1;
        }
        *static_cast<FONT*>(font) = {
            .x = 0, .y = 0, .width = cell, .height = cell, .character = 0, .image = sheet, .target = target};
    }
    /// What stands in a row of the target when each cell is one pixel wide, '.' where nothing was drawn.
    [[nodiscard]] std::string row(std::int32_t y) const {
        std::string text;
        for (std::int32_t x = 0; x < target->width; ++x) {
            const std::uint32_t pixel = IMG_getPixel(target, x, y);
            text += pixel == 0 ? '.' : static_cast<char>(pixel - 1);
        }
        return text;
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
    EXPECT_EQ(firstPixel(256, 256, 17), 16U + 16 * 256 + 1);
    EXPECT_EQ(firstPixel(16, 256, 5), 80U * 16 + 1);
    EXPECT_EQ(firstPixel(40, 64, 3), 8U + 16 * 40 + 1); // a cell may begin anywhere in its row
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
        EXPECT_EQ(pen.row(y), expected[y]);
    }
}

TEST(Font, CopiesMatchThePlainRule) {
    constexpr void (*draw[3])(FONT*) = {FONT_drawChar, FONT_drawCharVariant1, FONT_drawCharVariant2};
    Images random(4030);
    const auto below = [&random](std::int32_t n) { return random.number(0, n - 1); };
    for (int round = 0; round < 300; ++round) {
        const Pen pen(1 + below(20), below(20), 1 + below(9), 1 + below(20));
        std::generate_n(pen.sheet->pixels, pen.sheet->width * pen.sheet->height,
                        [&] { return random.pixel(); });
        IMG_fill(pen.target, 0x808182);
        const Picture plain(IMG_clone(pen.target));
        FONT& font = *static_cast<FONT*>(pen.font);
        font.height = 1 + below(9);
        font.character = below(12);
        font.x = below(30) - 10;
        font.y = below(30) - 10;
        const std::int32_t along = font.width * font.character;
        for (std::int32_t i = 0; i < font.width * font.height; ++i) {
            const std::int32_t fromX = along % pen.sheet->width + i % font.width;
            const std::int32_t fromY = along / pen.sheet->width * font.height + i / font.width;
            if (fromX < pen.sheet->width && fromY < pen.sheet->height) {
                const std::int32_t x = font.x + i % font.width;
                const std::int32_t y = font.y + i / font.width;
                const std::uint32_t pixel = IMG_getPixel(pen.sheet, fromX, fromY);
                const std::uint32_t old = IMG_getPixel(plain, x, y);
                const std::uint32_t results[3] = {pixel == 0 ? old : pixel, pixel, RGB888_add(old, pixel)};
                IMG_putPixel(plain, x, y, results[round % 3]);
            }
        }
        draw[round % 3](&font);
        ASSERT_EQ(difference(pen.target, plain), "") << "round " << round;
    }
}

TEST(Font, BigGlyphsAreMosaicsOfSmallOnes) {
    const Pen big(3, 2, 2, 8);
    const Pen small(8, 1, 1, 1);
    IMG_putPixel(big.sheet, 1, 0, 0);
    big.font->x = 2;
    big.font->y = 1;
    small.font->width = 2;
    small.font->height = 3;
    small.font->character = 3;
    FONT_drawBig(big.font, small.font);
    EXPECT_EQ(big.font->x, 6);
    EXPECT_EQ(big.row(1), "..\6\7....");
    EXPECT_EQ(big.row(2), "........");
    EXPECT_EQ(big.row(4), "..\6\7\6\7..");
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
