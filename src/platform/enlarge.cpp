// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "platform/enlarge.h"

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

/// The part of a frame that fits: a window smaller than the picture shows its middle, a larger one shows all.
Part partThatFits(const IMG& frame, const Layout& layout, const Raster& raster) {
    const std::int32_t x = std::max(-layout.left, 0) / layout.scale;
    const std::int32_t y = std::max(-layout.top, 0) / layout.scale;
    return {x, y, std::min(frame.width - x, raster.width / layout.scale),
            std::min(frame.height - y, raster.height / layout.scale)};
}

} // namespace

Part enlarge(const IMG& frame, const Layout& layout, const Raster& raster,
             std::span<const std::uint32_t> former) {
    const Part part = partThatFits(frame, layout, raster);
    const Part place{std::max(layout.left, 0), std::max(layout.top, 0), part.width * layout.scale,
                     part.height * layout.scale};
    const bool isOurs = raster.pixels.isOurs();
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(part.width));
    const std::size_t rowBytes =
        static_cast<std::size_t>(place.width) * static_cast<std::size_t>(raster.pixels.bytes);
    char* to = raster.first + place.y * raster.pitch + std::ptrdiff_t{place.x} * raster.pixels.bytes;
    for (std::int32_t y = part.y; y < part.y + part.height; ++y, to += layout.scale * raster.pitch) {
        const std::int64_t first = std::int64_t{y} * frame.width + part.x;
        const std::uint32_t* const row = frame.pixels + first;
        if (!former.empty() && std::equal(row, row + part.width, former.begin() + first)) {
            continue;
        }
        std::copy(row, row + part.width, pixels.begin());
        if (!isOurs) {
            std::transform(row, row + part.width, pixels.begin(),
                           [&raster](std::uint32_t pixel) { return raster.pixels.of(pixel); });
        }
        spreads[raster.pixels.bytes - 1](pixels, layout.scale, to);
        for (std::int32_t copy = 1; copy < layout.scale; ++copy) {
            std::memcpy(to + copy * raster.pitch, to, rowBytes);
        }
    }
    return place;
}

} // namespace velm
