// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Extra scene 11, rain over a city: towers grow out of the dark, their windows light up one by one, lines of
// light breathe in the sky, and when the rain is over the picture melts. On a white background it is drawn in
// ink.
#include "demo/scenes/acts.h"
#include "demo/scenes/caption.h"
#include "demo/scenes/curves.h"
#include "effects/lrain.h"
#include "effects/rect.h"
#include "effects/sineline.h"
#include "foundation/sine.h"
#include "image/imgfx.h"

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

/// Two rows of towers, every other one nearer, wider and lower.
std::array<Tower, towerCount> placeTowers(RANDOM* random) {
    std::array<Tower, towerCount> towers{};
    for (std::size_t i = 0; i < towerCount; ++i) {
        const bool near = i % 2 == 0;
        const std::int32_t columns = near ? 4 : 3;
        Tower& tower = towers[i];
        tower.width = columns * windowPitch + 3;
        tower.x = static_cast<std::int32_t>(i) * 24 - 4;
        tower.height = windowPitch * ((near ? 6 : 10) + RANDOM_below(random, 6)) + 3;
    }
    return towers;
}

/// From a deep violet above to a glow over the towers.
void prepareDusk(RASTER& dusk) {
    constexpr std::uint32_t zenith = 0x04000C;
    constexpr std::uint32_t glow = 0x301838;
    colourRaster(dusk, dusk.count, [](std::int32_t row) {
        const std::int32_t weight = std::min(row * curveFull / horizon, curveFull);
        return row <= horizon ? curveMix(zenith, glow, weight * weight >> 8) : 0;
    });
}

void prepareStars(SINEDOTS& stars) {
    constexpr std::int32_t count = 600;
    SINEDOTS_setCount(&stars, count);
    for (SINEDOTS_AXES& speed : stars.speed) {
        speed = {1, 1, 0};
    }
}

void prepareRain(LRAIN& rain) {
    constexpr std::int32_t drops = 180;
    rain.horizon = horizon;
    LRAIN_setCount(&rain, drops);
}

void prepareLine(SINELINE& line) {
    line.y = 56;
    line.wave[0].reach = 84;
    line.wave[1].reach = 36;
}

struct City {
    ScrollText scroll{streetY};
    Owned<RASTER_delete> dusk{RASTER_new(), prepareDusk}; ///< a colour a row, from the zenith to the horizon
    Owned<SINEDOTS_delete> stars{SINEDOTS_new(), prepareStars};
    Picture windows{newWindowPicture()};  ///< those that are lit so far
    Picture mirrored{newWindowPicture()}; ///< the city in the street
    Picture melted{newWindowPicture()};   ///< all of it, blurred
    Owned<LRAIN_delete> rain{LRAIN_new(), prepareRain};
    Owned<SINELINE_delete> line{SINELINE_new(), prepareLine};
    Owned<RANDOM_delete> random{RANDOM_new()};
    std::array<Tower, towerCount> towers = placeTowers(random);
};

/// Lights a window that some tower has already, or none.
void lightWindow(City& city, std::int32_t) {
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

void drawTowers(City& city, std::int32_t frame) {
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
}

void drawHorizon(City&, std::int32_t) {
    IMG_drawHLine(demo.screen, 0x3070B0, horizon, 0, demo.screen->width - 1);
}

/// The wet street mirrors the city at half its brightness, every row shifted by a ripple that grows towards
/// the viewer.
void mirrorCity(City& city, std::int32_t frame) {
    IMG* const screen = demo.screen;
    IMG_fill(city.mirrored, 0);
    for (std::int32_t row = 1; row < screen->height - horizon; ++row) {
        const std::int32_t ripple = SINE_scaled(1 + row / 8, 60 * row + 23 * frame);
        IMG_copyRowWrapped(screen, city.mirrored, horizon - row, horizon + row, ripple);
    }
    IMGFX_averageBlit(city.mirrored, screen, 0, horizon + 1, 0, horizon + 1, screen->width, screen->height);
}

/// `colour` coming up from `begin` on and gone again at `end`.
std::uint32_t between(std::uint32_t colour, std::int32_t frame, std::int32_t begin, std::int32_t end) {
    constexpr std::int32_t slope = 64;
    return curveDim(colour, curveStay(frame, begin, end, slope));
}

void drawSky(City& city, std::int32_t frame) {
    RASTER_draw(city.dusk, demo.screen);
    city.stars->colour = between(0x202838, frame, rainEnds - 40, frames);
    SINEDOTS_advance(city.stars);
    SINEDOTS_drawAdd(city.stars, demo.screen);
}

void drawLine(City& city, std::int32_t frame) {
    city.line->colour = between(0x104048, frame, skyBegins, frames);
    city.line->echoColour = between(0x400850, frame, skyBegins, frames);
    SINELINE_advance(city.line);
    SINELINE_draw(city.line, demo.screen);
}

void drawRain(City& city, std::int32_t frame) {
    city.rain->nearColour = between(0xB0E0FF, frame, -64, rainEnds + 40);
    city.rain->farColour = between(0x302060, frame, -64, rainEnds + 40);
    LRAIN_advance(city.rain);
    LRAIN_draw(city.rain, demo.screen);
}

/// Types words into the sky, a letter every third frame, and takes them back.
void drawWords(City&, std::int32_t frame) {
    constexpr std::int32_t framesPerLetter = 3;
    const std::uint32_t flicker = frame % 2 == 0 ? 0xC0F0FF : 0x90D8F0;
    const std::int32_t taken = std::max((frame - rainEnds - 40) / 2, 0);
    const auto write = [=](std::string_view text, std::int32_t y, std::int32_t begin) {
        drawCaption(demo.textMedium, {.text = text,
                                      .y = y,
                                      .colour = flicker,
                                      .first = taken,
                                      .typed = (frame - begin) / framesPerLetter});
    };
    write("ALL THE LIGHTS", 20, wordsBegin);
    write("WAIT FOR YOU", 44, wordsBegin + 54);
}

/// Blurs the frame more and more, and darkens it in the end.
void melt(City& city, std::int32_t frame) {
    const std::int32_t radius = (frame - melts) * (frame - melts) / 200;
    IMGFX_blurRadius(demo.screen, city.melted, radius);
    IMG_copy(city.melted, demo.screen);
    const std::int32_t dark = std::clamp((frame - frames + 50) * 5, 0, 255);
    IMG_subColour(demo.screen, static_cast<std::uint32_t>(dark) * 0x010101U);
}

/// The key q asks for ink on paper.
void drawInInk(City&, std::int32_t) {
    if (demo.background == white) {
        IMGFX_invert(demo.screen);
    }
}

constexpr Act<City> acts[] = {{0, frames, drawSky},
                              {skyBegins, frames, drawLine},
                              {0, frames, drawTowers},
                              {lightsBegin, rainEnds, lightWindow},
                              {0, frames, drawHorizon},
                              {0, frames, mirrorCity},
                              {0, frames, drawRain},
                              {0, frames, drawWords},
                              {0, frames, playScrollText<frames>},
                              {melts, frames, melt},
                              {0, frames, drawInInk}};

} // namespace

void VELM4030_sceneExtra11() {
    play({}, frames, acts);
}

} // namespace velm
