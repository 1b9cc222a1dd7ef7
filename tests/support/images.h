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

/// "" when both have the same size and pixels, else the first difference.
std::string difference(const IMG* actual, const IMG* expected);

/// Pixels that are not black.
std::int32_t lit(const IMG* img);

} // namespace velm::test
