// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Digits in texts that are read byte by byte.
//
//     while (!isDigit(*text)) { ++text; }
//     const std::int64_t width = readSize(text);
#pragma once

#include <algorithm>
#include <cstdint>

namespace velm {

/// True for '0' to '9'.
constexpr bool isDigit(int character) {
    return character >= '0' && character <= '9';
}

/// A size with one more digit after it. What is too long becomes a size that nothing can have.
constexpr std::int64_t sizeWithDigit(std::int64_t size, int digit) {
    constexpr std::int64_t tooLarge = std::int64_t{1} << 40;
    return std::min(tooLarge, size * 10 + (digit - '0'));
}

/// Reads a run of digits as a size and moves past it.
constexpr std::int64_t readSize(const char*& text) {
    std::int64_t size = 0;
    for (; isDigit(*text); ++text) {
        size = sizeWithDigit(size, *text);
    }
    return size;
}

} // namespace velm
