// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Extra scene 3, the portholes: a city without edges drifts by in the dark. Circles open in it, and through
// them another world is seen, moving on a path of its own. Letters as large as houses cross, the holes swell
// until the other world is everywhere, and an iris closes on it. flagS chooses the world behind.
#include "demo/scene_curves.h"
#include "demo/scene_frames.h"
#include "demo/state.h"
#include "demo/velm4030.h"
#include "effects/backmove.h"
#include "effects/circle.h"
#include "image/rgb888.h"

#include <algorithm>
#include <cstring>

namespace velm {

namespace {

constexpr std::int32_t frames = 750;
constexpr std::int32_t middle = 128;
constexpr std::int32_t one = 1 << 16; // 1.0 in 16.16
constexpr std::int32_t holeCount = 6;

constexpr std::int32_t wordBegin = 300;  // the large letters come in from the right
constexpr std::int32_t swellBegin = 530; // the holes grow over everything
constexpr std::int32_t irisBegin = 670;  // and one hole closes again
constexpr std::int32_t coverAll = 190;   // radius about the middle that leaves no corner, pixels

struct Portholes {
    IMG* city;        ///< the wide picture and its reflection
    IMG* planets;     ///< the world behind while flagS is set
    IMG* sunset;      ///< the world behind while it is clear
    BACKMOVE* near;   ///< the city, dark
    BACKMOVE* behind; ///< the other world, bright
    CIRCLE* holes;
    CIRCLE* hoops; ///< fly past while the other world is everywhere
    IMG* mask;     ///< white where a hole is
    IMG* view;     ///< the other world, cut out
};

/// A hue half way to white, for text.
std::uint32_t lightHueAt(std::int32_t index, std::uint32_t brightness) {
    return RGB888_average(curveHue(index, brightness), RGB888_mix(0, 0xFFFFFF, brightness));
}

/// The picture mirrored to the right and down as often as it is asked for: it then repeats without a seam.
IMG* mirrored(const IMG* picture, std::int32_t across, std::int32_t down) {
    if (picture == nullptr) {
        return nullptr;
    }
    IMG* const result = IMG_newSized(picture->width * across, picture->height * down);
    for (std::int32_t y = 0; result != nullptr && y < result->height; ++y) {
        for (std::int32_t x = 0; x < result->width; ++x) {
            const std::int32_t column = x < picture->width ? x : result->width - 1 - x;
            const std::int32_t row = y < picture->height ? y : result->height - 1 - y;
            IMG_putPixel(result, x, y, IMG_getPixel(picture, column, row));
        }
    }
    return result;
}

BACKMOVE* makeGround(const IMG* picture, std::int32_t speedX, std::int32_t speedY, std::int32_t reach) {
    BACKMOVE* const ground = BACKMOVE_new();
    if (ground != nullptr && picture != nullptr) {
        BACKMOVE_setPicture(ground, picture);
        ground->speedX = speedX;
        ground->speedY = speedY;
        ground->reachX = ground->reachY = reach;
    }
    return ground;
}

/// Spread over the screen, each on a way of its own; the first one rests in the middle.
CIRCLE* makeHoles() {
    CIRCLE* const holes = CIRCLE_new();
    if (holes == nullptr) {
        return nullptr;
    }
    CIRCLE_setCount(holes, holeCount);
    for (std::int32_t i = 0; i < holes->count; ++i) {
        CIRCLE_BODY& body = holes->bodies[i];
        const std::int32_t angle = i * SINE_tableLength / 5 + 100;
        body.x = (middle + SINE_cosineScaled(90, angle)) * one;
        body.y = (middle + SINE_scaled(90, angle)) * one;
        body.speedX = SINE_scaled(one + i * one / 5, angle);
        body.speedY = SINE_cosineScaled(one + i * one / 5, angle);
        body.growth = 0; // the scene sets the radius
    }
    holes->bodies[0] = {middle * one, middle * one, 0, 0, 0, 0, 0};
    return holes;
}

/// One nest about the middle, as wide as the screen.
CIRCLE* makeHoops() {
    CIRCLE* const hoops = CIRCLE_new();
    if (hoops != nullptr) {
        CIRCLE_setCount(hoops, 1);
        hoops->largest = coverAll + 90;
        hoops->spacing = 28;
        hoops->rings = 1 + hoops->largest / hoops->spacing;
    }
    return hoops;
}

/// The radius of a hole: it opens, breathes, and at last grows or vanishes. The first one is the iris.
std::int32_t radiusOf(std::int32_t hole, std::int32_t frame) {
    const std::int32_t opens = hole == 0 ? 4 : 100 + 36 * hole;
    const std::int32_t size = hole == 0 ? 52 : 22 + 5 * hole;
    const std::int32_t breath = SINE_scaled(size / 4, 9 * frame + 170 * hole);
    std::int32_t radius = ((size + breath) * curveEase(frame, opens, opens + 60)) >> 8;
    if (hole == 0) {
        radius += ((coverAll - radius) * curveEase(frame, swellBegin, swellBegin + 90)) >> 8;
        return (radius * (256 - curveEase(frame, irisBegin, frames - 12))) >> 8;
    }
    return (radius * (256 - curveEase(frame, swellBegin, swellBegin + 60))) >> 8;
}

void moveHoles(const Portholes& show, std::int32_t frame) {
    CIRCLE_advance(show.holes);
    for (std::int32_t i = 0; i < show.holes->count; ++i) {
        CIRCLE_BODY& body = show.holes->bodies[i];
        body.radius = std::max(radiusOf(i, frame), 0) * one;
    }
}

void drawCity(const Portholes& show, std::int32_t frame) {
    constexpr std::int32_t dusk = 150; // brightness of the city, of 256
    show.near->brightness = dusk * (curveRise(frame, 60, 170) - curveRise(frame, swellBegin, irisBegin)) >> 8;
    show.near->rippleReach = curveRise(frame, 260, 460) / 32;
    BACKMOVE_advance(show.near);
    BACKMOVE_draw(show.near, demo.screen);
}

/// Cuts the other world out with the discs of all holes and lays it over the city.
void drawWorld(const Portholes& show) {
    BACKMOVE_setPicture(show.behind, settings.flagS != 0 ? show.planets : show.sunset);
    BACKMOVE_advance(show.behind);
    BACKMOVE_draw(show.behind, show.view);
    IMG_fill(show.mask, 0);
    for (std::int32_t i = 0; i < show.holes->count; ++i) {
        const CIRCLE_BODY& body = show.holes->bodies[i];
        if (body.radius > 0) {
            CIRCLE_drawDisc(show.mask, body.x >> 16, body.y >> 16, body.radius >> 16, 0xFFFFFF);
            // Black glass: what the other world leaves black must not show the city.
            CIRCLE_drawDisc(demo.screen, body.x >> 16, body.y >> 16, body.radius >> 16, 0);
        }
    }
    IMG_andMask(show.mask, show.view);
    IMG_blit(show.view, demo.screen, 0, 0, 0, 0, show.view->width, show.view->height);
}

/// A neon tube around every hole: one bright ring between dim ones.
void drawRims(const Portholes& show, std::int32_t frame) {
    constexpr std::uint32_t glow[] = {256, 150, 90, 50, 25};
    for (std::int32_t i = 0; i < show.holes->count; ++i) {
        const CIRCLE_BODY& body = show.holes->bodies[i];
        const std::int32_t radius = body.radius >> 16;
        for (std::int32_t k = -4; radius > 0 && k <= 4; ++k) {
            CIRCLE_addRing(demo.screen, body.x >> 16, body.y >> 16, radius + k,
                           curveHue(6 * frame + 256 * i, glow[k < 0 ? -k : k]));
        }
    }
}

/// Hoops that come out of the middle, each in the light of the moment.
void drawHoops(const Portholes& show, std::int32_t frame) {
    const std::uint32_t brightness = curveShow(frame, swellBegin + 50, irisBegin + 40, 40);
    if (brightness == 0) {
        return;
    }
    const std::int32_t step = show.hoops->spacing;
    const std::int32_t radius = show.hoops->largest - step + 3 * frame % step;
    show.hoops->bodies[0] = {
        middle * one, middle * one, 0, 0, radius * one, 0, curveHue(10 * frame, brightness)};
    CIRCLE_drawAdd(show.hoops, demo.screen);
}

/// Large letters that come from the right and ride on a wave.
void drawLargeWord(std::int32_t frame) {
    constexpr char word[] = "VELM 4030 * THE OTHER SIDE";
    constexpr std::int32_t speed = 5;
    constexpr std::int32_t top = 96;
    FONT* const pen = demo.fontBitmap3;
    if (pen == nullptr) {
        return;
    }
    const std::int32_t x = demo.screen->width - (frame - wordBegin) * speed;
    for (std::int32_t i = 0; word[i] != '\0'; ++i) {
        pen->x = x + i * pen->width;
        pen->y = top + SINE_scaled(26, 3 * pen->x + 10 * frame);
        pen->character = static_cast<unsigned char>(word[i]);
        if (pen->x > -pen->width && pen->x < demo.screen->width) {
            FONT_drawCharVariant2(pen);
        }
    }
}

/// A line of text about the middle of the screen, in the colour on a dark edge.
void drawLine(const char* text, std::int32_t y, std::int32_t scale, std::uint32_t colour) {
    constexpr struct { std::int32_t x, y; } edge[] = {{-1, 0}, {1, 0}, {0, -1}, {0, 1}, {0, 0}};
    LFONT* const pen = demo.textSmall;
    if (pen == nullptr || colour == 0) {
        return;
    }
    const auto gaps = static_cast<std::int32_t>(std::strlen(text)) - 1;
    LFONT_setColour(pen, 0);
    for (const auto& at : edge) {
        if (at.x == 0 && at.y == 0) {
            LFONT_setColour(pen, colour);
        }
        LFONT_place(pen, middle - gaps * scale * pen->spacing->x / 2 + at.x, y + at.y, scale);
        LFONT_drawLine(pen, text);
    }
}

void drawCaptions(std::int32_t frame) {
    constexpr std::int32_t slope = 24;
    drawLine("THERE IS A CITY WITHOUT END", 30, 1, lightHueAt(frame, curveShow(frame, 120, 280, slope)));
    drawLine("AND THERE IS A WAY OUT", 226, 1, lightHueAt(frame + 700, curveShow(frame, 180, 300, slope)));
    drawLine("COME THROUGH", middle, 2, RGB888_mix(0, 0xFFFFFF, curveShow(frame, 590, 690, slope)));
}

Portholes VELM4030_sceneExtra3Setup() {
    setLook({});
    Portholes show{};
    show.city = mirrored(demo.pictureWide, 1, 2);
    show.planets = mirrored(demo.pictureB, 2, 2);
    show.sunset = mirrored(demo.pictureA, 2, 2);
    show.near = makeGround(show.city, 3 * one / 2, 0, 24);
    show.behind = makeGround(show.planets, -2 * one, one, 40);
    show.holes = makeHoles();
    show.hoops = makeHoops();
    show.mask = IMG_clone(demo.screen);
    show.view = IMG_clone(demo.screen);
    return show;
}

void VELM4030_sceneExtra3Cleanup(Portholes& show) {
    for (BACKMOVE** ground : {&show.near, &show.behind}) {
        BACKMOVE_delete(ground);
    }
    for (IMG** img : {&show.city, &show.planets, &show.sunset, &show.mask, &show.view}) {
        IMG_delete(img);
    }
    CIRCLE_delete(&show.holes);
    CIRCLE_delete(&show.hoops);
    LFONT_place(demo.textSmall, 0, 0, 1);
}

} // namespace

void VELM4030_sceneExtra3() {
    Portholes show = VELM4030_sceneExtra3Setup();
    const bool complete = show.city != nullptr && show.planets != nullptr && show.sunset != nullptr &&
                          show.near != nullptr && show.behind != nullptr && show.holes != nullptr &&
                          show.hoops != nullptr && show.mask != nullptr && show.view != nullptr;
    runFrames(frames, [&show, complete](std::int32_t frame) {
        if (complete) {
            moveHoles(show, frame);
            drawCity(show, frame);
            drawWorld(show);
            drawHoops(show, frame);
            drawRims(show, frame);
        }
        if (frame >= wordBegin) {
            drawLargeWord(frame);
        }
        drawCaptions(frame);
        drawPointerAndOverlay();
    });
    VELM4030_sceneExtra3Cleanup(show);
}

} // namespace velm
