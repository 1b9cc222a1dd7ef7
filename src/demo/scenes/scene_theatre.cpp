// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Extra scene 6, the theatre: behind a golden frame a red curtain parts three times, for a twisting column,
// for a rubber landscape and for the name on a flag; spotlights cross, confetti falls, and the curtain
// closes.
#include "demo/scenes/acts.h"
#include "demo/scenes/caption.h"
#include "demo/scenes/curves.h"
#include "effects/rect.h"
#include "effects/sinescan.h"
#include "foundation/sine.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string_view>

namespace velm {

namespace {

constexpr std::int32_t frames = 1000;
constexpr std::int32_t stageHeight = 172; // the rows below belong to the scroll text
constexpr std::int32_t streamY = 206;     // row about which it waves
constexpr std::int32_t stageMiddle = 88;  // row

/// What the curtain opens for. It is shut before the first and after each.
struct Number {
    std::int32_t begins, ends;     ///< frames; the curtain moves in the first and last 60 of them
    std::string_view count, title; ///< stand on the shut curtain before it
};

constexpr std::int32_t curtainFrames = 60;
constexpr Number twist = {90, 340, "ONE", "TWIST"};
constexpr Number stretch = {390, 620, "TWO", "STRETCH"};
constexpr Number wave = {670, 920, "THREE", "WAVE"};
constexpr std::array<Number, 3> numbers = {twist, stretch, wave};

/// How far the curtain is open, as a weight.
std::int32_t opening(std::int32_t frame) {
    std::int32_t open = 0;
    for (const Number& number : numbers) {
        const std::int32_t up = curveEase(frame, number.begins, number.begins + curtainFrames);
        const std::int32_t down = curveEase(frame, number.ends - curtainFrames, number.ends);
        open = std::max(open, std::min(up, curveFull - down));
    }
    return open;
}

/// Red velvet: a sine of folds, dark in its depths.
void prepareFolds(RASTER& raster) {
    constexpr std::int32_t width = 128;
    constexpr std::int32_t folds = 9;
    colourRaster(raster, width, [](std::int32_t i) {
        const std::int32_t angle = i * folds * SINE_tableLength / width;
        const std::int32_t light = 128 + SINE_scaled(84, angle) + SINE_scaled(43, 3 * angle + 100);
        return RGB888_add(curveDim(0xC8101C, light), curveDim(0x604030, 2 * light - 330)) | 1;
    });
}

/// Picture B above its mirror image, so that the column has no seam, and a rim on either side.
void prepareTapestry(IMG& tapestry) {
    IMG_fill(&tapestry, 0x100818);
    for (std::int32_t row = 0; row < 64; ++row) {
        IMG_blit(demo.pictureB, &tapestry, 0, row, 0, row, 128, 1);
        IMG_blit(demo.pictureB, &tapestry, 0, 63 - row, 0, 64 + row, 128, 1);
    }
    RECT_drawFrame(&tapestry, 0, -8, 128, 144, 3, 0xE0B050, RECT_MIX::set);
}

void prepareFlagBars(RASTER& bars) {
    constexpr std::int32_t count = 96;
    constexpr std::int32_t magenta = 768;
    constexpr std::int32_t hues = 512;
    colourRaster(bars, count, [](std::int32_t i) {
        return curveHue(magenta + std::min(i, count - i) * 2 * hues / count);
    });
    bars.speed = 0x14000;
}

/// A dusk that rolls slowly behind it all.
void prepareBackdrop(RASTER& backdrop) {
    constexpr std::int32_t count = 256;
    colourRaster(backdrop, count, [](std::int32_t i) {
        return curveMix(0x04020C, 0x281040, 128 + SINE_scaled(127, i * SINE_tableLength / count));
    });
    backdrop.speed = 0x10000;
}

void prepareConfetti(RECT& confetti) {
    constexpr std::int32_t count = 70;
    constexpr std::int32_t fall = 0x8000;
    RECT_setCount(&confetti, count);
    confetti.face = RECT_FACE::pane;
    confetti.height = stageHeight;
    for (std::int32_t i = 0; i < confetti.count; ++i) {
        RECT_PANE& pane = confetti.panes[i];
        pane.width = 3 + pane.width % 6;
        pane.height = 3 + pane.height % 5;
        pane.speedX /= 4;
        pane.speedY = fall + std::abs(pane.speedY) / 2;
        pane.flipSpeed *= 3;
        pane.turnSpeed *= 4;
        pane.colour = curveHue(1000 + i * 7); // from red over gold to green
    }
}

/// Hangs from its first line, the bar.
void prepareCurtain(SINESCAN& curtain, const IMG* cloth) {
    curtain.source = cloth;
    curtain.height = stageHeight;
    curtain.y = stageHeight / 2;
    curtain.pinned = 1;
    curtain.stretch.reach = 10;
    curtain.scan.reach = 0;
    curtain.shade = 60;
    curtain.shift.wave.speed = 9;
    curtain.shift.wave.offsetStep = 4;
}

void prepareColumn(SINESCAN& column, const IMG* tapestry) {
    column.source = tapestry;
    column.way = SINESCAN_WAY::twister;
    column.x = middle;
    column.y = stageMiddle;
    column.width = 84;
    column.height = stageHeight;
    column.twist.wave.offsetStep = 2;
    column.scan.reach = 10;
    column.shade = 230;
}

struct Theatre {
    ScrollText scroll{streamY};
    Owned<RASTER_delete> folds{RASTER_new(), prepareFolds}; ///< of the cloth, a column each
    /// One half of the curtain, with gold braid along its hem.
    Picture cloth{IMG_newSized(128, stageHeight), [this](IMG& made) {
                      RASTER_drawVertical(folds, &made);
                      for (const std::int32_t row : {154, 158, 166}) {
                          RECT_drawPane(&made, 0, row, 128, row == 158 ? 6 : 2, 0xC09030, RECT_MIX::average);
                      }
                  }};
    Picture tapestry{IMG_newSized(128, 128), prepareTapestry}; ///< what the column is covered with
    Picture flag{IMG_newSized(256, 128)};                      ///< the name over raster bars
    Owned<RASTER_delete> flagBars{RASTER_new(), prepareFlagBars};
    Owned<RASTER_delete> backdrop{RASTER_new(), prepareBackdrop}; ///< a colour a row, behind the stage
    Owned<RECT_delete> confetti{RECT_new(), prepareConfetti};
    Owned<SINESCAN_delete> column{SINESCAN_new(), [this](SINESCAN& made) { prepareColumn(made, tapestry); }};
    SINESCAN rubber{}; ///< takes over the column's waves
    SINESCAN banner{}; ///< takes over the rubber's
    Owned<SINEDOTS_delete> sparkle = makeDots(3000);
    Owned<SINESCAN_delete> curtain{SINESCAN_new(), [this](SINESCAN& made) { prepareCurtain(made, cloth); }};
};

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

void drawCurtain(Theatre& theatre, std::int32_t frame) {
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

void drawBeams(Theatre&, std::int32_t frame) {
    const std::int32_t weight = curveStay(frame, 20, frames - 20, 60);
    const std::int32_t swing = SINE_scaled(70, 6 * frame);
    drawBeam(40, middle + swing, curveDim(0x302408, weight));
    drawBeam(216, middle - swing, curveDim(0x281018, weight));
}

/// What stands behind every number.
void drawBackdrop(Theatre& theatre) {
    RASTER_draw(theatre.backdrop, demo.screen);
    if (settings.rastersOn != 0) {
        RASTER_advance(theatre.backdrop);
    }
}

/// Bends what a number shows among the sparkle.
void drawShow(Theatre& theatre, SINESCAN& show) {
    theatre.sparkle->colour = 0x30180C;
    SINEDOTS_advance(theatre.sparkle);
    SINEDOTS_drawAdd(theatre.sparkle, demo.screen);
    SINESCAN_advance(&show);
    SINESCAN_draw(&show, demo.screen);
}

/// A column with four sides that twists, grows and sinks.
void drawColumn(Theatre& theatre, std::int32_t frame) {
    if (opening(frame) == 0) {
        return;
    }
    drawBackdrop(theatre);
    SINESCAN& column = *theatre.column;
    column.twist.reach = curveBetween(0, 420, curveEase(frame, twist.begins + 40, twist.begins + 130));
    column.shift.reach = curveBetween(0, 22, curveEase(frame, twist.begins + 110, twist.begins + 170));
    column.stretch.reach = curveBetween(0, 90, curveEase(frame, twist.begins + 60, twist.begins + 150));
    drawShow(theatre, column);
}

/// The waves run on from number to number.
void stretchRubber(Theatre& theatre) {
    SINESCAN& rubber = theatre.rubber;
    rubber = *theatre.column;
    rubber.source = demo.pictureA;
    rubber.way = SINESCAN_WAY::columns;
    rubber.width = 176;
    rubber.height = 96;
}

/// The landscape in a frame, as if printed on rubber, that turns over in the end.
void drawRubber(Theatre& theatre, std::int32_t frame) {
    if (opening(frame) == 0) {
        return;
    }
    drawBackdrop(theatre);
    SINESCAN& rubber = theatre.rubber;
    const std::int32_t bend = curveEase(frame, stretch.begins + 60, stretch.begins + 120);
    const std::int32_t over = curveEase(frame, stretch.begins + 130, stretch.begins + 180);
    rubber.shift.reach = curveBetween(0, 14, bend);
    rubber.stretch.reach = curveBetween(0, 120, bend) + curveBetween(0, 260, over);
    rubber.scan.reach = curveBetween(0, 14, bend);
    rubber.shade = curveBetween(0, 150, bend);
    RECT_drawFrame(demo.screen, middle - 94, stageMiddle - 54, 188, 108, 2, 0x604818, RECT_MIX::add);
    drawShow(theatre, rubber);
}

void hoistBanner(Theatre& theatre) {
    SINESCAN& banner = theatre.banner;
    banner = theatre.rubber;
    banner.source = theatre.flag;
    banner.y = stageMiddle - 4;
    banner.width = 186;
    banner.height = 100;
    banner.shift.reach = 18;
    banner.shift.wave.speed = -22;
    banner.shift.wave.offsetStep = 5;
    banner.stretch.reach = 30;
    banner.scan.reach = 0;
    banner.pinned = 1;
    banner.shade = 170;
}

/// The name on a flag of raster bars, under falling confetti.
void drawBanner(Theatre& theatre, std::int32_t frame) {
    if (opening(frame) == 0) {
        return;
    }
    drawBackdrop(theatre);
    if (settings.rastersOn != 0) {
        RASTER_advance(theatre.flagBars);
    }
    RASTER_draw(theatre.flagBars, theatre.flag);
    IMG_andMask(demo.pictureMask, theatre.flag);
    drawShow(theatre, theatre.banner);
    theatre.confetti->brightness = curveRise(frame, wave.begins + 60, wave.begins + 120);
    RECT_advance(theatre.confetti);
    RECT_draw(theatre.confetti, demo.screen);
}

/// The golden frame: nested rectangles, a light that runs around them, and the floor below.
void drawProscenium(Theatre&, std::int32_t frame) {
    constexpr std::array<std::uint32_t, 6> gold = {0x402808, 0x906018, 0xE0B048,
                                                   0xFFE898, 0xB08028, 0x402808};
    const std::int32_t weight = curveStay(frame, 0, frames, 50);
    for (std::size_t i = 0; i < gold.size(); ++i) {
        const auto inset = static_cast<std::int32_t>(i);
        const std::int32_t shine = 176 + SINE_scaled(80, 18 * frame - 90 * inset);
        RECT_drawFrame(demo.screen, inset, inset, demo.screen->width - 2 * inset, stageHeight - 2 * inset, 1,
                       curveDim(gold[i], (weight * shine) >> 8), RECT_MIX::set);
    }
    RECT_drawPane(demo.screen, 0, stageHeight, demo.screen->width, demo.screen->height - stageHeight,
                  0x060208, RECT_MIX::set);
    // Footlights: a wave of light runs along them.
    constexpr std::int32_t lamps = 16;
    for (std::int32_t i = 0; i < lamps; ++i) {
        const std::int32_t light = 148 + SINE_scaled(108, 24 * frame - 128 * i);
        const std::uint32_t colour = curveDim(0xFFC860, (weight * light) >> 8);
        RECT_drawPane(demo.screen, 6 + 16 * i, stageHeight + 2, 4, 2, colour, RECT_MIX::set);
        RECT_drawPane(demo.screen, 2 + 16 * i, stageHeight, 12, 6, curveDim(colour, 48), RECT_MIX::add);
    }
}

/// The title of the next number on the shut curtain, then the farewell.
void drawTitles(Theatre&, std::int32_t frame) {
    std::int32_t shutSince = 20;
    for (const Number& number : numbers) {
        const std::int32_t weight = curveStay(frame, shutSince, number.begins + 8, 16);
        drawCaption(demo.textMedium, {.text = number.count, .y = 56, .colour = 0xFFD880, .weight = weight});
        drawCaption(demo.textMedium,
                    {.text = number.title, .y = 84, .scale = 2, .colour = 0xFFF4D0, .weight = weight});
        shutSince = number.ends - 4;
    }
    drawCaption(demo.textMedium, {.text = "FINIS",
                                  .y = 72,
                                  .scale = 2,
                                  .colour = 0xFFF4D0,
                                  .weight = curveStay(frame, shutSince, frames - 12, 20)});
}

constexpr Act<Theatre> acts[] = {{twist.begins, twist.ends, drawColumn},
                                 {stretch.begins, stretch.ends, drawRubber, stretchRubber},
                                 {wave.begins, wave.ends, drawBanner, hoistBanner},
                                 {0, frames, drawCurtain},
                                 {0, frames, drawBeams},
                                 {0, frames, drawProscenium},
                                 {0, frames, drawTitles},
                                 {0, frames, playScrollText<frames>}};

} // namespace

void VELM4030_sceneExtra6() {
    play({}, frames, acts);
}

} // namespace velm
