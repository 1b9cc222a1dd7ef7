// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Picture and sound go through two clocks, the machine's and the sound device's. The device leads: the player
// is kept a little ahead of a device that is just full, by frames that last longer while it is too far ahead
// and shorter while it is not enough. So the device never runs dry, and the sound never falls behind.
//
//     sleep(rest + PACE_correction(aheadMicros));
#pragma once

#include <algorithm>
#include <cstdint>

namespace velm {

/// How far ahead the player shall be: a bit more than a frame.
inline constexpr std::int64_t PACE_aheadMicros = 40000;

/// Microseconds to add to a frame's sleep. A difference is made up for within a second or so: a device that
/// takes its sound in large bites is not to shake the picture.
constexpr std::int32_t PACE_correction(std::int64_t aheadMicros) {
    constexpr std::int64_t framesToMakeUp = 16;
    constexpr std::int64_t most = 4000;
    return static_cast<std::int32_t>(
        std::clamp((aheadMicros - PACE_aheadMicros) / framesToMakeUp, -most, most));
}

} // namespace velm
