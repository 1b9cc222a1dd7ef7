// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Extra scene 12, the flight: a world by night under an aurora falls behind, stars become streaks, and a
// tunnel of hoops that bends like a snake comes out of the distance. At its end there is a point of light: it
// grows into another world, crystals pass by, and the flight levels out above its horizon. There the sky
// lights up, curtain by curtain, and a ribbon of dots dances in it until night falls.
#include "demo/scenes/acts.h"
#include "demo/scenes/aurora.h"
#include "demo/scenes/beat.h"
#include "demo/scenes/caption.h"
#include "demo/scenes/globe.h"
#include "demo/scenes/hoops.h"
#include "effects/circle.h"
#include "effects/lstar.h"
#include "image/imgfx.h"

#include <algorithm>
#include <utility>

namespace velm {

namespace {

constexpr std::int32_t frames = 750;
constexpr std::int32_t scrollY = 206;   // over the ground
constexpr std::int32_t skyHeight = 176; // of what dances in the sky, pixels

constexpr std::int32_t takeOff = 40;
constexpr std::int32_t leftBehind = 140;
constexpr std::int32_t tunnelBegin = barFrames - 24, tunnelEnd = 5 * barFrames + 20;
constexpr std::int32_t sighted = 4 * barFrames; // the other world, a point
constexpr std::int32_t brakes = 5 * barFrames;
constexpr std::int32_t levelled = 6 * barFrames + 20; // above its horizon: the sky lights up
constexpr std::int32_t climax = 7 * barFrames;
constexpr std::int32_t nightfall = 665;

/// How fast the flight is, 0..256: it starts slowly, runs at full speed, and brakes.
std::int32_t speedAt(std::int32_t frame) {
    return 12 + curveEase(frame, takeOff, 270) * 244 / 256 -
           curveEase(frame, brakes - 40, levelled) * 240 / 256;
}

Owned<LSTAR_delete> makeStars(std::int32_t count) {
    return Owned<LSTAR_delete>(LSTAR_new(), [count](LSTAR& sky) {
        LSTAR_setCount(&sky, count);
        sky.colours = demo.hueRamp;
        sky.hueSpan = 200;
    });
}

/// The air of the night, from the zenith down to a horizon; below it is black.
void prepareAir(RASTER& air) {
    constexpr std::int32_t horizon = 216;
    colourRaster(air, 256, [](std::int32_t i) {
        const std::uint32_t zenith = 0x02030C, low = 0x0C2440;
        return curveMix(zenith, low, curveRise(i, 40, horizon));
    });
    air.speed = 0;
}

struct Flight {
    ScrollText scroll{scrollY};
    Owned<LSTAR_delete> stars = makeStars(420);
    Owned<LSTAR_delete> crystals = makeStars(30); ///< the same kind of sky, drawn as polygons
    Owned<SINEDOTS_delete> curve = makeDotLine(3);
    Owned<RASTER_delete> air{RASTER_new(), prepareAir};
    Owned<RASTER_delete> night{RASTER_new()}; ///< black lines
    Owned<RASTER_delete> rays = makeRays();
    Towns towns;
    Picture light{newWindowPicture()}; ///< streaks, hoops and crystals with their trails
    Picture bloom{newWindowPicture()}; ///< the same, spread
    Picture ribbon{IMG_newSized(settings.windowWidth, skyHeight)}; ///< the curve with its trail
    std::int32_t way = 0;                                          ///< flown so far, in hoop distances / 256
    std::int32_t roll = 0; ///< the world below has turned by so much, 1/4096 turns
};

/// Moves the viewer on.
void fly(Flight& flight, std::int32_t frame) {
    constexpr std::int32_t framesOfHoop = 8; // from hoop to hoop at full speed
    flight.way += speedAt(frame) / framesOfHoop;
    flight.roll += 3 + speedAt(frame) / 32;
    RASTER_advance(flight.air);
    RASTER_advance(flight.rays);
}

/// The world that is left, then the one that is reached: a point, a ball, a horizon.
Globe globeAt(std::int32_t frame) {
    constexpr std::int32_t ground = 330, below = 530; // radius and middle of a world under one's feet
    if (frame < sighted) {
        const std::int32_t left = curveEase(frame, takeOff, leftBehind);
        return {.x = middle, .y = below + left / 2, .radius = ground, .weight = curveRise(frame, 0, 30)};
    }
    const std::int32_t near = curveEase(frame, sighted, levelled);
    constexpr std::int32_t point = 3;           // the first radius
    constexpr std::int32_t doublings = 27 * 64; // of it, times 256
    const std::int32_t size = curveDoubled(near * doublings / curveFull);
    return {.x = middle,
            .y = curveBetween(middle, below, curveEase(frame, brakes + 30, levelled + 10)),
            .radius = std::min(point * size / 256, ground),
            .air = 0xC070E0,
            .land = 0x120818,
            .day = 0xFFB0C8,
            .sun = curveFull - curveEase(frame, brakes + 20, levelled),
            .weight = curveRise(frame, sighted, sighted + 60)};
}

bool isGlobeSeen(std::int32_t frame) {
    return frame < leftBehind || frame >= sighted;
}

void drawAir(Flight& flight, std::int32_t frame) {
    const std::int32_t weight = curveRise(frame, 0, 30) - curveEase(frame, takeOff, leftBehind) +
                                curveEase(frame, brakes + 30, levelled);
    if (settings.rastersOn != 0) {
        RASTER_drawBlend(flight.air, demo.screen, static_cast<std::uint32_t>(weight));
    }
}

/// One curtain over the world that is left, three above the one that is reached.
void drawAurora(Flight& flight, std::int32_t frame) {
    if (settings.rastersOn == 0) {
        return;
    }
    const std::int32_t sinking = curveEase(frame, takeOff, leftBehind);
    const std::int32_t pulse = 144 + beatWeight(45) / 10; // the middle one glows up on the bar
    const Curtain curtains[] = {{.y = 150 + sinking / 2,
                                 .height = 110,
                                 .reach = 26,
                                 .fold = 3 * frame,
                                 .weight = (curveRise(frame, 4, 40) - sinking) * 3 / 4},
                                {.y = 118,
                                 .height = 96,
                                 .reach = 24,
                                 .fold = 2 * frame + 300,
                                 .foot = 0x8050F0,
                                 .head = 0xC03090,
                                 .weight = curveEase(frame, levelled - 60, levelled) * 5 / 8},
                                {.y = 150,
                                 .height = 120,
                                 .reach = 30,
                                 .fold = 700 - 3 * frame,
                                 .foot = 0x30F0A0,
                                 .head = 0x5040D0,
                                 .weight = curveEase(frame, levelled - 20, climax - 30) * pulse / curveFull},
                                {.y = 178,
                                 .height = 70,
                                 .reach = 14,
                                 .fold = 4 * frame,
                                 .foot = 0x60FFC0,
                                 .head = 0x2080C0,
                                 .weight = curveEase(frame, levelled + 20, climax) / 2}};
    for (const Curtain& curtain : curtains) {
        drawCurtain(*flight.rays, curtain, demo.screen);
    }
}

/// The curve dances in the sky alone.
void drawRibbon(Flight& flight, std::int32_t frame) {
    constexpr std::uint32_t fade = 0x141414;
    IMG_subColour(flight.ribbon, fade);
    const std::int32_t weight = curveStay(frame, levelled, frames, 50) * 5 / 8;
    flight.curve->colour = curveHue(coolHue(4 * frame), weight);
    SINEDOTS_advance(flight.curve);
    SINEDOTS_drawAdd(flight.curve, flight.ribbon);
    IMGFX_addBlit(flight.ribbon, demo.screen, 0, 0, 0, 0, flight.ribbon->width, flight.ribbon->height);
}

void drawWorld(Flight& flight, std::int32_t frame) {
    if (isGlobeSeen(frame)) {
        const Globe globe = globeAt(frame);
        drawGlobe(globe, demo.screen);
        drawTowns(flight.towns, globe, flight.roll / 4, demo.screen);
    }
}

void drawTunnel(Flight& flight, std::int32_t frame) {
    constexpr std::int32_t hoopLight = 172;
    drawHoops({.way = flight.way,
               .bend = curveFull - curveEase(frame, sighted - 60, brakes - 20),
               .weight = curveStay(frame, tunnelBegin, tunnelEnd, 60) * hoopLight / curveFull},
              flight.light);
}

void drawStars(Flight& flight, std::int32_t frame) {
    const std::int32_t speed = speedAt(frame);
    flight.stars->speed = 5 * speed;
    flight.stars->trail = 3 + speed / 64;
    flight.stars->turn = speed / 100;
    flight.stars->hue = coolHue(2 * frame) - 100;
    LSTAR_advance(flight.stars);
    LSTAR_draw(flight.stars, flight.light);
}

/// Star polygons pass by while the flight brakes; they grow out of nothing and shrink away.
void drawCrystals(Flight& flight, std::int32_t frame) {
    LSTAR& crystals = *flight.crystals;
    crystals.speed = 500;
    crystals.size = curveStay(frame, brakes - 60, levelled, 50) * 7;
    crystals.corners = 5 + std::clamp(frame - brakes, 0, 149) / 50;
    crystals.skip = (crystals.corners - 1) / 2;
    crystals.hue = coolHue(3 * frame);
    LSTAR_advance(&crystals);
    LSTAR_drawPolygons(&crystals, flight.light);
}

/// Lays the light over the picture, with a bloom around whatever is bright; none of it shines through a
/// world.
void showLight(Flight& flight, std::int32_t frame) {
    constexpr std::uint32_t fade = 0x2C2C2C;
    constexpr std::int32_t bloomShift = 3;
    if (isGlobeSeen(frame)) {
        const Globe globe = globeAt(frame);
        CIRCLE_drawDisc(flight.light, globe.x, globe.y, globe.radius, 0);
    }
    IMGFX_glare8(flight.light, flight.bloom, bloomShift);
    IMGFX_addBlit(flight.bloom, demo.screen, 0, 0, 0, 0, flight.bloom->width, flight.bloom->height);
    IMGFX_blur(flight.light, flight.bloom);
    std::swap(flight.light, flight.bloom);
    IMG_subColour(flight.light, fade);
}

void drawNightfall(Flight& flight, std::int32_t frame) {
    const std::int32_t dark = curveEase(frame, nightfall, frames - 6);
    RASTER_drawBlend(flight.night, demo.screen, static_cast<std::uint32_t>(dark));
}

void drawCaptions(Flight&, std::int32_t frame) {
    constexpr TypedCaption captions[] = {{"LIGHTS OFF", 36, 8, 70},
                                         {"HOLD ON", 36, 92, 165},
                                         {"LOOK AHEAD", 36, 400, 470},
                                         {"ANOTHER SKY", 36, 580, 690}};
    typeCaptions(captions, frame, coolHue(4 * frame));
}

constexpr Act<Flight> acts[] = {{0, frames, fly},
                                {0, frames, drawAir},
                                {0, frames, drawAurora},
                                {levelled, frames, drawRibbon},
                                {0, frames, drawWorld},
                                {0, tunnelEnd, drawTunnel},
                                {0, frames, drawStars},
                                {brakes - 59, levelled, drawCrystals},
                                {0, frames, showLight},
                                {nightfall, frames, drawNightfall},
                                {0, frames, playScrollText<frames>},
                                {0, frames, drawCaptions}};

} // namespace

void VELM4030_sceneExtra12() {
    play({}, frames, acts);
}

} // namespace velm
