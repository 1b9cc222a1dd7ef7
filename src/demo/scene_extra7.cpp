// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A play of words that are what they say, in line text alone: a point goes for a walk and is a line, the line
// dances, bites its tail, stands up, lets go, turns every way at once, and is a point again.
#include "demo/scene_curves.h"
#include "demo/scene_frames.h"
#include "demo/state.h"
#include "demo/velm4030.h"
#include "effects/lscrlxyz.h"
#include "effects/lscroll.h"
#include "foundation/sine.h"
#include "foundation/wrap.h"
#include "image/rgb888.h"

#include <algorithm>
#include <cstdlib>

namespace velm {

namespace {

constexpr std::int32_t frames = 1000;
constexpr std::int32_t one = 1 << 16; // 1.0 in 16.16
constexpr std::int32_t middle = 128;  // of the screen
constexpr std::int32_t lineCount = 5; // one in the middle, two above, two below
constexpr std::int32_t rowCount = 5;
constexpr std::int32_t hoopCount = 3;

// When the parts begin; each ends while the next one begins.
constexpr std::int32_t lineBegin = 96;
constexpr std::int32_t ringBegin = 330;
constexpr std::int32_t cylinderBegin = 500;
constexpr std::int32_t screwBegin = 660;
constexpr std::int32_t hoopsBegin = 800;
constexpr std::int32_t pointBegin = 925;

/// What the words are written with.
struct Play {
    LSCROLL* lines[lineCount]; ///< from the top down
    LSCROLL* ring;
    LSCROLL* innerRing;
    LSCRLXYZ* rows[rowCount]; ///< of the cylinder
    LSCRLXYZ* screw;
    LSCRLXYZ* hoops[hoopCount];
};

LSCROLL* makeScroll(const char* text, std::int32_t speed) {
    LSCROLL* const scroll = LSCROLL_new();
    if (scroll != nullptr) {
        scroll->glyphs = demo.fontMedium;
        scroll->palette = demo.hueRamp;
        scroll->speed = speed;
        scroll->hue = scroll->lift.phase = scroll->swing.phase = 0;
        LSCROLL_setText(scroll, text);
    }
    return scroll;
}

/// A ring of letters around the screen's middle, which join up.
LSCROLL* makeRing(const char* text, std::int32_t radius, std::int32_t speed) {
    LSCROLL* const ring = makeScroll(text, speed);
    if (ring != nullptr) {
        LSCROLL_setCurve(ring, {middle, middle, radius, radius, 1, 1, 0});
        LSCROLL_fit(ring);
        ring->lift.offsetStep = 4 * SINE_tableLength / std::max(1, ring->text.length);
        ring->hueStep = hueCount / std::max(1, ring->text.length);
    }
    return ring;
}

LSCRLXYZ* makeBody(const char* text, LSCRLXYZ_SHAPE shape, std::int32_t radius, std::int32_t speed) {
    LSCRLXYZ* const body = LSCRLXYZ_new();
    if (body != nullptr) {
        body->glyphs = demo.fontMedium;
        body->palette = demo.hueRamp;
        body->shape = shape;
        body->radius = radius;
        body->speed = speed;
        body->angle = {0, 0, 0};
        body->spin = {0, 0, 0};
        body->hue = 0;
        LSCRLXYZ_setText(body, text);
        body->hueStep = hueCount / std::max(1, body->text.length);
        LSCRLXYZ_fit(body);
    }
    return body;
}

/// The line that is read, and smaller and slower ones beside it, as if they were farther away.
void makeLines(Play& play) {
    // It begins with the point in the middle of the screen, where the point has waited, and with room behind
    // it.
    constexpr const char* told =
        "         .          A POINT WENT FOR A WALK: A LINE.  THE LINE BEGAN TO DANCE: A WAVE.  ";
    constexpr const char* murmured =
        "                                                A LINE - "
        "A LINE - A LINE - A LINE - A LINE ~ A WAVE ~ A WAVE ~ A WAVE ~ A WAVE ~ ";
    for (std::int32_t i = 0; i < lineCount; ++i) {
        const std::int32_t away = std::abs(i - lineCount / 2);
        LSCROLL* const line = makeScroll(away == 0 ? told : murmured, 9 * one / 2 - away * one);
        play.lines[i] = line;
        if (line != nullptr) {
            const std::int32_t y = middle + (i - lineCount / 2) * (44 - 6 * away);
            LSCROLL_setLine(line, -16, y, 272, y);
            line->scale = one - away * one / 4;
            line->fade = 0;
            line->hueStep = 20;
            line->lift.phase = 80 * i;
        }
    }
}

void makePlay(Play& play) {
    makeLines(play);
    play.ring = makeRing("THE WAVE BIT ITS OWN TAIL: A CIRCLE  *  ", 96, one);
    play.innerRing = makeRing("ROUND AND ROUND AND ", 48, -3 * one / 2);
    constexpr const char* rowTexts[rowCount] = {"* * * * * * * * * * * ",
                                                "THE CIRCLE STOOD UP:  ", "A CYLINDER * A TOWER *",
                                                "OF TURNING LETTERS :  ", "- = - = - = - = - = - "};
    for (std::int32_t i = 0; i < rowCount; ++i) {
        const std::int32_t way = i % 2 == 0 ? one : -one;
        play.rows[i] = makeBody(rowTexts[i], LSCRLXYZ_SHAPE::cylinder, 84, way);
    }
    play.screw = makeBody("THE TOWER LET GO:  A SPRING   *   UP AND DOWN   *   A SPRING   *   ",
                          LSCRLXYZ_SHAPE::screw, 84, 3 * one / 2);
    if (play.screw != nullptr) {
        play.screw->turns = 4;
        LSCRLXYZ_fit(play.screw);
    }
    constexpr const char* hoopTexts[hoopCount] = {"THEN EVERYTHING TURNED AT ONCE * ",
                                                  "ROUND ITSELF * ROUND ITSELF * ",
                                                  "AND GREW SMALL * AND SMALLER * "};
    for (std::int32_t i = 0; i < hoopCount; ++i) {
        play.hoops[i] = makeBody(hoopTexts[i], LSCRLXYZ_SHAPE::cylinder, 100 - 24 * i, one);
    }
}

void deletePlay(Play& play) {
    for (LSCROLL*& line : play.lines) {
        LSCROLL_delete(&line);
    }
    for (LSCROLL** const ring : {&play.ring, &play.innerRing}) {
        LSCROLL_delete(ring);
    }
    for (LSCRLXYZ*& row : play.rows) {
        LSCRLXYZ_delete(&row);
    }
    LSCRLXYZ_delete(&play.screw);
    for (LSCRLXYZ*& hoop : play.hoops) {
        LSCRLXYZ_delete(&hoop);
    }
}

bool isWhole(const Play& play) {
    const auto isThere = [](const void* effect) { return effect != nullptr; };
    return isThere(play.ring) && isThere(play.innerRing) && isThere(play.screw) &&
           std::all_of(std::begin(play.lines), std::end(play.lines), isThere) &&
           std::all_of(std::begin(play.rows), std::end(play.rows), isThere) &&
           std::all_of(std::begin(play.hoops), std::end(play.hoops), isThere);
}

/// How bright a part is that begins at one frame and is gone at another.
std::int32_t lightOf(std::int32_t frame, std::int32_t first, std::int32_t last, std::int32_t slope) {
    return static_cast<std::int32_t>(curveShow(frame, first, last, slope));
}

/// Writes a line, centred, as far as it is typed.
void write(LFONT* pen, const char* text, std::int32_t y, std::int32_t typed, std::int32_t light) {
    if (pen == nullptr || pen->spacing == nullptr || light <= 0) {
        return;
    }
    std::int32_t length = 0;
    while (text[length] != '\0') {
        ++length;
    }
    LFONT_setColour(pen, RGB888_mix(0, 0xC0FFE0, static_cast<std::uint32_t>(light)));
    LFONT_place(pen, middle - length * pen->spacing->x / 2, y, 1);
    for (std::int32_t i = 0; i < std::min(length, typed); ++i) {
        pen->character = static_cast<std::uint8_t>(text[i]);
        LFONT_drawChar(pen);
    }
}

/// The number and the name of a figure, as under a plate in an old book.
void drawCaption(std::int32_t frame) {
    struct Caption {
        std::int32_t begin, end;
        const char* text;
    };
    constexpr Caption captions[] = {
        {20, lineBegin, "FIG. 0   A POINT"},
        {lineBegin, 220, "FIG. 1   A LINE"},
        {220, ringBegin, "FIG. 2   A WAVE"},
        {ringBegin, cylinderBegin, "FIG. 3   A CIRCLE"},
        {cylinderBegin, screwBegin, "FIG. 4   A CYLINDER"},
        {screwBegin, hoopsBegin, "FIG. 5   A SPRING"},
        {hoopsBegin, pointBegin, "FIG. 6   EVERYTHING"},
        {pointBegin, frames - 20, "FIG. 0   A POINT"},
    };
    constexpr std::int32_t y = 246;
    for (const Caption& caption : captions) {
        const std::int32_t light = lightOf(frame, caption.begin, caption.end, 12);
        write(demo.textSmall, caption.text, y, frame - caption.begin, light / 2);
    }
}

/// The point itself, and rings of points that run away from it and fade.
void drawPoint(std::int32_t frame, std::int32_t light) {
    constexpr std::int32_t pingFrames = 48;
    constexpr std::int32_t pingPoints = 24;
    LFONT* const pen = demo.textMedium;
    if (pen == nullptr) {
        return;
    }
    const auto put = [pen](std::int32_t x, std::int32_t y) {
        constexpr std::int32_t glyphX = 7; // where the full stop is in its cell
        constexpr std::int32_t glyphY = 10;
        LFONT_place(pen, x - glyphX, y - glyphY, 1);
        LFONT_drawChar(pen);
    };
    pen->character = '.';
    for (std::int32_t age = frame % (pingFrames / 2); age < pingFrames && age <= frame;
         age += pingFrames / 2) {
        const std::int32_t left = light * (pingFrames - age) / (2 * pingFrames);
        LFONT_setColour(pen, RGB888_mix(0, 0x80E0FF, static_cast<std::uint32_t>(left)));
        for (std::int32_t i = 0; i < pingPoints; ++i) {
            const std::int32_t angle = i * SINE_tableLength / pingPoints + 2 * frame;
            put(middle + SINE_scaled(2 * age, angle), middle + SINE_cosineScaled(age / 2, angle));
        }
    }
    LFONT_setColour(pen, RGB888_mix(0, 0xFFFFFF, static_cast<std::uint32_t>(light)));
    for (std::int32_t x = -1; x <= 1; ++x) {
        put(middle + x, middle);
        put(middle, middle + x);
    }
}

void playPoint(std::int32_t frame) {
    const std::int32_t light = lightOf(frame, 0, lineBegin + 16, 16);
    write(demo.textMedium, "FIRST THERE WAS", 88, frame / 2, light);
    write(demo.textMedium, "A POINT", 152, (frame - 36) / 2, light);
    if (frame < lineBegin) { // then it goes away
        drawPoint(frame, curveRise(frame, 0, 16));
    }
}

/// The lines come in, then begin to swing higher and higher, and draw earlier moments of their waves behind.
void playLines(const Play& play, std::int32_t frame) {
    constexpr std::int32_t danceBegin = 200;
    constexpr std::int32_t danceRamp = 90;
    constexpr std::int32_t moments = 3;
    const std::int32_t light = curveFull - curveRise(frame, ringBegin, ringBegin + 24);
    const std::int32_t dance = curveEase(frame, danceBegin, danceBegin + danceRamp);
    for (std::int32_t i = 0; frame >= lineBegin && light > 0 && i < lineCount; ++i) {
        LSCROLL& line = *play.lines[i];
        const std::int32_t away = std::abs(i - lineCount / 2);
        LSCROLL_advance(&line);
        line.liftHeight = curveBetween(0, 64 - 12 * away, dance);
        line.swingAngle = curveBetween(0, 90, dance);
        const std::int32_t phase = line.lift.phase;
        for (std::int32_t k = 0; k <= (away == 0 ? moments : 0); ++k) {
            line.light = (k == 0 ? light : light * dance / curveFull >> (k + 1)) >> away;
            line.lift.phase = phase - 28 * k;
            LSCROLL_draw(&line, demo.screen);
        }
        line.lift.phase = phase;
    }
}

void playRings(const Play& play, std::int32_t frame) {
    const std::int32_t light = lightOf(frame, ringBegin, cylinderBegin + 16, 24);
    if (light == 0) {
        return;
    }
    const std::int32_t calm = curveEase(frame, ringBegin, ringBegin + 70);
    play.ring->liftHeight = curveBetween(60, 7, calm);
    play.ring->swingAngle = curveBetween(200, 20, calm);
    play.innerRing->liftHeight = curveBetween(40, 4, calm);
    play.innerRing->swingAngle = 0;
    for (LSCROLL* const ring : {play.ring, play.innerRing}) {
        ring->light = light;
        LSCROLL_advance(ring);
        LSCROLL_draw(ring, demo.screen);
    }
}

/// Seen from above it is a circle still; then it stands up, row by row.
void playCylinder(const Play& play, std::int32_t frame) {
    const std::int32_t light = lightOf(frame, cylinderBegin, screwBegin + 16, 20);
    const std::int32_t up = curveEase(frame, cylinderBegin + 10, cylinderBegin + 90);
    for (std::int32_t i = 0; light > 0 && i < rowCount; ++i) {
        LSCRLXYZ& row = *play.rows[i];
        row.light = light;
        row.across = curveBetween(0, (i - rowCount / 2) * 32, up);
        row.radius = curveBetween(96, 84, up);
        row.angle.x = curveBetween(SINE_quarter, 0, up) + SINE_scaled(34, 7 * frame);
        row.angle.z = SINE_scaled(curveBetween(0, 60, up), 5 * frame);
        LSCRLXYZ_advance(&row);
        LSCRLXYZ_draw(&row, demo.screen);
    }
}

/// The spring bounces: it is long and short by turns.
void playScrew(LSCRLXYZ& screw, std::int32_t frame) {
    const std::int32_t light = lightOf(frame, screwBegin, hoopsBegin + 16, 20);
    if (light == 0) {
        return;
    }
    const std::int32_t swing = SINE_scaled(16, 22 * (frame - screwBegin));
    screw.light = light;
    screw.rise = curveBetween(32, 40 + swing, curveRise(frame, screwBegin, screwBegin + 30));
    screw.angle.x = 24 + SINE_scaled(30, 6 * frame);
    screw.angle.z = SINE_scaled(70, 4 * frame);
    screw.spin.y = 6;
    LSCRLXYZ_advance(&screw);
    LSCRLXYZ_draw(&screw, demo.screen);
}

/// Three hoops in three planes, and in the end all of them fall into a point.
void playHoops(const Play& play, std::int32_t frame) {
    constexpr LSCRLXYZ_AXES spins[hoopCount] = {{7, 5, 0}, {-6, 4, 5}, {5, -8, -3}};
    const std::int32_t light = lightOf(frame, hoopsBegin, pointBegin + 25, 20);
    const std::int32_t fall = curveEase(frame, pointBegin - 45, pointBegin + 15);
    for (std::int32_t i = 0; light > 0 && i < hoopCount; ++i) {
        LSCRLXYZ& hoop = *play.hoops[i];
        hoop.light = light;
        hoop.radius = std::max(1, curveBetween(104 - 26 * i, 1, fall));
        LSCRLXYZ_fit(&hoop);
        hoop.spin = spins[i];
        LSCRLXYZ_advance(&hoop);
        LSCRLXYZ_draw(&hoop, demo.screen);
    }
}

void playEnd(std::int32_t frame) {
    const std::int32_t light = lightOf(frame, pointBegin, frames - 8, 20);
    if (light > 0) {
        drawPoint(frame - pointBegin, light);
        write(demo.textMedium, "AND THAT", 88, (frame - pointBegin - 8) / 2, light);
        write(demo.textMedium, "WAS THE POINT", 152, (frame - pointBegin - 24) / 2, light);
    }
}

void drawFrame(const Play& play, std::int32_t frame) {
    playPoint(frame);
    playLines(play, frame);
    playRings(play, frame);
    playCylinder(play, frame);
    playScrew(*play.screw, frame);
    playHoops(play, frame);
    playEnd(frame);
    drawCaption(frame);
}

void VELM4030_sceneExtra7Setup() {
    VELM4030_fadeOut();
    setLook({.fadeStep = 0x080808, .glare = 1});
}

} // namespace

void VELM4030_sceneExtra7() {
    VELM4030_sceneExtra7Setup();
    Play play{};
    makePlay(play);
    const bool isComplete = isWhole(play);
    runFrames(frames, [&](std::int32_t frame) {
        if (isComplete) {
            drawFrame(play, frame);
        }
        drawPointerAndOverlay();
    });
    deletePlay(play);
}

} // namespace velm
