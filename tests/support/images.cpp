// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "support/images.h"

#include <algorithm>
#include <cstdio>

namespace velm::test {

std::uint32_t Images::pixel() {
    constexpr std::uint32_t corners[] = {0x000000, 0x000000, 0xFFFFFF, 0xFF0000,
                                         0x00FF00, 0x0000FF, 0x010101};
    const std::int32_t choice = number(0, 13);
    return choice < 7 ? corners[choice] : static_cast<std::uint32_t>(number(0, 0xFFFFFF));
}

IMG* Images::image() {
    const std::int32_t width = number(0, 40);
    return image(width, number(0, 40));
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

std::int32_t lit(const IMG* img) {
    const std::int64_t size = std::int64_t{img->width} * img->height;
    return static_cast<std::int32_t>(size - std::count(img->pixels, img->pixels + size, 0U));
}

} // namespace velm::test
