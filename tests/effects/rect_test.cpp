// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/rect.h"
#include "image/rgb888.h"
#include "support/owned.h"

#include <climits>

namespace velm::test {
namespace {

constexpr RECT_MIX mixes[] = {RECT_MIX::set, RECT_MIX::add, RECT_MIX::average};
constexpr std::uint32_t colour = 0x8040FF;

/// What one mixing makes of a pixel.
std::uint32_t mixed(std::uint32_t pixel, RECT_MIX mix) {
    return mix == RECT_MIX::set   ? colour
           : mix == RECT_MIX::add ? RGB888_add(pixel, colour)
                                  : RGB888_average(pixel, colour);
}

/// Every pixel of the rectangle by itself, its inner part of `thickness` left out.
void plain(IMG* img, std::int64_t x, std::int64_t y, std::int64_t w, std::int64_t h, std::int64_t thickness,
           RECT_MIX mix) {
    const std::int64_t left = std::min(x, x + w);
    const std::int64_t top = std::min(y, y + h);
    const std::int64_t right = std::max(x, x + w);
    const std::int64_t bottom = std::max(y, y + h);
    paint(img, [=](std::int32_t c, std::int32_t r, std::uint32_t pixel) {
        const bool inside = c >= left && c < right && r >= top && r < bottom;
        const bool inner =
            c >= left + thickness && c < right - thickness && r >= top + thickness && r < bottom - thickness;
        return inside && !inner ? mixed(pixel, mix) : pixel;
    });
}

TEST(Rect, NegativeAndClippedSizesAreThePlainOnes) {
    Images random(11);
    const Picture fast(noise(40, 30, 1));
    const Picture slow(noise(40, 30, 1));
    for (std::int32_t i = 0; i < 600; ++i) {
        const std::int32_t x = random.number(-50, 60);
        const std::int32_t y = random.number(-40, 50);
        const std::int32_t w = i == 7 ? INT_MAX : i == 8 ? INT_MIN : random.number(-70, 70);
        const std::int32_t h = i == 7 ? INT_MIN : i == 8 ? INT_MAX : random.number(-60, 60);
        const std::int32_t thickness = random.number(0, 20);
        const RECT_MIX mix = mixes[i % 3];
        RECT_drawPane(fast, {x, y, w, h}, colour, mix);
        plain(slow, x, y, w, h, INT_MAX, mix);
        RECT_drawFrame(fast, {y, x, h, w}, thickness, colour, mix);
        plain(slow, y, x, h, w, thickness, mix);
        ASSERT_EQ(difference(fast, slow), "") << "rectangle " << i;
    }
}

TEST(Rect, TurnedOnesKeepTheirAreaAndTheirPlace) {
    for (std::int32_t angle = -2048; angle <= 2048; angle += 37) {
        const Picture pane(IMG_newSized(200, 200));
        RECT_drawTurned(pane, {100, 100, 80, -60}, angle, RECT_FACE::pane, colour, RECT_MIX::add);
        EXPECT_NEAR(lit(pane), 80 * 60, 240) << angle; // the rim's rounding
        EXPECT_EQ(IMG_getPixel(pane, 100, 100), colour);
        const Picture frame(IMG_newSized(200, 200));
        RECT_drawTurned(frame, {100, 100, 80, 60}, angle, RECT_FACE::frame, colour, RECT_MIX::set);
        EXPECT_EQ(IMG_getPixel(frame, 100, 100), 0U);
        EXPECT_EQ(IMG_getPixel(frame, 100 + SINE_cosineScaled(38, angle), 100 + SINE_scaled(38, angle)), 0U);
        EXPECT_NEAR(lit(frame), 240, 48) << angle;
        // The same, cut off on all sides and moved far outside.
        const Picture window(IMG_newSized(30, 20));
        for (const std::int32_t x : {-70000, -20, 15, 50, 70000}) {
            for (const std::int32_t y : {-70000, -20, 10, 40, INT_MAX}) {
                RECT_drawTurned(window, {x, y, 80, 60}, angle, RECT_FACE::both, colour, RECT_MIX::average);
            }
        }
    }
}

TEST(Rect, NoPanesDrawNothing) {
    const Owned<RECT_delete> rect(RECT_new());
    RECT_setCount(rect, 0);
    const Picture empty(IMG_newSized(8, 8));
    RECT_advance(rect), RECT_draw(rect, empty);
    EXPECT_EQ(lit(empty), 0);
}

} // namespace
} // namespace velm::test
