// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/ball3d.h"
#include "effects/distx.h"
#include "effects/disty.h"
#include "effects/line_font.h"
#include "effects/logofly.h"
#include "effects/owned.h"
#include "effects/raster.h"
#include "effects/scroll.h"
#include "effects/sinedots.h"
#include "support/allocation.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>

namespace velm::test {

namespace {

SINEDOTS* seededDots(unsigned seed) {
    std::srand(seed); // one generator with srandom's
    return SINEDOTS_new();
}

/// One of each effect over its own picture. Everything random in it comes from the seed.
struct Show {
    explicit Show(unsigned seed) : strip(noise(96, 16, seed)), dots(seededDots(seed)) {
        std::copy_n(strip->pixels, bars->count, bars->colours);
        font->image = IMG_clone(strip);
        SCROLL_setup(scroll, "0123 ABC", font, screen);
        rows->source = columns->source = strip;
        ball->target = logo->target = pen->target = screen;
        logo->pen = pen;
    }

    void frame() const {
        RASTER_advance(bars), RASTER_draw(bars, screen);
        SCROLL_step(scroll), SCROLL_draw(scroll);
        DISTX_draw(rows, screen), DISTX_advance(rows);
        DISTY_draw(columns, screen), DISTY_advance(columns);
        BALL3D_draw(ball);
        SINEDOTS_advance(dots), SINEDOTS_drawAdd(dots, screen);
        LOGOFLY_draw(logo), LOGOFLY_advance(logo);
    }

    Picture screen{IMG_newSized(96, 64)};
    Picture strip;
    PixelPen pen{1, 1};
    Owned<SINEDOTS, SINEDOTS_delete> dots; // the first to draw random numbers
    Owned<BALL3D, BALL3D_delete> ball{BALL3D_new()};
    Owned<LOGOFLY, LOGOFLY_delete> logo{LOGOFLY_new()};
    Owned<RASTER, RASTER_delete> bars{RASTER_new()};
    Owned<FONT, FONT_delete> font{FONT_new()};
    Owned<SCROLL, SCROLL_delete> scroll{SCROLL_new()};
    Owned<DISTX, DISTX_delete> rows{DISTX_new()};
    Owned<DISTY, DISTY_delete> columns{DISTY_new()};
};

} // namespace

TEST(Instances, DoNotDisturbEachOtherAndAllocateNothing) {
    const Show alone(1);
    const Show first(1);
    const Show second(2);
    const std::int64_t allocations = allocationCount();
    for (std::int32_t i = 0; i < 10; ++i) {
        alone.frame();
    }
    for (std::int32_t i = 0; i < 10; ++i) {
        first.frame();
        second.frame();
    }
    EXPECT_EQ(allocationCount(), allocations);
    EXPECT_EQ(firstDifference(alone.screen, first.screen), "");
    EXPECT_NE(firstDifference(first.screen, second.screen), "");
}

} // namespace velm::test
