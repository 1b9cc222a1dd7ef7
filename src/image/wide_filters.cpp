// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "image/wide_filters.h"

#include "foundation/stream.h"
#include "foundation/wide.h"
#include "image/channel_mean.h"
#include "image/img.h"
#include "image/pixel_bytes.h"

#include <algorithm>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace velm {

#if defined(__x86_64__)

namespace {

using Eight = __m256i; ///< eight pixels; their 32 bytes; or 16 numbers of 16 bits
constexpr std::int64_t eight = 8;

/// A row of an image; one of no width is black.
struct Row {
    const std::uint32_t* pixels;
    std::int64_t width;
};

Row sourceRow(const IMG& img, std::int64_t y) {
    const bool isInside = y >= 0 && y < img.height;
    return {img.pixels + (isInside ? y * img.width : 0), isInside ? img.width : 0};
}

/// All bits of the lanes whose number is less than `count`.
[[gnu::target("avx2")]] Eight firstLanes(std::int64_t count) {
    return _mm256_cmpgt_epi32(_mm256_set1_epi32(static_cast<std::int32_t>(count)),
                              _mm256_setr_epi32(0, 1, 2, 3, 4, 5, 6, 7));
}

/// As pixelsAt, where some of the pixels lie outside the row.
[[gnu::target("avx2"), gnu::noinline]] Eight edgePixels(Row row, std::int64_t x) {
    if (x <= -eight || x >= row.width) {
        return _mm256_setzero_si256();
    }
    const std::int64_t first = std::max<std::int64_t>(x, 0);
    const Eight mask = firstLanes(std::min(row.width - first, eight));
    const Eight pixels = _mm256_maskload_epi32(reinterpret_cast<const int*>(row.pixels + first), mask);
    const std::int64_t before = first - x;
    const Eight lanes = _mm256_add_epi32(_mm256_setr_epi32(0, 1, 2, 3, 4, 5, 6, 7),
                                         _mm256_set1_epi32(static_cast<std::int32_t>(-before)));
    return _mm256_andnot_si256(firstLanes(before), _mm256_permutevar8x32_epi32(pixels, lanes));
}

/// The pixels from x on, which lie in the row.
[[gnu::target("avx2")]] inline Eight wholeAt(Row row, std::int64_t x) {
    return _mm256_loadu_si256(reinterpret_cast<const Eight*>(row.pixels + x));
}

/// The pixels from x on; what lies outside the row is black.
[[gnu::target("avx2")]] inline Eight pixelsAt(Row row, std::int64_t x) {
    return x < 0 || x + eight > row.width ? edgePixels(row, x) : wholeAt(row, x);
}

/// Stores those of the pixels from x on that a row of such a width has.
[[gnu::target("avx2")]] inline void storePixels(std::uint32_t* row, std::int64_t x, std::int64_t width,
                                                Eight pixels) {
    if (x + eight > width) {
        _mm256_maskstore_epi32(reinterpret_cast<int*>(row + x), firstLanes(width - x), pixels);
        return;
    }
    _mm256_storeu_si256(reinterpret_cast<Eight*>(row + x), pixels);
}

/// The pixels that stand `distance` to the left of those `here`, 1 to 3.
template <std::int32_t distance>
[[gnu::target("avx2")]] inline Eight leftOf(Eight before, Eight here) {
    return _mm256_alignr_epi8(here, _mm256_permute2x128_si256(before, here, 0x21), 16 - 4 * distance);
}

/// And to the right.
template <std::int32_t distance>
[[gnu::target("avx2")]] inline Eight rightOf(Eight here, Eight after) {
    return _mm256_alignr_epi8(_mm256_permute2x128_si256(here, after, 0x21), here, 4 * distance);
}

/// The pixels without their top bytes.
[[gnu::target("avx2")]] inline Eight clean(Eight pixels) {
    return _mm256_and_si256(pixels, _mm256_set1_epi32(0xFFFFFF));
}

/// Stores taps(eight pixels before, eight here, eight after) along every row that src and dst share.
template <typename Taps>
[[gnu::target("avx2")]] void filterEights(const IMG& src, IMG& dst, Taps taps) {
    const std::int64_t width = std::min(src.width, dst.width);
    for (std::int64_t y = 0; y < std::min(src.height, dst.height); ++y) {
        const Row row = sourceRow(src, y);
        std::uint32_t* const to = dst.pixels + y * dst.width;
        Eight before = _mm256_setzero_si256();
        Eight here = pixelsAt(row, 0);
        for (std::int64_t x = 0; x < width; x += eight) {
            expectAfter(row.pixels + x);
            expectAfter(to + x);
            const Eight after = pixelsAt(row, x + eight);
            storePixels(to, x, width, taps(before, here, after));
            before = here;
            here = after;
        }
    }
}

/// The processor's mean of two bytes is rounded up. The mean of the neighbours' means and of the centre is
/// right where none of the four means was rounded, and one too much where any was.
struct BlurTaps {
    [[gnu::target("avx2")]] Eight operator()(Eight before, Eight here, Eight after) const {
        const Eight a = leftOf<2>(before, here);
        const Eight b = leftOf<1>(before, here);
        const Eight e = rightOf<1>(here, after);
        const Eight f = rightOf<2>(here, after);
        const Eight left = _mm256_avg_epu8(a, b);
        const Eight right = _mm256_avg_epu8(e, f);
        const Eight around = _mm256_avg_epu8(left, right);
        const Eight neighboursDiffer = _mm256_or_si256(_mm256_xor_si256(a, b), _mm256_xor_si256(e, f));
        const Eight meansDiffer =
            _mm256_or_si256(_mm256_xor_si256(left, right), _mm256_xor_si256(around, here));
        const Eight rounded =
            _mm256_and_si256(_mm256_or_si256(neighboursDiffer, meansDiffer), _mm256_set1_epi8(1));
        return clean(_mm256_sub_epi8(_mm256_avg_epu8(around, here), rounded));
    }
};

/// The channels of the taps are added two to a word of 32 bits, as the plain rule does.
struct Blur7Taps {
    [[gnu::target("avx2")]] Eight operator()(Eight before, Eight here, Eight after) const {
        const Eight neighbours[] = {leftOf<3>(before, here), leftOf<2>(before, here),
                                    leftOf<1>(before, here), rightOf<1>(here, after),
                                    rightOf<2>(here, after), rightOf<3>(here, after)};
        const Eight evenBytes = _mm256_set1_epi32(static_cast<std::int32_t>(0xFF00FF00));
        Eight sum = _mm256_slli_epi32(here, 1);
        Eight green = _mm256_slli_epi32(_mm256_and_si256(here, evenBytes), 1);
        for (const Eight neighbour : neighbours) {
            sum = _mm256_add_epi32(sum, neighbour);
            green = _mm256_add_epi32(green, _mm256_and_si256(neighbour, evenBytes));
        }
        const Eight redBlue = _mm256_srli_epi32(_mm256_sub_epi32(sum, green), 3);
        return _mm256_or_si256(_mm256_and_si256(redBlue, _mm256_set1_epi32(0xFF00FF)),
                               _mm256_and_si256(_mm256_srli_epi32(green, 3), _mm256_set1_epi32(0x00FF00)));
    }
};

/// Shifts every channel down.
struct Dimmer {
    __m128i bits;
    Eight kept;

    [[gnu::target("avx2")]] explicit Dimmer(std::uint32_t shift)
        : bits(_mm_cvtsi32_si128(static_cast<std::int32_t>(shift))),
          kept(_mm256_set1_epi32(static_cast<std::int32_t>(keptBits(shift)))) {}

    [[gnu::target("avx2")]] Eight operator()(Eight pixels) const {
        return _mm256_and_si256(_mm256_srl_epi32(pixels, bits), kept);
    }
};

struct GlareTaps {
    Dimmer dimmed;

    [[gnu::target("avx2")]] Eight operator()(Eight before, Eight here, Eight after) const {
        const Eight withLeft = _mm256_adds_epu8(here, dimmed(leftOf<1>(before, here)));
        return clean(_mm256_adds_epu8(withLeft, dimmed(rightOf<1>(here, after))));
    }
};

/// Eight pixels of a row, and those above and below them.
struct Columns {
    Eight bright; ///< the pixels, and what is above and below added dimmed
    Eight dim;    ///< the same, all three dimmed

    [[gnu::target("avx2")]] Columns(Row above, Row row, Row below, std::int64_t x, Dimmer dimmed) {
        const Eight pixels = pixelsAt(row, x);
        const Eight neighbours = _mm256_adds_epu8(dimmed(pixelsAt(above, x)), dimmed(pixelsAt(below, x)));
        bright = _mm256_adds_epu8(pixels, neighbours);
        dim = _mm256_adds_epu8(dimmed(pixels), neighbours);
    }
};

/// Sums of the channels of the pixels that are at most `reach` away, in 16 bits each, as they slide along a
/// row.
class WideSums {
public:
    /// They begin with `sum` in every channel, where all that they reach is black yet.
    [[gnu::target("avx2")]] WideSums(Row along, std::int64_t distance, std::uint16_t sum)
        : row(along), reach(distance), wholeBegins(static_cast<std::uint64_t>(
                                           std::max<std::int64_t>(along.width - 2 * distance - eight, 0))),
          last(_mm256_set1_epi16(static_cast<std::int16_t>(sum))) {}

    /// Of eight pixels: the first and second, fifth and sixth; the third and fourth, seventh and eighth.
    struct Eights {
        Eight first, second;
    };

    /// The sums of the pixels from x on, eight after those of the call before.
    [[gnu::target("avx2")]] Eights slideTo(std::int64_t x) {
        const std::int64_t begin = x - reach - 1;
        const std::int64_t end = x + reach;
        return static_cast<std::uint64_t>(begin) < wholeBegins
                   ? slide(wholeAt(row, end), wholeAt(row, begin))
                   : slide(pixelsAt(row, end), pixelsAt(row, begin));
    }

private:
    [[gnu::target("avx2")]] Eights slide(Eight entering, Eight leaving) {
        const Eight plusMinus = _mm256_set1_epi16(static_cast<std::int16_t>(0xFF01)); // bytes 1 and -1
        // What changes from pixel to pixel, and what has changed since the first of four pixels came.
        Eight first = _mm256_maddubs_epi16(_mm256_unpacklo_epi8(entering, leaving), plusMinus);
        Eight second = _mm256_maddubs_epi16(_mm256_unpackhi_epi8(entering, leaving), plusMinus);
        first = _mm256_add_epi16(first, _mm256_slli_si256(first, 8));
        second = _mm256_add_epi16(second, _mm256_slli_si256(second, 8));
        second = _mm256_add_epi16(second, _mm256_unpackhi_epi64(first, first));
        // The upper four go on where the lower four ended.
        const Eight ends = _mm256_unpackhi_epi64(second, second);
        const Eight onTop = _mm256_permute2x128_si256(ends, ends, 0x08);
        first = _mm256_add_epi16(first, onTop);
        second = _mm256_add_epi16(second, onTop);
        const Eights sums = {_mm256_add_epi16(first, last), _mm256_add_epi16(second, last)};
        last = _mm256_add_epi16(last, _mm256_permute4x64_epi64(second, 0xFF));
        return sums;
    }

    Row row;
    std::int64_t reach;
    std::uint64_t wholeBegins; ///< both ends lie in the row where what leaves begins at 0 up to here
    Eight last;                ///< the sum of the last pixel, four times
};

[[gnu::target("avx2")]] void blur(const IMG& src, IMG& dst) {
    filterEights(src, dst, BlurTaps());
}

[[gnu::target("avx2")]] void blur7(const IMG& src, IMG& dst) {
    filterEights(src, dst, Blur7Taps());
}

[[gnu::target("avx2")]] void blurRadius(const IMG& src, IMG& dst, std::int32_t radius) {
    const ChannelMean mean(2 * radius + 1);
    const __m128i shift = _mm_cvtsi32_si128(mean.shift);
    const Eight reciprocal = // nothing for the top bytes
        _mm256_and_si256(_mm256_set1_epi16(static_cast<std::int16_t>(mean.reciprocal)),
                         _mm256_set1_epi64x(0xFFFFFFFFFFFF));
    const std::int64_t width = std::min(src.width, dst.width);
    const std::int64_t begin = -(radius + eight - 1) / eight * eight; // all is black yet
    for (std::int64_t y = 0; y < std::min(src.height, dst.height); ++y) {
        std::uint32_t* const to = dst.pixels + y * dst.width;
        const Row row = sourceRow(src, y);
        WideSums sums(row, radius, mean.addend);
        for (std::int64_t x = begin; x < 0; x += eight) {
            sums.slideTo(x);
        }
        for (std::int64_t x = 0; x < width; x += eight) {
            expectAfter(row.pixels + x);
            expectAfter(to + x);
            const auto [first, second] = sums.slideTo(x);
            const Eight firstMeans = _mm256_srl_epi16(_mm256_mulhi_epu16(first, reciprocal), shift);
            const Eight secondMeans = _mm256_srl_epi16(_mm256_mulhi_epu16(second, reciprocal), shift);
            storePixels(to, x, width, _mm256_packus_epi16(firstMeans, secondMeans));
        }
    }
}

[[gnu::target("avx2")]] void glare(const IMG& src, IMG& dst, std::uint32_t bits) {
    filterEights(src, dst, GlareTaps{Dimmer(bits)});
}

[[gnu::target("avx2")]] void glare8(const IMG& src, IMG& dst, std::uint32_t bits) {
    const Dimmer dimmed(bits);
    const std::int64_t width = std::min(src.width, dst.width);
    for (std::int64_t y = 0; y < std::min(src.height, dst.height); ++y) {
        const Row above = sourceRow(src, y - 1);
        const Row row = sourceRow(src, y);
        const Row below = sourceRow(src, y + 1);
        std::uint32_t* const to = dst.pixels + y * dst.width;
        Eight before = _mm256_setzero_si256();
        Columns here(above, row, below, 0, dimmed);
        for (std::int64_t x = 0; x < width; x += eight) {
            expectAfter(below.pixels + x);
            expectAfter(to + x);
            const Columns after(above, row, below, x + eight, dimmed);
            const Eight sides =
                _mm256_adds_epu8(leftOf<1>(before, here.dim), rightOf<1>(here.dim, after.dim));
            storePixels(to, x, width, clean(_mm256_adds_epu8(here.bright, sides)));
            before = here.dim;
            here = after;
        }
    }
}

} // namespace

bool wideBlur(const IMG& src, IMG& dst) {
    return wideRegisters && (blur(src, dst), true);
}

bool wideBlur7(const IMG& src, IMG& dst) {
    return wideRegisters && (blur7(src, dst), true);
}

bool wideBlurRadius(const IMG& src, IMG& dst, std::int32_t radius) {
    return wideRegisters && 2 * radius < ChannelMean::mostChannels && (blurRadius(src, dst, radius), true);
}

bool wideGlare(const IMG& src, IMG& dst, std::uint32_t bits) {
    return wideRegisters && (glare(src, dst, bits), true);
}

bool wideGlare8(const IMG& src, IMG& dst, std::uint32_t bits) {
    return wideRegisters && (glare8(src, dst, bits), true);
}

#else

bool wideBlur(const IMG&, IMG&) {
    return false;
}

bool wideBlur7(const IMG&, IMG&) {
    return false;
}

bool wideBlurRadius(const IMG&, IMG&, std::int32_t) {
    return false;
}

bool wideGlare(const IMG&, IMG&, std::uint32_t) {
    return false;
}

bool wideGlare8(const IMG&, IMG&, std::uint32_t) {
    return false;
}

#endif

} // namespace velm
