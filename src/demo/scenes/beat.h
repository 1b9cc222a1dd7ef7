// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Where the music is. A bar lasts three seconds, 90 frames at 30 frames a second; the tour starts every scene
// on one, so what a scene does at a multiple of 90 frames falls on a bar there.
//
//     const std::int32_t flare = beatWeight(20); // 256 on the bar, 0 again after 20 frames
#pragma once

#include <cstdint>

namespace velm {

/// Frames of a bar at 30 frames a second.
inline constexpr std::int32_t barFrames = 90;

/// The frames of a bar at the rate of now, and how many of them are over. Without sound none is.
std::int32_t framesOfBar();
std::int32_t framesIntoBar();

/// 256 in the first frame of each part of a bar, falling to 0 over `frames` (> 0) frames; 0 while the music
/// is muted. `parts` (1..) divides the bar evenly.
std::int32_t beatWeight(std::int32_t frames, std::int32_t parts = 1);

} // namespace velm
