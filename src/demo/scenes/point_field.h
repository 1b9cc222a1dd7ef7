// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A point that beats, and a field of points around it, both written with the full stop of the medium font.
//
//     drawField(frame, {.x = 128, .y = 120, .out = curveEase(frame, 0, 75)});
//     drawPoint(frame, 128, 120, curveFull);
#pragma once

#include "demo/scenes/curves.h"

#include <cstdint>

namespace velm {

struct PointField {
    std::int32_t x = 128, y = 128;   ///< its middle, pixels
    std::int32_t out = curveFull;    ///< how far the points have come out of the middle, 0..256
    std::int32_t weight = curveFull; ///< of its light
};

/// Draws rings of points, which turn against each other; a ripple leaves the middle with every bar.
void drawField(std::int32_t frame, const PointField& field);

/// Draws a point of a few pixels, larger on every half bar.
void drawPoint(std::int32_t frame, std::int32_t x, std::int32_t y, std::int32_t weight);

} // namespace velm
