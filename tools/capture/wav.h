// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The 44-byte header of a WAV file of 16-bit mono at 44100 samples per second.
//
//     file.write(wavHeader(2 * samples));
#pragma once

#include <cstdint>
#include <span>

namespace velm {

/// The header for so many bytes of samples. It stays valid until the next call.
std::span<const std::byte> wavHeader(std::uint32_t dataBytes);

} // namespace velm
