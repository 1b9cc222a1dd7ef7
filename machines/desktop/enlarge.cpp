// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "desktop/enlarge.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <vector>

namespace velm {

namespace {

/// A pixel is moved as so many bytes; the compiler makes one word of them.
template <std::size_t bytes>
void spreadRow(const std::vector<std::uint32_t>& pixels, std::int32_t scale, char* to) {
    for (const std::uint32_t pixel : pixels) {
        for (std::int32_t i = 0; i < scale; ++i) {
            constexpr std::size_t unused =
                std::endian::native == std::endian::little ? 0 : sizeof pixel - bytes;
            std::memcpy(to, reinterpret_cast<const char*>(&pixel) + unused, bytes);
            to += bytes;
        }
    }
}

using SpreadRow = void (*)(const std::vector<std::uint32_t>&, std::int32_t, char*);
constexpr SpreadRow spreads[] = {spreadRow<1>, spreadRow<2>, spreadRow<3>, spreadRow<4>};

} // namespace

void enlarge(const IMG& frame, const Part& part, std::int32_t scale, const PixelLayout& layout, char* to,
             std::ptrdiff_t stride) {
    const bool isOurs = layout.isOurs();
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(part.width));
    const std::size_t rowBytes = pixels.size() * static_cast<std::size_t>(scale * layout.bytes);
    for (std::int32_t y = part.y; y < part.y + part.height; ++y) {
        const std::uint32_t* const row = frame.pixels + std::int64_t{y} * frame.width + part.x;
        std::copy(row, row + part.width, pixels.begin());
        if (!isOurs) {
            std::transform(row, row + part.width, pixels.begin(),
                           [&layout](std::uint32_t pixel) { return layout.of(pixel); });
        }
        spreads[layout.bytes - 1](pixels, scale, to);
        for (std::int32_t copy = 1; copy < scale; ++copy) {
            std::memcpy(to + copy * stride, to, rowBytes);
        }
        to += scale * stride;
    }
}

} // namespace velm
