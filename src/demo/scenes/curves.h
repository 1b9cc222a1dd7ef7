// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// How the elements of a scene come and go over its frames, and in which colours. A weight is 0..256, nothing
// to all of it; where a colour takes one, what lies beyond counts as the nearer of the two.
//
//     sky->colour = curveHue(4 * frame, curveStay(frame, 100, 400, 60)); // in over 100..160, out over
//     340..400
#pragma once

#include "demo/state.h"      // IWYU pragma: export
#include "foundation/wrap.h" // IWYU pragma: export
#include "image/rgb888.h"    // IWYU pragma: export

#include <algorithm>
#include <cstdint>

namespace velm {

inline constexpr std::int32_t curveFull = RGB888_fullWeight; ///< the weight of all of it

/// 0 up to frame `first`, 256 from frame `last` on, a straight line between them; first < last.
constexpr std::int32_t curveRise(std::int32_t frame, std::int32_t first, std::int32_t last) {
    return curveFull * (std::clamp(frame, first, last) - first) / (last - first);
}

/// The same as an S: it starts and arrives gently.
constexpr std::int32_t curveEase(std::int32_t frame, std::int32_t first, std::int32_t last) {
    const std::int32_t t = curveRise(frame, first, last);
    return (t * t * (3 * curveFull - 2 * t)) >> 16;
}

/// Rises from `first` on, stands at 256 and is 0 again at `last`; each slope takes `slope` (> 0) frames.
constexpr std::int32_t curveStay(std::int32_t frame, std::int32_t first, std::int32_t last,
                                 std::int32_t slope) {
    return std::min(curveRise(frame, first, first + slope), curveFull - curveRise(frame, last - slope, last));
}

/// A value on its way: `from` at a weight of 0, `to` at 256.
constexpr std::int32_t curveBetween(std::int32_t from, std::int32_t to, std::int32_t weight) {
    return from + (to - from) * weight / curveFull;
}

/// 256 doubled `octaves` / 256 times, without a kink from one doubling to the next; octaves 0..5632.
constexpr std::int32_t curveDoubled(std::int32_t octaves) {
    const std::int32_t part = octaves & 255;
    return (256 + part * (168 + 88 * part / 256) / 256) << (octaves >> 8);
}

/// A colour on its way, in the same sense.
constexpr std::uint32_t curveMix(std::uint32_t from, std::uint32_t to, std::int32_t weight) {
    return RGB888_mix(from, to, static_cast<std::uint32_t>(std::clamp(weight, 0, curveFull)));
}

/// A colour out of the dark.
constexpr std::uint32_t curveDim(std::uint32_t colour, std::int32_t weight) {
    return RGB888_dim(colour, weight);
}

/// A colour of the hue ramp, which goes round without an end.
inline std::uint32_t curveHue(std::int32_t index, std::int32_t weight = curveFull) {
    const std::int32_t hue = SAMPLE_get(demo.hueRamp, positiveModulo(index, hueCount));
    return curveDim(static_cast<std::uint32_t>(hue), weight);
}

/// Gives a raster `count` lines, line i in the colour colourOf(i).
template <typename ColourOf>
void colourRaster(RASTER& raster, std::int32_t count, ColourOf colourOf) {
    RASTER_setCount(&raster, count);
    for (std::int32_t i = 0; i < raster.count; ++i) {
        raster.colours[i] = colourOf(i);
    }
}

} // namespace velm
