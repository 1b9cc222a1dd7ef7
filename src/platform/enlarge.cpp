// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "platform/enlarge.h"

#include "foundation/stream.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <span>
#include <vector>

namespace velm {

namespace {

/// Pixels of a row that are written together, or not at all.
constexpr std::int32_t blockWidth = 16;

/// A pixel is moved as so many bytes; the compiler makes one word of them, and of the squares' usual widths
/// one more. 0 stands for any other.
template <std::size_t bytes, std::int32_t knownScale>
void spreadRow(std::span<const std::uint32_t> pixels, std::int32_t anyScale, char* to) {
    const std::int32_t scale = knownScale == 0 ? anyScale : knownScale;
    for (const std::uint32_t pixel : pixels) {
        for (std::int32_t i = 0; i < scale; ++i) {
            constexpr std::size_t unused =
                std::endian::native == std::endian::little ? 0 : sizeof pixel - bytes;
            std::memcpy(to, reinterpret_cast<const char*>(&pixel) + unused, bytes);
            to += bytes;
        }
    }
}

using SpreadRow = void (*)(std::span<const std::uint32_t>, std::int32_t, char*);

SpreadRow spreadFor(std::int32_t bytes, std::int32_t scale) {
    constexpr SpreadRow any[] = {spreadRow<1, 0>, spreadRow<2, 0>, spreadRow<3, 0>, spreadRow<4, 0>};
    constexpr SpreadRow words[] = {spreadRow<4, 0>, spreadRow<4, 1>, spreadRow<4, 2>, spreadRow<4, 3>,
                                   spreadRow<4, 4>};
    return bytes == 4 && scale < static_cast<std::int32_t>(std::size(words)) ? words[scale] : any[bytes - 1];
}

/// Writes a block of a row as squares from `to` on: one row is spread out in `squares`, all are its copies.
void writeSquares(std::span<const std::uint32_t> block, std::int32_t scale, const Raster& raster,
                  std::span<char> squares, char* to) {
    std::uint32_t pixels[blockWidth];
    std::copy(block.begin(), block.end(), pixels);
    if (!raster.pixels.isOurs()) {
        std::transform(block.begin(), block.end(), pixels,
                       [&raster](std::uint32_t pixel) { return raster.pixels.of(pixel); });
    }
    spreadFor(raster.pixels.bytes, scale)({pixels, block.size()}, scale, squares.data());
    const std::size_t bytes = block.size() * static_cast<std::size_t>(scale * raster.pixels.bytes);
    for (std::int32_t row = 0; row < scale; ++row) {
        streamCopy(to + row * raster.pitch, squares.data(), bytes);
    }
}

/// Brings `former` up to a block of its row, and tells whether there was anything to bring.
bool takeChange(std::span<const std::uint32_t> block, std::span<std::uint32_t> former) {
    if (std::equal(block.begin(), block.end(), former.begin())) {
        return false;
    }
    std::copy(block.begin(), block.end(), former.begin());
    return true;
}

/// The part of a frame that fits: a window smaller than the picture shows its middle, a larger one shows all.
Part partThatFits(const IMG& frame, const Layout& layout, const Raster& raster) {
    const std::int32_t x = std::max(-layout.left, 0) / layout.scale;
    const std::int32_t y = std::max(-layout.top, 0) / layout.scale;
    return {x, y, std::min(frame.width - x, raster.width / layout.scale),
            std::min(frame.height - y, raster.height / layout.scale)};
}

} // namespace

Part enlarge(const IMG& frame, const Layout& layout, const Raster& raster, std::span<std::uint32_t> former) {
    const Part part = partThatFits(frame, layout, raster);
    const Part place{std::max(layout.left, 0), std::max(layout.top, 0), part.width * layout.scale,
                     part.height * layout.scale};
    const std::ptrdiff_t squareBytes = std::ptrdiff_t{layout.scale} * raster.pixels.bytes;
    std::vector<char> squares(static_cast<std::size_t>(blockWidth * squareBytes));
    char* rows = raster.first + place.y * raster.pitch + std::ptrdiff_t{place.x} * raster.pixels.bytes;
    for (std::int32_t y = part.y; y < part.y + part.height; ++y, rows += layout.scale * raster.pitch) {
        const std::size_t first = static_cast<std::size_t>(y) * static_cast<std::size_t>(frame.width);
        for (std::int32_t x = 0; x < part.width; x += blockWidth) {
            const std::size_t nth = first + static_cast<std::size_t>(part.x + x);
            const auto count = static_cast<std::size_t>(std::min(blockWidth, part.width - x));
            const std::span block(frame.pixels + nth, count);
            if (former.empty() || takeChange(block, former.subspan(nth, count))) {
                writeSquares(block, layout.scale, raster, squares, rows + x * squareBytes);
            }
        }
    }
    streamEnd();
    return place;
}

} // namespace velm
