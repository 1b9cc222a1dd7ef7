// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Random images and numbers from a seed that a failure prints, for comparing a fast loop with the plain rule.
//
//     Images images(seed);
//     IMG* picture = images.image();
#pragma once

#include "image/img.h"
#include "support/test.h"

#include <random>

namespace velm::test {

class Images {
public:
    /// Also sends the loops over whole rows to the registers of every processor for some seeds, and to this
    /// one's widest for the others.
    explicit Images(std::uint32_t seed);

    /// A number between the two, both included.
    std::int32_t number(std::int32_t least, std::int32_t most) {
        return std::uniform_int_distribution<std::int32_t>(least, most)(engine);
    }

    /// A pixel: often black, white or one full channel, where carries and transparency go wrong.
    std::uint32_t pixel();

    /// A new image of random pixels, at most 40 each way or, for one seed in eight, a few rows of up to 600;
    /// now and then it is empty. A few pixels have something in their top byte.
    IMG* image();
    /// The same of this size and with nothing there.
    IMG* image(std::int32_t width, std::int32_t height);

private:
    bool isLong;
    std::mt19937 engine;
};

/// Stores rule(x, y, the pixel there) in every pixel, row after row.
template <typename Rule>
void paint(IMG* img, Rule rule) {
    for (std::int32_t y = 0; y < img->height; ++y) {
        for (std::int32_t x = 0; x < img->width; ++x) {
            rowOf(*img, y)[x] = rule(x, y, rowOf(*img, y)[x]);
        }
    }
}

/// "" when both have the same size and pixels, else the first difference.
std::string difference(const IMG* actual, const IMG* expected);

/// The pixels of a row as characters, '.' for black ones.
std::string rowText(const IMG* img, std::int32_t y);

/// Pixels that are not black.
std::int32_t lit(const IMG* img);

} // namespace velm::test
