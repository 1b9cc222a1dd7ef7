// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/ball3d.h"
#include "effects/distx.h"
#include "effects/disty.h"
#include "effects/logofly.h"
#include "effects/mouse.h"
#include "effects/owned.h"
#include "effects/raster.h"
#include "effects/scroll.h"
#include "effects/sinedots.h"
#include "platform/xdpy.h"
#include "support/allocation.h"
#include "support/capture_stdout.h"

namespace velm::test {

namespace {

/// Expects the calls to print the line that many times, and nothing else.
template <typename Calls>
void expectReports(std::uint8_t& verbose, std::int32_t times, const std::string& line, Calls calls) {
    std::string expected;
    for (std::int32_t i = 0; i < times; ++i) {
        expected += line + "\n";
    }
    verbose = 1;
    EXPECT_EQ(printedBy(calls), expected);
    verbose = 0;
}

/// Expects nullptr when the nth allocation fails.
template <typename Make>
void expectFailure(std::int64_t nth, Make make) {
    const FailingAllocation failure(nth);
    EXPECT_EQ(make(), nullptr);
}

} // namespace

TEST(Errors, DISTX_errorIsSilentAndDISTY_errorIsSilentAndSINEDOTS_errorIsSilent) {
    const Owned<DISTX, DISTX_delete> rows(DISTX_new());
    const Owned<DISTY, DISTY_delete> columns(DISTY_new());
    const Owned<SINEDOTS, SINEDOTS_delete> dots(SINEDOTS_new());
    const Picture image(IMG_newSized(4, 4));
    IMG_verbose = DISTX_verbose = DISTY_verbose = 1;
    expectReports(SINEDOTS_verbose, 0, "", [&] {
        DISTX_draw(rows, image), DISTX_draw(rows, nullptr), DISTX_advance(nullptr), DISTX_delete(nullptr);
        DISTY_draw(columns, image), DISTY_draw(columns, nullptr), DISTY_advance(nullptr),
            DISTY_delete(nullptr);
        rows->source = columns->source = image;
        rows->y = columns->x = 4; // beside the target
        DISTX_draw(rows, image), DISTY_draw(columns, image);
        SINEDOTS_setCount(dots, 0), SINEDOTS_draw(dots, nullptr), SINEDOTS_drawAdd(nullptr, image);
        SINEDOTS_advance(nullptr), SINEDOTS_randomize(nullptr), SINEDOTS_delete(nullptr);
        expectFailure(1, DISTX_new), expectFailure(1, DISTY_new);
        expectFailure(1, SINEDOTS_new), expectFailure(2, SINEDOTS_new);
    });
    IMG_verbose = DISTX_verbose = DISTY_verbose = 0;
    EXPECT_EQ(dots->count, 16);
}

TEST(Errors, EveryBadCallIsReportedOnce) {
    const Owned<BALL3D, BALL3D_delete> ball(BALL3D_new());
    expectReports(BALL3D_verbose, 4, "BALL3D error", [&] {
        BALL3D_draw(ball), BALL3D_draw(nullptr), BALL3D_delete(nullptr);
        expectFailure(1, BALL3D_new);
    });
    const Owned<LOGOFLY, LOGOFLY_delete> logo(LOGOFLY_new());
    expectReports(LOGOFLY_verbose, 5, "LOGOFLY error", [&] {
        LOGOFLY_draw(logo), LOGOFLY_advance(nullptr), LOGOFLY_copy(nullptr, logo), LOGOFLY_delete(nullptr);
        expectFailure(1, LOGOFLY_new);
    });
    const Owned<LFONT, LFONT_delete> pen(LFONT_new());
    VEC2D_verbose = 0;
    expectReports(LFONT_verbose, 10, "LFONT Error.", [&] {
        LFONT_drawChar(pen), LFONT_drawCharRandomColour(pen), LFONT_drawText(pen, "AB"),
            LFONT_setColour(pen, 0);
        LFONT_drawLine(pen, nullptr), LFONT_drawHexLong(nullptr, 0), LFONT_checkArgs(pen, nullptr);
        LFONT_delete(nullptr);
        expectFailure(1, LFONT_new), expectFailure(4, LFONT_new);
    });
    VEC2D_verbose = 1;
}

TEST(Errors, RastersThatCannotRollAreReported) {
    const Owned<RASTER, RASTER_delete> bars(RASTER_new());
    const Picture image(IMG_newSized(4, 4));
    RASTER_setCount(bars, 5);
    expectReports(RASTER_verbose, 11, "RASTER error", [&] {
        RASTER_setCount(bars, -1), RASTER_smooth(bars, 0), RASTER_draw(bars, nullptr),
            RASTER_draw(nullptr, image);
        RASTER_copy(bars, nullptr), RASTER_delete(nullptr);
        expectFailure(1, RASTER_new), expectFailure(2, RASTER_new);
        expectFailure(3, [&] { return RASTER_clone(bars); });
        EXPECT_EQ(bars->count, 5);
        RASTER_setCount(bars, 0), RASTER_draw(bars, image);
        RASTER_setCount(bars, 0x10000), RASTER_advance(bars); // its length in 16.16 wraps to 0
    });
}

TEST(Errors, ScrollersThatCannotShowAreReported) {
    const Owned<SCROLL, SCROLL_delete> scroll(SCROLL_new());
    const Owned<FONT, FONT_delete> font(FONT_new());
    const Picture strip(IMG_newSized(4, 4));
    expectReports(SCROLL_verbose, 8, "SCROLL error", [&] {
        SCROLL_step(scroll), SCROLL_draw(scroll);
        SCROLL_setup(scroll, "", font, strip), SCROLL_step(scroll), SCROLL_draw(scroll);
        SCROLL_setup(scroll, "ABC", font, strip), SCROLL_setup(scroll, nullptr, font, strip);
        expectFailure(1, [&] { return SCROLL_setup(scroll, "AB", font, strip), nullptr; });
        font->width = 0;
        SCROLL_step(scroll), SCROLL_draw(scroll);
    });
    EXPECT_EQ(scroll->cursor->count, 3);
}

TEST(Errors, SCROLL_newFailsSilently) {
    expectReports(SCROLL_verbose, 0, "", [] { expectFailure(1, SCROLL_new), expectFailure(2, SCROLL_new); });
}

TEST(Errors, AMouseNeedsAWindow) {
    XDPY* display = XDPY_open();
    const Owned<MOUSE, MOUSE_delete> mouse(MOUSE_new());
    expectReports(MOUSE_verbose, 6, "MOUSE error", [&] {
        MOUSE_update(mouse), MOUSE_draw(mouse), MOUSE_copy(mouse, nullptr), MOUSE_delete(nullptr);
        expectFailure(1, MOUSE_new);
        XDPY_close(&display);
        EXPECT_EQ(MOUSE_new(), nullptr);
    });
}

} // namespace velm::test
