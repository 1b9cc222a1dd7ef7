// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// How the parts of a scene come and go: curves over the frames, 0 for nothing, 256 for all of it.
//
//     pen colour = RGB888_mix(0, white, lightOf(envelope(frame, 100, 250, 20)));
#pragma once

#include <algorithm>
#include <cstdint>

namespace velm {

inline constexpr std::int32_t fullLight = 256;

/// 0 up to frame `begin`, then rising to 256 within `ramp` (> 0) frames.
constexpr std::int32_t rise(std::int32_t frame, std::int32_t begin, std::int32_t ramp) {
    return std::clamp((frame - begin) * fullLight / ramp, 0, fullLight);
}

/// Rises within `ramp` frames from `begin` on and is back at 0 at `end`.
constexpr std::int32_t envelope(std::int32_t frame, std::int32_t begin, std::int32_t end, std::int32_t ramp) {
    return std::min(rise(frame, begin, ramp), fullLight - rise(frame, end - ramp, ramp));
}

/// A value that goes evenly from `from` to `to` while the curve goes from 0 to 256.
constexpr std::int32_t between(std::int32_t from, std::int32_t to, std::int32_t curve) {
    return from + (to - from) * curve / fullLight;
}

/// The same curve without its corners: slow, fast, slow.
constexpr std::int32_t smooth(std::int32_t curve) {
    return curve * curve * (3 * fullLight - 2 * curve) / (fullLight * fullLight);
}

} // namespace velm
