// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// How a world of particles looks. Its pixels say what they are: water, sparks, stone, glass, rock, or
// nothing. The view shades water by its depth and mirrors in the pool what stands above it, lets flames rise
// from the sparks, and cuts what has become stone out of the block.
//
//     shadeWorld(view, world, vessels, {.frame = frame, .firelight = 256});
#pragma once

#include "demo/scenes/acts.h"

#include <cstdint>

namespace velm {

// What the world is made of. Neither glass nor rock is water, spark or stone to the rules of PARTIXEL.
inline constexpr std::uint32_t waterBlue = 0x0000FF;
inline constexpr std::uint32_t sparkRed = 0xFF0000;
inline constexpr std::uint32_t stoneGrey = 0x808080; ///< inside a vessel; outside of one it is steam
inline constexpr std::uint32_t glassPixel = 0x010101;
inline constexpr std::uint32_t rockPixel = 0x010201;

inline constexpr std::int32_t poolTop = 204; ///< row; the water below it mirrors

/// Steam is grey and darkens as it rises; the darkest of it is gone.
constexpr bool isSteam(std::uint32_t pixel) {
    return pixel == (pixel & 0xFF) * glassPixel && pixel > 0x101010;
}

struct WorldView {
    Picture wall;   ///< of bricks and what else stands behind everything
    Picture heat;   ///< 0..255 a pixel: what the sparks leave behind
    Picture depths; ///< one row: how far the pixel just drawn of each column is below the water's surface

    /// `build` adds to the wall.
    explicit WorldView(void (*build)(IMG* wall));
};

/// What changes from frame to frame.
struct WorldLight {
    std::int32_t frame;
    std::int32_t revealed;  ///< columns of the glass that are seen already
    std::int32_t firelight; ///< weight of the glow on the wall
    std::int32_t glowRow;   ///< stone glows from here downwards, and less and less
    std::int32_t shineX;    ///< where a light touches the stone, column of row 0
};

/// Shows the world on the screen. `vessels` is not 0 inside a vessel.
void shadeWorld(WorldView& view, const IMG& world, const IMG& vessels, const WorldLight& light);

} // namespace velm
