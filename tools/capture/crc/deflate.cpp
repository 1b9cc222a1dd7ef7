// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "capture/crc/crc.h"

#include <libdeflate.h>

namespace velm {

std::uint32_t crcOf(std::span<const std::byte> bytes) {
    return libdeflate_crc32(0, bytes.data(), bytes.size());
}

} // namespace velm
