// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// How every rectangle copy between two images is clipped, in one place, so that its loop can run over whole
// rows.
//
//     if (BlitArea area{srcX, srcY, dstX, dstY, w, h}; clipBlit(*src, *dst, area)) {
//         forEachRow(*src, *dst, area, [](const std::uint32_t* from, std::uint32_t* to, std::int64_t n) { ...
//         });
//     }
#pragma once

#include "image/img.h"

#include <cstdint>

namespace velm {

/// A rectangle of one image and the same rectangle of another.
struct BlitArea {
    std::int32_t srcX, srcY; ///< its corner in the source
    std::int32_t dstX, dstY; ///< its corner in the destination
    std::int32_t w, h;       ///< pixels
};

/// True when both images are there and have pixels.
bool canBlit(const IMG* src, const IMG* dst);

/// Clips the area to both images: first a negative source corner, which shifts the destination by the same
/// amount, then the source's right and bottom edge, then the destination's corner and edges. False when
/// nothing is left.
bool clipBlit(const IMG& src, const IMG& dst, BlitArea& area);

/// Calls row(source pixels, destination pixels, count) for each row of a clipped area, from top to bottom.
/// Where it takes all of both widths, the rows are one long row.
template <typename Row>
void forEachRow(const IMG& src, IMG& dst, const BlitArea& area, Row row) {
    const std::uint32_t* from = src.pixels + area.srcX + std::int64_t{area.srcY} * src.width;
    std::uint32_t* to = dst.pixels + area.dstX + std::int64_t{area.dstY} * dst.width;
    if (area.w == src.width && area.w == dst.width) {
        row(from, to, std::int64_t{area.w} * area.h);
        return;
    }
    for (std::int32_t i = 0; i < area.h; ++i) {
        row(from, to, area.w);
        from += src.width;
        to += dst.width;
    }
}

} // namespace velm
