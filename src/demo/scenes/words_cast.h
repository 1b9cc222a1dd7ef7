// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The cast of the play of words: three lines of text, two rings, the rows of a cylinder, a spring and the
// circles of a world, each with what it says.
#pragma once

#include "demo/scenes/acts.h"
#include "effects/lscrlxyz.h"
#include "effects/lscroll.h"

#include <cstdint>

namespace velm {

/// Of the cast's figures, pixels; their names stand below.
inline constexpr std::int32_t centreY = 120;

struct WordsCast {
    static constexpr std::int32_t lineCount = 3;
    static constexpr std::int32_t rowCount = 5;
    static constexpr std::int32_t circleCount = 5;

    WordsCast();

    Owned<LSCROLL_delete> lines[lineCount]; ///< from the top; the one in the middle is read
    Owned<LSCROLL_delete> ring, innerRing;
    Owned<LSCRLXYZ_delete> rows[rowCount];     ///< of the cylinder, rims included
    Owned<LSCRLXYZ_delete> screw;              ///< the spring
    Owned<LSCRLXYZ_delete> world[circleCount]; ///< from the north
};

/// Radius of circle `i` of the world, and how far below the world's middle it lies; pixels.
std::int32_t circleRadius(std::int32_t i);
std::int32_t circleHeight(std::int32_t i);

} // namespace velm
