// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "capture/crc/crc.h"

#include <array>

namespace velm {

namespace {

constexpr std::uint32_t reversedPolynomial = 0xEDB88320; ///< of IEEE 802.3, its lowest power in the top bit
constexpr std::size_t bitsPerByte = 8;

/// What a byte that is shifted out does to the rest.
constexpr std::array<std::uint32_t, 256> remainders = [] {
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t byte = 0; byte < table.size(); ++byte) {
        std::uint32_t rest = byte;
        for (std::size_t bit = 0; bit < bitsPerByte; ++bit) {
            rest = rest >> 1U ^ (rest % 2 * reversedPolynomial);
        }
        table[byte] = rest;
    }
    return table;
}();

} // namespace

std::uint32_t crcOf(std::span<const std::byte> bytes) {
    std::uint32_t rest = ~0U;
    for (const std::byte byte : bytes) {
        rest = rest >> bitsPerByte ^ remainders[(rest ^ std::to_integer<std::uint32_t>(byte)) & 0xFFU];
    }
    return ~rest;
}

} // namespace velm
