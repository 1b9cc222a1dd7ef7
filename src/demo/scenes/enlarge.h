// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Small pictures on a large screen: doubled without steps in their slanted edges, and looked at through a
// lens that travels, zooms and rolls over endless mirror images of a picture.
//
//     Picture large{enlarged(demo.pictureB)};
//     drawLens(large, {.x = 64 << 16, .y = 32 << 16, .zoom = 512, .angle = frame}, demo.screen);
#pragma once

#include "image/img.h"

#include <cstdint>

namespace velm {

/// The picture twice as wide and high, or nullptr (reported). A corner of a pixel takes the colour of two
/// neighbours that agree and meet there, so that slanted edges stay smooth and dithered grounds as they are.
IMG* doubled(const IMG* picture);

/// The picture doubled twice.
IMG* enlarged(const IMG* picture);

/// The picture mirrored to the right and down, or nullptr (reported): it then repeats without a seam.
IMG* mirrored(const IMG* picture);

inline constexpr std::int32_t lensSamples = 4; ///< pixels of an enlarged picture across one of its original's

/// Where a lens looks, in pixels of the original.
struct Lens {
    std::int32_t x, y;         ///< what stands in the middle, 16.16
    std::int32_t zoom = 256;   ///< screen pixels across one of the picture, 8.8, 128 or more
    std::int32_t angle = 0;    ///< 1/1024 turns
    std::int32_t others = 256; ///< brightness of the mirror images above and below, 0 black .. 256
};

/// Covers the target with an enlarged picture, whose sides are powers of two, and its mirror images to all
/// sides.
void drawLens(const IMG* enlargedPicture, const Lens& lens, IMG* target);

/// The shorter way from a place to one that looks like pixel `to` in a picture that repeats after `period`
/// pixels, 16.16.
std::int32_t nearestWay(std::int32_t from, std::int32_t to, std::int32_t period);

} // namespace velm
