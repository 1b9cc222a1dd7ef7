// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Digits in texts that are read byte by byte, and copies of texts.
//
//     while (!isDigit(*text)) { ++text; }
//     const std::int64_t width = readSize(text);
#pragma once

#include "foundation/memory.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

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

/// A copy of a text, closed by a NUL, or nullptr when memory runs out. The caller frees it with `delete[]`.
[[nodiscard]] inline char* newText(std::string_view text) {
    char* const copy = allocateArray<char>(static_cast<std::int64_t>(text.size()) + 1);
    if (copy != nullptr) {
        std::copy(text.begin(), text.end(), copy);
    }
    return copy;
}

} // namespace velm
