// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "image/clip.h"

#include <algorithm>

namespace velm {

namespace {

/// One axis of a copy. 64 bits, so that no corner or size that a caller can name overflows.
struct Span {
    std::int64_t src, dst, size;

    /// Keeps what lies in one image, of `length` pixels; the place in the other one follows.
    void clip(std::int64_t& place, std::int64_t& other, std::int64_t length) {
        if (place < 0) {
            size += place;
            other -= place;
            place = 0;
        }
        size = std::min(size, length - place);
    }

    void clipTo(std::int64_t srcLength, std::int64_t dstLength) {
        clip(src, dst, srcLength);
        clip(dst, src, dstLength);
    }
};

} // namespace

bool canBlit(const IMG* src, const IMG* dst) {
    return hasPixels(src) && hasPixels(dst);
}

bool clipBlit(const IMG& src, const IMG& dst, BlitArea& area) {
    Span across{area.srcX, area.dstX, area.w};
    Span down{area.srcY, area.dstY, area.h};
    across.clipTo(src.width, dst.width);
    down.clipTo(src.height, dst.height);
    if (across.size <= 0 || down.size <= 0) {
        return false;
    }
    area = {.srcX = static_cast<std::int32_t>(across.src),
            .srcY = static_cast<std::int32_t>(down.src),
            .dstX = static_cast<std::int32_t>(across.dst),
            .dstY = static_cast<std::int32_t>(down.dst),
            .w = static_cast<std::int32_t>(across.size),
            .h = static_cast<std::int32_t>(down.size)};
    return true;
}

} // namespace velm
