// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/flashpix.h"
#include "support/owned.h"

namespace velm::test {
namespace {

using Sparks = Owned<FLASHPIX_delete>;

/// A letter-like picture: a frame of 20 by 12 at (5, 7).
IMG* shapeOf() {
    IMG* shape = IMG_newSized(40, 30);
    IMG_fillRect(shape, 5, 7, 20, 12, 0x123456);
    IMG_fillRect(shape, 7, 9, 16, 8, 0);
    return shape;
}

TEST(Flashpix, FillsTheShapeAndNothingElse) {
    const Picture shape(shapeOf());
    const Sparks sparks(FLASHPIX_new());
    sparks->glintShare = 0, sparks->x = -3, sparks->y = 4;
    FLASHPIX_setShape(sparks, shape);
    EXPECT_EQ(sparks->placeCount, 20 * 12 - 16 * 8);
    FLASHPIX_setCount(sparks, 500);
    const Picture screen(IMG_newSized(40, 40));
    for (std::int32_t i = 0; i < 200; ++i) {
        FLASHPIX_draw(sparks, screen), FLASHPIX_advance(sparks);
    }
    for (std::int32_t y = 0; y < 40; ++y) {
        for (std::int32_t x = 0; x < 40; ++x) {
            const bool isShape = IMG_getPixel(shape, x + 3, y - 4) != 0;
            ASSERT_EQ(IMG_getPixel(screen, x, y) != 0, isShape) << x << ", " << y;
        }
    }
    // Without memory the old shape stays; without a picture there is none.
    expectReports(FLASHPIX_verbose, 2, "FLASHPIX error", [&] {
        expectFailure(1, [&] { return FLASHPIX_setShape(sparks, shape), nullptr; });
        expectFailure(1, [&] { return FLASHPIX_setCount(sparks, 9), nullptr; });
    });
    EXPECT_EQ(sparks->placeCount, 112);
    FLASHPIX_setShape(sparks, nullptr);
    sparks->width = 2, sparks->height = 1;
    FLASHPIX_randomize(sparks);
    EXPECT_TRUE(std::all_of(sparks->sparks, sparks->sparks + sparks->count,
                            [](const FLASHPIX_SPARK& s) { return s.x >= 0 && s.x < 2 && s.y == 0; }));
}

TEST(Flashpix, ASparkWaitsWhenItIsNotToBeLit) {
    const Sparks sparks(FLASHPIX_new());
    FLASHPIX_setCount(sparks, 1);
    sparks->shortest = sparks->longest = 20, sparks->sparks->life = 20;
    sparks->lit = 0, sparks->sparks->age = 19;
    for (std::int32_t frame = 0; frame < 100; ++frame) {
        FLASHPIX_advance(sparks);
        EXPECT_LT(sparks->sparks->age, 0);
    }
}

TEST(Flashpix, GlintsAreClippedOnEverySide) {
    const Sparks sparks(FLASHPIX_new());
    sparks->glintShare = 256, sparks->width = sparks->height = 12;
    const Picture target(IMG_newSized(20, 10));
    for (const auto& [x, y] : {std::pair{-8, -8}, {15, 5}, {INT32_MAX, INT32_MIN}}) {
        sparks->x = x, sparks->y = y;
        for (std::int32_t i = 0; i < 20; ++i) {
            FLASHPIX_randomize(sparks), FLASHPIX_draw(sparks, target);
        }
    }
    EXPECT_NE(IMG_getPixel(target, 0, 0), 0U);
    EXPECT_NE(IMG_getPixel(target, 19, 9), 0U);
    EXPECT_EQ(IMG_getPixel(target, 10, 2), 0U);
    sparks->shortest = -7, sparks->longest = -9, sparks->width = 0; // nothing to choose from
    FLASHPIX_randomize(sparks), FLASHPIX_draw(sparks, target);
    EXPECT_EQ(sparks->sparks->life, 1);
}

} // namespace
} // namespace velm::test
