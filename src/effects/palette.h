// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A borrowed list of colours, which effects use as a ring.
//
//     const std::uint32_t colour = paletteColour(demo.hueRamp, hue + 24 * n);
#pragma once

#include "audio/sample.h"
#include "foundation/wrap.h"

#include <cstdint>

namespace velm {

/// Colour `index` of a palette, any index going round; white without a palette.
inline std::uint32_t paletteColour(const SAMPLE* palette, std::int32_t index) {
    constexpr std::uint32_t white = 0xFFFFFF;
    if (!hasValues(palette)) {
        return white;
    }
    return static_cast<std::uint32_t>(palette->data[positiveModulo(index, palette->length)]);
}

} // namespace velm
