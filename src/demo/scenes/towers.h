// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The towers of the city: two rows that grow out of the ground, and windows that each belong to one tower.
// When a window is lit is decided once, so a frame depends on nothing but its number.
//
//     Towers towers(random, {.ground = 168, .strike = 360});
//     drawTowers(towers, frame, flash);
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace velm {

struct RANDOM;

struct Tower {
    std::int32_t x;               ///< left edge, pixels
    std::int32_t columns, floors; ///< of windows
    bool isNear;                  ///< near ones cover the others
};

struct Window {
    std::int32_t x, y;    ///< its top left corner, pixels
    std::uint32_t colour; ///< of its light
    std::int32_t on;      ///< frame in which it is lit first
    std::int32_t again;   ///< frame in which it is lit after the strike
    std::int32_t out;     ///< frame in which somebody goes to bed
};

/// What happens to all windows, in frames of the scene, and where.
struct TowerPlan {
    std::int32_t ground = 168; ///< row that the towers stand on
    std::int32_t firstLight = 100, lastLight = 340;
    std::int32_t strike = 360; ///< everything goes dark
    std::int32_t again = 450;  ///< the light comes back, from the middle outwards
    std::int32_t firstOut = 640, lastOut = 760;
};

inline constexpr std::size_t towerCount = 18;
inline constexpr std::size_t mostWindows = 768;
inline constexpr std::size_t landmark = towerCount - 1; ///< the tower that is struck
inline constexpr std::int32_t mastHeight = 16;          ///< of the landmark, pixels

struct Towers {
    Towers(RANDOM* random, const TowerPlan& wanted);

    TowerPlan plan;
    std::array<Window, mostWindows> windows{};
    std::size_t windowCount = 0;
};

/// Where the landmark's mast ends.
std::int32_t mastX();
std::int32_t mastTop(const Towers& towers);

/// Draws them as they stand in a frame; `flash`, 0..256, is the light of a lightning on their edges.
void drawTowers(const Towers& towers, std::int32_t frame, std::int32_t flash);

} // namespace velm
