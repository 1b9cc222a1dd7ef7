// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "foundation/int.h"

#include "foundation/report.h"
#include "foundation/wrap.h"

#include <bit>
#include <cstdio>

namespace velm {

const IDENTITY INT_identity = makeIdentity("INT", "C", "CODE", "20150121", "ZENDORAK");

void INT_printBinary(std::int32_t value) {
    constexpr std::int32_t highestBit = 31;
    for (std::int32_t bit = highestBit; bit >= 0; --bit) {
        std::putchar(((value >> bit) & 1) != 0 ? '1' : '0');
    }
}

std::int32_t INT_bitLength(std::int32_t value) {
    const auto bits = static_cast<std::uint32_t>(value <= 0 ? 0 : value);
    return static_cast<std::int32_t>(std::bit_width(bits));
}

std::int32_t INT_sqrt(std::uint32_t value) {
    if (value == 0) {
        // INT_sqrtReportsZero: one expects 0 to have the root 0 like any square; it has, and is reported as
        // an error.
        INT_error();
        return 0;
    }
    // INT_sqrtHighBit: one expects roots up to 65535; the length is that of a signed number, so that from
    // 2^31 on, where it is 0, only the lowest bit is tried and the root is 1.
    const std::int32_t length = INT_bitLength(static_cast<std::int32_t>(value));
    std::uint32_t root = 0;
    for (std::uint32_t bit = 1U << (length >> 1); bit > 0; bit >>= 1) {
        const std::uint32_t candidate = root | bit;
        if (candidate * candidate <= value) {
            root = candidate;
        }
    }
    return static_cast<std::int32_t>(root);
}

std::int32_t INT_abs(std::int32_t value) {
    return value < 0 ? wrapSub(0, value) : value;
}

// INT_errorAlwaysPrints: one expects a flag that silences it; the module has none, so its line always comes.
void INT_error() {
    constexpr std::uint8_t always = 1;
    reportLine(always, "INT: ERROR.");
}

} // namespace velm
