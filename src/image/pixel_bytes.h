// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What saturates is quickest byte by byte, many at a time: the rules for one channel, and the loops that
// apply them to rows of pixels. The result's top bytes are 0, as everywhere.
//
//     addBytes(from, to, width);               // to[i] = RGB888_add(from[i], to[i])
//     combineBytes(colour, to, width, byteSum); // to[i] = RGB888_add(colour, to[i])
#pragma once

#include "foundation/wide.h"

#include <algorithm>
#include <array>
#include <cstdint>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace velm {

/// What a pixel keeps that is shifted down by 0..31: only the bits of its own channel.
constexpr std::uint32_t keptBits(std::uint32_t shift) {
    return (0xFFU >> shift) * 0x010101U;
}

// Each rule has a type of its own, so that the compiler makes it a part of the loop that calls it.

/// min(255, a + b): as much of b as a leaves room for.
inline constexpr auto byteSum = [](std::uint8_t a, std::uint8_t b) {
    const auto room = static_cast<std::uint8_t>(~a);
    return static_cast<std::uint8_t>(a + (b < room ? b : room));
};

/// max(0, b - a): b without as much of a as it has.
inline constexpr auto byteRest = [](std::uint8_t a, std::uint8_t b) {
    return static_cast<std::uint8_t>(b - (a < b ? a : b));
};

/// So many pixels are taken at a time: a loop of a known length, over which the top bytes' mask repeats.
inline constexpr std::int64_t pixelBlock = 64;
inline constexpr std::int64_t pixelBytes = sizeof(std::uint32_t);
using PixelBlock = std::array<std::uint8_t, pixelBlock * pixelBytes>;

/// The bytes of a block of one colour.
constexpr PixelBlock blockOf(std::uint32_t colour) {
    std::array<std::uint32_t, pixelBlock> pixels{};
    pixels.fill(colour);
    return __builtin_bit_cast(PixelBlock, pixels); // emscripten's library has no std::bit_cast yet
}

inline constexpr PixelBlock keptBytes = blockOf(0xFFFFFF); ///< all but the top ones

/// Calls change(first byte, count) for the bytes of `pixels` pixels, a block at a time and then the rest.
template <typename Change>
void forEachBlock(std::int64_t pixels, Change change) {
    constexpr std::int64_t blockBytes = pixelBlock * pixelBytes;
    const std::int64_t whole = pixels / pixelBlock * blockBytes;
    for (std::int64_t first = 0; first < whole; first += blockBytes) {
        change(first, blockBytes);
    }
    change(whole, pixels * pixelBytes - whole);
}

/// to[i] = rule(from[i], to[i]) for each channel of `count` pixels, in order: the two may overlap.
template <typename Rule>
void combineBytes(const std::uint32_t* from, std::uint32_t* to, std::int64_t count, Rule rule) {
    const auto* const a = reinterpret_cast<const std::uint8_t*>(from);
    auto* const b = reinterpret_cast<std::uint8_t*>(to);
    forEachBlock(count, [=](std::int64_t first, std::int64_t bytes) {
        for (std::int64_t k = 0; k < bytes; ++k) {
            b[first + k] = rule(a[first + k], b[first + k]) & keptBytes[static_cast<std::size_t>(k)];
        }
    });
}

#if defined(__x86_64__)

/// addBytes for the whole blocks of 16 pixels on registers of 256 bits, and how many pixels those were. The
/// processor saturates in one instruction, for which g++ takes three.
[[gnu::target("avx2")]] inline std::int64_t addWholeBlocks(const std::uint32_t* from, std::uint32_t* to,
                                                           std::int64_t count) {
    constexpr std::int64_t block = 16;
    constexpr std::int64_t inRegister = 8;
    const __m256i kept = _mm256_set1_epi32(0xFFFFFF);
    const std::int64_t whole = count - count % block;
    for (std::int64_t first = 0; first < whole; first += block) {
        for (std::int64_t i = first; i < first + block; i += inRegister) {
            const __m256i a = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(from + i));
            auto* const b = reinterpret_cast<__m256i*>(to + i);
            _mm256_storeu_si256(b, _mm256_and_si256(_mm256_adds_epu8(a, _mm256_loadu_si256(b)), kept));
        }
    }
    return whole;
}

#else

inline std::int64_t addWholeBlocks(const std::uint32_t*, std::uint32_t*, std::int64_t) {
    return 0;
}

#endif

/// combineBytes(from, to, count, byteSum), once for all who need it.
[[gnu::noinline]] inline void addPlainly(const std::uint32_t* from, std::uint32_t* to, std::int64_t count) {
    combineBytes(from, to, count, byteSum);
}

/// The same, quicker where the processor can and no write changes what is read later.
inline void addBytes(const std::uint32_t* from, std::uint32_t* to, std::int64_t count) {
    const bool readsItsOwn = from < to && to < from + count;
    const std::int64_t done = wideRegisters && !readsItsOwn ? addWholeBlocks(from, to, count) : 0;
    if (done < count) {
        addPlainly(from + done, to + done, count - done);
    }
}

/// to[i] = rule(colour, to[i]) for each channel of `count` pixels.
template <typename Rule>
void combineBytes(std::uint32_t colour, std::uint32_t* to, std::int64_t count, Rule rule) {
    const PixelBlock a = blockOf(colour);
    auto* const b = reinterpret_cast<std::uint8_t*>(to);
    forEachBlock(count, [&a, b, rule](std::int64_t first, std::int64_t bytes) {
        for (std::int64_t k = 0; k < bytes; ++k) {
            const auto at = static_cast<std::size_t>(k);
            b[first + k] = rule(a[at], b[first + k]) & keptBytes[at];
        }
    });
}

} // namespace velm
