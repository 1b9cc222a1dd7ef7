// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The square root of a length's square, without the oddities of INT_sqrt.
//
//     const std::int32_t length = rootOf(dx * dx + dy * dy);
#pragma once

#include <cstdint>

namespace velm {

/// The square root of a number from 0 to just below 2^62, rounded down, bit by bit from the top.
constexpr std::int32_t rootOf(std::int64_t square) {
    std::int64_t root = 0;
    for (std::int64_t bit = std::int64_t{1} << 30; bit != 0; bit >>= 1) {
        root += (root + bit) * (root + bit) <= square ? bit : 0;
    }
    return static_cast<std::int32_t>(root);
}

} // namespace velm
