// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What the scenes need of the drawings and of the wide picture.
#include "demo/assets.h"
#include "support/owned.h"
#include "vector/objects.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace velm::test {
namespace {

// The default scene turns a drawing, four times as large, about a point 42 rows below the top edge.
TEST(Art, EveryDrawingIsRichAndHasRoomToTurn) {
    const Objects drawings(assets::drawings.bytes);
    std::int32_t segments = 0;
    for (std::int32_t i = 0; i < drawings.list->count; ++i) {
        const OBJ2D* const drawing = drawings[i];
        segments += drawing->segments->count;
        for (std::int32_t k = 0; k < drawing->points->count; ++k) {
            const auto* const point = static_cast<const VEC2D*>(LIST_get(drawing->points, k));
            const std::int32_t x = 4 * (point->x - 8);
            const std::int32_t y = 4 * (point->y - 8);
            EXPECT_LT(x * x + y * y, 43 * 43) << drawing->name << ": " << point->x << ", " << point->y;
        }
    }
    EXPECT_EQ(drawings.list->count, 83) << "the schedule draws one of them";
    EXPECT_GE(segments / drawings.list->count, 32);
}

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
