// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The checksum of a frame: CRC-32 as in zip files and PNG. deflate.cpp has libdeflate compute it, plain.cpp
// does it where there is none; both give the same.
//
//     const std::uint32_t sum = crcOf(frame.bytes);
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace velm {

std::uint32_t crcOf(std::span<const std::byte> bytes);

} // namespace velm
