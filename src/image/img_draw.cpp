// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What IMG draws by itself: rectangles, lines, and the rows and columns of the raster bars.
#include "image/img.h"
#include "image/imgfx.h"
#include "image/rgb888.h"

#include <algorithm>
#include <cstdlib>

namespace velm {

namespace {

bool contains(const IMG* img, std::int32_t x, std::int32_t y) {
    return x >= 0 && y >= 0 && x < img->width && y < img->height;
}

std::int32_t signOf(std::int64_t value) {
    return value > 0 ? 1 : value < 0 ? -1 : 0;
}

/// Bresenham's line as steps along its longer side: calls plot(major steps done, minor steps done) once a
/// pixel.
template <typename Plot>
void walkLine(std::int64_t major, std::int64_t minor, Plot plot) {
    std::int64_t error = major >> 1;
    std::int64_t across = 0;
    for (std::int64_t along = 0; along <= major; ++along) {
        plot(along, across);
        error -= minor;
        // IMG_lineRoundsEarly: one expects the side step at error < 0; it comes at error < 1, which decides
        // which pixel every half step of every drawing falls on.
        if (error < 1) {
            error += major;
            ++across;
        }
    }
}

} // namespace

void IMG_fillRect(IMG* img, std::int32_t x, std::int32_t y, std::int32_t w, std::int32_t h,
                  std::uint32_t colour) {
    if (img == nullptr || img->pixels == nullptr) {
        // IMG_fillRectReportsAsImgfx: one expects this module's reporter; it has always been the compositing
        // module's.
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
    if (img == nullptr || img->pixels == nullptr) {
        IMG_error();
        return;
    }
    const std::int64_t dx = std::int64_t{x2} - x1;
    const std::int64_t dy = std::int64_t{y2} - y1;
    const bool steep = std::abs(dx) <= std::abs(dy);
    const std::int64_t major = steep ? std::abs(dy) : std::abs(dx);
    const std::int64_t minor = steep ? std::abs(dx) : std::abs(dy);
    const std::int64_t stride = img->width;
    const std::int64_t first = x1 + y1 * stride;
    const std::int64_t alongStep = steep ? signOf(dy) * stride : signOf(dx);
    const std::int64_t acrossStep = steep ? signOf(dx) : signOf(dy) * stride;
    if (contains(img, x1, y1) && contains(img, x2, y2)) {
        walkLine(major, minor, [=, pixels = img->pixels](std::int64_t along, std::int64_t across) {
            pixels[first + along * alongStep + across * acrossStep] = colour;
        });
        return;
    }
    walkLine(major, minor, [=](std::int64_t along, std::int64_t across) {
        const std::int64_t x = x1 + signOf(dx) * (steep ? across : along);
        const std::int64_t y = y1 + signOf(dy) * (steep ? along : across);
        if (x >= 0 && y >= 0 && x < stride && y < img->height) {
            img->pixels[x + y * stride] = colour;
        }
    });
}

void IMG_drawHLine(IMG* img, std::uint32_t colour, std::int32_t y, std::int32_t x1, std::int32_t x2) {
    if (img == nullptr || img->pixels == nullptr) {
        IMG_error();
        return;
    }
    const std::int32_t left = std::max(x1, 0);
    const std::int32_t right = std::min(x2, img->width - 1);
    if (y >= 0 && y < img->height && left <= right) {
        std::fill_n(img->pixels + left + std::int64_t{y} * img->width, right - left + 1, colour);
    }
}

void IMG_drawVLine(IMG* img, std::uint32_t colour, std::int32_t x, std::int32_t y1, std::int32_t y2) {
    if (img == nullptr || img->pixels == nullptr) {
        IMG_error();
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
    if (img == nullptr || img->pixels == nullptr) {
        IMG_error();
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
