// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Copies to memory that somebody else reads, another process or a device, and copies too large for the
// caches. Where the processor can, they go past its caches: what stood there is not fetched before it is
// written over, and nothing that this process needs again is pushed out.
//
//     streamCopy(row, pixels, bytes);
//     streamEnd();                          // before the other one is told
//
//     copyApart(img.pixels, other, count); // streams when that is quicker
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace velm {

#if defined(__SSE2__)

/// Copies `count` bytes, which must not overlap.
inline void streamCopy(char* to, const char* from, std::size_t count) {
    constexpr std::size_t step = sizeof(__m128i);
    const std::size_t before = std::min(count, -reinterpret_cast<std::uintptr_t>(to) % step);
    std::memcpy(to, from, before);
    std::size_t i = before;
    for (; i + step <= count; i += step) {
        _mm_stream_si128(reinterpret_cast<__m128i*>(to + i),
                         _mm_loadu_si128(reinterpret_cast<const __m128i*>(from + i)));
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
