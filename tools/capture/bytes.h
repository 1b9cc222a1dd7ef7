// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Words as bytes, low byte first, whatever the machine's own order: every file and checksum is the same
// everywhere.
//
//     file.write(lowByteFirst<std::uint32_t>(pixels));
#pragma once

#include "foundation/byte_order.h"
#include "platform/gain.h"

#include <cstddef>
#include <cstring>
#include <span>
#include <vector>

namespace velm {

template <typename Word>
std::vector<std::byte> lowByteFirst(std::span<const Word> words) {
    std::vector<std::byte> bytes(words.size_bytes());
    std::byte* next = bytes.data();
    for (const Word word : words) {
        const Word turned = lowByteFirst(word);
        std::memcpy(next, &turned, sizeof turned);
        next += sizeof turned;
    }
    return bytes;
}

/// The bytes of samples that are multiplied as GAIN_apply does.
inline std::vector<std::byte> louderBytes(std::span<const std::int16_t> samples, double factor) {
    std::vector<std::int16_t> louder(samples.begin(), samples.end());
    GAIN_apply(louder, factor);
    return lowByteFirst<std::int16_t>(louder);
}

} // namespace velm
