// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Words as bytes, low byte first, whatever the machine's own order: every file and checksum is the same
// everywhere.
//
//     file.write(lowByteFirst<std::uint32_t>(pixels));
#pragma once

#include "foundation/byte_order.h"

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

} // namespace velm
