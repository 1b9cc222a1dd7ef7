// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Every pixel becomes a square of pixels in a screen's own layout, without smoothing.
//
//     const PixelLayout layout(4, 0xFF0000, 0x00FF00, 0x0000FF);
//     enlarge(frame, {0, 0, 256, 256}, 3, layout, rows, bytesPerRow);
#pragma once

#include "image/img.h"
#include "image/pixel_layout.h"

#include <cstddef>
#include <cstdint>

namespace velm {

/// A part of a frame, in its pixels.
struct Part {
    std::int32_t x, y, width, height;
};

/// Writes a part of the frame `scale` (>= 1) times as wide and high, from `to` on. One row is spread out, and
/// its copies are copied.
void enlarge(const IMG& frame, const Part& part, std::int32_t scale, const PixelLayout& layout, char* to,
             std::ptrdiff_t stride);

} // namespace velm
