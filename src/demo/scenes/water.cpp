// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/water.h"

#include "demo/scenes/curves.h"
#include "foundation/sine.h"

namespace velm {

void drawWater(const Water& water) {
    constexpr std::int32_t turnPerRow = 61; // so that neighbouring rows part, as they do on small waves
    IMG& screen = *demo.screen;
    const std::int32_t rows = screen.height - water.shore - 1;
    for (std::int32_t row = 1; row <= rows; ++row) {
        const std::int32_t mirrored = water.shore - (row * water.shore + rows - 1) / rows;
        const std::int32_t weight = curveBetween(water.light, water.lightHere, row * curveFull / rows);
        const std::int32_t shift = SINE_scaled(1 + water.reach * row / rows, turnPerRow * row + water.ripple);
        const std::uint32_t* const from = rowOf(screen, mirrored);
        std::uint32_t* const to = rowOf(screen, water.shore + row);
        for (std::int32_t x = 0; x < screen.width; ++x) {
            to[x] = curveMix(water.colour, from[positiveModulo(x + shift, screen.width)], weight);
        }
    }
}

} // namespace velm
