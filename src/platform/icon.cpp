// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "platform/icon.h"

#include "foundation/asset.h"
#include "platform/icon_file.h"

#include <cstddef>

namespace velm {

namespace {
constexpr std::ptrdiff_t channels = 4;
}

const char* ICON_bytes() {
    // A PAM file is a header of text and then, to its end, the pixels.
    return assets::icon.bytes + assets::icon.size - channels * ICON_size * std::ptrdiff_t{ICON_size};
}

std::uint32_t ICON_pixel(std::int32_t index) {
    const auto channel = [index](std::int32_t which) -> std::uint32_t {
        return static_cast<unsigned char>(ICON_bytes()[channels * index + which]);
    };
    return channel(3) << 24 | channel(0) << 16 | channel(1) << 8 | channel(2);
}

} // namespace velm
