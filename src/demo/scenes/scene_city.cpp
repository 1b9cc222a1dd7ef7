// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Extra scene 11, a night of rain over a city: towers grow out of the dark, their windows light up one by
// one, thunder comes nearer, and lightning strikes the highest mast. In the dark town a word of comfort is
// typed; then the light comes back from the middle outwards, the rain ends, and under lines of light in a
// clear sky the town goes to bed. On a white background it is drawn in ink.
#include "demo/scenes/acts.h"
#include "demo/scenes/caption.h"
#include "demo/scenes/glow.h"
#include "demo/scenes/towers.h"
#include "demo/scenes/water.h"
#include "effects/lrain.h"
#include "effects/rect.h"
#include "effects/sineline.h"
#include "image/imgfx.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

namespace velm {

namespace {

constexpr std::int32_t frames = 750;
constexpr std::int32_t wordsBegin = 384;
constexpr std::int32_t rainEnds = 540;
constexpr std::int32_t wordsEnd = 620;
constexpr std::int32_t melts = 690;
constexpr std::int32_t goesDark = 726;
constexpr std::int32_t streetY = 206; // where the scroll text runs in this scene
constexpr std::uint32_t white = 0xFFFFFF;
constexpr TowerPlan plan{};
constexpr std::int32_t horizon = plan.ground; // row where the towers stand

/// A lightning: where it comes from and goes to, and how much of the sky it lights.
struct Bolt {
    std::int32_t frame;
    std::int32_t fromX, toX, toY; ///< from row 0; on the last one the mast decides
    std::int32_t light;           ///< weight of its glow in the sky
};
constexpr Bolt thunder[] = {{180, 40, 58, 110, 90}, {270, 226, 196, 96, 130}, {plan.strike, 96, 0, 0, 200}};
constexpr std::int32_t boltFrames = 14;
constexpr std::int32_t glowFrames = 36;

void prepareRain(LRAIN& rain) {
    constexpr std::int32_t drops = 240;
    rain.horizon = horizon;
    LRAIN_setCount(&rain, drops);
}

void prepareLine(SINELINE& line) {
    line.y = 48;
    line.wave[0].reach = 84;
    line.wave[1].reach = 36;
    line.echoes = 12;
}

struct City {
    ScrollText scroll{streetY};
    Owned<RASTER_delete> dusk{RASTER_new(), [](RASTER& made) { RASTER_setCount(&made, horizon); }};
    Picture sky{IMG_newSized(settings.windowWidth, horizon)}; ///< as it stands in this frame
    Owned<SINEDOTS_delete> stars = makeStars(130);
    Picture melted{newWindowPicture()}; ///< all of it, blurred
    Owned<LRAIN_delete> rain{LRAIN_new(), prepareRain};
    Owned<SINELINE_delete> line{SINELINE_new(), prepareLine};
    Owned<RANDOM_delete> random{RANDOM_new()};
    Towers towers{random, plan};
};

/// `colour` coming up from `begin` on and gone again at `end`.
std::uint32_t between(std::uint32_t colour, std::int32_t frame, std::int32_t begin, std::int32_t end) {
    constexpr std::int32_t slope = 64;
    return curveDim(colour, curveStay(frame, begin, end, slope));
}

/// How bright the latest lightning still is: it dies slowly, and no two follow each other within a second.
std::int32_t flashAt(std::int32_t frame) {
    std::int32_t flash = 0;
    for (const Bolt& bolt : thunder) {
        if (frame >= bolt.frame) {
            const std::int32_t left = curveFull - curveRise(frame, bolt.frame, bolt.frame + glowFrames);
            flash = left * left / curveFull * bolt.light / curveFull;
        }
    }
    return flash;
}

/// From a deep violet above to a glow over the towers, clear after the rain.
void drawSky(City& city, std::int32_t frame) {
    const std::int32_t clear = curveEase(frame, rainEnds, rainEnds + 80);
    const std::int32_t flash = flashAt(frame);
    const std::uint32_t zenith = curveMix(curveMix(0x04000C, 0x020618, clear), 0x584C90, flash);
    const std::uint32_t glow = curveMix(curveMix(0x50244C, 0x203C58, clear), 0x8478B8, flash);
    for (std::int32_t row = 0; row < city.dusk->count; ++row) {
        const std::int32_t weight = row * curveFull / horizon;
        city.dusk->colours[row] = curveMix(zenith, glow, weight * weight / curveFull);
    }
    RASTER_draw(city.dusk, city.sky);
    city.stars->colour = between(0x8898B8, frame, rainEnds, frames + 64);
    SINEDOTS_drawAdd(city.stars, city.sky);
    IMGFX_opaqueBlit(city.sky, demo.screen, 0, 0, 0, 0, city.sky->width, horizon);
}

void drawLine(City& city, std::int32_t frame) {
    city.line->colour = between(0x208878, frame, rainEnds, frames + 64);
    city.line->echoColour = between(0x602098, frame, rainEnds, frames + 64);
    SINELINE_advance(city.line);
    SINELINE_draw(city.line, demo.screen);
}

/// A piece of a lightning with a bright core.
void drawSpark(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2, std::int32_t weight) {
    for (std::int32_t dx = -2; dx <= 2; ++dx) {
        const std::uint32_t colour = std::abs(dx) < 2 ? 0xA0A8FF : 0x302868;
        IMGFX_addLine(demo.screen, x1 + dx, y1, x2 + dx, y2, curveDim(colour, weight));
    }
}

/// A jagged line from the clouds to (toX, toY), with branches that end in the air. It looks the same in each
/// of its frames.
void drawBolt(const Bolt& bolt, std::int32_t toX, std::int32_t toY, std::int32_t weight) {
    constexpr std::int32_t pieces = 14;
    constexpr std::int32_t jag = 9;
    RANDOM random{.counter = static_cast<std::uint32_t>(bolt.frame)};
    std::int32_t x = bolt.fromX;
    std::int32_t y = 0;
    for (std::int32_t i = 1; i <= pieces; ++i) {
        const std::int32_t aside = i < pieces ? RANDOM_below(&random, 2 * jag + 1) - jag : 0;
        const std::int32_t nextX = bolt.fromX + (toX - bolt.fromX) * i / pieces + aside;
        const std::int32_t nextY = toY * i / pieces;
        drawSpark(x, y, nextX, nextY, weight);
        if (RANDOM_below(&random, 4) == 0) {
            const std::int32_t reach = 3 * aside;
            drawSpark(nextX, nextY, nextX + reach, nextY + 12, weight / 3);
            drawSpark(nextX + reach, nextY + 12, nextX + reach + aside, nextY + 26, weight / 4);
        }
        x = nextX;
        y = nextY;
    }
}

void drawThunder(City& city, std::int32_t frame) {
    for (const Bolt& bolt : thunder) {
        if (frame >= bolt.frame && frame < bolt.frame + boltFrames) {
            const bool isStrike = bolt.frame == plan.strike;
            drawBolt(bolt, isStrike ? mastX() : bolt.toX, isStrike ? mastTop(city.towers) : bolt.toY,
                     curveFull - curveRise(frame, bolt.frame + 3, bolt.frame + boltFrames));
        }
    }
}

void drawHouses(City& city, std::int32_t frame) {
    drawTowers(city.towers, frame, flashAt(frame));
}

/// Lamps along the street; they go out with all the rest.
void drawLamps(City&, std::int32_t frame) {
    constexpr std::int32_t apart = 42;
    const std::int32_t light =
        std::min(curveRise(frame, 40, 90), curveFull - curveStay(frame, plan.strike, plan.again + 30, 8));
    for (std::int32_t x = 23; x < settings.windowWidth; x += apart) {
        IMG_drawVLine(demo.screen, 0x202838, x, horizon - 12, horizon);
        drawGlow(demo.screen, x, horizon - 12, 11, curveDim(0x604828, light));
        IMG_drawHLine(demo.screen, curveDim(0xFFE8B0, light) | 0x202020, horizon - 12, x - 1, x + 1);
    }
}

/// A car that crosses the street in `frame` - `begin` to the right, or to the left with a speed below 0.
void drawCar(std::int32_t since, std::int32_t speed) {
    const std::int32_t front = speed > 0 ? since * speed - 40 : settings.windowWidth + 40 + since * speed;
    const std::int32_t ahead = speed > 0 ? 1 : -1;
    RECT_drawPane(demo.screen, {front, horizon - 4, -ahead * 15, 4}, 0x181C2C, RECT_MIX::set);
    RECT_drawPane(demo.screen, {front - ahead * 4, horizon - 7, -ahead * 8, 3}, 0x283048, RECT_MIX::set);
    drawGlow(demo.screen, front + ahead * 8, horizon - 2, 16, 0x685838);
    drawGlow(demo.screen, front - ahead * 15, horizon - 3, 6, 0xA01018);
    IMG_drawHLine(demo.screen, 0xFFF8D0, horizon - 3, front - 1, front + 1);
}

void drawStreet(City&, std::int32_t frame) {
    constexpr std::int32_t firstCar = 200;
    constexpr std::int32_t secondCar = 570;
    if (frame >= firstCar && frame < plan.strike) {
        drawCar(frame - firstCar, 3);
    }
    if (frame >= secondCar) {
        drawCar(frame - secondCar, -2);
    }
    IMG_drawHLine(demo.screen, 0x3070B0, horizon, 0, demo.screen->width - 1);
    drawWater({.shore = horizon,
               .ripple = 9 * frame,
               .reach = 3,
               .colour = 0x030308,
               .light = 150,
               .lightHere = 36});
}

void drawRain(City& city, std::int32_t frame) {
    city.rain->nearColour = between(0xB0E0FF, frame, -64, rainEnds + 40);
    city.rain->farColour = between(0x302060, frame, -64, rainEnds + 40);
    LRAIN_advance(city.rain);
    LRAIN_draw(city.rain, demo.screen);
}

/// Types words into the sky, a letter every third frame, and takes them back; with strokes of two pixels.
void drawWords(City&, std::int32_t frame) {
    constexpr std::int32_t framesPerLetter = 3;
    const std::int32_t taken = std::max((frame - wordsEnd) / 2, 0);
    const auto write = [=](std::string_view text, std::int32_t y, std::int32_t begin) {
        for (const std::int32_t x : {middle - 1, middle}) {
            drawCaption(demo.textMedium, {.text = text,
                                          .x = x,
                                          .y = y,
                                          .colour = 0xD0F0FF,
                                          .first = taken,
                                          .typed = (frame - begin) / framesPerLetter});
        }
    };
    write("ALL THE LIGHTS", 8, wordsBegin);
    write("WAIT FOR YOU", 28, wordsBegin + 54);
}

/// Blurs the frame a little more each time, as eyes that close.
void melt(City& city, std::int32_t frame) {
    const std::int32_t radius = (frame - melts) * (frame - melts) / 600;
    IMGFX_blurRadius(demo.screen, city.melted, radius);
    const std::int32_t light = curveFull - curveRise(frame, goesDark, frames + 4);
    std::transform(city.melted->pixels, rowOf(*city.melted, city.melted->height), demo.screen->pixels,
                   [light](std::uint32_t pixel) { return curveDim(pixel, light); });
}

/// The key q asks for ink on paper.
void drawInInk(City&, std::int32_t) {
    if (demo.background == white) {
        IMGFX_invert(demo.screen);
    }
}

constexpr Act<City> acts[] = {
    {0, frames, drawSky},    {rainEnds, frames, drawLine},    {0, frames, drawThunder},
    {0, frames, drawHouses}, {0, frames, drawLamps},          {0, frames, drawStreet},
    {0, frames, drawRain},   {wordsBegin, frames, drawWords}, {0, frames, playScrollText<frames>},
    {melts, frames, melt},   {0, frames, drawInInk}};

} // namespace

void VELM4030_sceneExtra11() {
    play({}, frames, acts);
}

} // namespace velm
