// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Lists of colours, which effects borrow and use as a ring.
//
//     const std::uint32_t colour = paletteColour(demo.hueRamp, hue + 24 * n);
#pragma once

#include "audio/sample.h"
#include "foundation/wrap.h"
#include "image/rgb888.h"

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

/// A new list of the hue circle's RGB888_hueCount colours, as much of it as there is memory for.
inline SAMPLE* newHues() {
    SAMPLE* const hues = SAMPLE_new();
    SAMPLE_setLength(hues, RGB888_hueCount);
    for (std::int32_t i = 0; i < RGB888_hueCount; ++i) {
        SAMPLE_set(hues, i, static_cast<std::int32_t>(RGB888_hue(i)));
    }
    return hues;
}

} // namespace velm
