// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Extra scene 2, the pond: on a night with a rising moon a word hops over dark water, two hops a bar, and
// every letter that lands sends out a ring. Two families of bands interfere below it and a ribbon of dots
// swims through; then all rings run back into one point, from where, when the eighth bar is over, gold
// spreads over the water.
#include "demo/scenes/acts.h"
#include "demo/scenes/beat.h"
#include "demo/scenes/caption.h"
#include "demo/scenes/pond_view.h"
#include "effects/circle.h"
#include "foundation/fixed.h"
#include "foundation/sine.h"

#include <algorithm>

namespace velm {

namespace {

constexpr std::int32_t frames = 900;

constexpr char text[] = "VELM 4030";
constexpr std::int32_t letters = sizeof text - 1;
constexpr std::int32_t letterWidth = 16;
constexpr std::int32_t letterFoot = 13; // rows from a letter's top to where it stands
constexpr std::int32_t wordX = middle - letters * letterWidth / 2;
constexpr std::int32_t hopFrames = barFrames / 2;
constexpr std::int32_t bounce = SINE_tableLength / 2; // phases of a hop

// When, in frames.
constexpr std::int32_t firstDrop = 8;
constexpr std::int32_t wordBegin = 30, firstHop = barFrames;
constexpr std::int32_t bandsBegin = 3 * barFrames, bandsEnd = 11 * barFrames / 2;
constexpr std::int32_t ribbonBegin = 9 * barFrames / 2, ribbonEnd = 7 * barFrames;
constexpr std::int32_t returnBegin = 13 * barFrames / 2; // from here on rings run inwards
constexpr std::int32_t burst = 8 * barFrames;
constexpr std::int32_t nightFall = 843, night = 884;

// Of the hue ramp.
constexpr std::int32_t cyan = 330, violet = 640, gold = 1230;

void prepareWord(LOGOFLY& word) {
    word.text = text;
    word.pen = demo.textMedium;
    word.letterStep = 30; // one lands after the other
    word.amplitude = 0;
    word.y = PondView::shore - letterFoot;
}

void prepareDrops(CIRCLE& drops) {
    constexpr std::int32_t count = 40;
    drops.largest = 118;
    CIRCLE_setCount(&drops, count);
    for (std::int32_t i = 0; i < drops.count; ++i) {
        drops.bodies[i].colour = 0;
        drops.bodies[i].growth = 0;
    }
}

void prepareBands(CIRCLE& bands) {
    CIRCLE_setCount(&bands, 2);
    bands.spacing = 14;
    bands.rings = 20;
}

struct Pond {
    ScrollText scroll{208};
    PondView view;
    Owned<LOGOFLY_delete> word{LOGOFLY_new(), [this](LOGOFLY& made) {
                                   prepareWord(made);
                                   made.target = view.above;
                               }};
    Owned<CIRCLE_delete> drops{CIRCLE_new(), prepareDrops}; ///< rings; one that has spread is used again
    Owned<CIRCLE_delete> bands{CIRCLE_new(), prepareBands}; ///< two wide nests that interfere
    Owned<SINEDOTS_delete> ribbon = makeDotLine(4);
    std::int32_t nextDrop = 0; ///< index of the body that the next landing takes
};

CIRCLE_BODY& dropRing(Pond& pond, std::int32_t x, std::uint32_t colour) {
    CIRCLE_BODY& body = pond.drops->bodies[pond.nextDrop];
    pond.nextDrop = (pond.nextDrop + 1) % pond.drops->count;
    body = {PondView::planeX(x) * fixedOne, PondView::planeY() * fixedOne, 0, 0, 0, 5 * fixedOne / 4, colour};
    return body;
}

/// Ends the rings that have reached their largest size and began again.
void endSpentRings(const CIRCLE& drops) {
    for (std::int32_t i = 0; i < drops.count; ++i) {
        CIRCLE_BODY& body = drops.bodies[i];
        const bool spread = body.growth > 0 && body.radius < body.growth;
        const bool shrunk = body.growth < 0 && body.radius < -body.growth;
        if (spread || shrunk) {
            body.growth = 0;
            body.colour = 0;
        }
    }
}

void beginWithADrop(Pond& pond, std::int32_t frame) {
    constexpr std::int32_t every = 9; // frames from ring to ring
    if ((frame - firstDrop) % every == 0) {
        dropRing(pond, middle, curveHue(cyan));
    }
}

/// Where a letter is on its hop, 0..511.
std::int32_t phaseOf(const Pond& pond, std::int32_t letter, std::int32_t frame) {
    const std::int32_t hop = (frame - firstHop + 10 * hopFrames) * bounce / hopFrames;
    return (hop + letter * pond.word->letterStep) % bounce;
}

/// The hue of the rings and the word before the gold.
std::int32_t hueOfHour(std::int32_t frame) {
    return curveBetween(cyan, violet, curveRise(frame, firstHop, returnBegin));
}

/// Moves the word; a letter that lands in this frame drops a ring in the hue of the hour.
void hop(Pond& pond, std::int32_t frame) {
    constexpr std::int32_t height = 46, leap = 30;
    LOGOFLY* const word = pond.word;
    word->phase = phaseOf(pond, 0, frame);
    word->amplitude = (height * curveEase(frame, firstHop - hopFrames, firstHop + hopFrames) +
                       leap * curveEase(frame, burst - 10, burst)) >>
                      8;
    for (std::int32_t i = 0; i < letters; ++i) {
        if (phaseOf(pond, i, frame) < phaseOf(pond, i, frame - 1) && text[i] != ' ') {
            dropRing(pond, wordX + i * letterWidth + letterWidth / 2,
                     curveHue(frame < burst ? hueOfHour(frame) + 12 * i : gold, 150));
        }
    }
}

/// Rings of growing size that run into the middle, one after the other, more and more golden.
void callRingsBack(Pond& pond, std::int32_t frame) {
    constexpr std::int32_t every = 8;
    if (frame % every == 0) {
        const std::int32_t hue = curveBetween(violet, gold, curveRise(frame, returnBegin, burst - 60));
        CIRCLE_BODY& body = dropRing(pond, middle, curveHue(hue, 190));
        body.radius = pond.drops->largest * fixedOne - 1;
        body.growth = -5 * fixedOne / 2;
    }
}

void spreadGold(Pond& pond, std::int32_t frame) {
    constexpr std::int32_t every = 6;
    if ((frame - burst) % every == 0) {
        dropRing(pond, middle, curveHue(gold)).growth = 3 * fixedOne;
    }
}

/// Rings leave trails on the water.
void drawDrops(Pond& pond, std::int32_t) {
    constexpr std::uint32_t fade = 0x2A2A2A;
    IMG_subColour(pond.view.plane, fade);
    CIRCLE_advance(pond.drops);
    endSpentRings(*pond.drops);
    CIRCLE_drawAdd(pond.drops, pond.view.plane);
}

/// So does the ribbon.
void drawRibbon(Pond& pond, std::int32_t frame) {
    pond.ribbon->colour = curveHue(cyan + frame / 2, curveStay(frame, ribbonBegin, ribbonEnd, 60) / 2);
    SINEDOTS_advance(pond.ribbon);
    SINEDOTS_drawAdd(pond.ribbon, pond.view.plane);
}

/// Two centres on Lissajous paths, their bands flowing outwards; where both families overlap they cancel.
void drawBands(Pond& pond, std::int32_t frame) {
    const std::int32_t weight =
        curveStay(frame, bandsBegin, bandsEnd, 70) * (3 * curveFull + beatWeight(30)) / 4 >> 8;
    const std::int32_t spacing = pond.bands->spacing;
    for (std::int32_t i = 0; i < pond.bands->count; ++i) {
        CIRCLE_BODY& body = pond.bands->bodies[i];
        const std::int32_t half = i * SINE_tableLength / 2;
        body.x = (middle + SINE_scaled(80, 5 * frame + half)) * fixedOne;
        body.y = (middle + SINE_scaled(60, 7 * frame + half)) * fixedOne;
        body.radius = (spacing * pond.bands->rings + frame % (2 * spacing)) * fixedOne;
        body.colour = curveHue(560 + SINE_scaled(110, 4 * frame), weight / 3); // blue to violet
    }
    IMG_fill(pond.view.bands, 0);
    CIRCLE_drawXor(pond.bands, pond.view.bands);
}

void drawView(Pond& pond, std::int32_t frame) {
    constexpr std::int32_t moonTop = 46, moonBottom = PondView::horizon + 20;
    PondView& view = pond.view;
    view.hasBands = frame >= bandsBegin && frame < bandsEnd;
    view.moonY = curveBetween(moonBottom, moonTop, curveEase(frame, 0, burst));
    view.moonLight = curveRise(frame, burst - 10, burst) - curveRise(frame, burst, night);
    view.swell = curveRise(frame, wordBegin, 4 * barFrames);
    view.draw(demo.screen);
}

/// The word in strokes of two pixels, its dark outline first. It comes up out of the water.
void drawWord(Pond& pond, std::int32_t frame) {
    constexpr std::uint32_t outline = 0x010108;
    LOGOFLY* const word = pond.word;
    const KeptPen kept(demo.textMedium);
    demo.textMedium->target = pond.view.above;
    const std::uint32_t light = curveMix(curveMix(curveHue(hueOfHour(frame)), 0xFFFFFF, 215), 0xFFF090,
                                         curveRise(frame, burst - 10, burst));
    const std::int32_t sunk = letterWidth - (letterWidth * curveEase(frame, wordBegin, firstHop - 10) >> 8);
    const auto stamp = [&](std::int32_t dx, std::int32_t dy, std::uint32_t colour) {
        word->x = wordX + dx;
        word->y = PondView::shore - letterFoot + sunk + dy;
        word->colour = colour;
        LOGOFLY_draw(word);
    };
    IMG_fill(pond.view.above, 0);
    for (std::int32_t i = 0; i < 4; ++i) {
        stamp(i % 2 * 3 - 1, i / 2 * 3 - 1, outline);
    }
    for (std::int32_t i = 0; i < 4; ++i) {
        stamp(i % 2, i / 2, light);
    }
    IMG_fillRect(pond.view.above, 0, PondView::shore, pond.view.above->width, letterWidth * 2, 0);
}

void showWord(Pond& pond, std::int32_t) {
    IMG_draw(pond.view.above, demo.screen);
}

/// The picture comes out of the dark and goes back there.
void drawNight(Pond&, std::int32_t frame) {
    constexpr std::int32_t dawn = 24;
    const std::int32_t weight =
        std::min(curveRise(frame, 0, dawn), curveFull - curveRise(frame, nightFall, night));
    for (std::int32_t y = 0; weight < curveFull && y < demo.screen->height; ++y) {
        IMG_blendHLine(demo.screen, 0, y, 0, demo.screen->width - 1,
                       static_cast<std::uint32_t>(curveFull - weight));
    }
}

constexpr std::int32_t lastCall = burst - 46; // the last ring needs so long to come home
constexpr Act<Pond> acts[] = {{firstDrop, firstDrop + 20, beginWithADrop},
                              {firstHop - hopFrames, night, hop},
                              {returnBegin, lastCall, callRingsBack},
                              {burst, burst + 60, spreadGold},
                              {0, frames, drawDrops},
                              {ribbonBegin, ribbonEnd, drawRibbon},
                              {bandsBegin, bandsEnd, drawBands},
                              {wordBegin, frames, drawWord},
                              {0, frames, drawView},
                              {wordBegin, frames, showWord},
                              {0, frames, playScrollText<night>},
                              {0, frames, drawNight}};

} // namespace

void VELM4030_sceneExtra2() {
    play({.fadeStep = 0x202020}, frames, acts);
}

} // namespace velm
