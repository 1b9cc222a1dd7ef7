// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Words as files and devices want them: low byte first, whatever the machine's own order.
//
//     const std::int16_t word = lowByteFirst(sample);
//     write(device, &word, sizeof word);
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace velm {

/// The word that has the bytes of `word` in memory, the lowest first. `own` is the order of the machine.
template <typename Word>
constexpr Word lowByteFirst(Word word, std::endian own = std::endian::native) {
    if (own == std::endian::little) {
        return word;
    }
    constexpr unsigned int bitsPerByte = 8;
    using Bits = std::make_unsigned_t<Word>;
    auto rest = static_cast<Bits>(word);
    Bits turned = 0;
    for (std::size_t i = 0; i < sizeof word; ++i) {
        turned = static_cast<Bits>(std::uint64_t{turned} << bitsPerByte | (rest & 0xFFU));
        rest = static_cast<Bits>(rest >> bitsPerByte);
    }
    return static_cast<Word>(turned);
}

} // namespace velm
