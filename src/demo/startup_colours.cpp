// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The colours that start-up computes: the hue circle, the raster bars made of it, and the palette of shaded
// bars.
#include "demo/state.h"
#include "demo/velm4030.h"
#include "effects/palette.h"
#include "foundation/chance.h"

#include <cstdlib>

namespace velm {

namespace {

constexpr std::int32_t entriesPerHue = 4;
constexpr std::int32_t rasterColours = hueCount * entriesPerHue;
constexpr std::int32_t rasterSpeed = -131072;      ///< -2.0 rows per frame in 16.16
constexpr std::int32_t secondRasterSpeed = 131072; ///< 2.0 rows per frame in 16.16

RASTER* makeRaster(std::int32_t count) {
    RASTER* const raster = RASTER_new();
    RASTER_setCount(raster, count);
    return raster;
}

std::uint32_t hue(std::int32_t index) {
    return static_cast<std::uint32_t>(SAMPLE_get(demo.hueRamp, index));
}

void makeRasters() {
    demo.rasters = makeRaster(rasterColours);
    if (demo.rasters == nullptr) {
        return;
    }
    for (std::int32_t k = 0; k < demo.rasters->count; ++k) {
        demo.rasters->colours[k] = hue(k / entriesPerHue);
    }
}

/// 96 bars of 16 colours: each group of hues averaged with the profile of a lit bar.
void makePalette() {
    const auto barLength = static_cast<std::int32_t>(settings.barProfile.size());
    demo.palette = SAMPLE_new();
    for (std::int32_t k = 0; k < hueCount; ++k) {
        const std::uint32_t shade = settings.barProfile[static_cast<std::size_t>(k % barLength)];
        SAMPLE_append(demo.palette, static_cast<std::int32_t>(RGB888_average(hue(k), shade)));
    }
}

} // namespace

void VELM4030_hueRampSetup() {
    demo.hueRamp = newHues();
}

void VELM4030_rasterSetup() {
    if (demo.rasters == nullptr) {
        makeRasters();
    }
    if (demo.rasters != nullptr) {
        demo.rasters->speed = rasterSpeed;
    }
    if (demo.palette == nullptr) {
        makePalette();
    }
    if (demo.rastersSecond == nullptr) {
        demo.rastersSecond = makeRaster(settings.windowHeight);
    }
    if (demo.rastersSecond != nullptr) {
        demo.rastersSecond->speed = secondRasterSpeed;
    }
    settings.barCount = chance() % 20 + 8;
    settings.barSpacing = 48 - settings.barHeight;
}

} // namespace velm
