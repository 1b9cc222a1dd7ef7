// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Words as bytes, low byte first, whatever the machine's own order: every file and checksum is the same
// everywhere.
//
//     std::vector<std::uint32_t> turned;
//     file.write(bytesOf<std::uint32_t>(pixels, turned));
#pragma once

#include "foundation/byte_order.h"
#include "platform/gain.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <span>
#include <vector>

namespace velm {

/// Turns words of the machine's own order into words that have their low byte first in memory.
template <typename Word>
void turnWords(std::span<Word> words) {
    std::transform(words.begin(), words.end(), words.begin(), [](Word word) { return lowByteFirst(word); });
}

/// The bytes of the words: their own, or, on a machine with another order, those of a copy in `turned`. Valid
/// as long as both.
template <typename Word>
std::span<const std::byte> bytesOf(std::span<const Word> words, std::vector<Word>& turned) {
    if constexpr (std::endian::native != std::endian::little) {
        turned.assign(words.begin(), words.end());
        turnWords<Word>(turned);
        words = turned;
    }
    return std::as_bytes(words);
}

/// Samples that are multiplied as GAIN_apply does, their low bytes first.
inline std::vector<std::int16_t> louderWords(std::span<const std::int16_t> samples, double factor) {
    std::vector<std::int16_t> louder(samples.begin(), samples.end());
    GAIN_apply(louder, factor);
    turnWords<std::int16_t>(louder);
    return louder;
}

} // namespace velm
