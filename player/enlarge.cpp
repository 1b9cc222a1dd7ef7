// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "enlarge.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace velm {

namespace {

/// A pixel is moved as so many bytes; the compiler makes one word of them.
template <std::size_t bytes>
void spreadRow(const char* from, std::int32_t width, std::int32_t scale, char* to) {
    std::array<char, bytes> pixel;
    for (std::int32_t x = 0; x < width; ++x) {
        std::memcpy(pixel.data(), from, bytes);
        from += bytes;
        for (std::int32_t i = 0; i < scale; ++i) {
            std::memcpy(to, pixel.data(), bytes);
            to += bytes;
        }
    }
}

using SpreadRow = void (*)(const char*, std::int32_t, std::int32_t, char*);
constexpr SpreadRow spreads[] = {spreadRow<1>, spreadRow<2>, spreadRow<3>, spreadRow<4>};

} // namespace

void enlarge(Rows<const char> from, std::int32_t width, std::int32_t height, std::int32_t scale,
             Rows<char> to) {
    const SpreadRow spread = spreads[from.pixelBytes - 1];
    const auto rowBytes = static_cast<std::size_t>(width) * static_cast<std::size_t>(scale) *
                          static_cast<std::size_t>(to.pixelBytes);
    for (std::int32_t y = 0; y < height; ++y) {
        char* const first = to.bytes;
        spread(from.bytes, width, scale, first);
        for (std::int32_t copy = 1; copy < scale; ++copy) {
            std::memcpy(first + copy * to.stride, first, rowBytes);
        }
        from.bytes += from.stride;
        to.bytes += scale * to.stride;
    }
}

} // namespace velm
