// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The line drawings: figures that look well from every side, because the demo turns them about their middle.
//
//     for (const Drawing& drawing : drawings()) { ... parseStrokes(drawing.shorthand) ... }
#pragma once

#include <span>
#include <string_view>

namespace velm::paint {

struct Drawing {
    std::string_view name;
    std::string_view shorthand; ///< on a grid of 0 to 16, the middle at (8, 8)
};

/// All that the demo turns: solids and patterns, then creatures, then things.
std::span<const Drawing> drawings();

/// Plain figures that stand in the shaded font alone.
std::span<const Drawing> ornaments();

} // namespace velm::paint
