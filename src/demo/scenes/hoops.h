// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A tunnel of hoops at even distances along a way that bends like a snake, seen from its middle.
//
//     drawHoops({.way = 300 * frame, .bend = 256, .weight = 200}, light);
#pragma once

#include "demo/scenes/curves.h"
#include "foundation/sine.h"

#include <cstdint>

namespace velm {

struct IMG;

/// A hue between green, blue and violet.
inline std::int32_t coolHue(std::int32_t angle) {
    return 440 + SINE_scaled(250, angle);
}

struct HoopTunnel {
    std::int32_t way;    ///< the viewer has come so far, in hoop distances / 256
    std::int32_t bend;   ///< a weight: how much of its bends the way has
    std::int32_t weight; ///< of the nearest hoop's light; at 0 nothing is drawn
};

/// Adds the hoops from the farthest to the nearest, each at its whole distance from the way flown.
void drawHoops(const HoopTunnel& tunnel, IMG* target);

} // namespace velm
