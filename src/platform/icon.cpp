// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "platform/icon.h"

#include "foundation/asset.h"
#include "platform/icon_file.h"

namespace velm {

std::uint32_t ICON_pixel(std::int32_t index) {
    // A PAM file is a header of text and then, to its end, red, green, blue and alpha of every pixel.
    constexpr std::int32_t channels = 4;
    const char* const pixels = assets::icon.bytes + assets::icon.size - channels * ICON_size * ICON_size;
    const auto channel = [&](std::int32_t which) -> std::uint32_t {
        return static_cast<unsigned char>(pixels[channels * index + which]);
    };
    return channel(3) << 24 | channel(0) << 16 | channel(1) << 8 | channel(2);
}

} // namespace velm
