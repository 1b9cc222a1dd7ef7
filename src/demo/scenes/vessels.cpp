// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/vessels.h"

#include "demo/scenes/curves.h"
#include "demo/scenes/world_view.h"

#include <algorithm>
#include <array>

namespace velm {

namespace {

constexpr std::int32_t pipeWidth = 15;

struct Stroke {
    std::int32_t x1, y1, x2, y2;
};
constexpr std::array<Stroke, 12> strokes = {{{21, 30, 40, 126},    // V
                                             {61, 30, 40, 126},    //
                                             {78, 43, 78, 126},    // E
                                             {78, 43, 112, 43},    //
                                             {78, 86, 108, 86},    //
                                             {78, 126, 112, 126},  //
                                             {134, 30, 134, 126},  // L
                                             {134, 126, 164, 126}, //
                                             {184, 30, 184, 126},  // M
                                             {184, 44, 209, 96},   //
                                             {234, 44, 209, 96},   //
                                             {234, 30, 234, 126}}};

/// Four times the square of the distance from a point to a stroke.
std::int32_t distance(const Stroke& stroke, std::int32_t x, std::int32_t y) {
    const std::int32_t dx = stroke.x2 - stroke.x1;
    const std::int32_t dy = stroke.y2 - stroke.y1;
    const std::int32_t along = (x - stroke.x1) * dx + (y - stroke.y1) * dy;
    const std::int32_t share = curveRise(along, 0, dx * dx + dy * dy);
    const std::int32_t awayX = 2 * (x - stroke.x1) - 2 * dx * share / curveFull;
    const std::int32_t awayY = 2 * (y - stroke.y1) - 2 * dy * share / curveFull;
    return awayX * awayX + awayY * awayY;
}

} // namespace

void blowGlass(IMG* world, IMG* vessels) {
    constexpr std::int32_t inner = (pipeWidth - 1) * (pipeWidth - 1);
    constexpr std::int32_t outer = (pipeWidth + 2) * (pipeWidth + 2);
    for (std::int32_t y = wordTop; y <= wordBottom + 2; ++y) {
        for (std::int32_t x = 0; x < vessels->width; ++x) {
            std::int32_t nearest = outer;
            for (const Stroke& stroke : strokes) {
                nearest = std::min(nearest, distance(stroke, x, y));
            }
            if (nearest < inner) {
                IMG_putPixel(vessels, x, y, 1);
            } else if (nearest < outer) {
                IMG_putPixel(world, x, y, glassPixel);
            }
        }
    }
}

} // namespace velm
