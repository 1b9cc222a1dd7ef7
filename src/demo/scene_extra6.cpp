// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Extra scene 6, the theatre: behind a golden frame a red curtain parts three times, for a twisting column,
// for a rubber landscape and for the name on a flag; spotlights cross, confetti falls, and the curtain
// closes.
#include "demo/scene_curves.h"
#include "demo/scene_frames.h"
#include "demo/state.h"
#include "demo/velm4030.h"
#include "effects/rect.h"
#include "effects/sinescan.h"
#include "foundation/sine.h"

#include <array>
#include <string_view>

namespace velm {

namespace {

constexpr std::int32_t frames = 1000;
constexpr std::int32_t stageHeight = 172; // the rows below belong to the scroll text
constexpr std::int32_t streamY = 206;     // row about which it waves
constexpr std::int32_t middle = 128;      // column
constexpr std::int32_t stageMiddle = 88;  // row

/// What the curtain opens for. It is shut before the first and after each.
struct Act {
    std::int32_t begins, ends; ///< frames; the curtain moves in the first and last 60 of them
    std::string_view title;    ///< stands on the shut curtain before it
};

constexpr std::int32_t curtainFrames = 60;
constexpr std::array<Act, 3> acts = {{{90, 340, "TWIST"}, {390, 620, "STRETCH"}, {670, 920, "WAVE"}}};

struct Theatre {
    IMG* cloth;        ///< the folds of one half of the curtain
    RASTER* folds;     ///< the colours of the cloth, a column each
    SINESCAN* curtain; ///< hangs either half
    SINESCAN* show;    ///< bends what the act shows
    IMG* tapestry;     ///< what the column is covered with
    IMG* flag;         ///< the name over raster bars
    RASTER* flagBars;  ///< and their colours
    RASTER* backdrop;  ///< a colour a row, behind the stage
    RECT* confetti;
    SINEDOTS* sparkle;
};

/// How far the curtain is open, 0..256.
std::int32_t opening(std::int32_t frame) {
    std::int32_t share = 0;
    for (const Act& act : acts) {
        const std::int32_t up = curveEase(frame, act.begins, act.begins + curtainFrames);
        const std::int32_t down = curveEase(frame, act.ends - curtainFrames, act.ends);
        share = std::max(share, std::min(up, curveFull - down));
    }
    return share;
}

/// Red velvet: a sine of folds, dark in its depths.
RASTER* makeFolds() {
    constexpr std::int32_t width = 128;
    constexpr std::int32_t folds = 9;
    RASTER* const raster = RASTER_new();
    if (raster == nullptr) {
        return nullptr;
    }
    RASTER_setCount(raster, width);
    for (std::int32_t i = 0; i < raster->count; ++i) {
        const std::int32_t angle = i * folds * SINE_tableLength / width;
        const std::int32_t light = 128 + SINE_scaled(84, angle) + SINE_scaled(43, 3 * angle + 100);
        raster->colours[i] = RGB888_add(curveDim(0xC8101C, light), curveDim(0x604030, 2 * light - 330)) | 1;
    }
    return raster;
}

/// The cloth, with gold braid along its hem.
IMG* makeCloth(const RASTER* folds) {
    IMG* const cloth = IMG_newSized(128, stageHeight);
    RASTER_drawVertical(folds, cloth);
    for (const std::int32_t row : {154, 158, 166}) {
        RECT_drawPane(cloth, 0, row, 128, row == 158 ? 6 : 2, 0xC09030, RECT_MIX::average);
    }
    return cloth;
}

/// Picture B above its mirror image, so that the column has no seam, and a rim on either side.
IMG* makeTapestry() {
    IMG* const tapestry = IMG_newSized(128, 128);
    if (tapestry == nullptr || demo.pictureB == nullptr) {
        return tapestry;
    }
    IMG_fill(tapestry, 0x100818);
    for (std::int32_t row = 0; row < 64; ++row) {
        IMG_blit(demo.pictureB, tapestry, 0, row, 0, row, 128, 1);
        IMG_blit(demo.pictureB, tapestry, 0, 63 - row, 0, 64 + row, 128, 1);
    }
    RECT_drawFrame(tapestry, 0, -8, 128, 144, 3, 0xE0B050, RECT_MIX::set);
    return tapestry;
}

RASTER* makeFlagBars() {
    constexpr std::int32_t count = 96;
    constexpr std::int32_t magenta = 768;
    constexpr std::int32_t hues = 512;
    RASTER* const bars = RASTER_new();
    if (bars == nullptr) {
        return nullptr;
    }
    RASTER_setCount(bars, count);
    for (std::int32_t i = 0; i < bars->count; ++i) {
        bars->colours[i] = curveHue(magenta + std::min(i, count - i) * 2 * hues / count, curveFull);
    }
    bars->speed = 0x14000;
    return bars;
}

RECT* makeConfetti() {
    constexpr std::int32_t count = 70;
    constexpr std::int32_t fall = 0x8000;
    RECT* const confetti = RECT_new();
    if (confetti == nullptr) {
        return nullptr;
    }
    RECT_setCount(confetti, count);
    confetti->face = RECT_FACE::pane;
    confetti->height = stageHeight;
    for (std::int32_t i = 0; i < confetti->count; ++i) {
        RECT_PANE& pane = confetti->panes[i];
        pane.width = 3 + pane.width % 6;
        pane.height = 3 + pane.height % 5;
        pane.speedX /= 4;
        pane.speedY = fall + std::abs(pane.speedY) / 2;
        pane.flipSpeed *= 3;
        pane.turnSpeed *= 4;
        pane.colour = curveHue(1000 + i * 7, curveFull); // from red over gold to green
    }
    return confetti;
}

/// Hangs one half; it gathers at its side as the curtain opens, and swings while it moves.
void drawHalf(SINESCAN& curtain, bool isRight, std::int32_t open) {
    constexpr std::int32_t gathered = 20;
    constexpr std::int32_t shut = 130;
    const std::int32_t width = curveBetween(shut, gathered, open);
    curtain.width = width;
    curtain.x = isRight ? demo.screen->width - width / 2 : width / 2;
    // The cloth reaches over its side, so that no wave shows what is behind it.
    curtain.width += 12;
    curtain.shift.reach = isRight ? -5 : 5;
    SINESCAN_draw(&curtain, demo.screen);
}

void drawCurtain(const Theatre& theatre, std::int32_t frame) {
    if (theatre.curtain == nullptr || theatre.cloth == nullptr) {
        return;
    }
    theatre.curtain->brightness = curveBetween(0, 230, curveStay(frame, 0, frames, 60));
    SINESCAN_advance(theatre.curtain);
    const std::int32_t open = opening(frame);
    drawHalf(*theatre.curtain, false, open);
    drawHalf(*theatre.curtain, true, open);
}

/// A beam from the rig down to the floor, of panes that widen: additive light.
void drawBeam(std::int32_t fromX, std::int32_t toX, std::uint32_t colour) {
    constexpr std::int32_t slices = 43;
    constexpr std::int32_t sliceHeight = 4;
    for (std::int32_t i = 0; i < slices; ++i) {
        const std::int32_t x = fromX + (toX - fromX) * i / slices;
        const std::int32_t width = 6 + i;
        RECT_drawPane(demo.screen, x - width / 2, i * sliceHeight, width, sliceHeight,
                      curveDim(colour, curveFull - i * 3), RECT_MIX::add);
    }
}

void drawBeams(std::int32_t frame) {
    const std::int32_t share = curveStay(frame, 20, frames - 20, 60);
    const std::int32_t swing = SINE_scaled(70, 6 * frame);
    drawBeam(40, middle + swing, curveDim(0x302408, share));
    drawBeam(216, middle - swing, curveDim(0x281018, share));
}

/// Act one: a column with four sides that twists, grows and sinks.
void drawColumn(const Theatre& theatre, std::int32_t frame) {
    SINESCAN& show = *theatre.show;
    const Act& act = acts[0];
    show.source = theatre.tapestry;
    show.way = SINESCAN_WAY::twister;
    show.x = middle;
    show.y = stageMiddle;
    show.width = 84;
    show.height = stageHeight;
    show.twist.reach = curveBetween(0, 420, curveEase(frame, act.begins + 40, act.begins + 130));
    show.twist.wave.offsetStep = 2;
    show.shift.reach = curveBetween(0, 22, curveEase(frame, act.begins + 110, act.begins + 170));
    show.stretch.reach = curveBetween(0, 90, curveEase(frame, act.begins + 60, act.begins + 150));
    show.scan.reach = 10;
    show.shade = 230;
}

/// Act two: the landscape in a frame, as if printed on rubber, that turns over in the end.
void drawRubber(const Theatre& theatre, std::int32_t frame) {
    SINESCAN& show = *theatre.show;
    const Act& act = acts[1];
    const std::int32_t bend = curveEase(frame, act.begins + 60, act.begins + 120);
    show.source = demo.pictureA;
    show.way = SINESCAN_WAY::columns;
    show.x = middle;
    show.y = stageMiddle;
    show.width = 176;
    show.height = 96;
    show.shift.reach = curveBetween(0, 14, bend);
    show.stretch.reach = curveBetween(0, 120, bend) +
                         curveBetween(0, 260, curveEase(frame, act.begins + 130, act.begins + 180));
    show.scan.reach = curveBetween(0, 14, bend);
    show.shade = curveBetween(0, 150, bend);
    RECT_drawFrame(demo.screen, middle - 94, stageMiddle - 54, 188, 108, 2, 0x604818, RECT_MIX::add);
}

/// Act three: the name on a flag of raster bars, under falling confetti.
void drawFlag(const Theatre& theatre, std::int32_t frame) {
    SINESCAN& show = *theatre.show;
    show.source = theatre.flag;
    show.way = SINESCAN_WAY::columns;
    show.x = middle;
    show.y = stageMiddle - 4;
    show.width = 186;
    show.height = 100;
    show.shift.reach = 18;
    show.shift.wave.speed = -22;
    show.shift.wave.offsetStep = 5;
    show.stretch.reach = 30;
    show.scan.reach = 0;
    show.pinned = 1;
    show.shade = 170;
    if (settings.rastersOn != 0) {
        RASTER_advance(theatre.flagBars);
    }
    if (theatre.flag != nullptr) {
        RASTER_draw(theatre.flagBars, theatre.flag);
        IMG_andMask(demo.pictureMask, theatre.flag);
    }
    if (theatre.confetti != nullptr) {
        theatre.confetti->brightness = curveRise(frame, acts[2].begins + 60, acts[2].begins + 120);
        RECT_advance(theatre.confetti);
    }
}

/// A dusk that rolls slowly behind it all.
RASTER* makeBackdrop() {
    constexpr std::int32_t count = 256;
    RASTER* const backdrop = RASTER_new();
    if (backdrop == nullptr) {
        return nullptr;
    }
    RASTER_setCount(backdrop, count);
    for (std::int32_t i = 0; i < backdrop->count; ++i) {
        const auto share = static_cast<std::uint32_t>(128 + SINE_scaled(127, i * SINE_tableLength / count));
        backdrop->colours[i] = RGB888_mix(0x04020C, 0x281040, share);
    }
    backdrop->speed = 0x10000;
    return backdrop;
}

/// What stands on the stage, seen through the open part of the curtain.
void drawAct(const Theatre& theatre, std::int32_t frame) {
    if (theatre.show == nullptr || opening(frame) == 0) {
        return;
    }
    RASTER_draw(theatre.backdrop, demo.screen);
    if (settings.rastersOn != 0) {
        RASTER_advance(theatre.backdrop);
    }
    theatre.show->pinned = 0;
    const bool isLast = frame >= acts[2].begins;
    if (isLast) {
        drawFlag(theatre, frame);
    } else if (frame >= acts[1].begins) {
        drawRubber(theatre, frame);
    } else {
        drawColumn(theatre, frame);
    }
    if (theatre.sparkle != nullptr) {
        SINEDOTS_advance(theatre.sparkle);
        SINEDOTS_drawAdd(theatre.sparkle, demo.screen);
    }
    SINESCAN_advance(theatre.show);
    if (theatre.show->source != nullptr) {
        SINESCAN_draw(theatre.show, demo.screen);
    }
    if (isLast && theatre.confetti != nullptr) {
        RECT_draw(theatre.confetti, demo.screen);
    }
}

/// The golden frame: nested rectangles, a light that runs around them, and the floor below.
void drawProscenium(std::int32_t frame) {
    constexpr std::array<std::uint32_t, 6> gold = {0x402808, 0x906018, 0xE0B048,
                                                   0xFFE898, 0xB08028, 0x402808};
    const std::int32_t share = curveStay(frame, 0, frames, 50);
    for (std::size_t i = 0; i < gold.size(); ++i) {
        const auto inset = static_cast<std::int32_t>(i);
        const std::int32_t shine = 176 + SINE_scaled(80, 18 * frame - 90 * inset);
        RECT_drawFrame(demo.screen, inset, inset, demo.screen->width - 2 * inset, stageHeight - 2 * inset, 1,
                       curveDim(gold[i], (share * shine) >> 8), RECT_MIX::set);
    }
    RECT_drawPane(demo.screen, 0, stageHeight, demo.screen->width, demo.screen->height - stageHeight,
                  0x060208, RECT_MIX::set);
    // Footlights: a wave of light runs along them.
    constexpr std::int32_t lamps = 16;
    for (std::int32_t i = 0; i < lamps; ++i) {
        const std::int32_t light = 148 + SINE_scaled(108, 24 * frame - 128 * i);
        const std::uint32_t colour = curveDim(0xFFC860, (share * light) >> 8);
        RECT_drawPane(demo.screen, 6 + 16 * i, stageHeight + 2, 4, 2, colour, RECT_MIX::set);
        RECT_drawPane(demo.screen, 2 + 16 * i, stageHeight, 12, 6, curveDim(colour, 48), RECT_MIX::add);
    }
}

void writeLine(LFONT* pen, std::string_view text, std::int32_t y, std::int32_t scale, std::uint32_t colour) {
    constexpr std::int32_t cell = 16;
    if (pen == nullptr || colour == 0) {
        return;
    }
    LFONT_setColour(pen, colour);
    pen->angle = 0;
    pen->scale->x = pen->scale->y = scale;
    pen->position->x = middle - static_cast<std::int32_t>(text.size()) * cell * scale / 2;
    pen->position->y = y;
    for (const char letter : text) {
        pen->character = static_cast<unsigned char>(letter);
        LFONT_drawChar(pen);
    }
    pen->scale->x = pen->scale->y = 1;
}

/// The title of the next act on the shut curtain, then the farewell.
void drawTitles(std::int32_t frame) {
    std::int32_t shutSince = 20;
    std::int32_t number = 1;
    for (const Act& act : acts) {
        const std::int32_t share = curveStay(frame, shutSince, act.begins + 8, 16);
        if (share > 0) {
            constexpr std::array<std::string_view, 3> counts = {"ONE", "TWO", "THREE"};
            writeLine(demo.textMedium, counts[static_cast<std::size_t>(number - 1)], 56, 1,
                      curveDim(0xFFD880, share));
            writeLine(demo.textMedium, act.title, 84, 2, curveDim(0xFFF4D0, share));
        }
        shutSince = act.ends - 4;
        ++number;
    }
    writeLine(demo.textMedium, "FINIS", 72, 2,
              curveDim(0xFFF4D0, curveStay(frame, shutSince, frames - 12, 20)));
}

Theatre VELM4030_sceneExtra6Setup() {
    constexpr std::int32_t dots = 3000;
    setLook({});
    VELM4030_rasterSetup();
    VELM4030_scrollSetup();
    VELM4030_placeScroll(streamY);
    Theatre theatre{};
    theatre.folds = makeFolds();
    theatre.cloth = makeCloth(theatre.folds);
    theatre.tapestry = makeTapestry();
    theatre.flag = IMG_newSized(256, 128);
    theatre.flagBars = makeFlagBars();
    theatre.backdrop = makeBackdrop();
    theatre.confetti = makeConfetti();
    theatre.show = SINESCAN_new();
    if ((theatre.sparkle = SINEDOTS_new()) != nullptr) {
        SINEDOTS_setCount(theatre.sparkle, dots);
        theatre.sparkle->colour = 0x30180C;
    }
    if ((theatre.curtain = SINESCAN_new()) != nullptr) {
        theatre.curtain->source = theatre.cloth;
        theatre.curtain->height = stageHeight;
        theatre.curtain->y = stageHeight / 2;
        theatre.curtain->pinned = 1;
        theatre.curtain->stretch.reach = 10;
        theatre.curtain->scan.reach = 0;
        theatre.curtain->shade = 60;
        theatre.curtain->shift.wave.speed = 9;
        theatre.curtain->shift.wave.offsetStep = 4;
    }
    return theatre;
}

void VELM4030_sceneExtra6Cleanup(Theatre& theatre) {
    IMG_delete(&theatre.cloth);
    IMG_delete(&theatre.tapestry);
    IMG_delete(&theatre.flag);
    RASTER_delete(&theatre.folds);
    RASTER_delete(&theatre.flagBars);
    RASTER_delete(&theatre.backdrop);
    SINESCAN_delete(&theatre.curtain);
    SINESCAN_delete(&theatre.show);
    RECT_delete(&theatre.confetti);
    SINEDOTS_delete(&theatre.sparkle);
    VELM4030_placeScroll(VELM4030_scrollY);
}

} // namespace

void VELM4030_sceneExtra6() {
    Theatre theatre = VELM4030_sceneExtra6Setup();
    runFrames(frames, [&theatre](std::int32_t frame) {
        drawAct(theatre, frame);
        drawCurtain(theatre, frame);
        drawBeams(frame);
        drawProscenium(frame);
        drawTitles(frame);
        drawScrollText();
        drawPointerAndOverlay();
    });
    VELM4030_sceneExtra6Cleanup(theatre);
}

} // namespace velm
