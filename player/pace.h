// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Picture and sound go through two clocks, the machine's and the sound device's. The device leads: what waits
// for it is kept at one length, by frames that are a little longer while too much waits and a little shorter
// while too little does. So the device never runs dry, and the sound never falls behind.
//
//     sleep(rest + PACE_correction(waitingMicros));
#pragma once

#include <algorithm>
#include <cstdint>

namespace velm {

/// What shall wait for the device, beside what it holds itself: a bit more than a frame.
inline constexpr std::int64_t PACE_waitingMicros = 40000;

/// Microseconds to add to a frame's sleep. A difference is made up for within a second or so: a device that
/// takes its sound in large bites is not to shake the picture.
constexpr std::int32_t PACE_correction(std::int64_t waitingMicros) {
    constexpr std::int64_t framesToMakeUp = 32;
    constexpr std::int64_t most = 4000;
    return static_cast<std::int32_t>(
        std::clamp((waitingMicros - PACE_waitingMicros) / framesToMakeUp, -most, most));
}

} // namespace velm
