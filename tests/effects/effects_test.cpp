// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/ball3d.h"
#include "effects/distx.h"
#include "effects/disty.h"
#include "effects/line_font.h"
#include "effects/logofly.h"
#include "effects/raster.h"
#include "effects/scroll.h"
#include "effects/sinedots.h"
#include "foundation/chance.h"
#include "vector/cursor.h"
#include "vector/font.h"

namespace velm::test {
namespace {

/// One of each effect over its own picture. Everything random in it comes from the seed.
struct Show {
    explicit Show(unsigned seed) : strip(noise(96, 16, seed)), dots((chanceSeed(seed), SINEDOTS_new())) {
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
    Owned<SINEDOTS_delete> dots; // the first to draw; srand's generator is srandom's
    Owned<BALL3D_delete> ball{BALL3D_new()};
    Owned<LOGOFLY_delete> logo{LOGOFLY_new()};
    Owned<RASTER_delete> bars{RASTER_new()};
    Owned<FONT_delete> font{FONT_new()};
    Owned<SCROLL_delete> scroll{SCROLL_new()};
    Owned<DISTX_delete> rows{DISTX_new()};
    Owned<DISTY_delete> columns{DISTY_new()};
};

TEST(Instances, DoNotDisturbEachOtherAndAllocateNothing) {
    const Show alone(1);
    const Show first(1);
    const Show second(2);
    const std::int64_t allocations = allocationCount();
    for (std::int32_t i = 0; i < 20; ++i) {
        i < 10 ? alone.frame() : (first.frame(), second.frame());
    }
    EXPECT_EQ(allocationCount(), allocations);
    EXPECT_EQ(difference(alone.screen, first.screen), "");
    EXPECT_NE(difference(first.screen, second.screen), "");
}

TEST(Errors, DISTX_errorIsSilentAndDISTY_errorIsSilentAndSINEDOTS_errorIsSilent) {
    const Owned<DISTX_delete> rows(DISTX_new());
    const Owned<DISTY_delete> columns(DISTY_new());
    const Owned<SINEDOTS_delete> dots(SINEDOTS_new());
    const Picture image(IMG_newSized(4, 4));
    IMG_verbose = DISTX_verbose = DISTY_verbose = 1;
    expectReports(SINEDOTS_verbose, 0, "", [&] {
        DISTX_draw(rows, image), DISTX_draw(rows, nullptr), DISTX_delete(nullptr);
        DISTY_draw(columns, image), DISTY_draw(columns, nullptr), DISTY_delete(nullptr);
        rows->source = columns->source = image;
        rows->y = columns->x = 4; // beside the target
        DISTX_draw(rows, image), DISTY_draw(columns, image);
        SINEDOTS_setCount(dots, 0), SINEDOTS_draw(dots, nullptr), SINEDOTS_drawAdd(nullptr, image);
        expectFailure(1, DISTX_new), expectFailure(1, DISTY_new);
        expectFailure(1, SINEDOTS_new), expectFailure(2, SINEDOTS_new);
    });
    IMG_verbose = DISTX_verbose = DISTY_verbose = 0;
    EXPECT_EQ(dots->count, 16);
}

TEST(Errors, EveryBadCallIsReportedOnce) {
    const Owned<BALL3D_delete> ball(BALL3D_new());
    expectReports(BALL3D_verbose, 4, "BALL3D error", [&] {
        BALL3D_draw(ball), BALL3D_draw(nullptr), BALL3D_delete(nullptr);
        expectFailure(1, BALL3D_new);
    });
    const Owned<LOGOFLY_delete> logo(LOGOFLY_new());
    expectReports(LOGOFLY_verbose, 4, "LOGOFLY error", [&] {
        LOGOFLY_draw(logo), LOGOFLY_copy(nullptr, logo), LOGOFLY_delete(nullptr);
        expectFailure(1, LOGOFLY_new);
    });
    const Owned<LFONT_delete> pen(LFONT_new());
    VEC2D_verbose = 0;
    expectReports(LFONT_verbose, 9, "LFONT Error.", [&] {
        LFONT_drawChar(pen), LFONT_drawCharRandomColour(pen), LFONT_drawText(pen, "AB");
        LFONT_setColour(pen, 0), LFONT_drawLine(pen, nullptr), LFONT_drawHexLong(nullptr, 0);
        LFONT_delete(nullptr);
        expectFailure(1, LFONT_new), expectFailure(4, LFONT_new);
    });
    VEC2D_verbose = 1;
    const Owned<RASTER_delete> bars(RASTER_new());
    const Picture image(IMG_newSized(4, 4));
    RASTER_setCount(bars, 5);
    expectReports(RASTER_verbose, 10, "RASTER error", [&] {
        RASTER_setCount(bars, -1), RASTER_smooth(bars, 0), RASTER_draw(bars, nullptr);
        RASTER_copy(bars, nullptr), RASTER_delete(nullptr);
        expectFailure(1, RASTER_new), expectFailure(2, RASTER_new);
        expectFailure(3, [&] { return RASTER_clone(bars); });
        EXPECT_EQ(bars->count, 5);
        RASTER_setCount(bars, 0), RASTER_draw(bars, image);
        RASTER_setCount(bars, 0x10000), RASTER_advance(bars); // its length in 16.16 wraps to 0
    });
}

TEST(Errors, SCROLL_newFailsSilently) {
    const Owned<SCROLL_delete> scroll(SCROLL_new());
    const Owned<FONT_delete> font(FONT_new());
    const Picture strip(IMG_newSized(4, 4));
    expectReports(SCROLL_verbose, 8, "SCROLL error", [&] {
        expectFailure(1, SCROLL_new), expectFailure(2, SCROLL_new);
        SCROLL_step(scroll), SCROLL_draw(scroll);
        SCROLL_setup(scroll, "", font, strip), SCROLL_step(scroll), SCROLL_draw(scroll);
        SCROLL_setup(scroll, "ABC", font, strip), SCROLL_setup(scroll, nullptr, font, strip);
        expectFailure(1, [&] { return SCROLL_setup(scroll, "AB", font, strip), nullptr; });
        font->width = 0;
        SCROLL_step(scroll), SCROLL_draw(scroll);
    });
    EXPECT_EQ(scroll->cursor->count, 3);
}

} // namespace
} // namespace velm::test
