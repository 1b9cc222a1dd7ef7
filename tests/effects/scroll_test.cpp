// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/scroll.h"
#include "support/owned.h"
#include "vector/cursor.h"
#include "vector/font.h"

namespace velm::test {
namespace {

constexpr std::int32_t cell = 8;

/// What a column of a character's cell shows. Every fourth is transparent, and codes above 127, which count
/// as negative, show nothing.
std::uint32_t cellPixel(char code, std::int32_t column) {
    const auto value = static_cast<signed char>(code);
    return value < 0 || column % 4 == 3 ? 0 : static_cast<std::uint32_t>(value * cell + column + 1);
}

/// A scroller over a text, with a font of its own and a black strip, one pixel high.
struct Scroller {
    explicit Scroller(const char* text) {
        font->width = cell;
        font->height = 1;
        font->character = 77;
        font->image = IMG_newSized(256 * cell, 1);
        for (std::int32_t i = 0; i < 256 * cell; ++i) {
            font->image->pixels[i] = i % 4 == 3 ? 0 : static_cast<std::uint32_t>(i) + 1;
        }
        SCROLL_setup(scroll, text, font, strip);
    }

    /// Steps and tells which character is the first then, and how far into it.
    std::pair<std::int32_t, std::int32_t> step(std::int32_t speed) const {
        scroll->speed = speed;
        SCROLL_step(scroll);
        return {scroll->cursor->index, scroll->offset};
    }

    Owned<FONT_delete> font{FONT_new()};
    Picture strip{IMG_newSized(100, 1)};
    Owned<SCROLL_delete> scroll{SCROLL_new()};
};

TEST(Scroll, StepsBothWays) {
    const std::string text(25, 'x');
    const Scroller scroller(text.c_str());
    constexpr std::int32_t steps[][3] = {{8, 1, 0}, {20, 3, 4}, {25 * cell, 3, 4}, {-7, 2, 5}, {-30, 23, 7}};
    for (const auto& [speed, index, offset] : steps) {
        EXPECT_EQ(scroller.step(speed), (std::pair{index, offset})) << speed;
    }
    scroller.scroll->x = 5;
    SCROLL_setup(scroller.scroll, "ABCDE", scroller.font, scroller.strip);
    EXPECT_EQ(scroller.step(1), (std::pair{1, 0})) << "the offset is kept";
    EXPECT_EQ(scroller.scroll->x, 0);
    EXPECT_EQ(scroller.scroll->fontField, 77);
}

TEST(Scroll, SCROLL_wholeCellBackwards) {
    const Scroller scroller("ABCDE");
    EXPECT_EQ(scroller.step(-cell), (std::pair{3, cell}));
    SCROLL_draw(scroller.scroll);
    EXPECT_EQ(scroller.strip->pixels[0], cellPixel('E', 0));
    EXPECT_EQ(scroller.step(0), (std::pair{4, 0}));
}

TEST(Scroll, DrawingSetsTheStepBackEvenWhenNothingFits) {
    const Scroller scroller("ABCDE");
    constexpr std::int32_t most = 0x7FFFFFFF;
    for (const auto draw : {SCROLL_draw, SCROLL_drawOpaque}) {
        for (const auto& [view, width] : {std::pair{100, cell}, {-100, cell}, {most, 1}}) {
            EXPECT_EQ(scroller.step(4 * cell).second, 0);
            EXPECT_EQ(scroller.scroll->cursor->step, 4);
            scroller.scroll->viewWidth = view;
            scroller.font->width = width;
            draw(scroller.scroll); // one more than the highest number of columns wraps to none
            EXPECT_EQ(scroller.scroll->cursor->step, 1) << view << " pixels by " << width;
            scroller.font->width = cell;
        }
    }
}

TEST(Scroll, StepsAsFarAsANumberReaches) {
    const Scroller scroller("ABCDE");
    scroller.font->width = 1;
    constexpr std::int32_t least = -0x7FFFFFFF - 1;
    EXPECT_EQ(scroller.step(least), (std::pair{2, 1})) << "one character more wraps to the other end";
}

TEST(Scroll, SCROLL_bytesAreSigned) {
    const std::string text = "WAVE \xC4\n~";
    const Scroller scroller(text.c_str());
    for (const std::int32_t speed : {0, 3, 21, -5, -100, 1, 64}) {
        const auto [index, offset] = scroller.step(speed);
        for (const bool opaque : {false, true}) {
            IMG_fill(scroller.strip, 0xABCDEF);
            (opaque ? SCROLL_drawOpaque : SCROLL_draw)(scroller.scroll);
            EXPECT_EQ(scroller.scroll->cursor->index, index);
            for (std::int32_t x = 0; x < 100; ++x) {
                const char code = text[static_cast<std::size_t>(index + (x + offset) / cell) % text.size()];
                const std::uint32_t pixel = cellPixel(code, (x + offset) % cell);
                const bool covered = pixel != 0 || (opaque && static_cast<signed char>(code) >= 0);
                ASSERT_EQ(scroller.strip->pixels[x], covered ? pixel : 0xABCDEFU)
                    << "speed " << speed << ", x " << x;
            }
        }
    }
}

} // namespace
} // namespace velm::test
