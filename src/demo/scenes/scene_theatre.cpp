// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Extra scene 6, the theatre: a red curtain parts, rises and is tied up, for a twisting column, for a picture
// on rubber and for the name on a flag, under which confetti is shot. Then the curtain falls, and four
// letters take a bow.
#include "demo/scenes/acts.h"
#include "demo/scenes/beat.h"
#include "demo/scenes/caption.h"
#include "demo/scenes/letters.h"
#include "demo/scenes/theatre_house.h"
#include "demo/scenes/theatre_props.h"
#include "effects/rect.h"
#include "effects/sinescan.h"
#include "foundation/sine.h"

#include <array>
#include <cstdlib>
#include <string_view>

namespace velm {

namespace {

constexpr std::int32_t frames = 1000;
constexpr std::int32_t streamY = 206; // row about which the scroll text waves
constexpr std::int32_t darkens = 945;

/// What the curtain opens for. It is shut before the first and after each.
struct Number {
    Opening opening;
    std::string_view count, title; ///< stand on the shut curtain before it
};
constexpr Number twist = {{1 * barFrames, 300, Drape::parts}, "ONE", "TWIST"};
constexpr Number stretch = {{4 * barFrames, 570, Drape::rises}, "TWO", "STRETCH"};
constexpr Number wave = {{7 * barFrames, 10 * barFrames, Drape::swags}, "THREE", "WAVE"};
constexpr std::array<Number, 3> numbers = {twist, stretch, wave};
constexpr std::int32_t salute = 8 * barFrames; // the first confetti
constexpr std::int32_t climax = 9 * barFrames; // all of it

constexpr std::int32_t flagWidth = 180;
constexpr std::int32_t flagHeight = 90;

void prepareColumn(SINESCAN& column, const IMG* tapestry) {
    column.source = tapestry;
    column.way = SINESCAN_WAY::twister;
    column.x = middle;
    column.y = stageMiddle;
    column.width = 84;
    column.height = stageHeight - 20;
    column.twist.wave.offsetStep = 2;
    column.scan.reach = 10;
    column.shade = 230;
}

struct Theatre {
    ScrollText scroll{streamY};
    House house;
    Picture tapestry{IMG_newSized(128, 128), prepareTapestry}; ///< what the column is covered with
    Picture poster{IMG_newSized(272, 144), preparePoster};
    Picture cover{IMG_newSized(flagWidth, flagHeight), prepareCover};
    Picture flag{IMG_newSized(flagWidth, flagHeight)}; ///< the name in raster bars
    Owned<RASTER_delete> flagBars{RASTER_new(), prepareFlagBars};
    Owned<RASTER_delete> backdrop{RASTER_new(), prepareBackdrop}; ///< a colour a row, behind the stage
    Owned<RECT_delete> confetti{RECT_new(), prepareConfetti};
    Owned<SINESCAN_delete> column{SINESCAN_new(), [this](SINESCAN& made) { prepareColumn(made, tapestry); }};
    SINESCAN rubber{}; ///< takes over the column's waves
    SINESCAN banner{}; ///< takes over the rubber's
    Owned<SINEDOTS_delete> sparkle = makeDots(3000);
};

/// What the curtain does now: the number's opening that is not over yet.
const Opening& openingNow(std::int32_t frame) {
    for (const Number& number : numbers) {
        if (frame < number.opening.ends) {
            return number.opening;
        }
    }
    return wave.opening;
}

void drawVelvet(Theatre& theatre, std::int32_t frame) {
    drawCurtain(theatre.house, frame, openingNow(frame));
}

/// Two lamps cross over the stage; two more join them for the climax, and all breathe with the music.
void drawBeams(Theatre&, std::int32_t frame) {
    const std::int32_t swing = SINE_scaled(70, 5 * frame);
    const std::int32_t sweep = SINE_scaled(80, 9 * frame);
    const std::int32_t more = curveStay(frame, salute, wave.opening.ends, 30);
    const std::int32_t weight = 200 + beatWeight(24) * 56 / curveFull;
    drawBeam(48, middle + swing, curveDim(0x685020, weight));
    drawBeam(208, middle - swing, curveDim(0x602850, weight));
    if (more > 0) {
        drawBeam(100, middle - 20 - sweep, curveDim(0x205868, more));
        drawBeam(156, middle + 20 + sweep, curveDim(0x206030, more));
    }
}

/// What stands behind every number.
void drawBackdrop(Theatre& theatre) {
    RASTER_draw(theatre.backdrop, demo.screen);
    if (settings.rastersOn != 0) {
        RASTER_advance(theatre.backdrop);
    }
    drawFloor();
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
    drawBackdrop(theatre);
    SINESCAN& column = *theatre.column;
    column.twist.reach =
        curveBetween(0, 420, curveEase(frame, twist.opening.begins + 40, twist.opening.begins + 130));
    column.shift.reach =
        curveBetween(0, 22, curveEase(frame, twist.opening.begins + 110, twist.opening.begins + 170));
    column.stretch.reach =
        curveBetween(0, 90, curveEase(frame, twist.opening.begins + 60, twist.opening.begins + 150));
    drawShow(theatre, column);
}

/// The waves run on from number to number.
void stretchRubber(Theatre& theatre) {
    SINESCAN& rubber = theatre.rubber;
    rubber = *theatre.column;
    rubber.source = theatre.poster;
    rubber.way = SINESCAN_WAY::columns;
    rubber.y = stageMiddle + 3;
    rubber.width = 204;
    rubber.scan.reach = 0;
    rubber.stretch.wave.offsetStep = 5; // a whole wave: where it is thin here, it is wide there
}

/// A picture that bends together with its frame, and turns over in the end.
void drawRubber(Theatre& theatre, std::int32_t frame) {
    drawBackdrop(theatre);
    SINESCAN& rubber = theatre.rubber;
    const std::int32_t begins = stretch.opening.begins;
    const std::int32_t bend = curveEase(frame, begins + 50, begins + barFrames);
    const std::int32_t over = curveStay(frame, begins + barFrames, begins + 2 * barFrames + 20, 40);
    rubber.height = curveBetween(104, 56, over);
    rubber.shift.reach = curveBetween(0, 7, bend);
    rubber.stretch.reach = curveBetween(0, 60, bend) + curveBetween(0, 230, over);
    rubber.shade = curveBetween(0, 150, bend);
    drawShow(theatre, rubber);
}

void hoistBanner(Theatre& theatre) {
    SINESCAN& banner = theatre.banner;
    banner = theatre.rubber;
    banner.source = theatre.flag;
    banner.y = stageMiddle - 2;
    banner.width = flagWidth;
    banner.shift.reach = 14;
    banner.shift.wave.speed = -22;
    banner.shift.wave.offsetStep = 5;
    banner.stretch.reach = 30;
    banner.pinned = 1;
    banner.shade = 150;
}

/// The name in raster bars.
void paintFlag(Theatre& theatre) {
    if (settings.rastersOn != 0) {
        RASTER_advance(theatre.flagBars);
    }
    RASTER_draw(theatre.flagBars, theatre.flag);
    for (std::int32_t i = 0; i < flagWidth * flagHeight; ++i) {
        const auto covered = static_cast<std::int32_t>(theatre.cover->pixels[i]);
        theatre.flag->pixels[i] = curveDim(theatre.flag->pixels[i], covered);
    }
}

/// The flag unrolls up to the bar on which the first confetti flies.
void drawBanner(Theatre& theatre, std::int32_t frame) {
    drawBackdrop(theatre);
    paintFlag(theatre);
    theatre.banner.height = curveBetween(24, flagHeight, curveEase(frame, wave.opening.begins + 30, salute));
    drawShow(theatre, theatre.banner);
}

void loadConfetti(Theatre& theatre) {
    fireConfetti(*theatre.confetti);
}

void drawConfetti(Theatre& theatre, std::int32_t) {
    dropConfetti(*theatre.confetti);
    RECT_draw(theatre.confetti, demo.screen);
}

void drawProscenium(Theatre& theatre, std::int32_t frame) {
    drawHall(theatre.house, frame, beatWeight(20, 4) / 3);
}

/// From the first confetti on nobody keeps his seat.
void drawHeads(Theatre&, std::int32_t frame) {
    const std::int32_t joy = curveStay(frame, salute, frames, 20);
    drawAudience(frame, std::abs(SINE_scaled(6, frame * 2 * SINE_tableLength / barFrames)) * joy / curveFull);
}

/// Bold, over its own shadow; it comes out of the red of the cloth.
void drawTitle(Caption title) {
    constexpr std::uint32_t cloth = 0x600810;
    if (title.weight <= 0) {
        return;
    }
    const std::uint32_t shadow = curveMix(cloth, 0x180008, title.weight);
    const std::uint32_t front = curveMix(cloth, title.colour, title.weight);
    title.weight = curveFull;
    for (const bool isShadow : {true, false}) {
        title.colour = isShadow ? shadow : front;
        for (const std::int32_t stroke : {0, 1}) {
            Caption line = title;
            line.x += stroke + (isShadow ? 1 : 0);
            line.y += isShadow ? 2 : 0;
            drawCaption(demo.textMedium, line);
        }
    }
}

/// The title of the next number on the shut curtain, then the farewell.
void drawTitles(Theatre&, std::int32_t frame) {
    std::int32_t shutSince = 14;
    for (const Number& number : numbers) {
        const std::int32_t weight = curveStay(frame, shutSince, number.opening.begins + 10, 14);
        drawTitle({.text = number.count, .y = 52, .colour = 0xFFD880, .weight = weight});
        drawTitle({.text = number.title, .y = 82, .scale = 2, .colour = 0xFFF4D0, .weight = weight});
        shutSince = number.opening.ends - 2;
    }
    drawTitle({.text = "FINIS",
               .y = 58,
               .scale = 2,
               .colour = 0xFFF4D0,
               .weight = curveRise(frame, shutSince, shutSince + 14)});
}

/// A sign unrolls before the curtain, and on it four letters take a bow.
void drawBow(Theatre&, std::int32_t frame) {
    constexpr std::int32_t width = 92;
    constexpr std::int32_t top = 98;
    constexpr std::int32_t height = 54;
    const std::int32_t begins = wave.opening.ends;
    const std::int32_t unrolled = curveBetween(0, height, curveEase(frame, begins, begins + 16));
    const RECT_BOX scroll{middle - width / 2, top, width, unrolled};
    RECT_drawPane(demo.screen, scroll, 0x0C0410, RECT_MIX::set);
    RECT_drawFrame(demo.screen, scroll, 2, 0xC89838, RECT_MIX::set);
    if (unrolled < height) {
        return;
    }
    drawLettersAt(middle - lettersWidth / 2, top + 36);
}

constexpr Act<Theatre> acts[] = {{twist.opening.begins, twist.opening.ends, drawColumn},
                                 {stretch.opening.begins, stretch.opening.ends, drawRubber, stretchRubber},
                                 {wave.opening.begins, wave.opening.ends, drawBanner, hoistBanner},
                                 {salute, climax, drawConfetti, loadConfetti},
                                 {climax, wave.opening.ends, drawConfetti, loadConfetti},
                                 {0, frames, drawVelvet},
                                 {0, frames, drawBeams},
                                 {0, frames, drawTitles},
                                 {wave.opening.ends, frames, drawBow},
                                 {0, frames, drawProscenium},
                                 {0, frames, drawHeads},
                                 {0, frames, playScrollText<frames>},
                                 {0, frames, playDark<darkens, 6>}};

} // namespace

void VELM4030_sceneExtra6() {
    play({}, frames, acts);
}

} // namespace velm
