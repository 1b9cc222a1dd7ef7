// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Extra scene 10, the journey: the panorama travels by in depths, panes of glass drift in its sky, a figure
// leaps along, and the word hops. The key s looks at the land through the mask.
#include "demo/scenes/acts.h"
#include "demo/scenes/caption.h"
#include "demo/scenes/curves.h"
#include "effects/archpath.h"
#include "effects/backmove.h"
#include "effects/rect.h"

#include <algorithm>
#include <string_view>

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

void prepareGround(BACKMOVE& ground) {
    constexpr std::int32_t depths = 8;
    BACKMOVE_setPicture(&ground, demo.pictureWide);
    BACKMOVE_setDepths(&ground, depths);
    ground.speedY = ground.reachX = ground.reachY = 0;
    ground.ripple.offsetStep = 24;
}

void preparePanes(RECT& panes) {
    constexpr std::int32_t count = 9;
    RECT_setCount(&panes, count);
    panes.height = landTop + 80;
    panes.reach = 20;
    panes.paneWidth = 150;
    panes.paneHeight = 90;
    panes.twist = 40;
}

void prepareLeap(ARCHPATH& leap) {
    leap.ground = shore;
    leap.rise = 100;
    leap.scale = 2;
    leap.figure =
        static_cast<OBJ2D*>(LIST_get(demo.fontLarge, settings.largeTextIndex % demo.fontLarge->count));
}

void prepareWord(LOGOFLY& word) {
    word.pen = demo.textMedium;
    word.target = demo.screen;
    word.x = wordX;
    word.y = wordY;
    word.amplitude = wordHop;
}

struct Journey {
    ScrollText scroll{streamY};
    Owned<BACKMOVE_delete> ground{BACKMOVE_new(), prepareGround};
    Owned<RECT_delete> panes{RECT_new(), preparePanes};
    Owned<ARCHPATH_delete> leap{ARCHPATH_new(), prepareLeap};
    Picture land{IMG_newSized(settings.windowWidth, landHeight)}; ///< the panorama as it stands in this frame
    Owned<LOGOFLY_delete> word{LOGOFLY_new(), prepareWord}; ///< not interlude B's, which stays where it is
    Owned<SINEDOTS_delete> dots = makeDots(3000);
};

/// The land, faster and more rippled as the journey goes on.
void drawLand(Journey& journey, std::int32_t frame) {
    BACKMOVE* const ground = journey.ground;
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

/// The stars, and glass that drifts, then a nest that opens around the word; the brightness hides the change.
void drawSky(Journey& journey, std::int32_t frame) {
    journey.dots->colour = curveDim(0x101840, curveStay(frame, -64, frames, slope));
    SINEDOTS_advance(journey.dots);
    SINEDOTS_drawAdd(journey.dots, demo.screen);
    RECT* const panes = journey.panes;
    const bool nested = frame >= wordBegins;
    const std::int32_t weight =
        nested ? curveStay(frame, wordBegins, dusk, slope) : curveStay(frame, panesBegin, wordBegins, slope);
    panes->path = nested ? RECT_PATH::nest : RECT_PATH::drift;
    panes->brightness = weight / 2;
    RECT_advance(panes);
    RECT_draw(panes, demo.screen);
}

/// The name of the demo in large shaded letters, sliding through the night before the land appears.
void drawTitle(Journey&, std::int32_t frame) {
    constexpr std::int32_t y = 60;
    constexpr std::int32_t framesToSettle = 50;
    FONT* const pen = demo.fontBitmap3;
    // In from the right, ever slower; out to the left, ever faster.
    const std::int32_t in = std::max(framesToSettle - frame, 0);
    const std::int32_t out = std::max(frame - panesBegin, 0);
    pen->x = in * in / 8 - out * out / 8;
    pen->y = y;
    for (const char letter : std::string_view("VELM4030")) {
        pen->character = static_cast<unsigned char>(letter);
        FONT_drawCharVariant2(pen);
    }
}

void drawLeap(Journey& journey, std::int32_t frame) {
    journey.leap->colour =
        curveDim(curveHue(5 * frame) | 0x606060, curveStay(frame, leapsBegin, leapsEnd + slope, slope));
    ARCHPATH_advance(journey.leap);
    ARCHPATH_draw(journey.leap, demo.screen);
}

void drawWord(Journey& journey, std::int32_t frame) {
    const KeptPen kept(demo.textMedium);
    journey.word->colour = curveDim(0xFFFFFF, curveStay(frame, wordBegins, dusk + slope, slope));
    LOGOFLY_advance(journey.word);
    LOGOFLY_draw(journey.word);
}

constexpr Act<Journey> acts[] = {{0, frames, drawLand},          {0, frames, drawSky},
                                 {0, leapsBegin, drawTitle},     {leapsBegin, leapsEnd + slope, drawLeap},
                                 {wordBegins, frames, drawWord}, {0, frames, playScrollText<frames>}};

} // namespace

void VELM4030_sceneExtra10() {
    play({}, frames, acts);
}

} // namespace velm
