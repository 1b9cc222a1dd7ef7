// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// RGB888: pure functions on single 0x00RRGGBB colour words. Every rule works per 8-bit channel, channels
// never carry into each other, and the top byte of a result is 0.
//
//     colour = RGB888_sub(hue, 0xF8F8F8); // each channel stops at 0
#pragma once

#include "foundation/identity.h"

#include <cstdint>

namespace velm {

extern const IDENTITY RGB888_identity;
extern std::uint8_t RGB888_verbose;

/// min(255, a + b). All three channels at once: the sums' carries, kept apart from the neighbours, become
/// masks.
constexpr std::uint32_t RGB888_add(std::uint32_t a, std::uint32_t b) {
    const std::uint32_t redBlue = (a & 0xFF00FFU) + (b & 0xFF00FFU);
    const std::uint32_t green = (a & 0x00FF00U) + (b & 0x00FF00U);
    const std::uint32_t redBlueCarry = redBlue & 0x01000100U;
    const std::uint32_t greenCarry = green & 0x00010000U;
    return ((redBlue | (redBlueCarry - (redBlueCarry >> 8))) & 0xFF00FFU) |
           ((green | (greenCarry - (greenCarry >> 8))) & 0x00FF00U);
}

/// max(0, a - b). A guard bit above each channel survives where nothing was borrowed, and becomes a mask.
constexpr std::uint32_t RGB888_sub(std::uint32_t a, std::uint32_t b) {
    const std::uint32_t redBlue = ((a & 0xFF00FFU) | 0x01000100U) - (b & 0xFF00FFU);
    const std::uint32_t green = ((a & 0x00FF00U) | 0x00010000U) - (b & 0x00FF00U);
    const std::uint32_t redBlueKept = redBlue & 0x01000100U;
    const std::uint32_t greenKept = green & 0x00010000U;
    return (redBlue & (redBlueKept - (redBlueKept >> 8)) & 0xFF00FFU) |
           (green & (greenKept - (greenKept >> 8)) & 0x00FF00U);
}

/// (a + b) >> 1, rounded down.
constexpr std::uint32_t RGB888_average(std::uint32_t a, std::uint32_t b) {
    return ((((a & 0xFF00FFU) + (b & 0xFF00FFU)) >> 1) & 0xFF00FFU) |
           ((((a & 0x00FF00U) + (b & 0x00FF00U)) >> 1) & 0x00FF00U);
}

/// (b * t + a * (256 - t)) >> 8, t in 0..256: a at 0, b at 256.
constexpr std::uint32_t RGB888_mix(std::uint32_t a, std::uint32_t b, std::uint32_t t) {
    const std::uint32_t redBlue = ((b & 0xFF00FFU) * t + (a & 0xFF00FFU) * (256 - t)) >> 8;
    const std::uint32_t green = ((b & 0x00FF00U) * t + (a & 0x00FF00U) * (256 - t)) >> 8;
    return (redBlue & 0xFF00FFU) | (green & 0x00FF00U);
}

inline constexpr std::int32_t RGB888_fullWeight = 256; ///< the weight of all of it: no light is 0

/// A colour at a weight, its share of light, 0..256; what lies beyond counts as the nearer of the two.
constexpr std::uint32_t RGB888_dim(std::uint32_t c, std::int32_t weight) {
    const std::int32_t kept = weight < 0 ? 0 : weight > RGB888_fullWeight ? RGB888_fullWeight : weight;
    return RGB888_mix(0, c, static_cast<std::uint32_t>(kept));
}

inline constexpr std::int32_t RGB888_hueCount = 1536; ///< colours of the hue circle: six runs of 256

/// Colour `index` of the hue circle, any index going round: from green by way of cyan, blue, magenta, red and
/// yellow back to green.
constexpr std::uint32_t RGB888_hue(std::int32_t index) {
    constexpr std::int32_t run = 256;
    const std::int32_t place = (index % RGB888_hueCount + RGB888_hueCount) % RGB888_hueCount;
    const auto i = static_cast<std::uint32_t>(place % run);
    const std::uint32_t colours[] = {
        0x00FF00 + i,         // green to cyan
        0x00FFFF - 256 * i,   // cyan to blue
        (i << 16) | 0x0000FF, // blue to magenta
        0xFF00FF - i,         // magenta to red
        0xFF0000 + 256 * i,   // red to yellow
        0xFFFF00 - (i << 16), // yellow to green
    };
    return colours[place / run];
}

/// Red and blue exchanged, green kept.
constexpr std::uint32_t RGB888_swapRB(std::uint32_t c) {
    return ((c >> 16) & 0xFFU) | (c & 0x00FF00U) | ((c & 0xFFU) << 16);
}

/// The same exchange under its second name.
constexpr std::uint32_t RGB888_swapBR(std::uint32_t c) {
    return RGB888_swapRB(c);
}

/// Stores red, green and blue, in this order, in three bytes; nothing, without a report, for nullptr.
constexpr void RGB888_toBytes(std::uint32_t c, std::uint8_t* bytes) {
    if (bytes == nullptr) {
        return;
    }
    bytes[0] = static_cast<std::uint8_t>(c >> 16);
    bytes[1] = static_cast<std::uint8_t>(c >> 8);
    bytes[2] = static_cast<std::uint8_t>(c);
}

/// The colour word of three channel values.
constexpr std::uint32_t RGB888_fromBytes(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
    return (std::uint32_t{red} << 16) | (std::uint32_t{green} << 8) | blue;
}

/// Adds the grey (n, n, n).
constexpr std::uint32_t RGB888_brighten(std::uint32_t c, std::uint8_t n) {
    return RGB888_add(c, n * 0x010101U);
}

/// Subtracts the grey (n, n, n).
constexpr std::uint32_t RGB888_darken(std::uint32_t c, std::uint8_t n) {
    return RGB888_sub(c, n * 0x010101U);
}

/// Brightens by an amount >= 0, darkens by the magnitude of a negative one; only 8 bits count, so -256 does
/// nothing.
constexpr std::uint32_t RGB888_adjust(std::uint32_t c, std::int32_t amount) {
    if (amount >= 0) {
        return RGB888_brighten(c, static_cast<std::uint8_t>(amount));
    }
    return RGB888_darken(c, static_cast<std::uint8_t>(-(amount & 255) & 255));
}

/// Prints "RGB888 error" while RGB888_verbose is set.
void RGB888_error();

} // namespace velm
