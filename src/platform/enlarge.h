// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A frame on a screen: every pixel becomes a square of pixels in the screen's own layout, without smoothing.
//
//     const Raster raster{rows, 1920, 1080, bytesPerRow, PixelLayout(4, 0xFF0000, 0x00FF00, 0x0000FF)};
//     enlarge(frame, layoutFor(256, 256, raster.width, raster.height), raster);
#pragma once

#include "image/img.h"
#include "image/pixel_layout.h"
#include "platform/layout.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace velm {

/// The memory of a window or a screen.
struct Raster {
    char* first;                ///< of its bytes, the upper left pixel's
    std::int32_t width, height; ///< pixels
    std::ptrdiff_t pitch;       ///< bytes from one row to the next
    PixelLayout pixels;
};

/// A part of a raster or of a frame, in its pixels.
struct Part {
    std::int32_t x, y, width, height;
};

/// Writes what fits of a frame where its layout has it, and returns the part of the raster that it takes;
/// nothing else of it changes. Where the raster holds an earlier frame of the same size and layout, `former`
/// has its pixels: only the blocks of 16 pixels with a change are written, there, too.
Part enlarge(const IMG& frame, const Layout& layout, const Raster& raster,
             std::span<std::uint32_t> former = {});

} // namespace velm
