// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "paint/shading.h"

#include "image/rgb888.h"

#include <algorithm>

namespace velm::paint {

namespace {

/// The threshold of a pixel in the 8 by 8 pattern, 0 to 63: the bits of x XOR y and of y, interleaved from
/// the lowest to the highest (Bayer).
std::int32_t threshold(std::int32_t x, std::int32_t y) {
    std::int32_t value = 0;
    for (std::int32_t bit = 0; bit < 3; ++bit) {
        const std::int32_t across = ((x ^ y) >> bit) & 1;
        const std::int32_t down = (y >> bit) & 1;
        value = (value << 2) | (across << 1) | down;
    }
    return value;
}

} // namespace

std::uint32_t blended(std::uint32_t from, std::uint32_t to, std::int32_t amount) {
    return RGB888_mix(from, to, static_cast<std::uint32_t>(std::clamp(amount, 0, whole)));
}

std::uint32_t dither(const Gradient& gradient, std::int32_t amount, std::int32_t x, std::int32_t y) {
    const std::int32_t fine = std::clamp(amount, 0, whole) * gradient.steps; // 256 a step
    const std::int32_t step = (fine + threshold(x, y) * 4) / whole;
    return blended(gradient.from, gradient.to, step * whole / gradient.steps);
}

bool isLit(std::int32_t amount, std::int32_t x, std::int32_t y) {
    return amount > threshold(x, y) * 4;
}

std::int32_t scattered(std::int32_t a, std::int32_t b) {
    std::uint32_t value =
        static_cast<std::uint32_t>(a) * 0x9E3779B1U + static_cast<std::uint32_t>(b) * 0x85EBCA77U;
    value = (value ^ (value >> 15)) * 0x2C1B3C6DU;
    value = (value ^ (value >> 12)) * 0x297A2D39U;
    return static_cast<std::int32_t>((value ^ (value >> 15)) & 0xFFFFU);
}

} // namespace velm::paint
