// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "image/imgfx.h"

#include "foundation/report.h"
#include "foundation/stream.h"
#include "foundation/wide.h"
#include "image/clip.h"
#include "image/img.h"
#include "image/line.h"
#include "image/pixel_bytes.h"
#include "image/rgb888.h"

#include <algorithm>
#include <functional>

namespace velm {

const IDENTITY IMGFX_identity = makeIdentity("IMGFX", "ZENDORAK", "20150420", "CODE", "C");
std::uint8_t IMGFX_verbose = 0;

namespace {

/// Applies row(from, to, n) to the clipped rectangle, or reports.
template <typename Row>
void combine(const IMG* src, IMG* dst, BlitArea area, Row row) {
    if (refused(!canBlit(src, dst), IMGFX_error)) {
        return;
    }
    if (clipBlit(*src, *dst, area)) {
        runWide([=] { forEachRow(*src, *dst, area, row); });
    }
}

/// Applies touch(pixel) along a line, or reports.
template <typename Touch>
void combineLine(IMG* img, std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2, Touch touch) {
    if (refused(!hasPixels(img), IMGFX_error)) {
        return;
    }
    forEachLinePixel(*img, x1, y1, x2, y2, touch);
}

} // namespace

void IMGFX_opaqueBlit(const IMG* src, IMG* dst, std::int32_t srcX, std::int32_t srcY, std::int32_t dstX,
                      std::int32_t dstY, std::int32_t w, std::int32_t h) {
    combine(src, dst, {srcX, srcY, dstX, dstY, w, h},
            [](const std::uint32_t* from, std::uint32_t* to, std::int64_t n) {
                constexpr std::less_equal<> isBefore;
                if (isBefore(from + n, to) || isBefore(to + n, from)) {
                    copyApart(from, to, n);
                    return;
                }
                for (std::int64_t i = 0; i < n; ++i) {
                    to[i] = from[i];
                }
            });
}

void IMGFX_addBlit(const IMG* src, IMG* dst, std::int32_t srcX, std::int32_t srcY, std::int32_t dstX,
                   std::int32_t dstY, std::int32_t w, std::int32_t h) {
    combine(src, dst, {srcX, srcY, dstX, dstY, w, h}, addBytes);
}

void IMGFX_averageBlit(const IMG* src, IMG* dst, std::int32_t srcX, std::int32_t srcY, std::int32_t dstX,
                       std::int32_t dstY, std::int32_t w, std::int32_t h) {
    // IMGFX_averageDropsLowBits: one expects (s + d) / 2; each half is rounded down first, so 1 and 1 make 0.
    // The rolling digits are built with it.
    constexpr std::uint32_t halves = 0x7F7F7F;
    combine(src, dst, {srcX, srcY, dstX, dstY, w, h},
            [](const std::uint32_t* from, std::uint32_t* to, std::int64_t n) {
                for (std::int64_t i = 0; i < n; ++i) {
                    const std::uint32_t mixed = ((from[i] >> 1) & halves) + ((to[i] >> 1) & halves);
                    to[i] = from[i] != 0 ? mixed : to[i];
                }
            });
}

void IMGFX_invert(IMG* img) {
    if (refused(!hasPixels(img), IMGFX_error)) {
        return;
    }
    runWide([pixels = img->pixels, count = std::int64_t{img->width} * img->height] {
        std::transform(pixels, pixels + count, pixels, [](std::uint32_t p) { return ~p & 0xFFFFFFU; });
    });
}

void IMGFX_addPixel(IMG* img, std::int32_t x, std::int32_t y, std::uint32_t colour) {
    if (!hasPixels(img)) {
        // IMGFX_addPixelReportsAsImg: one expects this module's reporter; a missing image is told by the
        // image module, whose flag decides whether the line comes.
        IMG_error();
        return;
    }
    if (contains(*img, x, y)) {
        std::uint32_t& pixel = rowOf(*img, y)[x];
        pixel = RGB888_add(pixel, colour);
    }
}

void IMGFX_addLine(IMG* img, std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                   std::uint32_t colour) {
    combineLine(img, x1, y1, x2, y2, [colour](std::uint32_t& pixel) { pixel = RGB888_add(pixel, colour); });
}

void IMGFX_averageLine(IMG* img, std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                       std::uint32_t colour) {
    combineLine(img, x1, y1, x2, y2,
                [colour](std::uint32_t& pixel) { pixel = RGB888_average(pixel, colour); });
}

void IMGFX_error() {
    reportLine(IMGFX_verbose, "IMGFX error");
}

} // namespace velm
