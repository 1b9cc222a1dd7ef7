// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Extra scene 2, the pond: a word hops over dark water, every letter that lands sends out a ring, and the
// water bends what it carries. Then two families of rings interfere, a ribbon of dots swims through, and at
// last all rings run back into one point.
#include "demo/scenes/acts.h"
#include "demo/scenes/caption.h"
#include "demo/scenes/curves.h"
#include "effects/circle.h"
#include "foundation/sine.h"
#include "image/imgfx.h"
#include "image/rgb888.h"

#include <algorithm>

namespace velm {

namespace {

constexpr std::int32_t frames = 900;
constexpr std::int32_t one = 1 << 16; // 1.0 in 16.16

constexpr char text[] = "VELM 4030";
constexpr std::int32_t letters = sizeof text - 1;
constexpr std::int32_t letterWidth = 16;
constexpr std::int32_t wordY = 92; // base line of the hopping letters

constexpr std::int32_t bandsBegin = 260, bandsEnd = 620;
constexpr std::int32_t ribbonBegin = 480, ribbonEnd = 830;
constexpr std::int32_t returnBegin = 740; // from here on rings run inwards

void prepareWord(LOGOFLY& word) {
    word.text = text;
    word.pen = demo.textMedium;
    word.target = demo.screen;
    word.y = wordY;
    word.speed = 8;        // 64 frames a hop
    word.letterStep = 114; // neighbours land apart
    word.amplitude = 44;
}

void prepareDrops(CIRCLE& drops) {
    constexpr std::int32_t count = 24;
    drops.largest = 150;
    drops.rings = 2;
    drops.spacing = 7;
    CIRCLE_setCount(&drops, count);
    for (std::int32_t i = 0; i < drops.count; ++i) {
        drops.bodies[i].colour = 0;
        drops.bodies[i].growth = 0;
    }
}

void prepareBands(CIRCLE& bands) {
    CIRCLE_setCount(&bands, 2);
    bands.spacing = 11;
    bands.rings = 34;
}

struct Pond {
    ScrollText scroll;
    Picture water{newWindowPicture()};    ///< where rings and ribbon fade slowly
    Picture bent{newWindowPicture()};     ///< the water, bent by rows
    Picture bandView{newWindowPicture()}; ///< the bands alone
    Owned<LOGOFLY_delete> word{LOGOFLY_new(), prepareWord};
    Owned<CIRCLE_delete> drops{CIRCLE_new(), prepareDrops}; ///< rings; one that has spread is used again
    Owned<CIRCLE_delete> bands{CIRCLE_new(), prepareBands}; ///< two wide nests that interfere
    Owned<DISTX_delete> bendRows{DISTX_new(), [this](DISTX& made) {
                                     made.source = water;
                                     made.wave.speed = 14;
                                     made.wave.offsetStep = 9;
                                 }};
    Owned<DISTY_delete> bendColumns{DISTY_new(), [this](DISTY& made) {
                                        made.source = bent;
                                        made.wave.speed = 11;
                                        made.wave.offsetStep = 7;
                                    }};
    Owned<SINEDOTS_delete> ribbon = makeDotLine(4);
    std::int32_t nextDrop = 0; ///< index of the body that the next landing takes
};

void dropRing(Pond& pond, std::int32_t x, std::int32_t y, std::int32_t hue) {
    CIRCLE_BODY& body = pond.drops->bodies[pond.nextDrop];
    pond.nextDrop = (pond.nextDrop + 1) % pond.drops->count;
    body = {x * one, y * one, 0, 0, 0, 3 * one / 2, curveHue(hue, 230)};
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

/// Where the word stands: it hops in from the left, sways, and hops out to the right.
std::int32_t wordX(std::int32_t frame) {
    constexpr std::int32_t width = letters * letterWidth;
    constexpr std::int32_t rest = middle - width / 2;
    constexpr std::int32_t sway = 40;
    const std::int32_t in = ((rest + width + sway) * (curveFull - curveEase(frame, 0, 150))) >> 8;
    const std::int32_t out =
        ((256 - rest + sway) * curveEase(frame, returnBegin - 60, returnBegin + 70)) >> 8;
    return rest - in + out + SINE_scaled(sway, 3 * frame);
}

/// Moves the word; a letter that lands in this frame drops a ring in its hue.
void hop(Pond& pond, std::int32_t frame) {
    LOGOFLY* const word = pond.word;
    constexpr std::int32_t bounce = SINE_tableLength / 2;
    word->x = wordX(frame);
    for (std::int32_t i = 0; i < letters; ++i) {
        const std::int32_t phase = (word->phase + i * word->letterStep) % bounce;
        if (phase + word->speed >= bounce && text[i] != ' ' && frame < returnBegin) {
            dropRing(pond, word->x + i * letterWidth + letterWidth / 2, wordY + letterWidth,
                     8 * frame + 40 * i);
        }
    }
    LOGOFLY_advance(word);
}

/// Rings of growing size that run into the middle, one after the other.
void callRingsBack(Pond& pond, std::int32_t frame) {
    constexpr std::int32_t every = 7;
    if (frame % every != 0) {
        return;
    }
    dropRing(pond, middle, middle, 10 * frame);
    CIRCLE_BODY& body = pond.drops->bodies[(pond.nextDrop + pond.drops->count - 1) % pond.drops->count];
    body.radius = pond.drops->largest * one - 1;
    body.growth = -5 * one / 2;
}

/// Rings leave trails on the water.
void drawDrops(Pond& pond, std::int32_t) {
    constexpr std::uint32_t fade = 0x202020;
    IMG_subColour(pond.water, fade);
    CIRCLE_advance(pond.drops);
    endSpentRings(*pond.drops);
    CIRCLE_drawAdd(pond.drops, pond.water);
}

/// So does the ribbon.
void drawRibbon(Pond& pond, std::int32_t frame) {
    pond.ribbon->colour = curveHue(5 * frame, curveStay(frame, ribbonBegin, ribbonEnd, 80) / 2);
    SINEDOTS_advance(pond.ribbon);
    SINEDOTS_drawAdd(pond.ribbon, pond.water);
}

/// The water bends what it carries onto the screen.
void drawWater(Pond& pond, std::int32_t frame) {
    const std::int32_t swell = curveRise(frame, 60, 400) - curveRise(frame, returnBegin, frames);
    pond.bendRows->amplitude = swell / 20;
    pond.bendColumns->amplitude = swell / 16;
    IMG_fill(pond.bent, 0);
    DISTX_draw(pond.bendRows, pond.bent);
    DISTX_advance(pond.bendRows);
    DISTY_draw(pond.bendColumns, demo.screen);
    DISTY_advance(pond.bendColumns);
}

/// Two centres on Lissajous paths, their bands flowing outwards; where both families overlap they cancel.
void drawBands(Pond& pond, std::int32_t frame) {
    const std::int32_t weight = curveStay(frame, bandsBegin, bandsEnd, 70) / 3;
    const std::int32_t spacing = pond.bands->spacing;
    for (std::int32_t i = 0; i < pond.bands->count; ++i) {
        CIRCLE_BODY& body = pond.bands->bodies[i];
        const std::int32_t half = i * SINE_tableLength / 2;
        body.x = (middle + SINE_scaled(90, 5 * frame + half)) * one;
        body.y = (middle + SINE_scaled(70, 7 * frame + half)) * one;
        body.radius = (spacing * pond.bands->rings + frame % (2 * spacing)) * one;
        body.colour = curveHue(600 + SINE_scaled(160, 4 * frame), weight); // blue to magenta
    }
    IMG_fill(pond.bandView, 0);
    CIRCLE_drawXor(pond.bands, pond.bandView);
    IMGFX_addBlit(pond.bandView, demo.screen, 0, 0, 0, 0, pond.bandView->width, pond.bandView->height);
}

void drawWord(Pond& pond, std::int32_t frame) {
    const KeptPen kept(demo.textMedium);
    pond.word->colour = RGB888_average(curveHue(6 * frame), 0xFFFFFF);
    LOGOFLY_draw(pond.word);
}

constexpr std::int32_t lastCall = frames - 66; // the last ring needs so long to come home
constexpr Act<Pond> acts[] = {{0, frames, hop},
                              {returnBegin, lastCall + 1, callRingsBack},
                              {0, frames, drawDrops},
                              {ribbonBegin, ribbonEnd, drawRibbon},
                              {0, frames, drawWater},
                              {bandsBegin, bandsEnd, drawBands},
                              {0, frames, playScrollText<frames>},
                              {0, frames, drawWord}};

} // namespace

void VELM4030_sceneExtra2() {
    play({.fadeStep = 0x202020, .glare = 1}, frames, acts);
}

} // namespace velm
