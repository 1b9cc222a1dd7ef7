// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A world by night, from a dot in the distance to the horizon under one's feet: a dark ball in a thin bright
// shell of air, whose towns roll by.
//
//     Towns towns;
//     drawGlobe({.x = 128, .y = 128, .radius = 60}, demo.screen);
//     drawTowns(towns, globe, frame, demo.screen);
#pragma once

#include "demo/scenes/curves.h"

#include <array>
#include <cstdint>

namespace velm {

struct Globe {
    std::int32_t x, y, radius;       ///< pixels; the radius 1..1023
    std::uint32_t air = 0x40B0D0;    ///< colour of its shell
    std::uint32_t land = 0x080C18;   ///< colour of its night
    std::uint32_t day = 0x80B0D0;    ///< colour of its sunlit side, the upper left
    std::int32_t sun = 0;            ///< weight of that side
    std::int32_t weight = curveFull; ///< of all of it
};

/// Covers what is behind the ball, and adds the glow of its air around it.
void drawGlobe(const Globe& globe, IMG* target);

/// Lights on a globe, in groups that are dense in the middle. A new record draws their places from chance().
struct Towns {
    static constexpr std::int32_t count = 960;
    static constexpr std::int32_t groupSize = 16;
    struct Light {
        std::int16_t across; ///< from the middle to the left or right end of the axis, 1/1024 turns
        std::int16_t around; ///< about the axis, the same
    };
    std::array<Light, count> lights;
    Towns();
};

/// Adds the lights of the near side, the globe having rolled `roll` 1/1024 turns towards the viewer.
void drawTowns(const Towns& towns, const Globe& globe, std::int32_t roll, IMG* target);

} // namespace velm
