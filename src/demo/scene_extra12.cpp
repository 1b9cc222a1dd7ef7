// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Extra scene 12, the flight: stars drift, become streaks, and a tunnel of hoops that bends like a snake
// comes out of the distance. Its light blooms. At full speed the sky rolls, then polygons drift where stars
// were, a curve of dots swims between them, and everything falls back into the dark.
#include "demo/scene_curves.h"
#include "demo/scene_frames.h"
#include "demo/state.h"
#include "demo/velm4030.h"
#include "effects/circle.h"
#include "effects/lstar.h"
#include "image/imgfx.h"
#include "image/rgb888.h"

#include <algorithm>
#include <cstring>

namespace velm {

namespace {

constexpr std::int32_t frames = 750;
constexpr std::int32_t middle = 128;
constexpr std::int32_t starCount = 420;
constexpr std::int32_t polygonCount = 36;
constexpr std::int32_t tunnelSway = 6500; // of its bends, pixels at a depth of 1

constexpr std::int32_t tunnelBegin = 110, tunnelEnd = 520;
constexpr std::int32_t arrival = 480; // the brakes: streaks give way to polygons
constexpr std::int32_t ending = 690;

struct Flight {
    LSTAR* sky;
    LSTAR* shapes; ///< the same kind of sky, drawn as polygons
    SINEDOTS* curve;
    RASTER* aurora;   ///< bands of dark light behind it all
    IMG* light;       ///< streaks, hoops and curve with their trails
    IMG* bloom;       ///< the same, spread
    std::int32_t way; ///< flown so far, in hoop distances / 256
};

/// How fast the flight is, 0..256: it starts slowly, runs at full speed, and brakes twice.
std::int32_t speedAt(std::int32_t frame) {
    const std::int32_t faster = 64 + curveEase(frame, 60, 330) * 192 / 256;
    return faster - curveEase(frame, arrival - 60, arrival + 40) * 180 / 256 -
           curveEase(frame, ending, frames) * 72 / 256;
}

LSTAR* makeSky(std::int32_t count, const SAMPLE* colours) {
    LSTAR* const sky = LSTAR_new();
    LSTAR_setCount(sky, count);
    if (sky != nullptr) {
        sky->colours = colours;
    }
    return sky;
}

/// A hump of dark violet and one of dark green, smooth between black.
RASTER* makeAurora() {
    constexpr std::int32_t lines = 512;
    RASTER* const aurora = RASTER_new();
    RASTER_setCount(aurora, lines);
    if (aurora == nullptr || aurora->count != lines) {
        return aurora;
    }
    for (std::int32_t i = 0; i < lines; ++i) {
        const std::int32_t height = std::max(SINE_scaled(64, 4 * i), 0);
        aurora->colours[i] = curveHue(i < lines / 2 ? 640 : 120, static_cast<std::uint32_t>(height));
    }
    aurora->speed = 3 << 15; // 1.5 lines a frame
    return aurora;
}

/// How far the tunnel lies off its straight line, `place` hoop distances / 256 from its beginning.
std::int32_t windAcross(std::int32_t place) {
    return SINE_scaled(tunnelSway, place * 40 >> 8);
}

std::int32_t windDown(std::int32_t place) {
    return SINE_scaled(tunnelSway, (place * 28 >> 8) + 200);
}

/// One hoop, `depth` in front of the viewer, who is in the middle of the tunnel.
void drawHoop(const Flight& flight, std::int32_t depth, std::int32_t index, std::uint32_t brightness) {
    constexpr std::int32_t near = 24;
    constexpr std::int32_t radius = 5200; // at a depth of 1
    const std::int32_t x = middle + (windAcross(index << 8) - windAcross(flight.way)) / (depth + near);
    const std::int32_t y = middle + (windDown(index << 8) - windDown(flight.way)) / (depth + near);
    const std::uint32_t colour = curveHue(48 * index, brightness);
    const std::int32_t size = radius / (depth + near);
    CIRCLE_addRing(flight.light, x, y, size, colour);
    CIRCLE_addRing(flight.light, x, y, size - 1, RGB888_mix(0, colour, 128));
}

/// The hoops from the farthest to the nearest, each at its whole distance from the way flown.
void drawTunnel(const Flight& flight, std::int32_t frame) {
    constexpr std::int32_t hoops = 26;
    constexpr std::int32_t distance = 16; // depth from hoop to hoop
    const std::uint32_t shown = curveShow(frame, tunnelBegin, tunnelEnd, 90);
    if (shown == 0) {
        return;
    }
    const std::int32_t first = flight.way >> 8;
    for (std::int32_t k = hoops; k > 0; --k) {
        const std::int32_t depth = k * distance - ((flight.way & 255) * distance >> 8) - distance / 2;
        const std::int32_t brightness = (hoops - k) * (hoops - k) * 256 / (hoops * hoops);
        drawHoop(flight, depth, first + k, static_cast<std::uint32_t>(brightness) * shown >> 8);
    }
}

void drawStars(const Flight& flight, std::int32_t frame) {
    if (flight.sky == nullptr || flight.shapes == nullptr) {
        return;
    }
    const std::int32_t speed = speedAt(frame);
    flight.sky->speed = 6 * speed;
    flight.sky->trail = 3 + speed / 64;
    flight.sky->turn = curveRise(frame, 240, 330) / 64 - curveRise(frame, arrival - 60, arrival) / 86;
    flight.sky->hue = 4 * frame;
    LSTAR_advance(flight.sky);
    LSTAR_draw(flight.sky, flight.light);
    if (frame > arrival - 60) {
        // Flying backwards at the end, they shrink into the distance.
        flight.shapes->speed = 500 - 8 * curveEase(frame, ending - 30, frames);
        flight.shapes->corners = 5 + std::clamp(frame - arrival, 0, 199) / 50;
        flight.shapes->skip = (flight.shapes->corners - 1) / 2;
        flight.shapes->hue = 3 * frame;
        LSTAR_advance(flight.shapes);
        LSTAR_drawPolygons(flight.shapes, flight.light);
    }
}

void drawCurve(const Flight& flight, std::int32_t frame) {
    const std::uint32_t brightness = curveShow(frame, arrival, ending + 30, 60) / 2;
    if (flight.curve != nullptr && brightness > 0) {
        flight.curve->colour = curveHue(5 * frame, brightness);
        SINEDOTS_advance(flight.curve);
        SINEDOTS_drawAdd(flight.curve, flight.light);
    }
}

/// Lays the light over the aurora, with a bloom around whatever is bright.
void showLight(const Flight& flight, std::int32_t frame) {
    constexpr std::uint32_t fade = 0x2C2C2C;
    constexpr std::int32_t bloomShift = 2;
    if (settings.rastersOn != 0 && flight.aurora != nullptr) {
        RASTER_advance(flight.aurora);
        const std::uint32_t alpha = curveShow(frame, 20, frames - 20, 120);
        RASTER_drawBlend(flight.aurora, demo.screen, alpha);
    }
    IMGFX_glare8(flight.light, flight.bloom, bloomShift);
    IMGFX_addBlit(flight.bloom, demo.screen, 0, 0, 0, 0, flight.bloom->width, flight.bloom->height);
    const std::int32_t curtain = std::min(curveRise(frame, ending, frames - 5), 255);
    IMG_subColour(demo.screen, static_cast<std::uint32_t>(curtain) * 0x010101U);
    IMGFX_blur(flight.light, flight.bloom);
    IMG_copy(flight.bloom, flight.light);
    IMG_subColour(flight.light, fade);
}

void drawLine(const char* text, std::int32_t y, std::uint32_t colour) {
    LFONT* const pen = demo.textSmall;
    if (pen == nullptr || colour == 0) {
        return;
    }
    LFONT_setColour(pen, colour);
    LFONT_place(pen, middle - (static_cast<std::int32_t>(std::strlen(text)) - 1) * pen->spacing->x, y, 2);
    LFONT_drawLine(pen, text);
}

void drawCaptions(std::int32_t frame) {
    constexpr struct {
        const char* text;
        std::int32_t begin;
    } captions[] = {{"LIGHTS OFF", 14}, {"HOLD ON", 90}, {"NO ROAD HERE", 500}, {"ONLY SHAPES", 580}};
    constexpr std::int32_t shown = 74;
    constexpr std::int32_t y = 48;
    for (const auto& caption : captions) {
        const std::uint32_t brightness = curveShow(frame, caption.begin, caption.begin + shown, 20);
        const std::uint32_t hue = RGB888_average(curveHue(4 * frame, 256), 0xFFFFFF);
        drawLine(caption.text, y, RGB888_mix(0, RGB888_brighten(hue, 60), brightness));
    }
}

Flight VELM4030_sceneExtra12Setup() {
    setLook({.fadeStep = 0x202020});
    VELM4030_rasterSetup();
    VELM4030_scrollSetup();
    Flight flight{};
    flight.sky = makeSky(starCount, demo.hueRamp);
    flight.shapes = makeSky(polygonCount, demo.hueRamp);
    flight.curve = SINEDOTS_new();
    flight.aurora = makeAurora();
    flight.light = IMG_clone(demo.screen);
    flight.bloom = IMG_clone(demo.screen);
    IMG_fill(flight.light, 0);
    if (flight.curve != nullptr) {
        SINEDOTS_setCount(flight.curve, SINE_tableLength);
        for (std::int32_t k = 0; k < SINEDOTS_waveCount; ++k) {
            flight.curve->step[k] = {k + 1, 3 - k, 0}; // small enough for a line without gaps
        }
    }
    if (flight.shapes != nullptr) {
        flight.shapes->turn = 2;
    }
    return flight;
}

void VELM4030_sceneExtra12Cleanup(Flight& flight) {
    LSTAR_delete(&flight.sky);
    LSTAR_delete(&flight.shapes);
    SINEDOTS_delete(&flight.curve);
    RASTER_delete(&flight.aurora);
    IMG_delete(&flight.light);
    IMG_delete(&flight.bloom);
    LFONT_place(demo.textSmall, 0, 0, 1);
}

} // namespace

void VELM4030_sceneExtra12() {
    Flight flight = VELM4030_sceneExtra12Setup();
    runFrames(frames, [&flight](std::int32_t frame) {
        if (flight.light != nullptr && flight.bloom != nullptr) {
            flight.way += speedAt(frame) / 2;
            drawTunnel(flight, frame);
            drawStars(flight, frame);
            drawCurve(flight, frame);
            showLight(flight, frame);
        }
        drawScrollText();
        drawCaptions(frame);
        drawPointerAndOverlay();
    });
    VELM4030_sceneExtra12Cleanup(flight);
}

} // namespace velm
