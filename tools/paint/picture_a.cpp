// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Picture A: a banded sun goes down behind a wireframe range, and a grid runs from the horizon to the viewer.
#include "image/img.h"
#include "paint/paint.h"
#include "paint/shading.h"

#include <algorithm>
#include <array>

namespace velm::paint {

namespace {

constexpr std::int32_t width = 128;
constexpr std::int32_t height = 64;
constexpr std::int32_t horizon = 40;
constexpr std::int32_t middle = width / 2;
constexpr std::uint32_t dark = 0x08000F; ///< nearly black, so that the picture has no see-through pixels

void paintSky(IMG& img) {
    for (std::int32_t y = 0; y < horizon; ++y) {
        for (std::int32_t x = 0; x < width; ++x) {
            const std::int32_t amount = y * y * whole / (horizon * horizon);
            std::uint32_t colour = dither({0x0A0424, 0xC0206C, 9}, amount, x, y);
            if (y < 26 && scattered(x, y) < 700) {
                colour = scattered(y, x) < 0x8000 ? 0x8890D0 : 0xF0F0FF;
            }
            IMG_putPixel(&img, x, y, colour);
        }
    }
}

/// Bands of sky cut through the lower half, thicker and thicker.
bool isBand(std::int32_t y) {
    constexpr std::array<std::int32_t, 12> rows = {22, 26, 29, 30, 32, 33, 35, 36, 37, 38, 39, 40};
    return std::find(rows.begin(), rows.end(), y) != rows.end() && y != 37 && y != 34;
}

void paintSun(IMG& img) {
    constexpr std::int32_t centreY = 25;
    constexpr std::int32_t radius = 20;
    for (std::int32_t y = centreY - radius; y < horizon; ++y) {
        for (std::int32_t x = middle - radius; x <= middle + radius; ++x) {
            const std::int32_t dx = 2 * x - 2 * middle + 1;
            const std::int32_t dy = 2 * (y - centreY);
            if (dx * dx + dy * dy <= 4 * radius * radius && !isBand(y)) {
                const std::int32_t amount = (y - centreY + radius) * whole / (horizon - centreY + radius);
                IMG_putPixel(&img, x, y, dither({0xFFF070, 0xFF2880, 7}, amount, x, y));
            }
        }
    }
}

/// The heights of the range's peaks above the horizon, every 8 pixels from the left edge to the middle.
constexpr std::array<std::int32_t, 9> peaks = {17, 11, 20, 9, 14, 6, 8, 3, 0};

std::int32_t ridgeAt(std::int32_t fromEdge) {
    const std::int32_t i = fromEdge / 8;
    const std::int32_t left = peaks[static_cast<std::size_t>(i)];
    const std::int32_t right = peaks[static_cast<std::size_t>(std::min(i + 1, 8))];
    return left + (right - left) * (fromEdge % 8) / 8;
}

void paintRange(IMG& img) {
    constexpr std::uint32_t line = 0x30E8FF;
    constexpr std::uint32_t faint = 0x1C5C98;
    for (std::int32_t x = 0; x < width; ++x) {
        const std::int32_t fromEdge = x < middle ? x : width - 1 - x;
        IMG_drawVLine(&img, 0x100830, x, horizon - ridgeAt(fromEdge), horizon - 1);
    }
    for (std::int32_t side = 0; side < 2; ++side) {
        const auto at = [side](std::int32_t fromEdge) { return side == 0 ? fromEdge : width - 1 - fromEdge; };
        for (std::int32_t i = 0; i < 8; ++i) {
            const std::int32_t x = i * 8;
            const std::int32_t y = horizon - peaks[static_cast<std::size_t>(i)];
            const std::int32_t nextY = horizon - peaks[static_cast<std::size_t>(i) + 1];
            IMG_drawLine(&img, at(x), y, at(x + 4), horizon - 1, faint);
            IMG_drawLine(&img, at(x), y, at(std::max(0, x - 5)), horizon - 1, faint);
            IMG_drawLine(&img, at(x), y, at(std::min(x + 8, middle - 1)), nextY, line);
        }
    }
}

/// The grid's level lines come nearer faster and faster; its long lines meet behind the horizon.
void paintGrid(IMG& img) {
    for (std::int32_t y = horizon; y < height; ++y) {
        for (std::int32_t x = 0; x < width; ++x) {
            const std::int32_t amount = (y - horizon) * whole / (height - horizon);
            IMG_putPixel(&img, x, y, dither({0x2C0844, dark, 5}, amount, x, y));
        }
    }
    for (std::int32_t i = -14; i <= 14; ++i) {
        const std::int32_t top = middle + i * 5 - (i < 0 ? 1 : 0);
        const std::int32_t bottom = middle + i * 19 - (i < 0 ? 1 : 0);
        IMG_drawLine(&img, top, horizon, bottom, height - 1, 0xB030D0);
    }
    std::int32_t y = horizon;
    for (std::int32_t step = 2; y < height; y += step, ++step) {
        const std::int32_t amount = (y - horizon) * whole / (height - horizon);
        IMG_drawHLine(&img, blended(0xFF60B0, 0x60F0FF, amount), y, 0, width - 1);
    }
}

} // namespace

Picture paintPictureA() {
    Picture picture = makePicture(width, height);
    paintSky(*picture);
    paintSun(*picture);
    paintRange(*picture);
    paintGrid(*picture);
    return picture;
}

} // namespace velm::paint
