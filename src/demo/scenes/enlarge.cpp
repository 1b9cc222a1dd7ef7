// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/enlarge.h"

#include "foundation/fixed.h"
#include "foundation/owned.h"
#include "foundation/sine.h"
#include "image/rgb888.h"

#include <algorithm>

namespace velm {

namespace {

/// A pixel of the picture; past an edge the edge goes on.
std::uint32_t pixelNear(const IMG& picture, std::int32_t x, std::int32_t y) {
    return IMG_getPixel(&picture, std::clamp(x, 0, picture.width - 1), std::clamp(y, 0, picture.height - 1));
}

/// The four pixels that one becomes.
void doublePixel(const IMG& picture, std::int32_t x, std::int32_t y, IMG& result) {
    const std::uint32_t own = pixelNear(picture, x, y);
    const std::uint32_t up = pixelNear(picture, x, y - 1);
    const std::uint32_t down = pixelNear(picture, x, y + 1);
    const std::uint32_t left = pixelNear(picture, x - 1, y);
    const std::uint32_t right = pixelNear(picture, x + 1, y);
    const bool isSlanted = up != down && left != right;
    const auto corner = [&](std::int32_t atX, std::int32_t atY, std::uint32_t a, std::uint32_t b) {
        IMG_putPixel(&result, 2 * x + atX, 2 * y + atY, isSlanted && a == b ? a : own);
    };
    corner(0, 0, left, up);
    corner(1, 0, up, right);
    corner(0, 1, left, down);
    corner(1, 1, down, right);
}

/// A place folded into 0..size - 1 as mirrors at both ends would; `size` is a power of two.
std::int32_t mirroredAt(std::int32_t place, std::int32_t size) {
    const std::int32_t turned = (place & size) != 0 ? ~place : place;
    return turned & (size - 1);
}

/// How much is seen of row `row`, which lies in the picture or in one of its mirror images: those fade out.
std::int32_t lightOfRow(std::int32_t row, std::int32_t height, std::int32_t others) {
    constexpr std::int32_t fadePerRow = 5;
    const std::int32_t outside = std::max({-row, row - height + 1, 0});
    return std::max(others, 256 - std::min(outside, 256) * fadePerRow);
}

} // namespace

IMG* doubled(const IMG* picture) {
    if (picture == nullptr) {
        return nullptr;
    }
    IMG* const result = IMG_newSized(2 * picture->width, 2 * picture->height);
    for (std::int32_t y = 0; result != nullptr && y < picture->height; ++y) {
        for (std::int32_t x = 0; x < picture->width; ++x) {
            doublePixel(*picture, x, y, *result);
        }
    }
    return result;
}

IMG* enlarged(const IMG* picture) {
    const Owned<IMG_delete> once(doubled(picture));
    return doubled(once);
}

IMG* mirrored(const IMG* picture) {
    if (picture == nullptr) {
        return nullptr;
    }
    IMG* const result = IMG_newSized(picture->width * 2, picture->height * 2);
    for (std::int32_t y = 0; result != nullptr && y < result->height; ++y) {
        for (std::int32_t x = 0; x < result->width; ++x) {
            const std::int32_t column = x < picture->width ? x : result->width - 1 - x;
            const std::int32_t row = y < picture->height ? y : result->height - 1 - y;
            IMG_putPixel(result, x, y, IMG_getPixel(picture, column, row));
        }
    }
    return result;
}

std::int32_t nearestWay(std::int32_t from, std::int32_t to, std::int32_t period) {
    const auto turn = static_cast<std::int32_t>(toFixed(period));
    const std::int32_t way = (static_cast<std::int32_t>(toFixed(to)) - from) % turn;
    return way - (way > turn / 2 ? turn : 0) + (way < -turn / 2 ? turn : 0);
}

void drawLens(const IMG* enlargedPicture, const Lens& lens, IMG* target) {
    const IMG& picture = *enlargedPicture;
    const std::int32_t step = (lensSamples << 24) / lens.zoom; // 16.16 samples from pixel to pixel
    const std::int32_t across = SINE_cosineScaled(step >> 3, lens.angle) * 8;
    const std::int32_t down = SINE_scaled(step >> 3, lens.angle) * 8;
    const std::int64_t left = std::int64_t{lens.x} * lensSamples - std::int64_t{target->width / 2} * across;
    const std::int64_t top = std::int64_t{lens.y} * lensSamples - std::int64_t{target->width / 2} * down;
    std::uint32_t* to = target->pixels;
    for (std::int32_t y = 0; y < target->height; ++y) {
        const std::int32_t fromMiddle = y - target->height / 2;
        std::int64_t u = left - std::int64_t{fromMiddle} * down;
        std::int64_t v = top + std::int64_t{fromMiddle} * across;
        for (std::int32_t x = 0; x < target->width; ++x, u += across, v += down) {
            const auto row = static_cast<std::int32_t>(v >> 16);
            const std::int32_t column = mirroredAt(static_cast<std::int32_t>(u >> 16), picture.width);
            const std::uint32_t pixel =
                picture.pixels[mirroredAt(row, picture.height) * picture.width + column];
            *to++ =
                lens.others < 256 ? RGB888_dim(pixel, lightOfRow(row, picture.height, lens.others)) : pixel;
        }
    }
}

} // namespace velm
