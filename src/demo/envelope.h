// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// How a scene's elements come and go: shares 0..256 over its frames, and colours by them.
//
//     const std::int32_t share = between(frame, 100, 400, 64); // up from 100 to 164, down from 336 to 400
//     LFONT_setColour(pen, dimmed(hueAt(frame), share));
#pragma once

#include "demo/state.h"
#include "foundation/wrap.h"
#include "image/rgb888.h"

#include <algorithm>
#include <cstdint>

namespace velm {

inline constexpr std::int32_t fullShare = 256;

/// 0 up to frame `begin`, then evenly up to 256 within `length` (> 0) frames.
inline std::int32_t rise(std::int32_t frame, std::int32_t begin, std::int32_t length) {
    return std::clamp((frame - begin) * fullShare / length, 0, fullShare);
}

/// The same without corners: slow, fast, slow.
inline std::int32_t ease(std::int32_t frame, std::int32_t begin, std::int32_t length) {
    const std::int32_t share = rise(frame, begin, length);
    return (share * share * (3 * fullShare - 2 * share)) >> 16;
}

/// Up within `slope` frames from `begin` on, down again within as many before `end`.
inline std::int32_t between(std::int32_t frame, std::int32_t begin, std::int32_t end, std::int32_t slope) {
    return std::min(rise(frame, begin, slope), fullShare - rise(frame, end - slope, slope));
}

/// From `a` to `b` by a share.
inline std::int32_t blend(std::int32_t a, std::int32_t b, std::int32_t share) {
    return a + (((b - a) * share) >> 8);
}

/// A colour at a share of its brightness.
inline std::uint32_t dimmed(std::uint32_t colour, std::int32_t share) {
    return RGB888_mix(0, colour, static_cast<std::uint32_t>(std::clamp(share, 0, fullShare)));
}

/// A hue of the ramp, around the circle.
inline std::uint32_t hueAt(std::int32_t index) {
    return static_cast<std::uint32_t>(SAMPLE_get(demo.hueRamp, positiveModulo(index, hueCount)));
}

} // namespace velm
