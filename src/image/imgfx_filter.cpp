// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The filters of IMGFX: every pixel of one image is made of a pixel of another and of its neighbours.
#include "foundation/report.h"
#include "image/channel_mean.h"
#include "image/clip.h"
#include "image/img.h"
#include "image/imgfx.h"
#include "image/pixel_bytes.h"
#include "image/wide_filters.h"

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
        std::copy_n(img.pixels + (y * img.width + first + begin), end - begin, to.data() + begin);
    }
    std::fill_n(to.data() + end, size - end, 0);
}

/// Calls filter(y, destination row, pixels) for the rows and pixels that src and dst share.
template <typename Filter>
void filterRows(const IMG& src, IMG& dst, Filter filter) {
    const std::int32_t width = std::min(src.width, dst.width);
    for (std::int64_t y = 0; y < std::min(src.height, dst.height); ++y) {
        filter(y, dst.pixels + y * dst.width, width);
    }
}

constexpr std::int64_t filterBlock = 256; ///< pixels that are filtered at a time

/// Calls filter(x, y, destination pixels, count) for every block of the same rows.
template <typename Filter>
void filterBlocks(const IMG& src, IMG& dst, Filter filter) {
    filterRows(src, dst, [&filter](std::int64_t y, std::uint32_t* to, std::int64_t width) {
        for (std::int64_t x = 0; x < width; x += filterBlock) {
            filter(x, y, to + x, std::min(filterBlock, width - x));
        }
    });
}

/// A copy of a block and of `reach` pixels on either side of it. To read the image itself would take longer:
/// a store that lies a whole page away from a load holds it up.
template <std::int64_t reach>
struct Around {
    std::uint32_t pixels[filterBlock + reach + reach];
    std::int64_t size;

    Around(const IMG& img, std::int64_t x, std::int64_t y, std::int64_t count) : size(count + reach + reach) {
        readRow(img, x - reach, y, std::span(pixels, static_cast<std::size_t>(size)));
    }

    void shiftDown(std::uint32_t bits) {
        std::transform(pixels, pixels + size, pixels,
                       [bits, kept = keptBits(bits)](std::uint32_t pixel) { return (pixel >> bits) & kept; });
    }
};

/// Stores tap(at) in every pixel that src and dst share. at(dx) is the pixel of src that far away in the row,
/// black outside.
template <std::int64_t reach, typename Tap>
void filterPixels(const IMG& src, IMG& dst, Tap tap) {
    filterBlocks(src, dst,
                 [&src, tap](std::int64_t x, std::int64_t y, std::uint32_t* to, std::int64_t count) {
                     const Around<reach> around(src, x, y, count);
                     for (std::int64_t i = 0; i < count; ++i) {
                         to[i] = tap([&around, i](std::int64_t dx) { return around.pixels[reach + i + dx]; });
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

/// ChannelMean for more channels. A float still has their sums exactly. Half a unit on top keeps the
/// quotient, at most 255, off the whole numbers by more than its rounding.
struct WideMean {
    float reciprocal;

    explicit WideMean(std::int32_t count) : reciprocal(1.0F / static_cast<float>(count)) {}

    std::int32_t operator()(std::uint32_t sum) const {
        const auto whole = static_cast<float>(static_cast<std::int32_t>(sum));
        return static_cast<std::int32_t>((whole + 0.5F) * reciprocal);
    }
};

template <typename Lane, typename Mean>
void storeMeans(const Sums<Lane>& sums, Mean mean, std::uint32_t* to, std::int64_t count) {
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
template <typename Lane, typename Mean>
auto meansOf(const IMG& src, std::int32_t radius) {
    return [&src, radius](std::int64_t y, std::uint32_t* to, std::int64_t width) {
        const Mean mean(2 * radius + 1);
        SlidingSums<Lane> sliding{src, y, radius};
        Sums<Lane> sums{};
        std::int64_t count = 0;
        for (std::int64_t x = -radius; x < width; x += count) {
            count = std::min<std::int64_t>(filterBlock, (x < 0 ? 0 : width) - x);
            sliding.slide(x, count, sums);
            if (x >= 0) {
                storeMeans(sums, mean, to + x, count);
            }
        }
    };
}

} // namespace

void IMGFX_blur(const IMG* src, IMG* dst) {
    if (!canFilter(src, dst) || wideBlur(*src, *dst)) {
        return;
    }
    // IMGFX_blurDarkensEdges: one expects the edge pixels to repeat outside; what lies there counts as black,
    // and the demo's blurred frames have dark sides.
    filterPixels<2>(*src, *dst, [](auto at) {
        return eighthOf([&](std::uint32_t bytes) {
            return (at(-2) & bytes) + (at(-1) & bytes) + 4 * (at(0) & bytes) + (at(1) & bytes) +
                   (at(2) & bytes);
        });
    });
}

void IMGFX_blur7(const IMG* src, IMG* dst) {
    if (!canFilter(src, dst) || wideBlur7(*src, *dst)) {
        return;
    }
    filterPixels<3>(*src, *dst, [](auto at) {
        return eighthOf([&](std::uint32_t bytes) {
            return (at(-3) & bytes) + (at(-2) & bytes) + (at(-1) & bytes) + 2 * (at(0) & bytes) +
                   (at(1) & bytes) + (at(2) & bytes) + (at(3) & bytes);
        });
    });
}

void IMGFX_blurRadius(const IMG* src, IMG* dst, std::int32_t radius) {
    if (refused(radius < 0 || radius > IMGFX_largestRadius, IMGFX_error) || !canFilter(src, dst) ||
        wideBlurRadius(*src, *dst, radius)) {
        return;
    }
    if (2 * radius < ChannelMean::mostChannels) {
        filterRows(*src, *dst, meansOf<std::uint16_t, ChannelMean>(*src, radius));
    } else {
        filterRows(*src, *dst, meansOf<std::uint32_t, WideMean>(*src, radius));
    }
}

void IMGFX_glare(const IMG* src, IMG* dst, std::int32_t shift) {
    const std::uint32_t bits = static_cast<std::uint32_t>(shift) & 31U;
    if (!canFilter(src, dst) || wideGlare(*src, *dst, bits)) {
        return;
    }
    filterBlocks(*src, *dst, [=](std::int64_t x, std::int64_t y, std::uint32_t* to, std::int64_t count) {
        Around<1> row(*src, x, y, count);
        std::copy_n(row.pixels + 1, count, to);
        row.shiftDown(bits);
        addBytes(row.pixels, to, count);
        addBytes(row.pixels + 2, to, count);
    });
}

void IMGFX_glare8(const IMG* src, IMG* dst, std::int32_t shift) {
    const std::uint32_t bits = static_cast<std::uint32_t>(shift) & 31U;
    if (!canFilter(src, dst) || wideGlare8(*src, *dst, bits)) {
        return;
    }
    filterBlocks(*src, *dst, [=](std::int64_t x, std::int64_t y, std::uint32_t* to, std::int64_t count) {
        Around<1> above(*src, x, y - 1, count);
        Around<1> row(*src, x, y, count);
        Around<1> below(*src, x, y + 1, count);
        std::copy_n(row.pixels + 1, count, to);
        above.shiftDown(bits);
        row.shiftDown(bits);
        below.shiftDown(bits);
        addBytes(above.pixels + 1, to, count);
        addBytes(below.pixels + 1, to, count);
        // The columns on both sides.
        addBytes(above.pixels, row.pixels, row.size);
        addBytes(below.pixels, row.pixels, row.size);
        addBytes(row.pixels, to, count);
        addBytes(row.pixels + 2, to, count);
    });
}

} // namespace velm
