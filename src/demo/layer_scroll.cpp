// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The scroll layer: text drawn into a strip, coloured by the raster bars, bent by rows into a second strip,
// and that one bent by columns onto the screen.
#include "demo/assets.h"
#include "demo/state.h"
#include "demo/velm4030.h"
#include "foundation/asset.h"
#include "foundation/chance.h"

namespace velm {

namespace {

constexpr std::int32_t stripWidth = 512;
constexpr std::int32_t stripHeight = 16;
constexpr std::int32_t scrollSpeed = 3; ///< pixels per frame
constexpr std::int32_t waveSpeed = 25;  ///< 1/1024 turns per frame
constexpr std::int32_t waveStep = 3;    ///< 1/1024 turns per row or column

/// A new wave amplitude: 32..63 pixels from crest to trough.
std::int32_t drawAmplitude() {
    return chance() % 32 + 32;
}

template <typename Distorter>
void setWave(Distorter* distorter, IMG* source, std::int32_t x, std::int32_t y) {
    distorter->source = source;
    distorter->amplitude = drawAmplitude();
    distorter->x = x;
    distorter->y = y;
    distorter->wave.offsetStep = waveStep;
    distorter->wave.speed = waveSpeed;
}

IMG* makeStrip() {
    return IMG_newSized(stripWidth, stripHeight);
}

} // namespace

void VELM4030_scrollSetup() {
    if (demo.scrollStrip == nullptr) {
        demo.scrollStrip = makeStrip();
    }
    if (demo.rasterTarget == nullptr) {
        demo.rasterTarget = makeStrip();
    }
    if (demo.scroller == nullptr && (demo.scroller = SCROLL_new()) != nullptr) {
        SCROLL_setup(demo.scroller, assets::scroll_text.bytes, demo.fontBitmap1, demo.scrollStrip);
        demo.scroller->speed = scrollSpeed;
    }
    if (demo.waveRows == nullptr && (demo.waveRows = DISTX_new()) != nullptr) {
        constexpr std::int32_t x = -128;
        setWave(demo.waveRows, demo.scrollStrip, x, 0);
    }
    if (demo.waveColumns == nullptr && (demo.waveColumns = DISTY_new()) != nullptr) {
        setWave(demo.waveColumns, makeStrip(), 0, VELM4030_scrollY);
    }
}

void VELM4030_placeScroll(std::int32_t y) {
    if (demo.waveColumns != nullptr) {
        demo.waveColumns->y = y;
    }
}

void VELM4030_scrollLayer() {
    if (demo.scroller == nullptr) {
        return;
    }
    IMG_fill(demo.scrollStrip, 0);
    if (demo.waveColumns != nullptr) {
        IMG_fill(demo.waveColumns->source, 0);
    }
    SCROLL_step(demo.scroller);
    SCROLL_draw(demo.scroller);
    IMG_andMask(demo.rasterTarget, demo.scrollStrip);
    if (demo.waveRows == nullptr || demo.waveColumns == nullptr) {
        constexpr std::int32_t straightY = 176;
        IMG_blit(demo.scrollStrip, demo.screen, 0, 0, 0, straightY, settings.windowWidth, stripHeight);
        return;
    }
    DISTX_draw(demo.waveRows, demo.waveColumns->source);
    DISTX_advance(demo.waveRows);
    DISTY_draw(demo.waveColumns, demo.screen);
    DISTY_advance(demo.waveColumns);
}

} // namespace velm
