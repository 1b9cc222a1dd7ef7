// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The filters of IMGFX: every pixel of one image is made of a pixel of another and of its neighbours.
#include "foundation/report.h"
#include "foundation/wide.h"
#include "image/clip.h"
#include "image/img.h"
#include "image/imgfx.h"
#include "image/pixel_bytes.h"

#include <algorithm>
#include <array>
#include <span>

namespace velm {

namespace {

constexpr std::uint32_t redBlueLanes = 0xFF00FF;
constexpr std::uint32_t greenLane = 0x00FF00;
constexpr std::uint32_t evenBytes = 0xFF00FF00; // green and what lies above red
constexpr std::uint32_t allBytes = 0xFFFFFFFF;

/// True when `src` can be filtered into `dst`; else it reports.
bool canFilter(const IMG* src, const IMG* dst) {
    return !refused(!canBlit(src, dst) || src == dst || src->pixels == dst->pixels, IMGFX_error);
}

/// The pixels from `first` on of row y; what lies outside the image is black. Not a part of every loop that
/// calls it, which are many: it copies, as memcpy does.
[[gnu::noinline]] void readRow(const IMG& img, std::int64_t first, std::int64_t y,
                               std::span<std::uint32_t> to) {
    const auto size = static_cast<std::int64_t>(to.size());
    const bool hasRow = y >= 0 && y < img.height;
    const std::int64_t begin = hasRow ? std::clamp<std::int64_t>(-first, 0, size) : size;
    const std::int64_t end = std::clamp<std::int64_t>(img.width - first, begin, size);
    std::fill_n(to.data(), begin, 0);
    if (begin < end) {
        std::copy_n(img.pixels + y * img.width + first + begin, end - begin, to.data() + begin);
    }
    std::fill_n(to.data() + end, size - end, 0);
}

constexpr std::int64_t filterBlock = 256; ///< pixels that are filtered at a time

/// Calls filter(y, destination row, pixels) for the rows and pixels that src and dst share, or reports.
template <typename Filter>
void filterRowsPlainly(const IMG* src, IMG* dst, Filter filter) {
    if (!canFilter(src, dst)) {
        return;
    }
    const std::int32_t width = std::min(src->width, dst->width);
    for (std::int64_t y = 0; y < std::min(src->height, dst->height); ++y) {
        filter(y, dst->pixels + y * dst->width, width);
    }
}

/// The same on wide registers, where there are some.
template <typename Filter>
void filterRows(const IMG* src, IMG* dst, Filter filter) {
    runWide([=] { filterRowsPlainly(src, dst, filter); });
}

/// Asks for the memory of the block after x, so that it is there when its turn comes.
void expectBlock(const std::uint32_t* row, std::int64_t x, std::int64_t width) {
    constexpr std::int64_t cacheLine = 16; // pixels
    for (std::int64_t i = x + filterBlock; i < std::min(x + 2 * filterBlock, width); i += cacheLine) {
        __builtin_prefetch(row + i);
    }
}

/// Stores tap(at) in every pixel that src and dst share, or reports. at(dx, dy) is the source pixel that far
/// away, black outside. What is read is a copy of a block and of the pixels around it: a store that lies a
/// whole page away from a load would hold it up.
template <std::int32_t reachX, std::int32_t reachY, typename Tap>
void filterPixels(const IMG* src, IMG* dst, Tap tap) {
    filterRows(src, dst, [=](std::int64_t y, std::uint32_t* to, std::int64_t width) {
        std::uint32_t around[2 * reachY + 1][filterBlock + reachX + reachX];
        for (std::int64_t x = 0; x < width; x += filterBlock) {
            const std::int64_t count = std::min<std::int64_t>(filterBlock, width - x);
            expectBlock(src->pixels + y * src->width, x, width);
            expectBlock(to, x, width);
            for (std::int32_t dy = -reachY; dy <= reachY; ++dy) {
                readRow(*src, x - reachX, y + dy,
                        std::span(around[reachY + dy], static_cast<std::size_t>(count + reachX + reachX)));
            }
            for (std::int64_t i = 0; i < count; ++i) {
                to[x + i] = tap([&around, i](std::int32_t dx, std::int32_t dy) {
                    return around[reachY + dy][reachX + i + dx];
                });
            }
        }
    });
}

/// sum(bytes of the pixels) >> 3 per channel, at most eight pixels. A sum of every other byte has room: 11
/// bits of 16. Taken from the sum of all bytes it leaves that of red and blue, however far the carries went.
template <typename Sum>
std::uint32_t eighthOf(Sum sum) {
    const std::uint32_t green = sum(evenBytes);
    const std::uint32_t redBlue = sum(allBytes) - green;
    return ((redBlue >> 3) & redBlueLanes) | ((green >> 3) & greenLane);
}

/// What a shifted neighbour keeps: only the bits that its own channel shifted down.
constexpr std::uint32_t keptBits(std::uint32_t shift) {
    return (0xFFU >> shift) * 0x010101U;
}

/// The channels of `count` pixels from `first` on of row y: the image's own, or those of `copy` where some
/// lie outside.
const std::uint8_t* channelsAt(const IMG& img, std::int64_t first, std::int64_t y, std::int64_t count,
                               std::span<std::uint32_t> copy) {
    if (first >= 0 && first + count <= img.width) {
        return reinterpret_cast<const std::uint8_t*>(img.pixels + y * img.width + first);
    }
    readRow(img, first, y, copy.first(static_cast<std::size_t>(count)));
    return reinterpret_cast<const std::uint8_t*>(copy.data());
}

/// Sums of a block, channel by channel. A lane is as wide as the largest of them.
template <typename Lane>
using Sums = std::array<Lane, filterBlock * pixelBytes>;

/// The sums of the pixels of a row that are at most `reach` away, channel by channel, as they slide along it:
/// each is the one before, plus what comes in, less what goes. They begin at -reach, where all is black yet.
template <typename Lane>
struct SlidingSums {
    const IMG& img;
    std::int64_t y, reach;
    std::array<Lane, pixelBytes> sum{};

    /// The sums of `count` pixels from x on, where those before ended.
    void slide(std::int64_t x, std::int64_t count, Sums<Lane>& sums) {
        std::uint32_t copies[2][filterBlock];
        const std::uint8_t* const entering = channelsAt(img, x + reach, y, count, copies[0]);
        const std::uint8_t* const leaving = channelsAt(img, x - reach - 1, y, count, copies[1]);
        Lane* const to = sums.data();
        for (std::int64_t k = 0; k < count * pixelBytes; ++k) {
            to[k] = static_cast<Lane>(entering[k] - leaving[k]);
        }
        addUp(to, count);
    }

    /// Puts the sums of all so far in place of what changes from pixel to pixel.
    void addUp(Lane* changes, std::int64_t count) {
        std::array<Lane, pixelBytes> running = sum;
#pragma GCC unroll 8
        for (std::int64_t i = 0; i < count; ++i) {
            for (std::size_t c = 0; c < pixelBytes; ++c) {
                running[c] = static_cast<Lane>(running[c] + changes[c]);
                changes[c] = running[c];
            }
            changes += pixelBytes;
        }
        sum = running;
    }
};

/// Divides the sums of so many taps by their number.
template <typename Lane>
struct Mean;

/// The reciprocal is cut, so that its product with a sum gives the quotient or one less, which the remainder
/// tells.
template <>
struct Mean<std::uint16_t> {
    std::uint16_t taps, reciprocal;

    explicit Mean(std::int32_t count)
        : taps(static_cast<std::uint16_t>(count)), reciprocal(static_cast<std::uint16_t>(0xFFFF / count)) {}

    std::uint16_t operator()(std::uint16_t sum) const {
        const auto below = static_cast<std::uint16_t>(std::uint32_t{sum} * reciprocal >> 16);
        const auto rest = static_cast<std::uint16_t>(sum - below * taps);
        return static_cast<std::uint16_t>(below + (rest >= taps ? 1 : 0));
    }
};

/// A float still has the wider sums exactly. Half a unit on top keeps the quotient, at most 255, off the
/// whole numbers by more than its rounding.
template <>
struct Mean<std::uint32_t> {
    float reciprocal;

    explicit Mean(std::int32_t count) : reciprocal(1.0F / static_cast<float>(count)) {}

    std::int32_t operator()(std::uint32_t sum) const {
        const auto whole = static_cast<float>(static_cast<std::int32_t>(sum));
        return static_cast<std::int32_t>((whole + 0.5F) * reciprocal);
    }
};

template <typename Lane>
void storeMeans(const Sums<Lane>& sums, Mean<Lane> mean, std::uint32_t* to, std::int64_t count) {
    auto* const bytes = reinterpret_cast<std::uint8_t*>(to);
    forEachBlock(count, [&sums, bytes, mean](std::int64_t first, std::int64_t size) {
        for (std::int64_t k = 0; k < size; ++k) {
            const auto at = static_cast<std::size_t>(k);
            const auto channel = mean(sums[static_cast<std::size_t>(first) + at]);
            bytes[first + k] = static_cast<std::uint8_t>(channel) & keptBytes[at];
        }
    });
}

/// The filter that stores the means of 2 * radius + 1 pixels of a row.
template <typename Lane>
auto meansOf(const IMG* src, std::int32_t radius) {
    return [=](std::int64_t y, std::uint32_t* to, std::int64_t width) {
        const Mean<Lane> mean(2 * radius + 1);
        SlidingSums<Lane> sliding{*src, y, radius};
        std::int64_t count = 0;
        for (std::int64_t x = -radius; x < width; x += count) {
            count = std::min<std::int64_t>(filterBlock, (x < 0 ? 0 : width) - x);
            Sums<Lane> sums;
            sliding.slide(x, count, sums);
            if (x >= 0) {
                expectBlock(src->pixels + y * src->width, x, width);
                expectBlock(to, x, width);
                storeMeans(sums, mean, to + x, count);
            }
        }
    };
}

} // namespace

void IMGFX_blur(const IMG* src, IMG* dst) {
    // IMGFX_blurDarkensEdges: one expects the edge pixels to repeat outside; what lies there counts as black,
    // and the demo's blurred frames have dark sides.
    filterPixels<2, 0>(src, dst, [](auto at) {
        return eighthOf([&](std::uint32_t bytes) {
            return (at(-2, 0) & bytes) + (at(-1, 0) & bytes) + 4 * (at(0, 0) & bytes) + (at(1, 0) & bytes) +
                   (at(2, 0) & bytes);
        });
    });
}

void IMGFX_blur7(const IMG* src, IMG* dst) {
    filterPixels<3, 0>(src, dst, [](auto at) {
        return eighthOf([&](std::uint32_t bytes) {
            return (at(-3, 0) & bytes) + (at(-2, 0) & bytes) + (at(-1, 0) & bytes) + 2 * (at(0, 0) & bytes) +
                   (at(1, 0) & bytes) + (at(2, 0) & bytes) + (at(3, 0) & bytes);
        });
    });
}

void IMGFX_blurRadius(const IMG* src, IMG* dst, std::int32_t radius) {
    if (refused(radius < 0 || radius > IMGFX_largestRadius, IMGFX_error)) {
        return;
    }
    constexpr std::int32_t mostOf16Bits = 128; // 257 taps of 255
    if (radius <= mostOf16Bits) {
        filterRows(src, dst, meansOf<std::uint16_t>(src, radius));
    } else {
        filterRowsPlainly(src, dst, meansOf<std::uint32_t>(src, radius)); // hardly worth another loop
    }
}

void IMGFX_glare(const IMG* src, IMG* dst, std::int32_t shift) {
    const std::uint32_t bits = static_cast<std::uint32_t>(shift) & 31U;
    const auto dimmed = [bits, kept = keptBits(bits)](std::uint32_t pixel) { return (pixel >> bits) & kept; };
    filterRows(src, dst, [=](std::int64_t y, std::uint32_t* to, std::int64_t width) {
        const std::uint32_t* const from = src->pixels + y * src->width;
        for (std::int64_t x = 0; x < width; x += filterBlock) {
            const std::int64_t count = std::min<std::int64_t>(filterBlock, width - x);
            std::uint32_t around[filterBlock + 2]; // from the pixel on the left of the block on
            around[0] = x > 0 ? dimmed(from[x - 1]) : 0;
            for (std::int64_t i = 0; i < count; ++i) {
                around[i + 1] = dimmed(from[x + i]);
                to[x + i] = from[x + i];
            }
            around[count + 1] = x + count < src->width ? dimmed(from[x + count]) : 0;
            addBytes(around, to + x, count);
            addBytes(around + 2, to + x, count);
        }
    });
}

void IMGFX_glare8(const IMG* src, IMG* dst, std::int32_t shift) {
    const std::uint32_t bits = static_cast<std::uint32_t>(shift) & 31U;
    filterPixels<1, 1>(src, dst, [bits, kept = keptBits(bits)](auto at) {
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
