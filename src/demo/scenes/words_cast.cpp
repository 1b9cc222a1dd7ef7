// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/words_cast.h"

#include "effects/line_text.h"
#include "foundation/fixed.h"
#include "foundation/sine.h"

#include <algorithm>

namespace velm {

namespace {

constexpr std::int32_t worldRadius = 102;
constexpr std::int32_t latitudeStep = 76; // 1/1024 turns from circle to circle

std::int32_t latitudeOf(std::int32_t i) {
    return (i - WordsCast::circleCount / 2) * latitudeStep;
}

using Line = Owned<LSCROLL_delete>;
using Body = Owned<LSCRLXYZ_delete>;

void prepareScroll(LSCROLL& scroll, const char* text, std::int32_t speed) {
    scroll.glyphs = demo.fontMedium;
    scroll.palette = demo.hueRamp;
    scroll.speed = speed;
    scroll.hue = scroll.lift.phase = scroll.swing.phase = 0;
    LSCROLL_setText(&scroll, text);
}

/// Line `i` from the top: the one in the middle is large, those beside it are slower, as if they were farther
/// away. They swing as if the letters rode on a wave: each leans as steep as the wave is under it.
Line makeLine(std::int32_t i) {
    // It follows the point, which has waited in the middle.
    constexpr const char* told =
        "        A POINT WENT FOR A WALK: A LINE.  THE LINE DANCED: A WAVE ~ A WAVE ~ ";
    constexpr const char* murmured =
        "A LINE - A LINE - A LINE - A LINE - A WAVE ~ A WAVE ~ A WAVE ~ A WAVE ~ ";
    const bool isTold = i == WordsCast::lineCount / 2;
    return Line(LSCROLL_new(), [=](LSCROLL& line) {
        prepareScroll(line, isTold ? told : murmured, isTold ? 7 * fixedOne : 4 * fixedOne);
        const std::int32_t y = centreY + (i - WordsCast::lineCount / 2) * 78;
        LSCROLL_setLine(&line, -16, y, 272, y);
        line.scale = isTold ? 3 * fixedOne / 2 : fixedOne;
        line.hueStep = 20;
        line.lift = {.speed = 10, .offsetStep = isTold ? 84 : 56};
        line.lift.phase = 300 * i;
        line.swing = line.lift;
        line.swing.phase -= SINE_quarter;
    });
}

/// A ring of letters around the figures' middle, which join up.
Line makeRing(const char* text, std::int32_t radius, std::int32_t speed) {
    return Line(LSCROLL_new(), [=](LSCROLL& ring) {
        prepareScroll(ring, text, speed);
        LSCROLL_setCurve(&ring, {middle, centreY, radius, radius, 1, 1, 0});
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
        body.y = centreY;
        body.distance = 560;
        body.turns = 3; // of the screw; nothing to the others
        body.angle = {0, 0, 0};
        body.spin = {0, 0, 0};
        body.hue = 0;
        body.dimmest = 0;
        LSCRLXYZ_setText(&body, text);
        body.hueStep = hueCount / std::max(1, body.text.length);
        LSCRLXYZ_fit(&body);
    });
}

/// Row `i` of the cylinder between two rims; every second one runs the other way.
Body makeRow(std::int32_t i) {
    constexpr const char* texts[WordsCast::rowCount] = {"= = = = = = = = = ", "THE CIRCLE STOOD UP * ",
                                                        "A CYLINDER * A TOWER * ", "OF TURNING LETTERS * ",
                                                        "= = = = = = = = = "};
    return makeBody(texts[i], LSCRLXYZ_SHAPE::cylinder, 88, i % 2 == 0 ? 2 * fixedOne : -2 * fixedOne);
}

/// Circle `i` of the world from the north, which turns as fast as the others.
Body makeCircle(std::int32_t i) {
    constexpr const char* texts[WordsCast::circleCount] = {"AT ONCE * AT ONCE * ", "EVERYTHING * TURNED * ",
                                                           "THE SPRING BECAME A WORLD * ",
                                                           "TURNING * EVERYTHING ", "AT ONCE * AT ONCE * "};
    const std::int32_t radius = circleRadius(i);
    return makeBody(texts[i], LSCRLXYZ_SHAPE::cylinder, radius, 3 * fixedOne * radius / worldRadius);
}

} // namespace

WordsCast::WordsCast()
    : ring(makeRing("THE WAVE BIT ITS TAIL: A CIRCLE * ", 98, 2 * fixedOne)),
      innerRing(makeRing("ROUND AND ROUND * ", 52, -3 * fixedOne / 2)),
      screw(
          makeBody("THE TOWER LET GO: A SPRING * UP AND DOWN * ", LSCRLXYZ_SHAPE::screw, 84, 4 * fixedOne)) {
    for (std::int32_t i = 0; i < lineCount; ++i) {
        lines[i] = makeLine(i);
    }
    for (std::int32_t i = 0; i < rowCount; ++i) {
        rows[i] = makeRow(i);
    }
    for (std::int32_t i = 0; i < circleCount; ++i) {
        world[i] = makeCircle(i);
    }
}

std::int32_t circleRadius(std::int32_t i) {
    return SINE_cosineScaled(worldRadius, latitudeOf(i));
}

std::int32_t circleHeight(std::int32_t i) {
    return SINE_scaled(worldRadius, latitudeOf(i));
}

} // namespace velm
