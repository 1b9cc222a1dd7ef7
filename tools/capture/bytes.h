// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Words as bytes, low byte first, whatever the machine's own order: every file and checksum is the same
// everywhere.
//
//     file.write(lowByteFirst<std::uint32_t>(pixels));
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <type_traits>
#include <vector>

namespace velm {

template <typename Word>
std::vector<std::byte> lowByteFirst(std::span<const Word> words) {
    if constexpr (std::endian::native == std::endian::little) {
        const auto bytes = std::as_bytes(words);
        return {bytes.begin(), bytes.end()};
    }
    constexpr int bitsPerByte = 8;
    std::vector<std::byte> bytes(words.size() * sizeof(Word));
    std::byte* next = bytes.data();
    for (const Word word : words) {
        for (std::size_t i = 0; i < sizeof(Word); ++i) {
            *next++ =
                static_cast<std::byte>(static_cast<std::make_unsigned_t<Word>>(word) >> (bitsPerByte * i));
        }
    }
    return bytes;
}

} // namespace velm
