// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Every pixel becomes a square of pixels, without smoothing.
//
//     enlarge({frame.pixels, 256 * 4, 4}, 256, 256, 3, {image->data, image->bytes_per_line, 4});
#pragma once

#include <cstddef>
#include <cstdint>

namespace velm {

/// Rows of pixels in memory.
template <typename Byte>
struct Rows {
    Byte* bytes;
    std::ptrdiff_t stride;   ///< bytes from one row to the next
    std::int32_t pixelBytes; ///< 1..4, the same on both sides
};

/// `width` by `height` pixels, each `scale` (>= 1) times as wide and high. One row is spread out, and its
/// copies are copied.
void enlarge(Rows<const char> from, std::int32_t width, std::int32_t height, std::int32_t scale,
             Rows<char> to);

} // namespace velm
