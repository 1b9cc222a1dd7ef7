// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/glow.h"

#include "demo/scenes/curves.h"
#include "image/imgfx.h"

namespace velm {

void drawDisc(IMG* target, std::int32_t x, std::int32_t y, std::int32_t radius, std::uint32_t top,
              std::uint32_t bottom) {
    for (std::int32_t dy = -radius; dy <= radius; ++dy) {
        std::int32_t half = radius;
        while (half * half + dy * dy > radius * radius + radius) {
            --half;
        }
        const std::uint32_t colour = curveMix(top, bottom, (dy + radius) * curveFull / (2 * radius));
        IMG_drawHLine(target, colour, y + dy, x - half, x + half);
    }
}

void drawGlow(IMG* target, std::int32_t x, std::int32_t y, std::int32_t radius, std::uint32_t colour) {
    for (std::int32_t dy = -radius; dy <= radius; ++dy) {
        for (std::int32_t dx = -radius; dx <= radius; ++dx) {
            const std::int32_t near = curveFull - (dx * dx + dy * dy) * curveFull / (radius * radius);
            if (near > 0) {
                IMGFX_addPixel(target, x + dx, y + dy, curveDim(colour, near * near / curveFull));
            }
        }
    }
}

} // namespace velm
