// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What IMG draws by itself: rectangles, lines, and the rows and columns of the raster bars.
#include "foundation/report.h"
#include "image/img.h"
#include "image/imgfx.h"
#include "image/line.h"
#include "image/rgb888.h"

#include <algorithm>

namespace velm {

void IMG_fillRect(IMG* img, std::int32_t x, std::int32_t y, std::int32_t w, std::int32_t h,
                  std::uint32_t colour) {
    if (!hasPixels(img)) {
        // IMG_fillRectReportsAsImgfx: one expects this module's reporter; it is the compositing module's,
        // whose flag decides whether the line comes.
        IMGFX_error();
        return;
    }
    const auto left = std::max<std::int64_t>(0, std::min<std::int64_t>(x, std::int64_t{x} + w));
    const auto right = std::min<std::int64_t>(img->width, std::max<std::int64_t>(x, std::int64_t{x} + w));
    const auto top = std::max<std::int64_t>(0, std::min<std::int64_t>(y, std::int64_t{y} + h));
    const auto bottom = std::min<std::int64_t>(img->height, std::max<std::int64_t>(y, std::int64_t{y} + h));
    if (left >= right) {
        return;
    }
    for (std::int64_t row = top; row < bottom; ++row) {
        std::fill_n(img->pixels + left + row * img->width, right - left, colour);
    }
}

void IMG_drawLine(IMG* img, std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                  std::uint32_t colour) {
    if (refused(!hasPixels(img), IMG_error)) {
        return;
    }
    forEachLinePixel(*img, x1, y1, x2, y2, [colour](std::uint32_t& pixel) { pixel = colour; });
}

void IMG_drawHLine(IMG* img, std::uint32_t colour, std::int32_t y, std::int32_t x1, std::int32_t x2) {
    if (refused(!hasPixels(img), IMG_error)) {
        return;
    }
    const std::int32_t left = std::max(x1, 0);
    const std::int32_t right = std::min(x2, img->width - 1);
    if (y >= 0 && y < img->height && left <= right) {
        std::fill_n(img->pixels + left + std::int64_t{y} * img->width, right - left + 1, colour);
    }
}

void IMG_drawVLine(IMG* img, std::uint32_t colour, std::int32_t x, std::int32_t y1, std::int32_t y2) {
    if (refused(!hasPixels(img), IMG_error)) {
        return;
    }
    const std::int32_t bottom = std::min(y2, img->height - 1);
    if (x < 0 || x >= img->width) {
        return;
    }
    for (std::int32_t y = std::max(y1, 0); y <= bottom; ++y) {
        img->pixels[x + std::int64_t{y} * img->width] = colour;
    }
}

void IMG_blendHLine(IMG* img, std::uint32_t colour, std::int32_t y, std::int32_t x1, std::int32_t x2,
                    std::uint32_t alpha) {
    if (refused(!hasPixels(img), IMG_error)) {
        return;
    }
    const std::int32_t right = std::min(x2, img->width - 1);
    if (y < 0 || y >= img->height) {
        return;
    }
    std::uint32_t* const row = img->pixels + std::int64_t{y} * img->width;
    for (std::int32_t x = std::max(x1, 0); x <= right; ++x) {
        row[x] = RGB888_mix(row[x], colour, alpha);
    }
}

} // namespace velm
