// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "x11/pixels.h"

#include "image/pixel_layout.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace velm {

namespace {

PixelLayout layoutOf(const XImage& image) {
    constexpr int bitsPerByte = 8;
    const auto mask = [](unsigned long channel) { return static_cast<std::uint32_t>(channel); };
    return {image.bits_per_pixel / bitsPerByte, mask(image.red_mask), mask(image.green_mask),
            mask(image.blue_mask)};
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
    const PixelLayout layout = layoutOf(image);
    for (std::int32_t y = 0; y < height; ++y) {
        const std::uint32_t* const row = frame.pixels + std::int64_t{y} * frame.width;
        for (std::int32_t x = 0; x < width; ++x) {
            XPutPixel(&image, x, y, layout.of(row[x]));
        }
    }
}

} // namespace

bool x11CopiesWords(const XImage& image) {
    constexpr int ownOrder = std::endian::native == std::endian::little ? LSBFirst : MSBFirst;
    return image.byte_order == ownOrder && layoutOf(image).isOurs();
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
