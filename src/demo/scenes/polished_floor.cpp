// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/polished_floor.h"

#include <algorithm>

namespace velm {

void PolishedFloor::draw(std::int32_t top) {
    constexpr std::int32_t brightest = 104; // of 256, at the top
    constexpr std::int32_t darkest = 26;    // the same, at the bottom
    const IMG& screen = *demo.screen;
    for (std::int32_t row = 0; row < mostRows; ++row) {
        const std::uint32_t* const from = rowOf(screen, std::max(top - 1 - 2 * row, 0));
        std::uint32_t* const to = rowOf(*mirrored, row);
        const std::int32_t weight = brightest - row * (brightest - darkest) / mostRows;
        std::transform(from, from + mirrored->width, to, [weight](std::uint32_t pixel) {
            return std::max(curveDim(pixel, weight), 1U); // 0 would be transparent
        });
    }
    ripple->y = top;
    DISTX_draw(ripple, demo.screen);
    DISTX_advance(ripple);
}

} // namespace velm
