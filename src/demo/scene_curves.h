// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// How the elements of a scene come and go over its frames, and in which hue. Weights are 0..256, as
// RGB888_mix takes them.
//
//     sky->brightness = curveShow(frame, 100, 400, 60); // in over 100..160, out over 340..400
#pragma once

#include "demo/state.h"
#include "foundation/wrap.h"
#include "image/rgb888.h"

#include <algorithm>
#include <cstdint>

namespace velm {

inline constexpr std::int32_t curveFull = 256; ///< the weight of all of it

/// 0 up to frame `first`, 256 from frame `last` on, a straight line between them; first < last.
constexpr std::int32_t curveRise(std::int32_t frame, std::int32_t first, std::int32_t last) {
    return 256 * (std::clamp(frame, first, last) - first) / (last - first);
}

/// The same as an S: it starts and arrives gently.
constexpr std::int32_t curveEase(std::int32_t frame, std::int32_t first, std::int32_t last) {
    const std::int32_t t = curveRise(frame, first, last);
    return (t * t * (3 * 256 - 2 * t)) >> 16;
}

/// Rises from `first` on, stands at 256 and is 0 again at `last`; each slope takes `slope` (> 0) frames.
constexpr std::int32_t curveStay(std::int32_t frame, std::int32_t first, std::int32_t last,
                                 std::int32_t slope) {
    return std::min(curveRise(frame, first, first + slope), 256 - curveRise(frame, last - slope, last));
}

/// The same as RGB888_mix takes it.
constexpr std::uint32_t curveShow(std::int32_t frame, std::int32_t first, std::int32_t last,
                                  std::int32_t slope) {
    return static_cast<std::uint32_t>(curveStay(frame, first, last, slope));
}

/// A colour at a brightness of 0..256; what lies beyond counts as the nearer of the two.
constexpr std::uint32_t curveDim(std::uint32_t colour, std::int32_t brightness) {
    return RGB888_mix(0, colour, static_cast<std::uint32_t>(std::clamp(brightness, 0, curveFull)));
}

/// A value on its way: `from` at a weight of 0, `to` at 256.
constexpr std::int32_t curveBetween(std::int32_t from, std::int32_t to, std::int32_t weight) {
    return from + (to - from) * weight / curveFull;
}

/// A colour of the hue ramp, which is used as a ring, at a brightness of 0..256.
inline std::uint32_t curveHue(std::int32_t index, std::uint32_t brightness) {
    const std::int32_t hue = SAMPLE_get(demo.hueRamp, positiveModulo(index, hueCount));
    return RGB888_mix(0, static_cast<std::uint32_t>(hue), brightness);
}

} // namespace velm
