// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/aurora.h"

#include "foundation/chance.h"
#include "foundation/sine.h"

#include <algorithm>
#include <array>

namespace velm {

namespace {

constexpr std::int32_t shades = 64; // from foot to head

using Shades = std::array<std::uint32_t, shades>;

/// The colours of a full ray from its foot up: it flares up within a few shades and fades for the rest.
Shades shadesOf(const Curtain& curtain) {
    constexpr std::int32_t flare = 5;
    Shades colours{};
    for (std::int32_t i = 0; i < shades; ++i) {
        const std::int32_t left = curveFull - curveRise(i, flare, shades);
        const std::int32_t light = std::min(left * left / curveFull, curveRise(i, -1, flare));
        const std::uint32_t colour =
            curveMix(curtain.foot, curtain.head, curveRise(i, flare, shades * 2 / 3));
        colours[static_cast<std::size_t>(i)] = curveDim(colour, light * curtain.weight / curveFull);
    }
    return colours;
}

/// Where the lower edge is in column `x`: three waves that pass through each other.
std::int32_t edgeAt(const Curtain& curtain, std::int32_t x) {
    return curtain.y + SINE_scaled(curtain.reach * 5 / 8, 3 * x + curtain.fold) +
           SINE_scaled(curtain.reach * 2 / 8, 8 * x - 2 * curtain.fold) +
           SINE_scaled(curtain.reach * 1 / 8, 19 * x + 3 * curtain.fold);
}

void drawRay(IMG* target, std::int32_t x, std::int32_t foot, std::int32_t height, const Shades& colours,
             std::uint32_t light) {
    const std::int32_t first = std::max(foot - target->height + 1, 0);
    const std::int32_t end = std::min(height, foot + 1);
    for (std::int32_t i = first; i < end; ++i) {
        std::uint32_t& pixel = target->pixels[(foot - i) * target->width + x];
        const std::uint32_t colour = colours[static_cast<std::size_t>(i * shades / height)];
        pixel = RGB888_add(pixel, RGB888_mix(0, colour, light));
    }
}

} // namespace

Owned<RASTER_delete> makeRays() {
    return Owned<RASTER_delete>(RASTER_new(), [](RASTER& rays) {
        constexpr std::int32_t count = 512;
        constexpr std::int32_t softness = 3;
        colourRaster(rays, count, [](std::int32_t i) {
            const std::int32_t sheaf = 128 + SINE_scaled(100, 12 * i) + chance() % 28;
            const std::int32_t light = chance() % 3 == 0 ? sheaf : sheaf / 3;
            return static_cast<std::uint32_t>(light) * 0x010101U;
        });
        RASTER_smooth(&rays, softness);
        rays.speed = 1 << 14; // a quarter of a column a frame
    });
}

void drawCurtain(const RASTER& rays, const Curtain& curtain, IMG* target) {
    if (curtain.weight <= 0) {
        return;
    }
    const Shades colours = shadesOf(curtain);
    for (std::int32_t x = 0; x < target->width; ++x) {
        const std::int32_t edge = edgeAt(curtain, x);
        // The folds carry their rays along: where the edge rises, the curtain turns away.
        const std::int32_t ray = positiveModulo(x + edge + (rays.position >> 16), rays.count);
        const std::uint32_t light = std::min(80 + (rays.colours[ray] & 255U) * 3 / 2, 256U);
        const auto height = static_cast<std::int32_t>(light) * curtain.height / curveFull;
        drawRay(target, x, edge, height, colours, light);
    }
}

} // namespace velm
