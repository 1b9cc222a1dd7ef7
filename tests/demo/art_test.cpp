// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What the scenes need of the drawings and of the wide picture.
#include "demo/assets.h"
#include "support/owned.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace velm::test {
namespace {

// Cut at an edge, a tower of the front row shows its wall there; a whole one shows its outline.
TEST(Art, NoTowerOfTheWidePictureStandsAcrossItsEdges) {
    constexpr std::uint32_t wall = 0x080318;
    const Picture city(IMG_fromPNM(assets::picture_wide.bytes, assets::picture_wide.size));
    const std::uint32_t* const pixels = city->pixels;
    EXPECT_GT(std::count(pixels, pixels + std::int64_t{city->width} * city->height, wall), 1000);
    for (const std::int32_t x : {0, city->width - 1}) {
        for (std::int32_t y = 0; y < city->height; ++y) {
            EXPECT_NE(IMG_getPixel(city, x, y), wall) << x << ", " << y;
        }
    }
}

} // namespace
} // namespace velm::test
