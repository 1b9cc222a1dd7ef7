// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Extra scene 10, a journey through one night, seen from a boat: northern lights, far houses and near ones
// pass at speeds of their own, all of it mirrored in the water. Glass drifts by and a figure leaps over the
// roofs; the letters come along for a while. The moon sets, the boat slows down, and where it arrives the sun
// rises behind a word. The key s looks at the houses through the mask.
#include "demo/scenes/acts.h"
#include "demo/scenes/beat.h"
#include "demo/scenes/caption.h"
#include "demo/scenes/glow.h"
#include "demo/scenes/letters.h"
#include "demo/scenes/panorama.h"
#include "demo/scenes/water.h"
#include "effects/archpath.h"
#include "effects/backmove.h"
#include "effects/rect.h"
#include "image/imgfx.h"

#include <algorithm>
#include <string_view>

namespace velm {

namespace {

constexpr std::int32_t frames = 750;
constexpr std::int32_t slope = 64; // frames that most things take to come and to go
constexpr std::int32_t titleEnds = 170;
constexpr std::int32_t glassBegins = 90;
constexpr std::int32_t leapsBegin = 160;
constexpr std::int32_t leapsEnd = 310;
constexpr std::int32_t lettersBegin = 290;
constexpr std::int32_t lettersEnd = 450;
constexpr std::int32_t dawn = 400;
constexpr std::int32_t arrival = 540; // the sun is up and the boat lies still
constexpr std::int32_t leaves = 675;
constexpr std::int32_t shore = 152; // row of the waterline
constexpr std::int32_t sunRow = 98;
constexpr std::int32_t streamY = 208;       // where the scroll text runs in this scene
constexpr std::uint32_t outline = 0x100820; // of the word

/// Nothing moves but sideways.
void prepareLayer(BACKMOVE& layer, const IMG* picture) {
    BACKMOVE_setPicture(&layer, picture);
    BACKMOVE_setDepths(&layer, 1);
    layer.speedY = layer.reachX = layer.reachY = 0;
}

/// Panes of glass, and later the rays of the sun.
void preparePanes(RECT& panes) {
    constexpr std::int32_t count = 10;
    RECT_setCount(&panes, count);
    panes.height = shore;
    panes.reach = 0;
    panes.paneWidth = panes.paneHeight = 250;
    panes.twist = 26;
    panes.turnSpeed = 3;
}

void prepareLeap(ARCHPATH& leap) {
    leap.ground = shore - 30;
    leap.rise = 80;
    leap.scale = 2;
    leap.figure =
        static_cast<OBJ2D*>(LIST_get(demo.fontLarge, settings.largeTextIndex % demo.fontLarge->count));
}

void prepareWord(LOGOFLY& word) {
    word.pen = demo.textMedium;
    word.target = demo.screen;
    word.text = "GOOD MORNING";
    word.y = 68;
    word.speed = 10;
    word.letterStep = 24;
    word.amplitude = 26;
}

struct Journey {
    ScrollText scroll{streamY};
    Picture sky{IMG_newSized(settings.windowWidth, shore)}; ///< as it stands in this frame
    Picture lights{newNorthernLights(shore)};
    Picture farHouses{newFarHouses()};
    Picture nearHouses{newNearHouses()};
    Picture land{IMG_newSized(settings.windowWidth, panoramaShore)}; ///< both, in this frame
    Picture figure{IMG_newSized(settings.windowWidth, shore)};       ///< the leaping one
    BigLetters letters;
    Owned<RASTER_delete> air{RASTER_new(), [](RASTER& made) { RASTER_setCount(&made, shore); }};
    Owned<BACKMOVE_delete> high{BACKMOVE_new(), [this](BACKMOVE& made) { prepareLayer(made, lights); }};
    Owned<BACKMOVE_delete> far{BACKMOVE_new(), [this](BACKMOVE& made) { prepareLayer(made, farHouses); }};
    Owned<BACKMOVE_delete> near{BACKMOVE_new(), [this](BACKMOVE& made) { prepareLayer(made, nearHouses); }};
    Owned<RECT_delete> panes{RECT_new(), preparePanes};
    Owned<ARCHPATH_delete> leap{ARCHPATH_new(), prepareLeap};
    Owned<LOGOFLY_delete> word{LOGOFLY_new(), prepareWord}; ///< not interlude B's, which stays where it is
    Owned<SINEDOTS_delete> stars = makeStars(170);
};

/// From the zenith down to the shore, night turning to morning.
void drawAir(Journey& journey, std::int32_t frame) {
    const std::int32_t light = curveRise(frame, 0, slope);
    const std::int32_t morning = curveEase(frame, dawn, arrival);
    const std::uint32_t zenith = curveMix(0x020210, 0x182468, morning);
    const std::uint32_t haze = curveMix(0x281048, 0xFF7048, morning);
    for (std::int32_t row = 0; row < journey.air->count; ++row) {
        const std::int32_t depth = row * curveFull / shore;
        journey.air->colours[row] = curveDim(curveMix(zenith, haze, depth * depth / curveFull), light);
    }
    RASTER_draw(journey.air, journey.sky);
    journey.stars->colour = curveDim(0x8090B0, std::min(light, curveFull - morning));
    SINEDOTS_drawAdd(journey.stars, journey.sky);
    journey.high->brightness = std::min(light, curveFull - morning * 7 / 8);
    BACKMOVE_drawAdd(journey.high, journey.sky);
}

/// The moon sinks to the left; the sun comes up in the middle.
void drawMoonAndSun(Journey& journey, std::int32_t frame) {
    const std::int32_t night = curveRise(frame, 0, dawn + 60);
    const std::int32_t moonX = curveBetween(204, 40, night);
    const std::int32_t moonY = curveBetween(44, 180, night * night / curveFull);
    constexpr std::int32_t moonRadius = 20;
    const std::int32_t light = curveRise(frame, 0, slope);
    drawGlow(journey.sky, moonX, moonY, 2 * moonRadius, curveDim(0x302840, light));
    drawDisc(journey.sky, moonX, moonY, moonRadius, curveDim(0xFFF8E0, light), curveDim(0xFF97BD, light));
    const std::int32_t morning = curveEase(frame, dawn, arrival);
    if (morning > 0) {
        constexpr std::int32_t sunRadius = 34;
        const std::int32_t sunY = curveBetween(shore + sunRadius, sunRow, morning);
        const std::uint32_t halo = curveMix(0x402010, 0x804828, beatWeight(40));
        drawGlow(journey.sky, middle, sunY, 2 * sunRadius, curveDim(halo, morning));
        drawDisc(journey.sky, middle, sunY, sunRadius, 0xFFF0A0, 0xFF5060);
    }
}

/// Glass that drifts through the night, then rays that turn about the sun: all behind the houses.
void drawPanes(Journey& journey, std::int32_t frame) {
    RECT& panes = *journey.panes;
    const bool areRays = frame >= dawn;
    const std::int32_t weight = areRays ? curveStay(frame, dawn + 40, frames + slope, 2 * slope)
                                        : curveStay(frame, glassBegins, dawn, slope);
    panes.path = areRays ? RECT_PATH::nest : RECT_PATH::drift;
    panes.y = areRays ? sunRow - shore / 2 : 0;
    panes.brightness = weight / 2;
    RECT_advance(&panes);
    RECT_draw(&panes, journey.sky);
}

void colourRays(Journey& journey) {
    for (std::int32_t i = 0; i < journey.panes->count; ++i) {
        journey.panes->panes[i].colour = curveMix(0xFF6040, 0xFFE080, i * curveFull / journey.panes->count);
    }
}

void showSky(Journey& journey, std::int32_t) {
    IMGFX_opaqueBlit(journey.sky, demo.screen, 0, 0, 0, 0, journey.sky->width, shore);
}

/// The boat gathers way, and slows down where it arrives. The farther a layer, the slower it goes.
void moveOn(Journey& journey, std::int32_t frame) {
    constexpr std::int32_t fastest = 0x28000; // 16.16 pixels a frame
    const std::int32_t way =
        std::min(64 + curveEase(frame, 0, 300) * 3 / 4, curveFull - curveEase(frame, 400, arrival));
    journey.near->speedX = fastest / curveFull * way;
    journey.far->speedX = journey.near->speedX / 3;
    journey.high->speedX = journey.near->speedX / 8;
    for (BACKMOVE* const layer : {journey.near.get(), journey.far.get(), journey.high.get()}) {
        BACKMOVE_advance(layer);
    }
}

void drawHouses(Journey& journey, std::int32_t frame) {
    IMG_fill(journey.land, 0);
    journey.far->brightness = journey.near->brightness = curveRise(frame, 10, 10 + slope);
    BACKMOVE_drawOver(journey.far, journey.land);
    BACKMOVE_drawOver(journey.near, journey.land);
    if (settings.flagS == 0) {
        IMG_andMask(demo.pictureMask, journey.land);
    }
    IMG_blit(journey.land, demo.screen, 0, 0, 0, shore - panoramaShore, journey.land->width, panoramaShore);
}

void drawShore(Journey&, std::int32_t frame) {
    const std::int32_t light = curveRise(frame, 0, slope);
    const std::int32_t morning = curveEase(frame, dawn, arrival);
    drawWater({.shore = shore,
               .ripple = 19 * frame,
               .colour = curveDim(curveMix(0x040418, 0x281848, morning), light)});
    IMG_drawHLine(demo.screen, curveDim(curveMix(0x60F0FF, 0xFFC080, morning), light), shore, 0,
                  demo.screen->width - 1);
}

/// The name of the demo in large shaded letters: in from the right, ever slower; out to the left, ever
/// faster.
void drawTitle(Journey&, std::int32_t frame) {
    constexpr std::int32_t y = 44;
    constexpr std::int32_t framesToSettle = 60;
    FONT* const pen = demo.fontBitmap3;
    const std::int32_t in = std::max(framesToSettle - frame, 0);
    const std::int32_t out = std::max(frame - titleEnds, 0);
    pen->x = in * in / 10 - out * out / 10;
    pen->y = y;
    for (const char letter : std::string_view("VELM4030")) {
        pen->character = static_cast<unsigned char>(letter);
        FONT_drawChar(pen);
    }
}

/// The figure, a light with strokes of two pixels.
void drawLeap(Journey& journey, std::int32_t frame) {
    constexpr std::int32_t quick = 20;
    ARCHPATH& leap = *journey.leap;
    leap.colour = curveDim(curveHue(5 * frame) | 0x808080, curveStay(frame, leapsBegin, leapsEnd, quick));
    ARCHPATH_advance(&leap);
    IMG_fill(journey.figure, 0);
    for (const std::int32_t shift : {1, -1}) {
        ARCHPATH_draw(&leap, journey.figure);
        for (ARCHPATH_POSE& pose : leap.trail) {
            pose.x += shift;
        }
    }
    IMGFX_addBlit(journey.figure, demo.screen, 0, 0, 0, 0, journey.figure->width, journey.figure->height);
}

/// The bobbing letters: in from the right, a rest, out to the left.
void drawLetters(Journey& journey, std::int32_t frame) {
    constexpr std::int32_t top = 8;
    const std::int32_t in = curveFull - curveEase(frame, lettersBegin, lettersBegin + slope);
    const std::int32_t out = curveEase(frame, lettersEnd - slope, lettersEnd);
    journey.letters.draw(middle - BigLetters::width / 2 + in - out, top);
}

/// The word hops before the sun, white in a dark outline.
void drawWord(Journey& journey, std::int32_t frame) {
    const KeptPen kept(demo.textMedium);
    LOGOFLY& word = *journey.word;
    const std::int32_t left =
        middle - 96 + curveBetween(0, 256, curveFull - curveEase(frame, dawn + 60, arrival));
    LOGOFLY_advance(&word);
    const std::int32_t y = word.y;
    const auto drawAt = [&](std::int32_t dx, std::int32_t dy, std::uint32_t colour) {
        word.x = left + dx;
        word.y = y + dy;
        word.colour = colour;
        LOGOFLY_draw(&word);
    };
    for (std::int32_t i = 0; i < 9; ++i) {
        drawAt(i % 3 * 3 / 2 - 1, i / 3 - 1, outline);
    }
    drawAt(0, 0, 0xFFFFFF);
    drawAt(1, 0, 0xFFFFFF);
    word.y = y;
}

/// All of it goes dark.
void leave(Journey&, std::int32_t frame) {
    const std::int32_t light = curveFull - curveRise(frame, leaves, frames);
    std::for_each_n(demo.screen->pixels, demo.screen->width * demo.screen->height,
                    [light](std::uint32_t& pixel) { pixel = curveDim(pixel, light); });
}

constexpr Act<Journey> acts[] = {{0, frames, drawAir},
                                 {glassBegins, dawn, drawPanes},
                                 {dawn, frames, drawPanes, colourRays},
                                 {0, frames, drawMoonAndSun},
                                 {0, frames, showSky},
                                 {0, frames, moveOn},
                                 {0, frames, drawHouses},
                                 {leapsBegin, leapsEnd, drawLeap},
                                 {0, frames, drawShore},
                                 {0, titleEnds + 60, drawTitle},
                                 {lettersBegin, lettersEnd, drawLetters},
                                 {dawn + 60, frames, drawWord},
                                 {leaves, frames, leave},
                                 {0, frames, playScrollText<frames>}};

} // namespace

void VELM4030_sceneExtra10() {
    play({}, frames, acts);
}

} // namespace velm
