// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Extra scene 11, rain over a city: towers grow out of the dark, their windows light up one by one, lines of
// light breathe in the sky, and when the rain is over the picture melts. On a white background it is drawn in
// ink.
#include "demo/scene_curves.h"
#include "demo/scene_frames.h"
#include "demo/state.h"
#include "demo/velm4030.h"
#include "effects/lrain.h"
#include "effects/rect.h"
#include "effects/sineline.h"
#include "foundation/sine.h"
#include "image/imgfx.h"
#include "image/rgb888.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace velm {

namespace {

constexpr std::int32_t frames = 750;
constexpr std::int32_t lightsBegin = 130;
constexpr std::int32_t skyBegins = 240;
constexpr std::int32_t wordsBegin = 380;
constexpr std::int32_t rainEnds = 560;
constexpr std::int32_t melts = 660;
constexpr std::int32_t horizon = 168; // row where the towers stand
constexpr std::int32_t streetY = 206; // where the scroll text runs in this scene
constexpr std::uint32_t white = 0xFFFFFF;

constexpr std::size_t towerCount = 11;
constexpr std::int32_t windowWidth = 4;
constexpr std::int32_t windowHeight = 3;
constexpr std::int32_t windowPitch = 7; // pixels from window to window, both ways

struct Tower {
    std::int32_t x, width, height; ///< pixels
    std::int32_t grown;            ///< pixels that have come out of the ground
};

struct City {
    LRAIN* rain;
    SINELINE* line;
    SINEDOTS* stars;
    RASTER* dusk; ///< a colour a row, from the zenith to the horizon
    RANDOM* random;
    IMG* windows; ///< of the window's size: the lit windows so far
    IMG* melted;  ///< of the window's size: scratch for what is mirrored or blurred
    std::array<Tower, towerCount> towers;
};

/// Two rows of towers, every other one nearer, wider and lower.
void placeTowers(City& city) {
    for (std::size_t i = 0; i < towerCount; ++i) {
        const bool near = i % 2 == 0;
        const std::int32_t columns = near ? 4 : 3;
        Tower& tower = city.towers[i];
        tower.width = columns * windowPitch + 3;
        tower.x = static_cast<std::int32_t>(i) * 24 - 4;
        tower.height = windowPitch * ((near ? 6 : 10) + RANDOM_below(city.random, 6)) + 3;
        tower.grown = 0;
    }
}

/// From a deep violet above to a glow over the towers.
RASTER* makeDusk() {
    constexpr std::uint32_t zenith = 0x04000C;
    constexpr std::uint32_t glow = 0x301838;
    RASTER* const dusk = RASTER_new();
    for (std::int32_t row = 0; dusk != nullptr && row < dusk->count; ++row) {
        const auto share = static_cast<std::uint32_t>(std::min(row * 256 / horizon, 256));
        dusk->colours[row] = row <= horizon ? RGB888_mix(zenith, glow, share * share >> 8) : 0;
    }
    return dusk;
}

SINEDOTS* makeStars() {
    constexpr std::int32_t count = 600;
    SINEDOTS* const stars = SINEDOTS_new();
    SINEDOTS_setCount(stars, count);
    if (stars != nullptr) {
        stars->colour = 0x182030;
        for (SINEDOTS_AXES& speed : stars->speed) {
            speed = {1, 1, 0};
        }
    }
    return stars;
}

/// Lights a window that some tower has already, or none.
void lightWindow(City& city) {
    constexpr std::array<std::uint32_t, 5> lights = {0xFFD060, 0xFFA030, 0xFFF0B0, 0x60C0FF, 0xFF6080};
    const Tower& tower = city.towers[static_cast<std::size_t>(RANDOM_below(city.random, towerCount))];
    const std::int32_t column = RANDOM_below(city.random, tower.width / windowPitch);
    const std::int32_t floor = RANDOM_below(city.random, tower.height / windowPitch);
    const std::uint32_t light = lights[static_cast<std::size_t>(RANDOM_below(city.random, lights.size()))];
    RECT_drawPane(city.windows, tower.x + 3 + column * windowPitch,
                  horizon - tower.height + 3 + floor * windowPitch, windowWidth, windowHeight, light,
                  RECT_MIX::set);
}

/// A tower as far as it has grown: a dark body in a rim of light, then its lit windows. Near towers cover
/// those behind them.
void drawTower(const City& city, const Tower& tower, std::uint32_t rim) {
    const std::int32_t top = horizon - tower.grown;
    RECT_drawPane(demo.screen, tower.x, top, tower.width, tower.grown, 0x06040C, RECT_MIX::set);
    RECT_drawFrame(demo.screen, tower.x, top, tower.width, tower.grown, 1, rim, RECT_MIX::add);
    IMG_blit(city.windows, demo.screen, tower.x, top, tower.x, top, tower.width, tower.grown);
}

void drawCity(City& city, std::int32_t frame) {
    for (const std::size_t row : {1U, 0U}) { // the far row first
        for (std::size_t i = row; i < towerCount; i += 2) {
            Tower& tower = city.towers[i];
            const std::int32_t growth = (frame - 6 * static_cast<std::int32_t>(i)) * 2;
            tower.grown = std::clamp(growth, 0, tower.height);
            if (tower.grown > 0) {
                drawTower(city, tower, row == 0 ? 0x2060A0 : 0x183060);
            }
        }
    }
    if (frame >= lightsBegin && frame < rainEnds) {
        lightWindow(city);
    }
    IMG_drawHLine(demo.screen, 0x3070B0, horizon, 0, demo.screen->width - 1);
}

/// The wet street mirrors the city at half its brightness, every row shifted by a ripple that grows towards
/// the viewer.
void mirrorCity(const City& city, std::int32_t frame) {
    IMG* const screen = demo.screen;
    if (city.melted == nullptr) {
        return;
    }
    IMG_fill(city.melted, 0);
    for (std::int32_t row = 1; row < screen->height - horizon; ++row) {
        const std::int32_t ripple = SINE_scaled(1 + row / 8, 60 * row + 23 * frame);
        IMG_copyRowWrapped(screen, city.melted, horizon - row, horizon + row, ripple);
    }
    IMGFX_averageBlit(city.melted, screen, 0, horizon + 1, 0, horizon + 1, screen->width, screen->height);
}

/// `colour` coming up from `begin` on and gone again at `end`.
std::uint32_t between(std::uint32_t colour, std::int32_t frame, std::int32_t begin, std::int32_t end) {
    constexpr std::int32_t slope = 64;
    return RGB888_mix(0, colour, curveShow(frame, begin, end, slope));
}

void drawSky(City& city, std::int32_t frame) {
    RASTER_draw(city.dusk, demo.screen);
    if (city.stars != nullptr) {
        city.stars->colour = between(0x202838, frame, rainEnds - 40, frames);
        SINEDOTS_advance(city.stars);
        SINEDOTS_drawAdd(city.stars, demo.screen);
    }
    if (city.line != nullptr && frame >= skyBegins) {
        city.line->colour = between(0x104048, frame, skyBegins, frames);
        city.line->echoColour = between(0x400850, frame, skyBegins, frames);
        SINELINE_advance(city.line);
        SINELINE_draw(city.line, demo.screen);
    }
}

/// Types words into the sky, a letter every third frame, and takes them back.
void drawWords(std::int32_t frame) {
    constexpr std::int32_t cell = 16;
    constexpr std::int32_t framesPerLetter = 3;
    struct Line {
        std::string_view text;
        std::int32_t y, begin;
    };
    LFONT* const pen = demo.textMedium;
    if (pen == nullptr) {
        return;
    }
    constexpr Line lines[] = {{"ALL THE LIGHTS", 20, wordsBegin}, {"WAIT FOR YOU", 44, wordsBegin + 54}};
    for (const Line& line : lines) {
        const std::int32_t typed = std::max((frame - line.begin) / framesPerLetter, 0);
        const std::int32_t taken = std::max((frame - rainEnds - 40) / 2, 0);
        const auto length = static_cast<std::int32_t>(line.text.size());
        LFONT_setColour(pen, frame % 2 == 0 ? 0xC0F0FF : 0x90D8F0);
        LFONT_place(pen, 128 - length * cell / 2 + taken * cell, line.y, 1);
        for (std::int32_t i = taken; i < std::min(typed, length); ++i) {
            pen->character = static_cast<unsigned char>(line.text[static_cast<std::size_t>(i)]);
            LFONT_drawChar(pen);
        }
    }
}

void drawRain(City& city, std::int32_t frame) {
    if (city.rain == nullptr) {
        return;
    }
    city.rain->nearColour = between(0xB0E0FF, frame, -64, rainEnds + 40);
    city.rain->farColour = between(0x302060, frame, -64, rainEnds + 40);
    LRAIN_advance(city.rain);
    LRAIN_draw(city.rain, demo.screen);
}

/// Blurs the frame more and more, and darkens it in the end.
void melt(const City& city, std::int32_t frame) {
    if (city.melted == nullptr || frame < melts) {
        return;
    }
    const std::int32_t radius = (frame - melts) * (frame - melts) / 200;
    IMGFX_blurRadius(demo.screen, city.melted, radius);
    IMG_copy(city.melted, demo.screen);
    const std::int32_t dark = std::clamp((frame - frames + 50) * 5, 0, 255);
    IMG_subColour(demo.screen, static_cast<std::uint32_t>(dark) * 0x010101U);
}

City VELM4030_sceneExtra11Setup() {
    constexpr std::int32_t drops = 180;
    setLook({});
    VELM4030_rasterSetup();
    VELM4030_scrollSetup();
    VELM4030_placeScroll(streetY);
    City city{};
    city.dusk = makeDusk();
    city.stars = makeStars();
    city.windows = IMG_newSized(settings.windowWidth, settings.windowHeight);
    city.melted = IMG_newSized(settings.windowWidth, settings.windowHeight);
    if ((city.rain = LRAIN_new()) != nullptr) {
        city.rain->horizon = horizon;
        LRAIN_setCount(city.rain, drops);
    }
    if ((city.line = SINELINE_new()) != nullptr) {
        city.line->y = 56;
        city.line->wave[0].reach = 84;
        city.line->wave[1].reach = 36;
    }
    if ((city.random = RANDOM_new()) != nullptr) {
        placeTowers(city);
    }
    return city;
}

void VELM4030_sceneExtra11Cleanup(City& city) {
    LRAIN_delete(&city.rain);
    SINELINE_delete(&city.line);
    SINEDOTS_delete(&city.stars);
    RASTER_delete(&city.dusk);
    RANDOM_delete(&city.random);
    IMG_delete(&city.windows);
    IMG_delete(&city.melted);
    VELM4030_placeScroll(VELM4030_scrollY);
}

} // namespace

void VELM4030_sceneExtra11() {
    City city = VELM4030_sceneExtra11Setup();
    runFrames(frames, [&city](std::int32_t frame) {
        drawSky(city, frame);
        if (city.random != nullptr) {
            drawCity(city, frame);
        }
        mirrorCity(city, frame);
        drawRain(city, frame);
        drawWords(frame);
        drawScrollText();
        melt(city, frame);
        if (demo.background == white) {
            IMGFX_invert(demo.screen);
        }
        drawPointerAndOverlay();
    });
    VELM4030_sceneExtra11Cleanup(city);
}

} // namespace velm
