// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Picture B: a banded planet with its ring and a moon, before a nebula.
#include "foundation/root.h"
#include "foundation/sine.h"
#include "image/img.h"
#include "image/rgb888.h"
#include "paint/paint.h"
#include "paint/shading.h"

#include <algorithm>

namespace velm::paint {

namespace {

constexpr std::int32_t width = 128;
constexpr std::int32_t height = 64;
constexpr std::int32_t planetX = 56;
constexpr std::int32_t planetY = 33;
constexpr std::int32_t planetRadius = 19;

/// A slow wave over the picture, 0 to 256.
std::int32_t cloud(std::int32_t x, std::int32_t y) {
    const std::int32_t sum = SINE_entry(x * 9 + y * 5 + 100) + SINE_entry(x * 5 - y * 13 + 400) +
                             SINE_entry(y * 21 + (SINE_entry(x * 11) >> 8));
    return std::clamp((sum >> 9) + 64, 0, whole);
}

void paintSpace(IMG& img) {
    for (std::int32_t y = 0; y < height; ++y) {
        for (std::int32_t x = 0; x < width; ++x) {
            const std::int32_t amount = cloud(x, y);
            std::uint32_t colour = dither({0x05030E, 0x3A1060, 6}, amount, x, y);
            if (amount > 150) {
                colour = dither({0x3A1060, 0x205890, 4}, (amount - 150) * 5 / 2, x, y);
            }
            if (scattered(x + 31, y) < 520) {
                colour = blended(0x8060C0, 0xFFFFFF, scattered(y, x) >> 8);
            }
            IMG_putPixel(&img, x, y, colour);
        }
    }
}

/// A ball lit from the upper left; `shade` gives its colour for a place on it and an amount of light.
template <typename Shade>
void paintBall(IMG& img, std::int32_t centreX, std::int32_t centreY, std::int32_t radius, Shade shade) {
    for (std::int32_t y = -radius; y <= radius; ++y) {
        for (std::int32_t x = -radius; x <= radius; ++x) {
            const std::int32_t depthSquare = radius * radius - x * x - y * y;
            if (depthSquare >= -radius / 2) {
                // The light's direction is (-6, -5, 6), nearly 10 long.
                const std::int32_t depth = rootOf(std::max(depthSquare, 0));
                const std::int32_t light = (-6 * x - 5 * y + 6 * depth) * whole / (10 * radius);
                IMG_putPixel(&img, centreX + x, centreY + y, shade(x, y, light));
            }
        }
    }
}

std::uint32_t planetShade(std::int32_t x, std::int32_t y, std::int32_t light) {
    // Bands of cloud, bent a little and tilted against the ring.
    const std::int32_t latitude = y * 3 + x + (SINE_entry(x * 14 + y * 6) >> 13);
    const std::int32_t band = (SINE_entry(latitude * 27) >> 8) + 128;
    const std::uint32_t colour = dither({0xE06028, 0xFFD890, 4}, band, x + 64, y + 64);
    return dither({0x180826, colour, 12}, std::max(light, 12) + 10, x + 64, y + 64);
}

std::uint32_t moonShade(std::int32_t x, std::int32_t y, std::int32_t light) {
    const bool crater =
        (x + 2) * (x + 2) + (y - 1) * (y - 1) < 3 || (x - 2) * (x - 2) + (y + 2) * (y + 2) < 2;
    return dither({0x101830, crater ? 0x709CB8U : 0xC8F0FFU, 5}, std::max(light, 0), x + 64, y + 64);
}

/// The ring is a flat disc seen at a slant: across the slant, distances count four times.
void paintRing(IMG& img) {
    for (std::int32_t y = 0; y < height; ++y) {
        for (std::int32_t x = 0; x < width; ++x) {
            const std::int32_t dx = x - planetX;
            const std::int32_t dy = y - planetY;
            const std::int32_t along =
                12 * dx - 4 * dy; // the slant's direction is (12, -4), nearly 12.65 long
            const std::int32_t across = (4 * dx + 12 * dy) * 4;
            const std::int32_t radius =
                rootOf(std::int64_t{along} * along + std::int64_t{across} * across) * 10 / 126;
            const bool hidden = across < 0 && dx * dx + dy * dy <= planetRadius * planetRadius;
            const bool gap = radius >= 35 && radius <= 36;
            if (radius < 26 || radius > 44 || gap || hidden) {
                continue;
            }
            // The planet's shadow lies on the far side, to the right.
            const bool shadow = across < 0 && dx > 12 && dx < 34;
            const std::int32_t amount = (SINE_entry(radius * 90) >> 8) + 128;
            const std::uint32_t colour = dither({0x9850C0, 0xFFE0B8, 4}, amount, x, y);
            IMG_putPixel(&img, x, y, shadow ? RGB888_dim(colour, 70) : colour);
        }
    }
}

/// A bright star with four rays.
void paintSpark(IMG& img, std::int32_t x, std::int32_t y, std::int32_t length, std::uint32_t colour) {
    for (std::int32_t i = length; i >= 0; --i) {
        const std::uint32_t ray = RGB888_dim(colour, whole - i * 200 / length);
        IMG_putPixel(&img, x + i, y, ray);
        IMG_putPixel(&img, x - i, y, ray);
        IMG_putPixel(&img, x, y + i, ray);
        IMG_putPixel(&img, x, y - i, ray);
    }
}

} // namespace

Picture paintPictureB() {
    Picture picture = makePicture(width, height);
    paintSpace(*picture);
    paintSpark(*picture, 16, 13, 5, 0xFFFFFF);
    paintSpark(*picture, 118, 50, 4, 0xA0E8FF);
    paintSpark(*picture, 90, 7, 3, 0xFFC0F0);
    paintBall(*picture, planetX, planetY, planetRadius, planetShade);
    paintRing(*picture);
    paintBall(*picture, 108, 18, 6, moonShade);
    return picture;
}

} // namespace velm::paint
