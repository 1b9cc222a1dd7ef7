// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Every pixel becomes a square of pixels in a screen's own layout, without smoothing.
//
//     const PixelLayout layout(4, 0xFF0000, 0x00FF00, 0x0000FF);
//     enlarge(frame, {0, 0, 256, 256}, 3, layout, rows, bytesPerRow);
#pragma once

#include "image/img.h"

#include <cstddef>
#include <cstdint>

namespace velm {

/// How a screen stores a pixel.
struct PixelLayout {
    /// Where a colour stands in a pixel, and how many bits it has there.
    struct Channel {
        std::int32_t shift, bits;
        explicit Channel(std::uint32_t mask);
        bool operator==(const Channel&) const = default;
    };

    std::int32_t bytes; ///< 1..4
    Channel red, green, blue;

    PixelLayout(std::int32_t pixelBytes, std::uint32_t redMask, std::uint32_t greenMask,
                std::uint32_t blueMask)
        : bytes(pixelBytes), red(redMask), green(greenMask), blue(blueMask) {}
    bool operator==(const PixelLayout&) const = default;

    /// A pixel of ours in this layout: fewer bits drop the low ones, more bits repeat the high ones.
    [[nodiscard]] std::uint32_t of(std::uint32_t pixel) const;
};

/// A part of a frame, in its pixels.
struct Part {
    std::int32_t x, y, width, height;
};

/// Writes a part of the frame `scale` (>= 1) times as wide and high, from `to` on. One row is spread out, and
/// its copies are copied.
void enlarge(const IMG& frame, const Part& part, std::int32_t scale, const PixelLayout& layout, char* to,
             std::ptrdiff_t stride);

} // namespace velm
