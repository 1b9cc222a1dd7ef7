// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Extra scene 3, the portholes: a city without edges drifts by in the dark. Circles open in it, and through
// them another world is seen, moving on a path of its own. Letters as large as houses cross, the holes swell
// until the other world is everywhere, and an iris closes on it. The key s chooses the other world.
#include "demo/scenes/acts.h"
#include "demo/scenes/caption.h"
#include "demo/scenes/curves.h"
#include "effects/backmove.h"
#include "effects/circle.h"
#include "foundation/sine.h"
#include "image/rgb888.h"

#include <algorithm>
#include <string_view>

namespace velm {

namespace {

constexpr std::int32_t frames = 750;
constexpr std::int32_t one = 1 << 16; // 1.0 in 16.16
constexpr std::int32_t holeCount = 6;

constexpr std::int32_t wordBegin = 300;  // the large letters come in from the right
constexpr std::int32_t swellBegin = 530; // the holes grow over everything
constexpr std::int32_t hoopsBegin = swellBegin + 50;
constexpr std::int32_t irisBegin = 670; // and one hole closes again
constexpr std::int32_t hoopsEnd = irisBegin + 40;
constexpr std::int32_t coverAll = 190; // radius about the middle that leaves no corner, pixels

/// A hue half way to white, for text.
std::uint32_t lightHueAt(std::int32_t index, std::int32_t weight) {
    return RGB888_average(curveHue(index, weight), curveDim(0xFFFFFF, weight));
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

/// A picture that moves over all of the screen.
Owned<BACKMOVE_delete> makeGround(const IMG* picture, std::int32_t speedX, std::int32_t speedY,
                                  std::int32_t reach) {
    return Owned<BACKMOVE_delete>(BACKMOVE_new(), [=](BACKMOVE& ground) {
        BACKMOVE_setPicture(&ground, picture);
        ground.speedX = speedX;
        ground.speedY = speedY;
        ground.reachX = ground.reachY = reach;
    });
}

/// Spread over the screen, each on a way of its own; the first one rests in the middle.
void prepareHoles(CIRCLE& holes) {
    CIRCLE_setCount(&holes, holeCount);
    for (std::int32_t i = 0; i < holes.count; ++i) {
        CIRCLE_BODY& body = holes.bodies[i];
        const std::int32_t angle = i * SINE_tableLength / 5 + 100;
        body.x = (middle + SINE_cosineScaled(90, angle)) * one;
        body.y = (middle + SINE_scaled(90, angle)) * one;
        body.speedX = SINE_scaled(one + i * one / 5, angle);
        body.speedY = SINE_cosineScaled(one + i * one / 5, angle);
        body.growth = 0; // the scene sets the radius
    }
    holes.bodies[0] = {middle * one, middle * one, 0, 0, 0, 0, 0};
}

/// One nest about the middle, as wide as the screen.
void prepareHoops(CIRCLE& hoops) {
    CIRCLE_setCount(&hoops, 1);
    hoops.largest = coverAll + 90;
    hoops.spacing = 28;
    hoops.rings = 1 + hoops.largest / hoops.spacing;
}

struct Portholes {
    Picture city{mirrored(demo.pictureWide, 1, 2)};
    Picture planets{mirrored(demo.pictureB, 2, 2)}; ///< the other world while flagS is set
    Picture sunset{mirrored(demo.pictureA, 2, 2)};  ///< the other world while it is clear
    Owned<BACKMOVE_delete> near = makeGround(city, 3 * one / 2, 0, 24);  ///< the city, dark
    Owned<BACKMOVE_delete> far = makeGround(planets, -2 * one, one, 40); ///< the other world, bright
    Owned<CIRCLE_delete> holes{CIRCLE_new(), prepareHoles};
    Owned<CIRCLE_delete> hoops{CIRCLE_new(), prepareHoops}; ///< fly past while the other world is everywhere
    Picture mask{IMG_clone(demo.screen)};                   ///< white where a hole is
    Picture view{IMG_clone(demo.screen)};                   ///< the other world, cut out
};

/// The radius of a hole: it opens, breathes, and at last grows or vanishes. The first one is the iris.
std::int32_t radiusOf(std::int32_t hole, std::int32_t frame) {
    const std::int32_t opens = hole == 0 ? 4 : 100 + 36 * hole;
    const std::int32_t size = hole == 0 ? 52 : 22 + 5 * hole;
    const std::int32_t breath = SINE_scaled(size / 4, 9 * frame + 170 * hole);
    std::int32_t radius = ((size + breath) * curveEase(frame, opens, opens + 60)) >> 8;
    if (hole == 0) {
        radius += ((coverAll - radius) * curveEase(frame, swellBegin, swellBegin + 90)) >> 8;
        return (radius * (curveFull - curveEase(frame, irisBegin, frames - 12))) >> 8;
    }
    return (radius * (curveFull - curveEase(frame, swellBegin, swellBegin + 60))) >> 8;
}

void moveHoles(Portholes& show, std::int32_t frame) {
    CIRCLE_advance(show.holes);
    for (std::int32_t i = 0; i < show.holes->count; ++i) {
        CIRCLE_BODY& body = show.holes->bodies[i];
        body.radius = std::max(radiusOf(i, frame), 0) * one;
    }
}

void drawCity(Portholes& show, std::int32_t frame) {
    constexpr std::int32_t dusk = 150; // brightness of the city, of 256
    show.near->brightness = dusk * (curveRise(frame, 60, 170) - curveRise(frame, swellBegin, irisBegin)) >> 8;
    show.near->rippleReach = curveRise(frame, 260, 460) / 32;
    BACKMOVE_advance(show.near);
    BACKMOVE_draw(show.near, demo.screen);
}

/// Cuts the other world out with the discs of all holes and lays it over the city.
void drawWorld(Portholes& show, std::int32_t) {
    BACKMOVE_setPicture(show.far, settings.flagS != 0 ? show.planets : show.sunset);
    BACKMOVE_advance(show.far);
    BACKMOVE_draw(show.far, show.view);
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
void drawRims(Portholes& show, std::int32_t frame) {
    constexpr std::int32_t glow[] = {curveFull, 150, 90, 50, 25};
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
void drawHoops(Portholes& show, std::int32_t frame) {
    const std::int32_t weight = curveStay(frame, hoopsBegin, hoopsEnd, 40);
    const std::int32_t step = show.hoops->spacing;
    const std::int32_t radius = show.hoops->largest - step + 3 * frame % step;
    show.hoops->bodies[0] = {middle * one, middle * one, 0, 0, radius * one, 0, curveHue(10 * frame, weight)};
    CIRCLE_drawAdd(show.hoops, demo.screen);
}

/// Large letters that come from the right and ride on a wave.
void drawLargeWord(Portholes&, std::int32_t frame) {
    constexpr std::int32_t speed = 5;
    constexpr std::int32_t top = 96;
    FONT* const pen = demo.fontBitmap3;
    std::int32_t x = demo.screen->width - (frame - wordBegin) * speed;
    for (const char letter : std::string_view("VELM 4030 * THE OTHER SIDE")) {
        pen->x = x;
        pen->y = top + SINE_scaled(26, 3 * x + 10 * frame);
        pen->character = static_cast<unsigned char>(letter);
        if (x > -pen->width && x < demo.screen->width) {
            FONT_drawCharVariant2(pen);
        }
        x += pen->width;
    }
}

/// A line of text on a dark edge.
void drawLine(Caption caption, std::uint32_t colour) {
    constexpr struct { std::int32_t x, y; } edge[] = {{-1, 0}, {1, 0}, {0, -1}, {0, 1}};
    if (colour == 0) {
        return;
    }
    for (const auto& at : edge) {
        Caption dark = caption;
        dark.x += at.x;
        dark.y += at.y;
        dark.colour = 0;
        drawCaption(demo.textSmall, dark);
    }
    caption.colour = colour;
    drawCaption(demo.textSmall, caption);
}

void drawCaptions(Portholes&, std::int32_t frame) {
    constexpr std::int32_t slope = 24;
    drawLine({.text = "THERE IS A CITY WITHOUT END", .y = 30},
             lightHueAt(frame, curveStay(frame, 120, 280, slope)));
    drawLine({.text = "AND THERE IS A WAY OUT", .y = 226},
             lightHueAt(frame + 700, curveStay(frame, 180, 300, slope)));
    drawLine({.text = "COME THROUGH", .scale = 2}, curveDim(0xFFFFFF, curveStay(frame, 590, 690, slope)));
}

constexpr Act<Portholes> acts[] = {{0, frames, moveHoles},   {0, frames, drawCity},
                                   {0, frames, drawWorld},   {hoopsBegin, hoopsEnd, drawHoops},
                                   {0, frames, drawRims},    {wordBegin, frames, drawLargeWord},
                                   {0, frames, drawCaptions}};

} // namespace

void VELM4030_sceneExtra3() {
    play({}, frames, acts);
}

} // namespace velm
