// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Copies to memory that somebody else reads, another process or a device, and copies too large for the
// caches. Where the processor can, they go past its caches: what stood there is not fetched before it is
// written over, and nothing that this process needs again is pushed out. Also asks for memory early.
//
//     streamCopy(row, pixels, bytes);
//     streamEnd();                          // before the other one is told
//
//     copyApart(img.pixels, other, count); // streams when that is quicker
//
//     expectAfter(row + x);                 // what comes a little later is fetched by then
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace velm {

/// Asks for the memory that comes soon after this, so that it is there when its turn comes. There need not
/// be any.
inline void expectAfter(const void* memory) {
    constexpr std::uintptr_t soon = 1024; // bytes
    __builtin_prefetch(reinterpret_cast<const void*>(reinterpret_cast<std::uintptr_t>(memory) + soon));
}

#if defined(__SSE2__)

/// Copies `count` bytes, which must not overlap.
inline void streamCopy(char* to, const char* from, std::size_t count) {
    constexpr std::size_t step = sizeof(__m128i);
    constexpr std::size_t lineBytes = 64; // of the caches
    const auto copyStep = [to, from](std::size_t i) {
        _mm_stream_si128(reinterpret_cast<__m128i*>(to + i),
                         _mm_loadu_si128(reinterpret_cast<const __m128i*>(from + i)));
    };
    std::size_t i = std::min(count, -reinterpret_cast<std::uintptr_t>(to) % step);
    std::memcpy(to, from, i);
    for (; i + lineBytes <= count; i += lineBytes) {
        expectAfter(from + i);
        for (std::size_t k = 0; k < lineBytes; k += step) {
            copyStep(i + k);
        }
    }
    for (; i + step <= count; i += step) {
        copyStep(i);
    }
    std::memcpy(to + i, from + i, count - i);
}

/// Ends copies: all that is written from here on is seen after them.
inline void streamEnd() {
    _mm_sfence();
}

#else

inline void streamCopy(char* to, const char* from, std::size_t count) {
    std::memcpy(to, from, count);
}

inline void streamEnd() {}

#endif

/// to[i] = from[i] for `count` elements of arrays that do not overlap.
template <typename Element>
void copyApart(const Element* from, Element* to, std::int64_t count) {
    constexpr std::size_t moreThanCaches = 4U << 20U;
    const std::size_t bytes = static_cast<std::size_t>(count) * sizeof(Element);
    if (bytes < moreThanCaches) {
        std::memcpy(to, from, bytes);
        return;
    }
    streamCopy(reinterpret_cast<char*>(to), reinterpret_cast<const char*>(from), bytes);
    streamEnd();
}

} // namespace velm
