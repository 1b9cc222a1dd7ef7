// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Extra scene 7, a play of words that are what they say, in line text alone: a point goes for a walk and is a
// line, the line dances, bites its tail, stands up, lets go, turns every way at once, and is a point again.
#include "demo/scenes/acts.h"
#include "demo/scenes/caption.h"
#include "demo/scenes/curves.h"
#include "effects/lscrlxyz.h"
#include "effects/lscroll.h"
#include "foundation/sine.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string_view>

namespace velm {

namespace {

constexpr std::int32_t frames = 1000;
constexpr std::int32_t one = 1 << 16; // 1.0 in 16.16
constexpr std::int32_t lineCount = 5; // one in the middle, two above, two below
constexpr std::int32_t rowCount = 5;
constexpr std::int32_t hoopCount = 3;

constexpr std::uint32_t ink = 0xC0FFE0;

// When the parts begin and end; each ends while the next one begins.
constexpr std::int32_t lineBegin = 96;
constexpr std::int32_t ringBegin = 330;
constexpr std::int32_t lineEnd = ringBegin + 24;
constexpr std::int32_t cylinderBegin = 500;
constexpr std::int32_t ringEnd = cylinderBegin + 16;
constexpr std::int32_t screwBegin = 660;
constexpr std::int32_t cylinderEnd = screwBegin + 16;
constexpr std::int32_t hoopsBegin = 800;
constexpr std::int32_t screwEnd = hoopsBegin + 16;
constexpr std::int32_t pointBegin = 925;
constexpr std::int32_t hoopsEnd = pointBegin + 25;
constexpr std::int32_t pointEnd = frames - 8;

using Line = Owned<LSCROLL_delete>;
using Body = Owned<LSCRLXYZ_delete>;

void prepareScroll(LSCROLL& scroll, const char* text, std::int32_t speed) {
    scroll.glyphs = demo.fontMedium;
    scroll.palette = demo.hueRamp;
    scroll.speed = speed;
    scroll.hue = scroll.lift.phase = scroll.swing.phase = 0;
    LSCROLL_setText(&scroll, text);
}

/// Line `i` from the top: the one in the middle is read, those beside it are smaller and slower, as if they
/// were farther away.
Line makeLine(std::int32_t i) {
    // It begins with the point in the middle of the screen, where the point has waited, and with room after
    // it.
    constexpr const char* told =
        "         .          A POINT WENT FOR A WALK: A LINE.  THE LINE BEGAN TO DANCE: A WAVE.  ";
    constexpr const char* murmured =
        "                                                A LINE - "
        "A LINE - A LINE - A LINE - A LINE ~ A WAVE ~ A WAVE ~ A WAVE ~ A WAVE ~ ";
    const std::int32_t away = std::abs(i - lineCount / 2);
    return Line(LSCROLL_new(), [=](LSCROLL& line) {
        prepareScroll(line, away == 0 ? told : murmured, 9 * one / 2 - away * one);
        const std::int32_t y = middle + (i - lineCount / 2) * (44 - 6 * away);
        LSCROLL_setLine(&line, -16, y, 272, y);
        line.scale = one - away * one / 4;
        line.fade = 0;
        line.hueStep = 20;
        line.lift.phase = 80 * i;
    });
}

/// A ring of letters around the screen's middle, which join up.
Line makeRing(const char* text, std::int32_t radius, std::int32_t speed) {
    return Line(LSCROLL_new(), [=](LSCROLL& ring) {
        prepareScroll(ring, text, speed);
        LSCROLL_setCurve(&ring, {middle, middle, radius, radius, 1, 1, 0});
        LSCROLL_fit(&ring);
        ring.lift.offsetStep = 4 * SINE_tableLength / std::max(1, ring.text.length);
        ring.hueStep = hueCount / std::max(1, ring.text.length);
    });
}

Body makeBody(const char* text, LSCRLXYZ_SHAPE shape, std::int32_t radius, std::int32_t speed) {
    return Body(LSCRLXYZ_new(), [=](LSCRLXYZ& body) {
        body.glyphs = demo.fontMedium;
        body.palette = demo.hueRamp;
        body.shape = shape;
        body.radius = radius;
        body.speed = speed;
        body.turns = 4; // of the screw; nothing to the others
        body.angle = {0, 0, 0};
        body.spin = {0, 0, 0};
        body.hue = 0;
        LSCRLXYZ_setText(&body, text);
        body.hueStep = hueCount / std::max(1, body.text.length);
        LSCRLXYZ_fit(&body);
    });
}

/// Row `i` of the cylinder; every second one runs the other way.
Body makeRow(std::int32_t i) {
    constexpr const char* texts[rowCount] = {"* * * * * * * * * * * ",
                                             "THE CIRCLE STOOD UP:  ", "A CYLINDER * A TOWER *",
                                             "OF TURNING LETTERS :  ", "- = - = - = - = - = - "};
    return makeBody(texts[i], LSCRLXYZ_SHAPE::cylinder, 84, i % 2 == 0 ? one : -one);
}

Body makeHoop(std::int32_t i) {
    constexpr const char* texts[hoopCount] = {"THEN EVERYTHING TURNED AT ONCE * ",
                                              "ROUND ITSELF * ROUND ITSELF * ",
                                              "AND GREW SMALL * AND SMALLER * "};
    return makeBody(texts[i], LSCRLXYZ_SHAPE::cylinder, 100 - 24 * i, one);
}

/// What the words are written with.
struct Play {
    Line lines[lineCount] = {makeLine(0), makeLine(1), makeLine(2), makeLine(3), makeLine(4)};
    Line ring = makeRing("THE WAVE BIT ITS OWN TAIL: A CIRCLE  *  ", 96, one);
    Line innerRing = makeRing("ROUND AND ROUND AND ", 48, -3 * one / 2);
    Body rows[rowCount] = {makeRow(0), makeRow(1), makeRow(2), makeRow(3), makeRow(4)};
    Body screw = makeBody("THE TOWER LET GO:  A SPRING   *   UP AND DOWN   *   A SPRING   *   ",
                          LSCRLXYZ_SHAPE::screw, 84, 3 * one / 2);
    Body hoops[hoopCount] = {makeHoop(0), makeHoop(1), makeHoop(2)};
};

/// The number and the name of a figure, as under a plate in an old book.
void drawFigureNames(Play&, std::int32_t frame) {
    struct Name {
        std::int32_t begin, end;
        std::string_view text;
    };
    constexpr Name names[] = {
        {20, lineBegin, "FIG. 0   A POINT"},
        {lineBegin, 220, "FIG. 1   A LINE"},
        {220, ringBegin, "FIG. 2   A WAVE"},
        {ringBegin, cylinderBegin, "FIG. 3   A CIRCLE"},
        {cylinderBegin, screwBegin, "FIG. 4   A CYLINDER"},
        {screwBegin, hoopsBegin, "FIG. 5   A SPRING"},
        {hoopsBegin, pointBegin, "FIG. 6   EVERYTHING"},
        {pointBegin, frames - 20, "FIG. 0   A POINT"},
    };
    for (const Name& name : names) {
        drawCaption(demo.textSmall, {.text = name.text,
                                     .x = middle - 4,
                                     .y = 246,
                                     .colour = ink,
                                     .weight = curveStay(frame, name.begin, name.end, 12) / 2,
                                     .typed = frame - name.begin});
    }
}

/// What the point says, typed.
void say(std::string_view text, std::int32_t y, std::int32_t typed, std::int32_t weight) {
    drawCaption(demo.textMedium, {.text = text, .y = y, .colour = ink, .weight = weight, .typed = typed});
}

/// The point itself, and rings of points that run away from it and fade.
void drawPoint(std::int32_t frame, std::int32_t weight) {
    constexpr std::int32_t pingFrames = 48;
    constexpr std::int32_t pingPoints = 24;
    LFONT* const pen = demo.textMedium;
    const KeptPen kept(pen);
    const auto put = [pen](std::int32_t x, std::int32_t y) {
        constexpr std::int32_t glyphX = 7; // where the full stop is in its cell
        constexpr std::int32_t glyphY = 10;
        LFONT_place(pen, x - glyphX, y - glyphY, 1);
        LFONT_drawChar(pen);
    };
    pen->character = '.';
    for (std::int32_t age = frame % (pingFrames / 2); age < pingFrames && age <= frame;
         age += pingFrames / 2) {
        LFONT_setColour(pen, curveDim(0x80E0FF, weight * (pingFrames - age) / (2 * pingFrames)));
        for (std::int32_t i = 0; i < pingPoints; ++i) {
            const std::int32_t angle = i * SINE_tableLength / pingPoints + 2 * frame;
            put(middle + SINE_scaled(2 * age, angle), middle + SINE_cosineScaled(age / 2, angle));
        }
    }
    LFONT_setColour(pen, curveDim(0xFFFFFF, weight));
    for (std::int32_t x = -1; x <= 1; ++x) {
        put(middle + x, middle);
        put(middle, middle + x);
    }
}

void playPoint(Play&, std::int32_t frame) {
    const std::int32_t weight = curveStay(frame, 0, lineBegin + 16, 16);
    say("FIRST THERE WAS", 88, frame / 2, weight);
    say("A POINT", 152, (frame - 36) / 2, weight);
    if (frame < lineBegin) { // then it goes away
        drawPoint(frame, curveRise(frame, 0, 16));
    }
}

/// The lines come in, then begin to swing higher and higher, and draw earlier moments of their waves behind.
void playLines(Play& play, std::int32_t frame) {
    constexpr std::int32_t danceBegin = 200;
    constexpr std::int32_t danceRamp = 90;
    constexpr std::int32_t moments = 3;
    const std::int32_t weight = curveFull - curveRise(frame, ringBegin, lineEnd);
    const std::int32_t dance = curveEase(frame, danceBegin, danceBegin + danceRamp);
    for (std::int32_t i = 0; i < lineCount; ++i) {
        LSCROLL& line = *play.lines[i];
        const std::int32_t away = std::abs(i - lineCount / 2);
        LSCROLL_advance(&line);
        line.liftHeight = curveBetween(0, 64 - 12 * away, dance);
        line.swingAngle = curveBetween(0, 90, dance);
        const std::int32_t phase = line.lift.phase;
        for (std::int32_t k = 0; k <= (away == 0 ? moments : 0); ++k) {
            line.light = (k == 0 ? weight : weight * dance / curveFull >> (k + 1)) >> away;
            line.lift.phase = phase - 28 * k;
            LSCROLL_draw(&line, demo.screen);
        }
        line.lift.phase = phase;
    }
}

void playRings(Play& play, std::int32_t frame) {
    const std::int32_t calm = curveEase(frame, ringBegin, ringBegin + 70);
    play.ring->liftHeight = curveBetween(60, 7, calm);
    play.ring->swingAngle = curveBetween(200, 20, calm);
    play.innerRing->liftHeight = curveBetween(40, 4, calm);
    play.innerRing->swingAngle = 0;
    for (LSCROLL* const ring : {play.ring.get(), play.innerRing.get()}) {
        ring->light = curveStay(frame, ringBegin, ringEnd, 24);
        LSCROLL_advance(ring);
        LSCROLL_draw(ring, demo.screen);
    }
}

/// Seen from above it is a circle still; then it stands up, row by row.
void playCylinder(Play& play, std::int32_t frame) {
    const std::int32_t weight = curveStay(frame, cylinderBegin, cylinderEnd, 20);
    const std::int32_t up = curveEase(frame, cylinderBegin + 10, cylinderBegin + 90);
    for (std::int32_t i = 0; i < rowCount; ++i) {
        LSCRLXYZ& row = *play.rows[i];
        row.light = weight;
        row.across = curveBetween(0, (i - rowCount / 2) * 32, up);
        row.radius = curveBetween(96, 84, up);
        row.angle.x = curveBetween(SINE_quarter, 0, up) + SINE_scaled(34, 7 * frame);
        row.angle.z = SINE_scaled(curveBetween(0, 60, up), 5 * frame);
        LSCRLXYZ_advance(&row);
        LSCRLXYZ_draw(&row, demo.screen);
    }
}

/// The spring bounces: it is long and short by turns.
void playScrew(Play& play, std::int32_t frame) {
    LSCRLXYZ& screw = *play.screw;
    const std::int32_t swing = SINE_scaled(16, 22 * (frame - screwBegin));
    screw.light = curveStay(frame, screwBegin, screwEnd, 20);
    screw.rise = curveBetween(32, 40 + swing, curveRise(frame, screwBegin, screwBegin + 30));
    screw.angle.x = 24 + SINE_scaled(30, 6 * frame);
    screw.angle.z = SINE_scaled(70, 4 * frame);
    screw.spin.y = 6;
    LSCRLXYZ_advance(&screw);
    LSCRLXYZ_draw(&screw, demo.screen);
}

/// Three hoops in three planes, and in the end all of them fall into a point.
void playHoops(Play& play, std::int32_t frame) {
    constexpr LSCRLXYZ_AXES spins[hoopCount] = {{7, 5, 0}, {-6, 4, 5}, {5, -8, -3}};
    const std::int32_t weight = curveStay(frame, hoopsBegin, hoopsEnd, 20);
    const std::int32_t fall = curveEase(frame, pointBegin - 45, pointBegin + 15);
    for (std::int32_t i = 0; i < hoopCount; ++i) {
        LSCRLXYZ& hoop = *play.hoops[i];
        hoop.light = weight;
        hoop.radius = std::max(1, curveBetween(104 - 26 * i, 1, fall));
        LSCRLXYZ_fit(&hoop);
        hoop.spin = spins[i];
        LSCRLXYZ_advance(&hoop);
        LSCRLXYZ_draw(&hoop, demo.screen);
    }
}

void playEnd(Play&, std::int32_t frame) {
    const std::int32_t weight = curveStay(frame, pointBegin, pointEnd, 20);
    const std::int32_t since = frame - pointBegin;
    drawPoint(since, weight);
    say("AND THAT", 88, (since - 8) / 2, weight);
    say("WAS THE POINT", 152, (since - 24) / 2, weight);
}

// The first frame of a part has no light yet.
constexpr Act<Play> acts[] = {
    {0, lineBegin + 16, playPoint},        {lineBegin, lineEnd, playLines},
    {ringBegin + 1, ringEnd, playRings},   {cylinderBegin + 1, cylinderEnd, playCylinder},
    {screwBegin + 1, screwEnd, playScrew}, {hoopsBegin + 1, hoopsEnd, playHoops},
    {pointBegin + 1, pointEnd, playEnd},   {0, frames, drawFigureNames}};

} // namespace

void VELM4030_sceneExtra7() {
    VELM4030_fadeOut();
    play({.fadeStep = 0x080808, .glare = 1}, frames, acts);
}

} // namespace velm
