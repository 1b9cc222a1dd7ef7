// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Extra scene 7, a play of words that are what they say, in line text alone: a point goes for a walk and is a
// line, the line dances, bites its tail, stands up, lets go, becomes a world, and is a point again. Around it
// a field of points is born out of the first one, ripples with the bars, and falls back into it.
#include "demo/scenes/acts.h"
#include "demo/scenes/beat.h"
#include "demo/scenes/bold_ink.h"
#include "demo/scenes/caption.h"
#include "demo/scenes/point_field.h"
#include "demo/scenes/words_cast.h"
#include "effects/lscrlxyz.h"
#include "effects/lscroll.h"
#include "foundation/sine.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

namespace velm {

namespace {

constexpr std::int32_t frames = 1000;

constexpr std::uint32_t ink = 0xC0FFE0;

// When the parts begin, on bars and their halves; each lasts into the next one.
constexpr std::int32_t overlap = 16;
constexpr std::int32_t lineBegin = barFrames;
constexpr std::int32_t waveBegin = 2 * barFrames;
constexpr std::int32_t ringBegin = 7 * barFrames / 2;
constexpr std::int32_t cylinderBegin = 5 * barFrames;
constexpr std::int32_t screwBegin = 13 * barFrames / 2;
constexpr std::int32_t worldBegin = 8 * barFrames;
constexpr std::int32_t pointBegin = 10 * barFrames;
constexpr std::int32_t pointEnd = frames - 8;

struct Play {
    WordsCast words;
    Picture sheet{newWindowPicture()}; ///< what comes to the screen in bold
    std::int32_t depth = 0;            ///< of the sheet's bodies, as in printBold, as the act wants it
    std::int32_t shownDepth = 0;       ///< on its way there, a step a frame
};

/// The number and the name of a figure, as under a plate in an old book.
void drawFigureNames(Play&, std::int32_t frame) {
    struct Name {
        std::int32_t begin, end;
        std::string_view text;
    };
    constexpr Name names[] = {
        {12, lineBegin, "FIG. 0   A POINT"},
        {lineBegin, waveBegin, "FIG. 1   A LINE"},
        {waveBegin, ringBegin, "FIG. 2   A WAVE"},
        {ringBegin, cylinderBegin, "FIG. 3   A CIRCLE"},
        {cylinderBegin, screwBegin, "FIG. 4   A CYLINDER"},
        {screwBegin, worldBegin, "FIG. 5   A SPRING"},
        {worldBegin, pointBegin, "FIG. 6   A WORLD"},
        {pointBegin, frames - 20, "FIG. 0   A POINT"},
    };
    for (const Name& name : names) {
        const std::int32_t weight = curveStay(frame, name.begin, name.end, 8);
        for (std::int32_t x = middle - 4; x < middle - 2; ++x) { // bold
            drawCaption(demo.textSmall, {.text = name.text,
                                         .x = x,
                                         .y = 247,
                                         .colour = ink,
                                         .weight = weight,
                                         .typed = frame - name.begin});
        }
    }
}

/// What is told of the point, typed on the sheet.
void say(Play& play, const Caption& caption) {
    const KeptPen kept(demo.textMedium);
    demo.textMedium->target = play.sheet;
    drawCaption(demo.textMedium, caption);
}

/// The field comes out of the point, falls back into it with the world, and rests far out in the end.
void playField(Play&, std::int32_t frame) {
    const std::int32_t fallen = curveEase(frame, pointBegin - 40, pointBegin);
    drawField(frame, {.x = middle,
                      .y = centreY,
                      .out = curveEase(frame, 0, 60) - fallen + curveEase(frame, pointBegin, pointBegin + 60),
                      .weight = curveStay(frame, -1, pointEnd, 24)});
}

void playPoint(Play& play, std::int32_t frame) {
    const std::int32_t weight = curveStay(frame, -1, lineBegin + overlap, 12);
    play.depth = 6;
    say(play, {.text = "FIRST THERE WAS", .y = 44, .colour = ink, .weight = weight, .typed = frame});
    say(play, {.text = "A POINT",
               .y = 168,
               .scale = 2,
               .colour = ink,
               .weight = weight,
               .typed = (frame - 20) / 2});
    const std::int32_t walked = 7 * std::max(0, frame - lineBegin); // as fast as the line that follows it
    drawPoint(frame, middle - walked, centreY, curveFull);
}

/// The lines come in, then begin to swing higher and higher.
void playLines(Play& play, std::int32_t frame) {
    const std::int32_t weight = curveStay(frame, lineBegin, ringBegin + overlap, overlap);
    const std::int32_t dance = curveEase(frame, waveBegin, waveBegin + 60);
    play.depth = 6;
    for (std::int32_t i = 0; i < WordsCast::lineCount; ++i) {
        LSCROLL& line = *play.words.lines[i];
        const bool isTold = i == WordsCast::lineCount / 2;
        LSCROLL_advance(&line);
        line.light =
            isTold ? weight : std::min(weight, curveRise(frame, lineBegin + overlap, lineBegin + 50)) / 2;
        line.liftHeight = curveBetween(0, isTold ? 34 : 16, dance);
        line.swingAngle = curveBetween(0, isTold ? 92 : 48, dance);
        LSCROLL_draw(&line, play.sheet);
    }
}

void playRings(Play& play, std::int32_t frame) {
    const std::int32_t calm = curveEase(frame, ringBegin, ringBegin + 50);
    play.depth = 7;
    play.words.ring->liftHeight = curveBetween(20, 5, calm);
    play.words.ring->swingAngle = curveBetween(200, 12, calm);
    play.words.innerRing->liftHeight = curveBetween(28, 3, calm);
    play.words.innerRing->swingAngle = 0;
    for (LSCROLL* const ring : {play.words.ring.get(), play.words.innerRing.get()}) {
        ring->light = curveStay(frame, ringBegin, cylinderBegin + overlap, 20);
        LSCROLL_advance(ring);
        LSCROLL_draw(ring, play.sheet);
    }
}

/// Seen from above it is a circle still; then it stands up, row by row.
void playCylinder(Play& play, std::int32_t frame) {
    const std::int32_t up = curveEase(frame, cylinderBegin, cylinderBegin + 60);
    play.depth = 2;
    for (std::int32_t i = 0; i < WordsCast::rowCount; ++i) {
        LSCRLXYZ& row = *play.words.rows[i];
        row.light = curveStay(frame, cylinderBegin, screwBegin + overlap, overlap);
        row.across = curveBetween(0, (i - WordsCast::rowCount / 2) * 40, up);
        row.angle.x = curveBetween(SINE_quarter, 0, up) + SINE_scaled(30, 7 * frame);
        row.angle.z = SINE_scaled(curveBetween(0, 36, up), 5 * frame);
        LSCRLXYZ_advance(&row);
        LSCRLXYZ_draw(&row, play.sheet);
    }
}

/// The spring bounces: it is long and short by turns, twice a bar.
void playScrew(Play& play, std::int32_t frame) {
    LSCRLXYZ& screw = *play.words.screw;
    const std::int32_t since = frame - screwBegin;
    play.depth = 2;
    screw.light = curveStay(frame, screwBegin, worldBegin + overlap, overlap);
    screw.rise = 52 + SINE_cosineScaled(10, 2 * since * SINE_tableLength / barFrames);
    screw.angle.x = 30 + SINE_scaled(20, 6 * frame);
    screw.angle.z = SINE_scaled(36, 4 * frame);
    LSCRLXYZ_advance(&screw);
    LSCRLXYZ_draw(&screw, play.sheet);
}

/// The world grows out of the spring, and in the end falls into a point.
void playWorld(Play& play, std::int32_t frame) {
    const std::int32_t size = std::min(curveEase(frame, worldBegin, worldBegin + 45),
                                       curveFull - curveEase(frame, pointBegin - 40, pointBegin + 10));
    play.depth = 2;
    for (std::int32_t i = 0; i < WordsCast::circleCount; ++i) {
        LSCRLXYZ& circle = *play.words.world[i];
        circle.light = curveStay(frame, worldBegin, pointBegin + overlap, overlap);
        circle.radius = std::max(1, circleRadius(i) * size / curveFull);
        circle.across = circleHeight(i) * size / curveFull;
        circle.angle.x = SINE_scaled(110, 6 * (frame - worldBegin));
        circle.angle.z = SINE_scaled(90, 8 * (frame - worldBegin));
        LSCRLXYZ_fit(&circle);
        LSCRLXYZ_advance(&circle);
        LSCRLXYZ_draw(&circle, play.sheet);
    }
}

void playEnd(Play& play, std::int32_t frame) {
    const std::int32_t weight = curveStay(frame, pointBegin, pointEnd, 20);
    const std::int32_t since = frame - pointBegin;
    play.depth = 6;
    drawPoint(since, middle, centreY, curveFull - curveRise(frame, pointEnd - 20, pointEnd));
    say(play, {.text = "AND THAT WAS", .y = 44, .colour = ink, .weight = weight, .typed = since});
    say(play, {.text = "A POINT",
               .y = 168,
               .scale = 2,
               .colour = ink,
               .weight = weight,
               .typed = (since - 14) / 2});
}

void printSheet(Play& play, std::int32_t) {
    play.shownDepth += std::clamp(play.depth - play.shownDepth, -1, 1);
    printBold(play.sheet, play.shownDepth, demo.screen);
}

// The first frame of a part has no light yet.
constexpr Act<Play> acts[] = {{0, frames, playField},
                              {0, lineBegin + 20, playPoint},
                              {lineBegin, ringBegin + overlap, playLines},
                              {ringBegin + 1, cylinderBegin + overlap, playRings},
                              {cylinderBegin + 1, screwBegin + overlap, playCylinder},
                              {screwBegin + 1, worldBegin + overlap, playScrew},
                              {worldBegin + 1, pointBegin + overlap, playWorld},
                              {pointBegin + 1, pointEnd, playEnd},
                              {0, frames, printSheet},
                              {0, frames, drawFigureNames}};

} // namespace

void VELM4030_sceneExtra7() {
    VELM4030_fadeOut();
    play({.fadeStep = 0x080808, .glare = 1}, frames, acts);
}

} // namespace velm
