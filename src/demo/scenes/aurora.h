// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// An aurora: curtains of light that hang in folds, each made of rays that rise from a sharp lower edge and
// lose themselves upwards. The rays are the colours of a raster, one for each column, and roll with it.
//
//     Owned<RASTER_delete> rays = makeRays(); // RASTER_advance(rays) each frame
//     drawCurtain(*rays, {.y = 150, .height = 90, .fold = frame}, demo.screen);
#pragma once

#include "demo/scenes/curves.h"
#include "foundation/owned.h"

#include <cstdint>

namespace velm {

/// Rays of random brightness, greys, from dark to light and back every few columns.
Owned<RASTER_delete> makeRays();

struct Curtain {
    std::int32_t y;                ///< about which its lower edge folds, pixels
    std::int32_t height = 90;      ///< of its brightest rays, pixels
    std::int32_t reach = 20;       ///< of the folds, pixels up and down
    std::int32_t fold = 0;         ///< where the folds are in their motion, 1/1024 turns
    std::uint32_t foot = 0x30FF90; ///< colour at the lower edge
    std::uint32_t head = 0x7030C0; ///< colour into which the rays fade
    std::int32_t weight = curveFull;
};

/// Adds the curtain over the whole width of the target.
void drawCurtain(const RASTER& rays, const Curtain& curtain, IMG* target);

} // namespace velm
