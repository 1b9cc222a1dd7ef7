// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A word of glass: four letters, each a pipe that is open at the top.
#pragma once

#include "image/img.h"

#include <cstdint>

namespace velm {

inline constexpr std::int32_t wordTop = 40;     ///< row of the mouths
inline constexpr std::int32_t wordBottom = 134; ///< last row inside

/// Puts the glass into the world, and 1 into `vessels` wherever a letter is hollow.
void blowGlass(IMG* world, IMG* vessels);

} // namespace velm
