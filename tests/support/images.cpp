// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "support/images.h"

#include "foundation/wide.h"

namespace velm::test {

namespace {

const bool thisProcessorIsWide = wideRegisters;

} // namespace

Images::Images(std::uint32_t seed) : isLong(seed % 8 == 5), engine(seed) {
    wideRegisters = thisProcessorIsWide && (seed >> 3 & 1) == 0;
}

std::uint32_t Images::pixel() {
    constexpr std::uint32_t corners[] = {0x000000, 0x000000, 0xFFFFFF, 0xFF0000,
                                         0x00FF00, 0x0000FF, 0x010101};
    const std::int32_t choice = number(0, 13);
    return choice < 7 ? corners[choice] : static_cast<std::uint32_t>(number(0, 0xFFFFFF));
}

IMG* Images::image() {
    constexpr std::int32_t shortest = 40;
    const std::int32_t width = number(0, isLong ? 600 : shortest);
    IMG* img = image(width, number(0, isLong ? 3 : shortest));
    for (std::int32_t i = 0; i < img->width * img->height; i += number(1, 40)) {
        img->pixels[i] |= 0xA5000000;
    }
    return img;
}

IMG* Images::image(std::int32_t width, std::int32_t height) {
    IMG* img = IMG_newSized(width, height);
    for (std::int32_t i = 0; i < width * height; ++i) {
        img->pixels[i] = pixel();
    }
    return img;
}

std::string difference(const IMG* actual, const IMG* expected) {
    if (actual->width != expected->width || actual->height != expected->height) {
        return "the sizes differ";
    }
    for (std::int32_t i = 0; i < expected->width * expected->height; ++i) {
        if (actual->pixels[i] != expected->pixels[i]) {
            char text[96];
            std::snprintf(text, sizeof text, "pixel (%d, %d) is %06X, not %06X", i % expected->width,
                          i / expected->width, actual->pixels[i], expected->pixels[i]);
            return text;
        }
    }
    return "";
}

std::string rowText(const IMG* img, std::int32_t y) {
    std::string text;
    std::transform(rowOf(*img, y), rowOf(*img, y + 1), std::back_inserter(text),
                   [](std::uint32_t pixel) { return pixel == 0 ? '.' : static_cast<char>(pixel); });
    return text;
}

std::int32_t lit(const IMG* img) {
    const std::int64_t size = std::int64_t{img->width} * img->height;
    return static_cast<std::int32_t>(size - std::count(img->pixels, img->pixels + size, 0U));
}

} // namespace velm::test
