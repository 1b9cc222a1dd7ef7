// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Extra scene 2, the pond: a word hops over dark water, every letter that lands sends out a ring, and the
// water bends what it carries. Then two families of rings interfere, a ribbon of dots swims through, and at
// last all rings run back into one point.
#include "demo/scene_curves.h"
#include "demo/scene_frames.h"
#include "demo/state.h"
#include "demo/velm4030.h"
#include "effects/circle.h"
#include "image/imgfx.h"
#include "image/rgb888.h"

#include <algorithm>

namespace velm {

namespace {

constexpr std::int32_t frames = 900;
constexpr std::int32_t middle = 128;
constexpr std::int32_t one = 1 << 16; // 1.0 in 16.16

constexpr char text[] = "VELM 4030";
constexpr std::int32_t letters = sizeof text - 1;
constexpr std::int32_t letterWidth = 16;
constexpr std::int32_t wordY = 92; // base line of the hopping letters

constexpr std::int32_t bandsBegin = 260, bandsEnd = 620;
constexpr std::int32_t ribbonBegin = 480, ribbonEnd = 830;
constexpr std::int32_t returnBegin = 740; // from here on rings run inwards

struct Pond {
    LOGOFLY* word;
    CIRCLE* drops; ///< rings on the water; one that has spread is used again
    CIRCLE* bands; ///< two wide nests that interfere
    SINEDOTS* ribbon;
    DISTX* bendRows;
    DISTY* bendColumns;
    IMG* water;            ///< where rings and ribbon fade slowly
    IMG* bent;             ///< the water, bent by rows; then the bands
    std::int32_t nextDrop; ///< index of the body that the next landing takes
};

void makeWord(Pond& pond) {
    constexpr std::int32_t speed = 8;        // 64 frames a hop
    constexpr std::int32_t letterStep = 114; // letters that stand together land apart
    constexpr std::int32_t amplitude = 44;
    if ((pond.word = LOGOFLY_new()) != nullptr) {
        pond.word->text = text;
        pond.word->pen = demo.textMedium;
        pond.word->target = demo.screen;
        pond.word->y = wordY;
        pond.word->speed = speed;
        pond.word->letterStep = letterStep;
        pond.word->amplitude = amplitude;
    }
}

void makeRings(Pond& pond) {
    constexpr std::int32_t drops = 24;
    if ((pond.drops = CIRCLE_new()) != nullptr) {
        pond.drops->largest = 150;
        pond.drops->rings = 2;
        pond.drops->spacing = 7;
        CIRCLE_setCount(pond.drops, drops);
        for (std::int32_t i = 0; i < pond.drops->count; ++i) {
            pond.drops->bodies[i].colour = 0;
            pond.drops->bodies[i].growth = 0;
        }
    }
    if ((pond.bands = CIRCLE_new()) != nullptr) {
        CIRCLE_setCount(pond.bands, 2);
        pond.bands->spacing = 11;
        pond.bands->rings = 34;
    }
}

void makeBends(Pond& pond) {
    if ((pond.bendRows = DISTX_new()) != nullptr) {
        pond.bendRows->source = pond.water;
        pond.bendRows->wave.speed = 14;
        pond.bendRows->wave.offsetStep = 9;
    }
    if ((pond.bendColumns = DISTY_new()) != nullptr) {
        pond.bendColumns->source = pond.bent;
        pond.bendColumns->wave.speed = 11;
        pond.bendColumns->wave.offsetStep = 7;
    }
}

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
    const std::int32_t in = ((rest + width + sway) * (256 - curveEase(frame, 0, 150))) >> 8;
    const std::int32_t out =
        ((256 - rest + sway) * curveEase(frame, returnBegin - 60, returnBegin + 70)) >> 8;
    return rest - in + out + SINE_scaled(sway, 3 * frame);
}

/// Moves the word; a letter that lands in this frame drops a ring in its hue.
void hop(Pond& pond, std::int32_t frame) {
    LOGOFLY* const word = pond.word;
    if (word == nullptr || pond.drops == nullptr) {
        return;
    }
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
    constexpr std::int32_t lastCall = 66; // frames before the end that the last one takes
    if (pond.drops == nullptr || frame < returnBegin || frame > frames - lastCall || frame % every != 0) {
        return;
    }
    dropRing(pond, middle, middle, 10 * frame);
    CIRCLE_BODY& body = pond.drops->bodies[(pond.nextDrop + pond.drops->count - 1) % pond.drops->count];
    body.radius = pond.drops->largest * one - 1;
    body.growth = -5 * one / 2;
}

/// Rings and ribbon leave trails on the water, which bends them onto the screen.
void drawWater(Pond& pond, std::int32_t frame) {
    constexpr std::uint32_t fade = 0x202020;
    IMG_subColour(pond.water, fade);
    if (pond.drops != nullptr) {
        CIRCLE_advance(pond.drops);
        endSpentRings(*pond.drops);
        CIRCLE_drawAdd(pond.drops, pond.water);
    }
    if (pond.ribbon != nullptr && frame >= ribbonBegin && frame < ribbonEnd) {
        pond.ribbon->colour = curveHue(5 * frame, curveShow(frame, ribbonBegin, ribbonEnd, 80) / 2);
        SINEDOTS_advance(pond.ribbon);
        SINEDOTS_drawAdd(pond.ribbon, pond.water);
    }
    if (pond.bendRows == nullptr || pond.bendColumns == nullptr || pond.bent == nullptr) {
        IMG_copy(pond.water, demo.screen);
        return;
    }
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
    if (pond.bands == nullptr || pond.bent == nullptr || frame < bandsBegin || frame >= bandsEnd) {
        return;
    }
    const std::uint32_t brightness = curveShow(frame, bandsBegin, bandsEnd, 70) / 3;
    const std::int32_t spacing = pond.bands->spacing;
    for (std::int32_t i = 0; i < pond.bands->count; ++i) {
        CIRCLE_BODY& body = pond.bands->bodies[i];
        const std::int32_t half = i * SINE_tableLength / 2;
        body.x = (middle + SINE_scaled(90, 5 * frame + half)) * one;
        body.y = (middle + SINE_scaled(70, 7 * frame + half)) * one;
        body.radius = (spacing * pond.bands->rings + frame % (2 * spacing)) * one;
        body.colour = curveHue(600 + SINE_scaled(160, 4 * frame), brightness); // blue to magenta
    }
    IMG_fill(pond.bent, 0);
    CIRCLE_drawXor(pond.bands, pond.bent);
    IMGFX_addBlit(pond.bent, demo.screen, 0, 0, 0, 0, pond.bent->width, pond.bent->height);
}

Pond VELM4030_sceneExtra2Setup() {
    setLook({.fadeStep = 0x202020, .glare = 1});
    VELM4030_rasterSetup();
    VELM4030_scrollSetup();
    Pond pond{};
    pond.water = IMG_newSized(settings.windowWidth, settings.windowHeight);
    pond.bent = IMG_newSized(settings.windowWidth, settings.windowHeight);
    makeWord(pond);
    makeRings(pond);
    makeBends(pond);
    if ((pond.ribbon = SINEDOTS_new()) != nullptr) {
        SINEDOTS_setCount(pond.ribbon, SINE_tableLength);
        for (std::int32_t k = 0; k < SINEDOTS_waveCount; ++k) {
            pond.ribbon->step[k] = {k + 1, 4 - k, 0}; // small enough for a line without gaps
        }
    }
    return pond;
}

void VELM4030_sceneExtra2Cleanup(Pond& pond) {
    LOGOFLY_delete(&pond.word);
    CIRCLE_delete(&pond.drops);
    CIRCLE_delete(&pond.bands);
    SINEDOTS_delete(&pond.ribbon);
    DISTX_delete(&pond.bendRows);
    DISTY_delete(&pond.bendColumns);
    IMG_delete(&pond.water);
    IMG_delete(&pond.bent);
}

} // namespace

void VELM4030_sceneExtra2() {
    Pond pond = VELM4030_sceneExtra2Setup();
    runFrames(frames, [&pond](std::int32_t frame) {
        hop(pond, frame);
        callRingsBack(pond, frame);
        drawWater(pond, frame);
        drawBands(pond, frame);
        drawScrollText();
        if (pond.word != nullptr) {
            pond.word->colour = RGB888_average(curveHue(6 * frame, 256), 0xFFFFFF);
            LOGOFLY_draw(pond.word);
        }
        drawPointerAndOverlay();
    });
    VELM4030_sceneExtra2Cleanup(pond);
}

} // namespace velm
