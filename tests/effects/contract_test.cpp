// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/archpath.h"
#include "effects/backmove.h"
#include "effects/circle.h"
#include "effects/contract.h"
#include "effects/fill.h"
#include "effects/flashpix.h"
#include "effects/line_font.h"
#include "effects/lradial.h"
#include "effects/lrain.h"
#include "effects/lscrlxyz.h"
#include "effects/lscroll.h"
#include "effects/lstar.h"
#include "effects/rect.h"
#include "effects/sineline.h"
#include "effects/sinescan.h"
#include "effects/wordzoom.h"

namespace velm::test {
namespace {

TEST(Contract, BACKMOVEAndSINESCAN) {
    const Picture picture(noise(40, 30, 1));
    const auto show = [&picture](BACKMOVE* back) { BACKMOVE_setPicture(back, picture); };
    const auto place = [&picture](SINESCAN* scan) { scan->source = picture, scan->x = 48, scan->y = 32; };
    expectContract<BACKMOVE>(
        {BACKMOVE_new, BACKMOVE_delete, BACKMOVE_randomize, BACKMOVE_advance, BACKMOVE_draw, show},
        BACKMOVE_verbose, "BACKMOVE error", 1);
    expectContract<SINESCAN>(
        {SINESCAN_new, SINESCAN_delete, SINESCAN_randomize, SINESCAN_advance, SINESCAN_draw, place},
        SINESCAN_verbose, "SINESCAN error", 1);
}

TEST(Contract, CIRCLEAndLRAINAndLRADIALAndFLASHPIX) {
    expectContract<CIRCLE>({CIRCLE_new, CIRCLE_delete, CIRCLE_randomize, CIRCLE_advance, CIRCLE_drawXor},
                           CIRCLE_verbose, "CIRCLE error", 2);
    expectContract<LRAIN>({LRAIN_new, LRAIN_delete, LRAIN_randomize, LRAIN_advance, LRAIN_draw},
                          LRAIN_verbose, "LRAIN error", 3);
    expectContract<LRADIAL>({LRADIAL_new, LRADIAL_delete, LRADIAL_randomize, LRADIAL_advance, LRADIAL_draw},
                            LRADIAL_verbose, "LRADIAL error", 2);
    expectContract<FLASHPIX>(
        {FLASHPIX_new, FLASHPIX_delete, FLASHPIX_randomize, FLASHPIX_advance, FLASHPIX_draw},
        FLASHPIX_verbose, "FLASHPIX error", 3);
}

TEST(Contract, LSTARAndSINELINE) {
    const auto middle = [](auto* effect) { effect->x = 48, effect->y = 32; };
    for (const auto draw : {LSTAR_draw, LSTAR_drawPolygons}) {
        expectContract<LSTAR>({LSTAR_new, LSTAR_delete, LSTAR_randomize, LSTAR_advance, draw, middle},
                              LSTAR_verbose, "LSTAR error", 2);
    }
    const auto dark = [](SINELINE* line) { line->x = 48, line->y = 32, line->colour = 0x010101; };
    expectContract<SINELINE>(
        {SINELINE_new, SINELINE_delete, SINELINE_randomize, SINELINE_advance, SINELINE_draw, dark},
        SINELINE_verbose, "SINELINE error", 1);
}

/// Of what is refused, nothing stays.
template <typename Record>
void expectOldCount(Record* effect, void (*setCount)(Record*, std::int32_t), std::uint8_t& verbose,
                    const char* line) {
    const std::int32_t before = effect->count;
    expectReports(verbose, 3, line, [&] {
        setCount(effect, -1), setCount(nullptr, 1);
        expectFailure(1, [&] { return setCount(effect, before + 1), nullptr; });
    });
    EXPECT_EQ(effect->count, before);
}

TEST(Contract, CountsThatCannotBeHadChangeNothing) {
    expectOldCount<CIRCLE>(Owned<CIRCLE_delete>(CIRCLE_new()), CIRCLE_setCount, CIRCLE_verbose,
                           "CIRCLE error");
    expectOldCount<LSTAR>(Owned<LSTAR_delete>(LSTAR_new()), LSTAR_setCount, LSTAR_verbose, "LSTAR error");
    expectOldCount<LRAIN>(Owned<LRAIN_delete>(LRAIN_new()), LRAIN_setCount, LRAIN_verbose, "LRAIN error");
    expectOldCount<LRADIAL>(Owned<LRADIAL_delete>(LRADIAL_new()), LRADIAL_setCount, LRADIAL_verbose,
                            "LRADIAL error");
    expectOldCount<RECT>(Owned<RECT_delete>(RECT_new()), RECT_setCount, RECT_verbose, "RECT error");
    expectOldCount<FLASHPIX>(Owned<FLASHPIX_delete>(FLASHPIX_new()), FLASHPIX_setCount, FLASHPIX_verbose,
                             "FLASHPIX error");
}

TEST(Contract, ARCHPATH) {
    const PixelPen pen(1, 1);
    const auto leap = [&pen](ARCHPATH* path) {
        path->figure = static_cast<OBJ2D*>(LIST_get(pen->glyphs, 'A'));
        path->right = 90, path->ground = 60, path->rise = 40;
    };
    expectContract<ARCHPATH>(
        {ARCHPATH_new, ARCHPATH_delete, ARCHPATH_randomize, ARCHPATH_advance, ARCHPATH_draw, leap},
        ARCHPATH_verbose, "ARCHPATH error", 2);
}

TEST(Contract, FILL) {
    const Picture walls(IMG_newSized(96, 64));
    const auto pour = [&walls](FILL* fill) { FILL_begin(fill, walls), FILL_randomize(fill); };
    expectContract<FILL>({FILL_new, FILL_delete, FILL_randomize, FILL_advance, FILL_draw, pour}, FILL_verbose,
                         "FILL error", 3);
}

TEST(Contract, TheWritersWithLineFonts) {
    const PixelPen pen(1, 1);
    const auto path = [&pen](LSCROLL* scroll) {
        scroll->glyphs = pen->glyphs;
        LSCROLL_setText(scroll, "AB CD"), LSCROLL_setLine(scroll, 0, 32, 96, 32);
    };
    const auto middle = [&pen](auto setText) {
        return [&pen, setText](auto* effect) {
            effect->glyphs = pen->glyphs;
            effect->x = 48, effect->y = 32;
            setText(effect, "AB CD");
        };
    };
    expectContract<LSCROLL>(
        {LSCROLL_new, LSCROLL_delete, LSCROLL_randomize, LSCROLL_advance, LSCROLL_draw, path},
        LSCROLL_verbose, "LSCROLL error", 2);
    expectContract<LSCRLXYZ>({LSCRLXYZ_new, LSCRLXYZ_delete, LSCRLXYZ_randomize, LSCRLXYZ_advance,
                              LSCRLXYZ_draw, middle(LSCRLXYZ_setText)},
                             LSCRLXYZ_verbose, "LSCRLXYZ error", 1);
    expectContract<WORDZOOM>({WORDZOOM_new, WORDZOOM_delete, WORDZOOM_randomize, WORDZOOM_advance,
                              WORDZOOM_draw, middle(WORDZOOM_setText)},
                             WORDZOOM_verbose, "WORDZOOM error", 2);
}

TEST(Contract, RECT) {
    for (const RECT_PATH path : {RECT_PATH::drift, RECT_PATH::tunnel, RECT_PATH::nest}) {
        const auto place = [path](RECT* rect) {
            rect->path = path, rect->width = 96, rect->height = 64;
            std::for_each_n(rect->panes, rect->count, [](RECT_PANE& pane) { pane.colour &= 0x030303; });
        };
        expectContract<RECT>({RECT_new, RECT_delete, RECT_randomize, RECT_advance, RECT_draw, place},
                             RECT_verbose, "RECT error", 2);
    }
}

} // namespace
} // namespace velm::test
