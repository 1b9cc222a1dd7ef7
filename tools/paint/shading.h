// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What the pictures share: mixed colours, ordered dithering, scattered numbers.
//
//     const std::uint32_t pixel = dither({0x100030, 0xFF40A0, 8}, amount, x, y);
#pragma once

#include <cstdint>

namespace velm::paint {

constexpr std::int32_t whole = 256; ///< an amount of 1

/// Between two colours, amount 0 to 256, clamped.
std::uint32_t blended(std::uint32_t from, std::uint32_t to, std::int32_t amount);

/// A run of `steps` + 1 flat colours.
struct Gradient {
    std::uint32_t from;
    std::uint32_t to;
    std::int32_t steps;
};

/// The gradient's colour at an amount of 0 to 256, clamped; between two steps an 8 by 8 pattern decides.
std::uint32_t dither(const Gradient& gradient, std::int32_t amount, std::int32_t x, std::int32_t y);

/// The same pattern for one bit: whether a pixel of this amount, 0 to 256, is lit.
bool isLit(std::int32_t amount, std::int32_t x, std::int32_t y);

/// A number of 0 to 0xFFFF that looks random and is always the same for the same two numbers.
std::int32_t scattered(std::int32_t a, std::int32_t b);

} // namespace velm::paint
