// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/hoops.h"

#include "demo/scenes/acts.h"
#include "effects/circle.h"

#include <algorithm>

namespace velm {

namespace {

constexpr std::int32_t sway = 6500; // of the bends, pixels at a depth of 1

/// How far the tunnel lies off its straight line, `place` hoop distances / 256 from its beginning.
std::int32_t windAcross(std::int32_t place) {
    return SINE_scaled(sway, place * 32 >> 8);
}

std::int32_t windDown(std::int32_t place) {
    return SINE_scaled(sway, (place * 23 >> 8) + 200);
}

/// One hoop, `depth` in front of the viewer.
void drawHoop(const HoopTunnel& tunnel, std::int32_t depth, std::int32_t index, std::int32_t weight,
              IMG* target) {
    constexpr std::int32_t near = 24;
    constexpr std::int32_t radius = 5200; // at a depth of 1
    const std::int32_t away = (depth + near) * curveFull / std::max(tunnel.bend, 1);
    const std::int32_t x = middle + (windAcross(index << 8) - windAcross(tunnel.way)) / away;
    const std::int32_t y = middle + (windDown(index << 8) - windDown(tunnel.way)) / away;
    constexpr std::int32_t hoopsOfGate = 6; // one in so many is a gate, lighter
    const std::uint32_t hue = curveHue(coolHue(40 * index));
    const std::uint32_t ink = index % hoopsOfGate == 0 ? curveMix(hue, 0xFFFFFF, 90) : hue;
    const std::uint32_t colour = curveDim(ink, weight);
    const std::int32_t size = radius / (depth + near);
    CIRCLE_addRing(target, x, y, size, colour);
    CIRCLE_addRing(target, x, y, size - 1, curveDim(colour, 128));
}

} // namespace

void drawHoops(const HoopTunnel& tunnel, IMG* target) {
    constexpr std::int32_t hoops = 26;
    constexpr std::int32_t distance = 16; // depth from hoop to hoop
    if (tunnel.weight == 0) {
        return;
    }
    const std::int32_t first = tunnel.way >> 8;
    for (std::int32_t k = hoops; k > 0; --k) {
        const std::int32_t depth = k * distance - ((tunnel.way & 255) * distance >> 8) - distance / 2;
        const std::int32_t weight = (hoops - k) * (hoops - k) * curveFull / (hoops * hoops);
        drawHoop(tunnel, depth, first + k, weight * tunnel.weight >> 8, target);
    }
}

} // namespace velm
