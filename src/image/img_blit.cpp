// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The transparent copies of IMG: rectangles, and rows and columns that wrap around the edge.
#include "foundation/report.h"
#include "foundation/wide.h"
#include "foundation/wrap.h"
#include "image/clip.h"
#include "image/img.h"

#include <algorithm>

namespace velm {

namespace {

/// Copies pixels, leaving out those that are 0.
constexpr auto copyRow = [](const std::uint32_t* from, std::uint32_t* to, std::int64_t count) {
    for (std::int64_t i = 0; i < count; ++i) {
        to[i] = from[i] != 0 ? from[i] : to[i];
    }
};

/// The same for pixels that lie `fromStep` and `toStep` words apart.
void copyVisible(const std::uint32_t* from, std::int64_t fromStep, std::uint32_t* to, std::int64_t toStep,
                 std::int32_t count) {
    if (fromStep == 1 && toStep == 1) {
        runWide([=] { copyRow(from, to, count); });
        return;
    }
    for (std::int32_t i = 0; i < count; ++i) {
        if (const std::uint32_t pixel = from[i * fromStep]; pixel != 0) {
            to[i * toStep] = pixel;
        }
    }
}

/// One line of pixels of an image: where it starts, how far its pixels lie apart and how many there are.
template <typename Pixel>
struct Line {
    Pixel* first;
    std::int64_t step;
    std::int32_t length;
};

/// Copies a line onto another from `offset` modulo its length on, going on at its start; once around at most.
void copyWrapped(Line<const std::uint32_t> from, Line<std::uint32_t> to, std::int32_t offset) {
    if (to.length == 0) {
        return;
    }
    const std::int32_t start = positiveModulo(offset, to.length);
    const std::int32_t count = std::min(from.length, to.length);
    const std::int32_t beforeEdge = std::min(to.length - start, from.length);
    copyVisible(from.first, from.step, to.first + start * to.step, to.step, beforeEdge);
    copyVisible(from.first + beforeEdge * from.step, from.step, to.first, to.step, count - beforeEdge);
}

} // namespace

void IMG_blit(const IMG* src, IMG* dst, std::int32_t srcX, std::int32_t srcY, std::int32_t dstX,
              std::int32_t dstY, std::int32_t w, std::int32_t h) {
    if (refused(!canBlit(src, dst), IMG_error)) {
        return;
    }
    if (BlitArea area{srcX, srcY, dstX, dstY, w, h}; clipBlit(*src, *dst, area)) {
        runWide([=] { forEachRow(*src, *dst, area, copyRow); });
    }
}

void IMG_draw(const IMG* src, IMG* dst) {
    if (!refused(src == nullptr, IMG_error)) {
        IMG_blit(src, dst, 0, 0, src->x, src->y, src->width, src->height);
    }
}

void IMG_copyRowWrapped(const IMG* src, IMG* dst, std::int32_t srcRow, std::int32_t dstRow,
                        std::int32_t offset) {
    if (refused(!canBlit(src, dst) || srcRow < 0 || srcRow >= src->height || dstRow < 0 ||
                    dstRow >= dst->height,
                IMG_error)) {
        return;
    }
    copyWrapped({rowOf(*src, srcRow), 1, src->width}, {rowOf(*dst, dstRow), 1, dst->width}, offset);
}

void IMG_copyColumnWrapped(const IMG* src, IMG* dst, std::int32_t srcColumn, std::int32_t dstColumn,
                           std::int32_t offset) {
    if (refused(!canBlit(src, dst) || srcColumn < 0 || srcColumn >= src->width || dstColumn < 0 ||
                    dstColumn >= dst->width,
                IMG_error)) {
        return;
    }
    copyWrapped({src->pixels + srcColumn, src->width, src->height},
                {dst->pixels + dstColumn, dst->width, dst->height}, offset);
}

} // namespace velm
