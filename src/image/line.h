// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The one walk of all lines, whatever they do to the pixels that they meet.
//
//     forEachLinePixel(*img, 0, 0, 255, 255, [](std::uint32_t& pixel) { pixel = 0xFFFFFF; });
#pragma once

#include "image/img.h"

#include <cstdint>
#include <cstdlib>

namespace velm {

/// Bresenham's line as steps along its longer side: calls plot(place) once a pixel. The place begins at 0;
/// each step adds `alongStep`, a step aside `acrossStep` as well.
template <typename Plot>
void walkLine(std::int64_t major, std::int64_t minor, std::int64_t alongStep, std::int64_t acrossStep,
              Plot plot) {
    // IMG_lineRoundsEarly: one expects the side step at an error < 0; it comes at an error < 1, which decides
    // which pixel every half step of every drawing falls on. So the error counts from 1.
    std::int64_t error = (major >> 1) - 1;
    std::int64_t place = 0;
    const std::int64_t bothSteps = alongStep + acrossStep;
    for (std::int64_t left = major; left >= 0; --left) {
        plot(place);
        // Both errors are there before one is chosen, so that the compiler can do without a jump, which
        // processors would guess wrongly at every other step.
        const std::int64_t straight = error - minor;
        const std::int64_t aside = error + (major - minor);
        place += straight < 0 ? bothSteps : alongStep;
        error = straight < 0 ? aside : straight;
    }
}

/// Calls touch(pixel) for every pixel of the line from (x1, y1) to (x2, y2), both ends included, in this
/// order; what lies outside the image is left out, and a line that passes it by costs nothing. The image must
/// have pixels.
template <typename Touch>
void forEachLinePixel(IMG& img, std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                      Touch touch) {
    const bool passesBy = (x1 < 0 && x2 < 0) || (y1 < 0 && y2 < 0) || (x1 >= img.width && x2 >= img.width) ||
                          (y1 >= img.height && y2 >= img.height);
    if (passesBy) {
        return;
    }
    const auto signOf = [](std::int64_t value) { return value > 0 ? 1 : value < 0 ? -1 : 0; };
    const std::int64_t dx = std::int64_t{x2} - x1;
    const std::int64_t dy = std::int64_t{y2} - y1;
    const bool steep = std::abs(dx) <= std::abs(dy);
    const std::int64_t major = steep ? std::abs(dy) : std::abs(dx);
    const std::int64_t minor = steep ? std::abs(dx) : std::abs(dy);
    const std::int64_t stride = img.width;
    if (contains(img, x1, y1) && contains(img, x2, y2)) {
        const std::int64_t alongStep = steep ? signOf(dy) * stride : signOf(dx);
        const std::int64_t acrossStep = steep ? signOf(dx) : signOf(dy) * stride;
        walkLine(major, minor, alongStep, acrossStep,
                 [=, first = img.pixels + x1 + y1 * stride](std::int64_t place) { touch(first[place]); });
        return;
    }
    walkLine(major, minor, 0, 1, [&, along = std::int64_t{0}](std::int64_t across) mutable {
        const std::int64_t x = x1 + signOf(dx) * (steep ? across : along);
        const std::int64_t y = y1 + signOf(dy) * (steep ? along : across);
        if (contains(img, x, y)) {
            touch(img.pixels[x + y * stride]);
        }
        ++along;
    });
}

} // namespace velm
