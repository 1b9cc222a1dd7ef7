// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Still water, or a wet street: what stands above a row of the screen is seen again below it, the whole of it
// pressed into the rows that are left, and it trembles more towards the viewer.
//
//     drawWater({.shore = 152, .ripple = 23 * frame}); // after all that is to be mirrored
#pragma once

#include <cstdint>

namespace velm {

struct Water {
    std::int32_t shore = 160;        ///< row; the rows below it are water
    std::int32_t ripple = 0;         ///< 1/1024 turns; where the wave that bends the image is
    std::int32_t reach = 6;          ///< of that wave to either side in the nearest row, pixels
    std::uint32_t colour = 0x04040C; ///< of the water itself
    std::int32_t light = 192;        ///< weight of the image at the shore
    std::int32_t lightHere = 96;     ///< the same in the nearest row
};

/// Draws the rows below the shore, opaque, from those above it.
void drawWater(const Water& water);

} // namespace velm
