// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// How much louder than written the samples are played. The music measures 12 dB below what else is heard on a
// desktop, so whatever brings it to a listener raises it, and what keeps it for a machine leaves it alone.
//
//     GAIN_apply(block, GAIN_factor(12));
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <span>

namespace velm {

/// What brings the music up to its neighbours, dB.
constexpr double GAIN_usual = 12;

/// What samples are multiplied by for so many decibels: 1 for 0, twice as much for every 6.02.
inline double GAIN_factor(double decibels) {
    constexpr double decibelsPerTenfold = 20;
    return std::pow(10, decibels / decibelsPerTenfold);
}

/// Multiplies every sample, rounding to the nearest, halves away from 0; what goes beyond 16 bits stays at
/// their end. A factor of 1 changes nothing.
inline void GAIN_apply(std::span<std::int16_t> samples, double factor) {
    using Limits = std::numeric_limits<std::int16_t>;
    for (std::int16_t& sample : samples) {
        const double louder = std::clamp<double>(sample * factor, Limits::min(), Limits::max());
        sample = static_cast<std::int16_t>(louder + std::copysign(0.5, louder));
    }
}

} // namespace velm
