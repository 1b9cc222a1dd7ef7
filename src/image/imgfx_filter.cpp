// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The filters of IMGFX: every pixel of one image is made of a pixel of another and of its neighbours.
#include "image/clip.h"
#include "image/img.h"
#include "image/imgfx.h"
#include "image/rgb888.h"

#include <algorithm>

namespace velm {

namespace {

constexpr std::uint32_t redBlueLanes = 0xFF00FF;
constexpr std::uint32_t greenLane = 0x00FF00;

/// True when `src` can be filtered into `dst`; else it reports.
bool canFilter(const IMG* src, const IMG* dst) {
    if (!canBlit(src, dst) || src == dst || src->pixels == dst->pixels) {
        IMGFX_error();
        return false;
    }
    return true;
}

/// Stores tap(at) in every pixel that src and dst share, or reports. at(dx, dy) is the source pixel that far
/// away, black outside. Where no tap can fall outside, `at` is a plain read.
template <typename Tap>
void filterPixels(const IMG* src, IMG* dst, std::int32_t reachX, std::int32_t reachY, Tap tap) {
    if (!canFilter(src, dst)) {
        return;
    }
    const std::int64_t stride = src->width;
    const std::int32_t height = std::min(src->height, dst->height);
    const std::int32_t width = std::min(src->width, dst->width);
    for (std::int32_t y = 0; y < height; ++y) {
        const bool inside = y >= reachY && y < src->height - reachY;
        const std::int32_t innerBegin = inside ? std::min(reachX, width) : width;
        const std::int32_t innerEnd = std::max(innerBegin, std::min(width, src->width - reachX));
        std::uint32_t* const to = dst->pixels + std::int64_t{y} * dst->width;
        const auto atEdge = [&](std::int32_t x) {
            return tap([=](std::int32_t dx, std::int32_t dy) { return IMG_getPixel(src, x + dx, y + dy); });
        };
        for (std::int32_t x = 0; x < innerBegin; ++x) {
            to[x] = atEdge(x);
        }
        const std::uint32_t* const from = src->pixels + y * stride;
        for (std::int32_t x = innerBegin; x < innerEnd; ++x) {
            to[x] = tap([=](std::int32_t dx, std::int32_t dy) { return from[x + dx + dy * stride]; });
        }
        for (std::int32_t x = innerEnd; x < width; ++x) {
            to[x] = atEdge(x);
        }
    }
}

/// sum(lanes) >> 3 per channel. Red and blue share a word: a sum of eight channels needs 11 bits of the 16
/// that each has.
template <typename Sum>
std::uint32_t eighthOf(Sum sum) {
    return ((sum(redBlueLanes) >> 3) & redBlueLanes) | ((sum(greenLane) >> 3) & greenLane);
}

/// What a shifted neighbour keeps: only the bits that its own channel shifted down.
constexpr std::uint32_t keptBits(std::uint32_t shift) {
    return (0xFFU >> shift) * 0x010101U;
}

/// The three channels of a pixel 21 bits apart, so that 2^13 of them can be added up.
constexpr std::uint64_t spread(std::uint32_t pixel) {
    return (std::uint64_t{pixel & 0xFF0000U} << 26) | (std::uint64_t{pixel & 0x00FF00U} << 13) |
           (pixel & 0x0000FFU);
}

} // namespace

void IMGFX_blur(const IMG* src, IMG* dst) {
    // IMGFX_blurDarkensEdges: one expects the edge pixels to repeat outside; what lies there counts as black,
    // and the demo's blurred frames have dark sides.
    filterPixels(src, dst, 2, 0, [](auto at) {
        return eighthOf([&](std::uint32_t lanes) {
            return (at(-2, 0) & lanes) + (at(-1, 0) & lanes) + 4 * (at(0, 0) & lanes) + (at(1, 0) & lanes) +
                   (at(2, 0) & lanes);
        });
    });
}

void IMGFX_blur7(const IMG* src, IMG* dst) {
    filterPixels(src, dst, 3, 0, [](auto at) {
        return eighthOf([&](std::uint32_t lanes) {
            return (at(-3, 0) & lanes) + (at(-2, 0) & lanes) + (at(-1, 0) & lanes) + 2 * (at(0, 0) & lanes) +
                   (at(1, 0) & lanes) + (at(2, 0) & lanes) + (at(3, 0) & lanes);
        });
    });
}

void IMGFX_blurRadius(const IMG* src, IMG* dst, std::int32_t radius) {
    if (radius < 0 || radius > IMGFX_largestRadius) {
        IMGFX_error();
        return;
    }
    if (!canFilter(src, dst)) {
        return;
    }
    // sum / taps as a multiplication by the reciprocal, rounded up in 32 fraction bits: exact, because
    // sum * taps stays below 2^32.
    const std::uint64_t taps = 2 * static_cast<std::uint64_t>(radius) + 1;
    const std::uint64_t reciprocal = ((std::uint64_t{1} << 32) + taps - 1) / taps;
    const auto mean = [reciprocal](std::uint64_t sums, std::uint32_t lane) {
        return static_cast<std::uint32_t>((((sums >> lane) & 0x1FFFFF) * reciprocal) >> 32);
    };
    const std::int32_t width = std::min(src->width, dst->width);
    for (std::int32_t y = 0; y < std::min(src->height, dst->height); ++y) {
        const std::uint32_t* const from = src->pixels + std::int64_t{y} * src->width;
        std::uint32_t* const to = dst->pixels + std::int64_t{y} * dst->width;
        std::uint64_t sums = 0;
        for (std::int32_t x = 0; x < std::min(radius, src->width); ++x) {
            sums += spread(from[x]);
        }
        for (std::int32_t x = 0; x < width; ++x) {
            sums += x + radius < src->width ? spread(from[x + radius]) : 0;
            to[x] = mean(sums, 42) << 16 | mean(sums, 21) << 8 | mean(sums, 0);
            sums -= x >= radius ? spread(from[x - radius]) : 0;
        }
    }
}

void IMGFX_glare(const IMG* src, IMG* dst, std::int32_t shift) {
    const std::uint32_t bits = static_cast<std::uint32_t>(shift) & 31U;
    filterPixels(src, dst, 1, 0, [bits, kept = keptBits(bits)](auto at) {
        const std::uint32_t left = RGB888_add(at(0, 0), (at(-1, 0) >> bits) & kept);
        return RGB888_add(left, (at(1, 0) >> bits) & kept);
    });
}

void IMGFX_glare8(const IMG* src, IMG* dst, std::int32_t shift) {
    const std::uint32_t bits = static_cast<std::uint32_t>(shift) & 31U;
    filterPixels(src, dst, 1, 1, [bits, kept = keptBits(bits)](auto at) {
        // Nine channels need 12 bits of the 16 that each has.
        std::uint32_t redBlue = at(0, 0) & redBlueLanes;
        std::uint32_t green = at(0, 0) & greenLane;
        const auto add = [&](std::uint32_t neighbour) {
            redBlue += (neighbour >> bits) & kept & redBlueLanes;
            green += (neighbour >> bits) & kept & greenLane;
        };
        add(at(-1, -1)), add(at(0, -1)), add(at(1, -1)), add(at(-1, 0));
        add(at(1, 0)), add(at(-1, 1)), add(at(0, 1)), add(at(1, 1));
        return std::min(redBlue & 0xFFFF0000U, 0xFF0000U) | std::min(green, greenLane) |
               std::min(redBlue & 0xFFFFU, 0xFFU);
    });
}

} // namespace velm
