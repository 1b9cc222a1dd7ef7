// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "image/clip.h"

namespace velm {

namespace {

/// One axis of a copy. 64 bits, so that no corner or size that a caller can name overflows.
struct Span {
    std::int64_t src, dst, size;
};

void clipAxis(Span& span, std::int64_t srcSize, std::int64_t dstSize) {
    if (span.src < 0) {
        span.size += span.src;
        span.dst -= span.src;
        span.src = 0;
    }
    if (span.src + span.size > srcSize) {
        span.size = srcSize - span.src;
    }
    if (span.dst < 0) {
        span.size += span.dst;
        span.src -= span.dst;
        span.dst = 0;
    }
    if (span.dst + span.size > dstSize) {
        span.size = dstSize - span.dst;
    }
}

} // namespace

bool canBlit(const IMG* src, const IMG* dst) {
    return hasPixels(src) && hasPixels(dst);
}

bool clipBlit(const IMG& src, const IMG& dst, BlitArea& area) {
    Span across{area.srcX, area.dstX, area.w};
    Span down{area.srcY, area.dstY, area.h};
    clipAxis(across, src.width, dst.width);
    clipAxis(down, src.height, dst.height);
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
