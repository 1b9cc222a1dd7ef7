// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Numbers as the pens write them, digit by digit, leading zeros included.
//
//     forEachHexDigit(0xAF, 2, [&](std::uint32_t character) { drawCode(pen, character); }); // A, F
#pragma once

#include <cstdint>

namespace velm {

/// Calls draw(character) for the lowest `digits` hexadecimal digits of a value, the highest first, in upper
/// case.
template <typename Draw>
void forEachHexDigit(std::uint32_t value, std::int32_t digits, Draw draw) {
    for (std::int32_t digit = digits - 1; digit >= 0; --digit) {
        const std::uint32_t nibble = (value >> (4 * digit)) & 15;
        draw(nibble <= 9 ? nibble + '0' : nibble - 10 + 'A');
    }
}

/// Calls draw(character) for the ten decimal digits of a value.
template <typename Draw>
void forEachDecimalDigit(std::uint32_t value, Draw draw) {
    constexpr std::uint32_t highestUnit = 1000000000;
    for (std::uint32_t unit = highestUnit; unit != 0; unit /= 10) {
        draw(value / unit + '0');
        value %= unit;
    }
}

} // namespace velm
