// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "image/imgfx.h"

#include "foundation/report.h"
#include "image/clip.h"
#include "image/rgb888.h"

#include <algorithm>

namespace velm {

const IDENTITY IMGFX_identity = makeIdentity("IMGFX", "ZENDORAK", "20150420", "CODE", "C");
std::uint8_t IMGFX_verbose = 0;

namespace {

constexpr std::uint32_t redBlueLanes = 0xFF00FF;
constexpr std::uint32_t greenLane = 0x00FF00;

/// Applies row(from, to, n) to the clipped rectangle, or reports.
template <typename Row>
void combine(const IMG* src, IMG* dst, std::int32_t srcX, std::int32_t srcY, std::int32_t dstX,
             std::int32_t dstY, std::int32_t w, std::int32_t h, Row row) {
    if (!canBlit(src, dst)) {
        IMGFX_error();
        return;
    }
    if (BlitArea area; clipBlit(*src, *dst, srcX, srcY, dstX, dstY, w, h, area)) {
        forEachRow(*src, *dst, area, row);
    }
}

/// (a + b + e + f + 4 * centre) >> 3 per channel. Red and blue share a word: a sum of eight channels needs 11
/// bits of the 16 that each has.
std::uint32_t blurTaps(std::uint32_t a, std::uint32_t b, std::uint32_t centre, std::uint32_t e,
                       std::uint32_t f) {
    const auto sum = [&](std::uint32_t lanes) {
        return (a & lanes) + (b & lanes) + (e & lanes) + (f & lanes) + 4 * (centre & lanes);
    };
    return ((sum(redBlueLanes) >> 3) & redBlueLanes) | ((sum(greenLane) >> 3) & greenLane);
}

/// min(255, centre + (left >> shift) + (right >> shift)) per channel.
std::uint32_t glareTaps(std::uint32_t left, std::uint32_t centre, std::uint32_t right, std::uint32_t shift) {
    // A shifted neighbour keeps only the bits that its own channel shifted down.
    const std::uint32_t kept = (0xFFU >> shift) * 0x010101U;
    return RGB888_add(RGB888_add(centre, (left >> shift) & kept), (right >> shift) & kept);
}

/// Runs tap(row, x, width) over every pixel that src and dst share. Pixels near the left and right edge,
/// where taps fall outside, go through `edge`; the run between them, free of tests, through `inner`.
template <typename Inner, typename Edge>
void filterRows(const IMG* src, IMG* dst, std::int32_t reach, Inner inner, Edge edge) {
    if (!canBlit(src, dst) || src == dst || src->pixels == dst->pixels) {
        IMGFX_error();
        return;
    }
    const std::int32_t height = std::min(src->height, dst->height);
    const std::int32_t width = std::min(src->width, dst->width);
    const std::int32_t innerBegin = std::min(reach, width);
    const std::int32_t innerEnd = std::max(innerBegin, std::min(width, src->width - reach));
    for (std::int32_t y = 0; y < height; ++y) {
        const std::uint32_t* const from = src->pixels + std::int64_t{y} * src->width;
        std::uint32_t* const to = dst->pixels + std::int64_t{y} * dst->width;
        for (std::int32_t x = 0; x < innerBegin; ++x) {
            to[x] = edge(x, y);
        }
        inner(from, to, innerBegin, innerEnd);
        for (std::int32_t x = innerEnd; x < width; ++x) {
            to[x] = edge(x, y);
        }
    }
}

} // namespace

void IMGFX_addBlit(const IMG* src, IMG* dst, std::int32_t srcX, std::int32_t srcY, std::int32_t dstX,
                   std::int32_t dstY, std::int32_t w, std::int32_t h) {
    combine(src, dst, srcX, srcY, dstX, dstY, w, h,
            [](const std::uint32_t* from, std::uint32_t* to, std::int32_t n) {
                for (std::int32_t i = 0; i < n; ++i) {
                    to[i] = RGB888_add(from[i], to[i]);
                }
            });
}

void IMGFX_averageBlit(const IMG* src, IMG* dst, std::int32_t srcX, std::int32_t srcY, std::int32_t dstX,
                       std::int32_t dstY, std::int32_t w, std::int32_t h) {
    // IMGFX_averageDropsLowBits: one expects (s + d) / 2; each half is rounded down first, so 1 and 1 give 0.
    // The rolling digits are built with it.
    constexpr std::uint32_t halves = 0x7F7F7F;
    combine(src, dst, srcX, srcY, dstX, dstY, w, h,
            [](const std::uint32_t* from, std::uint32_t* to, std::int32_t n) {
                for (std::int32_t i = 0; i < n; ++i) {
                    const std::uint32_t mixed = ((from[i] >> 1) & halves) + ((to[i] >> 1) & halves);
                    to[i] = from[i] != 0 ? mixed : to[i];
                }
            });
}

void IMGFX_invert(IMG* img) {
    if (img == nullptr || img->pixels == nullptr) {
        IMGFX_error();
        return;
    }
    std::uint32_t* const end = img->pixels + std::int64_t{img->width} * img->height;
    std::transform(img->pixels, end, img->pixels, [](std::uint32_t p) { return ~p & 0xFFFFFFU; });
}

void IMGFX_blur(const IMG* src, IMG* dst) {
    const auto inner = [](const std::uint32_t* from, std::uint32_t* to, std::int32_t begin,
                          std::int32_t end) {
        for (std::int32_t x = begin; x < end; ++x) {
            to[x] = blurTaps(from[x - 2], from[x - 1], from[x], from[x + 1], from[x + 2]);
        }
    };
    // IMGFX_blurDarkensEdges: one expects the edge pixels to repeat outside; what lies there counts as black,
    // and the demo's blurred frames have dark sides.
    const auto edge = [src](std::int32_t x, std::int32_t y) {
        const auto at = [&](std::int32_t column) { return IMG_getPixel(src, column, y); };
        return blurTaps(at(x - 2), at(x - 1), at(x), at(x + 1), at(x + 2));
    };
    filterRows(src, dst, 2, inner, edge);
}

void IMGFX_glare(const IMG* src, IMG* dst, std::int32_t shift) {
    const std::uint32_t bits = static_cast<std::uint32_t>(shift) & 31U;
    const auto inner = [bits](const std::uint32_t* from, std::uint32_t* to, std::int32_t begin,
                              std::int32_t end) {
        for (std::int32_t x = begin; x < end; ++x) {
            to[x] = glareTaps(from[x - 1], from[x], from[x + 1], bits);
        }
    };
    const auto edge = [src, bits](std::int32_t x, std::int32_t y) {
        const auto at = [&](std::int32_t column) { return IMG_getPixel(src, column, y); };
        return glareTaps(at(x - 1), at(x), at(x + 1), bits);
    };
    filterRows(src, dst, 1, inner, edge);
}

void IMGFX_addPixel(IMG* img, std::int32_t x, std::int32_t y, std::uint32_t colour) {
    if (img == nullptr || img->pixels == nullptr) {
        // IMGFX_addPixelReportsAsImg: one expects this module's reporter; a missing image is the image
        // module's affair.
        IMG_error();
        return;
    }
    if (x < 0 || y < 0 || x >= img->width || y >= img->height) {
        return;
    }
    std::uint32_t& pixel = img->pixels[x + std::int64_t{y} * img->width];
    pixel = RGB888_add(pixel, colour);
}

void IMGFX_error() {
    reportLine(IMGFX_verbose, "IMGFX error");
}

} // namespace velm
