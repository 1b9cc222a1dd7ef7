// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "x11/pixels.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace velm {

namespace {

/// Where a channel stands in a pixel of the server, and how many bits it has there.
struct Channel {
    int shift;
    int bits;
};

Channel channelOf(unsigned long mask) {
    return {std::countr_zero(mask), std::popcount(mask)};
}

unsigned long fitted(unsigned long value, Channel channel) {
    const unsigned long fit = channel.bits <= 8 ? value >> (8 - channel.bits)
                                                : value << (channel.bits - 8) | value >> (16 - channel.bits);
    return fit << channel.shift;
}

void copyWords(const IMG& frame, XImage& image, std::int32_t width, std::int32_t height) {
    const std::size_t rowBytes = static_cast<std::size_t>(width) * sizeof *frame.pixels;
    if (width == frame.width && rowBytes == static_cast<std::size_t>(image.bytes_per_line)) {
        std::memcpy(image.data, frame.pixels, rowBytes * static_cast<std::size_t>(height));
        return;
    }
    for (std::int64_t y = 0; y < height; ++y) {
        std::memcpy(image.data + y * image.bytes_per_line, frame.pixels + y * frame.width, rowBytes);
    }
}

void convertPixels(const IMG& frame, XImage& image, std::int32_t width, std::int32_t height) {
    const Channel red = channelOf(image.red_mask);
    const Channel green = channelOf(image.green_mask);
    const Channel blue = channelOf(image.blue_mask);
    for (std::int32_t y = 0; y < height; ++y) {
        const std::uint32_t* const row = frame.pixels + std::int64_t{y} * frame.width;
        for (std::int32_t x = 0; x < width; ++x) {
            XPutPixel(&image, x, y,
                      fitted((row[x] >> 16) & 0xFF, red) | fitted((row[x] >> 8) & 0xFF, green) |
                          fitted(row[x] & 0xFF, blue));
        }
    }
}

} // namespace

bool x11CopiesWords(const XImage& image) {
    constexpr int ownOrder = std::endian::native == std::endian::little ? LSBFirst : MSBFirst;
    return image.bits_per_pixel == 32 && image.byte_order == ownOrder && image.red_mask == 0xFF0000 &&
           image.green_mask == 0x00FF00 && image.blue_mask == 0x0000FF;
}

void x11CopyPixels(const IMG& frame, XImage& image) {
    const std::int32_t width = std::min(frame.width, image.width);
    const std::int32_t height = std::min(frame.height, image.height);
    if (x11CopiesWords(image)) {
        copyWords(frame, image, width, height);
    } else {
        convertPixels(frame, image, width, height);
    }
}

} // namespace velm
