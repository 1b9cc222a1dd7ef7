// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Extra scene 10, the journey: the panorama travels by in depths, panes of glass
// drift in its sky, a figure leaps along, and the word hops. The key s looks at the land through the mask.
#include "demo/scene_curves.h"
#include "demo/scene_frames.h"
#include "demo/state.h"
#include "demo/velm4030.h"
#include "effects/archpath.h"
#include "effects/backmove.h"
#include "effects/rect.h"
#include "foundation/sine.h"
#include "image/imgfx.h"
#include "image/rgb888.h"

#include <algorithm>

namespace velm {

namespace {

constexpr std::int32_t frames = 750;
constexpr std::int32_t dawns = 60;       // the land comes out of the dark
constexpr std::int32_t panesBegin = 170; // glass rises
constexpr std::int32_t leapsBegin = 240; // the figure comes
constexpr std::int32_t wordBegins = 440; // the nest opens around the hopping word
constexpr std::int32_t leapsEnd = 640;
constexpr std::int32_t dusk = 680;
constexpr std::int32_t slope = 64; // frames that everything takes to come and to go
constexpr std::int32_t landHeight = 128;
constexpr std::int32_t landTop = 56; // row where its sky begins
constexpr std::int32_t shore = 148;  // row of its waterline
constexpr std::int32_t wordX = 96;   // of the hopping word in this scene
constexpr std::int32_t wordY = 136;
constexpr std::int32_t wordHop = 64;
constexpr std::int32_t streamY = 208; // where the scroll text runs in this scene

struct Journey {
    BACKMOVE* ground;
    RECT* panes;
    ARCHPATH* leap;
    LOGOFLY* word;
    SINEDOTS* dots;
    IMG* land; ///< 256 by 128: the panorama as it stands in this frame
};

BACKMOVE* makeGround() {
    constexpr std::int32_t depths = 8;
    BACKMOVE* const ground = BACKMOVE_new();
    if (ground != nullptr) {
        BACKMOVE_setPicture(ground, demo.pictureWide);
        BACKMOVE_setDepths(ground, depths);
        ground->speedY = ground->reachX = ground->reachY = 0;
        ground->ripple.offsetStep = 24;
    }
    return ground;
}

RECT* makePanes() {
    constexpr std::int32_t count = 9;
    RECT* const panes = RECT_new();
    if (panes != nullptr) {
        RECT_setCount(panes, count);
        panes->height = landTop + 80;
        panes->reach = 20;
        panes->paneWidth = 150;
        panes->paneHeight = 90;
        panes->twist = 40;
    }
    return panes;
}

ARCHPATH* makeLeap() {
    ARCHPATH* const leap = ARCHPATH_new();
    if (leap != nullptr && demo.fontLarge != nullptr && demo.fontLarge->count > 0) {
        leap->ground = shore;
        leap->rise = 100;
        leap->scale = 2;
        leap->figure =
            static_cast<OBJ2D*>(LIST_get(demo.fontLarge, settings.largeTextIndex % demo.fontLarge->count));
    }
    return leap;
}

/// The land, faster and more rippled as the journey goes on.
void drawLand(const Journey& journey, std::int32_t frame) {
    BACKMOVE* const ground = journey.ground;
    if (ground == nullptr || journey.land == nullptr) {
        return;
    }
    ground->speedX = 0x8000 + 0x200 * frame;
    ground->rippleReach = std::clamp((frame - wordBegins) / 40, 0, 5);
    ground->brightness = curveStay(frame, dawns, frames - 8, slope);
    BACKMOVE_draw(ground, journey.land);
    BACKMOVE_advance(ground);
    if (settings.flagS == 0) {
        IMG_andMask(demo.pictureMask, journey.land);
    }
    IMG_blit(journey.land, demo.screen, 0, 0, 0, landTop, journey.land->width, landHeight);
}

/// The name of the demo in large shaded letters, sliding through the night before the land appears.
void drawTitle(std::int32_t frame) {
    constexpr std::int32_t y = 60;
    constexpr std::int32_t framesToSettle = 50;
    FONT* const pen = demo.fontBitmap3;
    if (pen == nullptr || frame >= leapsBegin) {
        return;
    }
    // In from the right, ever slower; out to the left, ever faster.
    const std::int32_t in = std::max(framesToSettle - frame, 0);
    const std::int32_t out = std::max(frame - panesBegin, 0);
    pen->target = demo.screen;
    pen->x = in * in / 8 - out * out / 8;
    pen->y = y;
    for (const char letter : std::string_view("VELM4030")) {
        pen->character = static_cast<unsigned char>(letter);
        FONT_drawCharVariant2(pen);
    }
}

void drawSky(const Journey& journey, std::int32_t frame) {
    if (journey.dots != nullptr) {
        journey.dots->colour = RGB888_mix(0, 0x101840, curveShow(frame, -64, frames, slope));
        SINEDOTS_advance(journey.dots);
        SINEDOTS_drawAdd(journey.dots, demo.screen);
    }
    RECT* const panes = journey.panes;
    if (panes == nullptr) {
        return;
    }
    // Glass that drifts, then a nest that opens around the word; the brightness hides the change.
    const bool nested = frame >= wordBegins;
    const std::uint32_t bright =
        nested ? curveShow(frame, wordBegins, dusk, slope) : curveShow(frame, panesBegin, wordBegins, slope);
    panes->path = nested ? RECT_PATH::nest : RECT_PATH::drift;
    panes->brightness = static_cast<std::int32_t>(bright / 2);
    RECT_advance(panes);
    RECT_draw(panes, demo.screen);
}

void drawLeap(const Journey& journey, std::int32_t frame) {
    if (journey.leap == nullptr || frame < leapsBegin || frame >= leapsEnd + 64) {
        return;
    }
    journey.leap->colour = RGB888_mix(0, curveHue(5 * frame, 256) | 0x606060,
                                      curveShow(frame, leapsBegin, leapsEnd + slope, slope));
    ARCHPATH_advance(journey.leap);
    ARCHPATH_draw(journey.leap, demo.screen);
}

void drawWord(const Journey& journey, std::int32_t frame) {
    if (journey.word == nullptr || frame < wordBegins) {
        return;
    }
    journey.word->colour = RGB888_mix(0, 0xFFFFFF, curveShow(frame, wordBegins, dusk + 64, slope));
    LOGOFLY_advance(journey.word);
    LOGOFLY_draw(journey.word);
}

/// A word of its own, so that the one of interlude B stays where it is.
LOGOFLY* makeWord() {
    LOGOFLY* const word = LOGOFLY_new();
    if (word != nullptr) {
        word->pen = demo.textMedium;
        word->target = demo.screen;
        word->x = wordX;
        word->y = wordY;
        word->amplitude = wordHop;
    }
    return word;
}

Journey VELM4030_sceneExtra10Setup() {
    constexpr std::int32_t dotCount = 3000;
    setLook({});
    VELM4030_rasterSetup();
    VELM4030_scrollSetup();
    VELM4030_placeScroll(streamY);
    Journey journey{};
    journey.ground = makeGround();
    journey.panes = makePanes();
    journey.leap = makeLeap();
    journey.land = IMG_newSized(settings.windowWidth, landHeight);
    journey.word = makeWord();
    journey.dots = SINEDOTS_new();
    SINEDOTS_setCount(journey.dots, dotCount);
    return journey;
}

void VELM4030_sceneExtra10Cleanup(Journey& journey) {
    BACKMOVE_delete(&journey.ground);
    RECT_delete(&journey.panes);
    ARCHPATH_delete(&journey.leap);
    LOGOFLY_delete(&journey.word);
    SINEDOTS_delete(&journey.dots);
    IMG_delete(&journey.land);
    VELM4030_placeScroll(VELM4030_scrollY);
}

} // namespace

void VELM4030_sceneExtra10() {
    Journey journey = VELM4030_sceneExtra10Setup();
    runFrames(frames, [&journey](std::int32_t frame) {
        drawLand(journey, frame);
        drawSky(journey, frame);
        drawTitle(frame);
        drawLeap(journey, frame);
        drawWord(journey, frame);
        drawScrollText();
        drawPointerAndOverlay();
    });
    VELM4030_sceneExtra10Cleanup(journey);
}

} // namespace velm
