// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The default scene: a cloud of 16384 dots in one dark hue that only their overlapping makes visible, a
// drawing that turns as the scene counts down, the wave scroller, the pointer and the bobbing letters.
#include "demo/scenes/frames.h"
#include "foundation/chance.h"
#include "foundation/memory.h"

namespace velm {

namespace {

constexpr std::int32_t frames = 3000;
constexpr std::int32_t dotCount = 16384;

/// One of -4..-1 and 1..4; draws the size first, then the sign.
std::int32_t drawStep() {
    const std::int32_t size = chance() % 4 + 1;
    const std::int32_t sign = 2 * (chance() % 2) - 1;
    return sign * size;
}

void makeDots() {
    demo.dots = SINEDOTS_new();
    SINEDOTS_setCount(demo.dots, dotCount);
    const auto hue = chance() % hueCount;
    const auto colour = static_cast<std::uint32_t>(SAMPLE_get(demo.hueRamp, hue));
    if (demo.dots != nullptr) {
        demo.dots->colour = RGB888_sub(colour, 0xF8F8F8);
    }
    for (std::int32_t wave = 0; wave < 3; ++wave) {
        const std::int32_t x = drawStep();
        const std::int32_t y = drawStep();
        if (demo.dots != nullptr) {
            demo.dots->step[wave].x = x;
            demo.dots->step[wave].y = y;
        }
    }
}

/// The big figure, in a new random light colour every frame.
void drawFigure(std::int32_t angle) {
    constexpr std::int32_t magnification = 4;
    constexpr std::int32_t x = 128;
    constexpr std::int32_t y = 42;
    LFONT* const pen = demo.textLarge;
    if (pen == nullptr) {
        return;
    }
    LFONT_place(pen, x, y, magnification);
    pen->character = settings.largeTextIndex;
    pen->angle = angle;
    LFONT_drawCharRandomColour(pen);
}

void drawFrame(std::int32_t frame) {
    if (settings.rastersOn != 0) {
        VELM4030_rasterLayer();
    }
    if (settings.scrollOn != 0) {
        VELM4030_scrollLayer();
    }
    VELM4030_dotsLayer();
    drawFigure(frames - frame);
    VELM4030_mouseLayer();
    VELM4030_fpsLayer();
    VELM4030_logoLettersLayer();
}

} // namespace

void VELM4030_sceneDefaultSetup() {
    setLook({.fadeStep = (static_cast<std::uint32_t>(chance()) & 63) * 0x010101 + 0x404040});
    makeDots();
    VELM4030_rasterSetup();
    VELM4030_scrollSetup();
    const std::int32_t drawings = demo.fontLarge != nullptr ? demo.fontLarge->count : 0;
    if (drawings > 0) {
        settings.largeTextIndex = chance() % drawings;
    }
}

void VELM4030_sceneDefault() {
    const std::int64_t refused = refusedAllocations;
    VELM4030_sceneDefaultSetup();
    VELM4030_fadeOut();
    if (refusedAllocations == refused) {
        runFrames(frames, drawFrame);
    } else {
        runEmptyFrame();
    }
    VELM4030_sceneDefaultCleanup();
}

void VELM4030_sceneDefaultCleanup() {
    if (demo.dots != nullptr) {
        SINEDOTS_delete(&demo.dots);
    }
}

void VELM4030_dotsLayer() {
    SINEDOTS_advance(demo.dots);
    SINEDOTS_drawAdd(demo.dots, demo.screen);
}

} // namespace velm
