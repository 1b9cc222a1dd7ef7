// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Round lights: a disc, and the glow about one.
//
//     drawGlow(sky, x, y, 40, 0x302840), drawDisc(sky, x, y, 20, 0xFFF8E0, 0xFF97BD);
#pragma once

#include "image/img.h"

#include <cstdint>

namespace velm {

/// A disc, its rows coloured from `top` to `bottom`; radius in pixels, > 0.
void drawDisc(IMG* target, std::int32_t x, std::int32_t y, std::int32_t radius, std::uint32_t top,
              std::uint32_t bottom);

/// Adds light to what is there: all of `colour` in the middle, none from `radius` (> 0) pixels on.
void drawGlow(IMG* target, std::int32_t x, std::int32_t y, std::int32_t radius, std::uint32_t colour);

} // namespace velm
