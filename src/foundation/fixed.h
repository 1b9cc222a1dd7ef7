// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Fixed-point numbers with 16 fraction bits, "16.16" in the manuals: 1.0 is 65536.
//
//     std::int32_t speed = fixedOne * 3 / 2;                         // 1.5 pixels a frame
//     std::int32_t x = static_cast<std::int32_t>(wholeOf(place)); // the pixel that a place lies in
#pragma once

#include <cstdint>

namespace velm {

inline constexpr std::int32_t fixedBits = 16;
inline constexpr std::int32_t fixedOne = 1 << fixedBits; ///< 1.0

/// A whole number as 16.16, in 64 bits because not every one fits 32.
constexpr std::int64_t toFixed(std::int64_t whole) {
    return whole * fixedOne;
}

/// The whole number at or below a 16.16 one.
template <typename Fixed>
constexpr Fixed wholeOf(Fixed fixed) {
    return fixed >> fixedBits;
}

/// value * factor, rounded down; one of the two is 16.16, and the result is what the other one is.
constexpr std::int32_t fixedScaled(std::int32_t value, std::int32_t factor) {
    return static_cast<std::int32_t>(wholeOf(std::int64_t{value} * factor));
}

} // namespace velm
