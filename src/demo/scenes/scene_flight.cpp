// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Extra scene 12, the flight: stars drift, become streaks, and a tunnel of hoops that bends like a snake
// comes out of the distance. Its light blooms. At full speed the sky rolls, then polygons drift where stars
// were, a curve of dots swims between them, and everything falls back into the dark.
#include "demo/scenes/acts.h"
#include "demo/scenes/caption.h"
#include "demo/scenes/curves.h"
#include "effects/circle.h"
#include "effects/lstar.h"
#include "foundation/sine.h"
#include "image/imgfx.h"
#include "image/rgb888.h"

#include <algorithm>
#include <string_view>

namespace velm {

namespace {

constexpr std::int32_t frames = 750;
constexpr std::int32_t tunnelSway = 6500; // of its bends, pixels at a depth of 1

constexpr std::int32_t tunnelBegin = 110, tunnelEnd = 520;
constexpr std::int32_t arrival = 480; // the brakes: streaks give way to polygons
constexpr std::int32_t ending = 690;

/// How fast the flight is, 0..256: it starts slowly, runs at full speed, and brakes twice.
std::int32_t speedAt(std::int32_t frame) {
    const std::int32_t faster = 64 + curveEase(frame, 60, 330) * 192 / 256;
    return faster - curveEase(frame, arrival - 60, arrival + 40) * 180 / 256 -
           curveEase(frame, ending, frames) * 72 / 256;
}

Owned<LSTAR_delete> makeSky(std::int32_t count) {
    return Owned<LSTAR_delete>(LSTAR_new(), [count](LSTAR& sky) {
        LSTAR_setCount(&sky, count);
        sky.colours = demo.hueRamp;
        sky.turn = 2;
    });
}

/// A hump of dark violet and one of dark green, smooth between black.
void prepareAurora(RASTER& aurora) {
    constexpr std::int32_t lines = 512;
    colourRaster(aurora, lines, [](std::int32_t i) {
        return curveHue(i < lines / 2 ? 640 : 120, std::max(SINE_scaled(64, 4 * i), 0));
    });
    aurora.speed = 3 << 15; // 1.5 lines a frame
}

struct Flight {
    ScrollText scroll;
    Owned<LSTAR_delete> sky = makeSky(420);
    Owned<LSTAR_delete> shapes = makeSky(36); ///< the same kind of sky, drawn as polygons
    Owned<SINEDOTS_delete> curve = makeDotLine(3);
    Owned<RASTER_delete> aurora{RASTER_new(), prepareAurora}; ///< bands of dark light behind it all
    Picture light{newWindowPicture()};                        ///< streaks, hoops and curve with their trails
    Picture bloom{newWindowPicture()};                        ///< the same, spread
    std::int32_t way = 0;                                     ///< flown so far, in hoop distances / 256
};

/// Moves the viewer on.
void fly(Flight& flight, std::int32_t frame) {
    flight.way += speedAt(frame) / 2;
}

/// How far the tunnel lies off its straight line, `place` hoop distances / 256 from its beginning.
std::int32_t windAcross(std::int32_t place) {
    return SINE_scaled(tunnelSway, place * 40 >> 8);
}

std::int32_t windDown(std::int32_t place) {
    return SINE_scaled(tunnelSway, (place * 28 >> 8) + 200);
}

/// One hoop, `depth` in front of the viewer, who is in the middle of the tunnel.
void drawHoop(const Flight& flight, std::int32_t depth, std::int32_t index, std::int32_t weight) {
    constexpr std::int32_t near = 24;
    constexpr std::int32_t radius = 5200; // at a depth of 1
    const std::int32_t x = middle + (windAcross(index << 8) - windAcross(flight.way)) / (depth + near);
    const std::int32_t y = middle + (windDown(index << 8) - windDown(flight.way)) / (depth + near);
    const std::uint32_t colour = curveHue(48 * index, weight);
    const std::int32_t size = radius / (depth + near);
    CIRCLE_addRing(flight.light, x, y, size, colour);
    CIRCLE_addRing(flight.light, x, y, size - 1, curveDim(colour, 128));
}

/// The hoops from the farthest to the nearest, each at its whole distance from the way flown.
void drawTunnel(Flight& flight, std::int32_t frame) {
    constexpr std::int32_t hoops = 26;
    constexpr std::int32_t distance = 16; // depth from hoop to hoop
    const std::int32_t shown = curveStay(frame, tunnelBegin, tunnelEnd, 90);
    if (shown == 0) {
        return;
    }
    const std::int32_t first = flight.way >> 8;
    for (std::int32_t k = hoops; k > 0; --k) {
        const std::int32_t depth = k * distance - ((flight.way & 255) * distance >> 8) - distance / 2;
        const std::int32_t weight = (hoops - k) * (hoops - k) * curveFull / (hoops * hoops);
        drawHoop(flight, depth, first + k, weight * shown >> 8);
    }
}

void drawStars(Flight& flight, std::int32_t frame) {
    const std::int32_t speed = speedAt(frame);
    flight.sky->speed = 6 * speed;
    flight.sky->trail = 3 + speed / 64;
    flight.sky->turn = curveRise(frame, 240, 330) / 64 - curveRise(frame, arrival - 60, arrival) / 86;
    flight.sky->hue = 4 * frame;
    LSTAR_advance(flight.sky);
    LSTAR_draw(flight.sky, flight.light);
}

/// Flying backwards at the end, the polygons shrink into the distance.
void drawShapes(Flight& flight, std::int32_t frame) {
    LSTAR& shapes = *flight.shapes;
    shapes.speed = 500 - 8 * curveEase(frame, ending - 30, frames);
    shapes.corners = 5 + std::clamp(frame - arrival, 0, 199) / 50;
    shapes.skip = (shapes.corners - 1) / 2;
    shapes.hue = 3 * frame;
    LSTAR_advance(&shapes);
    LSTAR_drawPolygons(&shapes, flight.light);
}

void drawCurve(Flight& flight, std::int32_t frame) {
    const std::int32_t weight = curveStay(frame, arrival, ending + 30, 60) / 2;
    if (weight > 0) {
        flight.curve->colour = curveHue(5 * frame, weight);
        SINEDOTS_advance(flight.curve);
        SINEDOTS_drawAdd(flight.curve, flight.light);
    }
}

/// Lays the light over the aurora, with a bloom around whatever is bright.
void showLight(Flight& flight, std::int32_t frame) {
    constexpr std::uint32_t fade = 0x2C2C2C;
    constexpr std::int32_t bloomShift = 2;
    if (settings.rastersOn != 0) {
        RASTER_advance(flight.aurora);
        RASTER_drawBlend(flight.aurora, demo.screen,
                         static_cast<std::uint32_t>(curveStay(frame, 20, frames - 20, 120)));
    }
    IMGFX_glare8(flight.light, flight.bloom, bloomShift);
    IMGFX_addBlit(flight.bloom, demo.screen, 0, 0, 0, 0, flight.bloom->width, flight.bloom->height);
    const std::int32_t curtain = std::min(curveRise(frame, ending, frames - 5), 255);
    IMG_subColour(demo.screen, static_cast<std::uint32_t>(curtain) * 0x010101U);
    IMGFX_blur(flight.light, flight.bloom);
    IMG_copy(flight.bloom, flight.light);
    IMG_subColour(flight.light, fade);
}

void drawCaptions(Flight&, std::int32_t frame) {
    constexpr struct {
        std::string_view text;
        std::int32_t begin;
    } captions[] = {{"LIGHTS OFF", 14}, {"HOLD ON", 90}, {"NO ROAD HERE", 500}, {"ONLY SHAPES", 580}};
    constexpr std::int32_t shown = 74;
    const std::uint32_t light = RGB888_brighten(RGB888_average(curveHue(4 * frame), 0xFFFFFF), 60);
    for (const auto& caption : captions) {
        drawCaption(demo.textSmall, {.text = caption.text,
                                     .y = 48,
                                     .scale = 2,
                                     .colour = light,
                                     .weight = curveStay(frame, caption.begin, caption.begin + shown, 20)});
    }
}

constexpr Act<Flight> acts[] = {{0, frames, fly},
                                {0, frames, drawTunnel},
                                {0, frames, drawStars},
                                {arrival - 59, frames, drawShapes},
                                {0, frames, drawCurve},
                                {0, frames, showLight},
                                {0, frames, playScrollText<frames>},
                                {0, frames, drawCaptions}};

} // namespace

void VELM4030_sceneExtra12() {
    play({.fadeStep = 0x202020}, frames, acts);
}

} // namespace velm
