// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/fill.h"
#include "support/owned.h"

namespace velm::test {
namespace {

using Fill = Owned<FILL_delete>;

/// Walls here and there on a black ground.
IMG* rubble(std::int32_t width, std::int32_t height, std::uint32_t seed) {
    Images random(seed);
    IMG* img = IMG_newSized(width, height);
    paint(img, [&](auto...) { return random.number(0, 99) < 38 ? 0x808080U : 0U; });
    return img;
}

/// The fill as one would write it down: neighbour by neighbour.
void plainFlood(IMG* img, std::int32_t x, std::int32_t y, std::uint32_t from, std::uint32_t colour) {
    std::vector<std::pair<std::int32_t, std::int32_t>> open{{x, y}};
    while (!open.empty()) {
        const auto [column, row] = open.back();
        open.pop_back();
        if (contains(*img, column, row) && IMG_getPixel(img, column, row) == from) {
            IMG_putPixel(img, column, row, colour);
            open.insert(open.end(),
                        {{column - 1, row}, {column + 1, row}, {column, row - 1}, {column, row + 1}});
        }
    }
}

TEST(Fill, PoursStepByStepIntoTheSameArea) {
    const Fill fill(FILL_new());
    for (std::uint32_t seed = 1; seed < 40; ++seed) {
        const Picture walls(rubble(4 + static_cast<int>(seed) * 5, 50, seed));
        const Picture plain(IMG_clone(walls));
        const Picture poured(IMG_clone(walls));
        FILL_begin(fill, walls);
        const bool isFree = walls->pixels[0] == 0;
        EXPECT_EQ(FILL_pour(fill, 0, 0, 5), isFree);
        EXPECT_FALSE(FILL_pour(fill, 0, 0, 9)) << "a wall, or filled already";
        EXPECT_FALSE(FILL_pour(fill, walls->width, 0, 5) || FILL_pour(fill, 0, -1, 5));
        fill->flow = 7;
        while (fill->first < fill->count) {
            const std::int32_t before = fill->first;
            FILL_advance(fill);
            ASSERT_LE(fill->first - before, 7);
        }
        ASSERT_LE(fill->count, walls->width * walls->height);
        FILL_draw(fill, poured); // white: there is no palette
        fill->ripple = 0;
        FILL_draw(fill, poured);
        plainFlood(plain, 0, 0, isFree ? 0 : 1, 0xFFFFFF);
        ASSERT_EQ(difference(poured, plain), "") << "seed " << seed;
    }
}

TEST(Fill, RunsDryFromTheSeedOn) {
    const Fill fill(FILL_new());
    const Picture walls(IMG_newSized(9, 1));
    const Picture screen(IMG_newSized(30, 2));
    FILL_begin(fill, walls);
    FILL_pour(fill, 4, 0, 0);
    fill->ripple = 0;
    for (std::int32_t step = 1; step <= 4; ++step) {
        FILL_advance(fill);
    }
    fill->drained = 2;
    FILL_draw(fill, screen);
    for (std::int32_t x = 0; x < 30; ++x) {
        EXPECT_EQ(screen->pixels[x] != 0, x < 9 && std::abs(x - 4) >= 2) << x;
    }
}

TEST(Fill, KeepsItsRoomWhenItGetsNoOther) {
    const Fill fill(FILL_new());
    const Picture large(IMG_newSized(257, 1));
    expectReports(FILL_verbose, 7, "FILL error", [&] {
        for (const std::int64_t nth : {1, 2}) {
            expectFailure(nth, [&] { return FILL_setSize(fill, 300, 300), nullptr; });
        }
        FILL_setSize(fill, 0x4001, 1), FILL_setSize(fill, 1, 0x4001);
        FILL_setSize(fill, 0, 5), FILL_begin(fill, large), FILL_randomize(fill);
    });
    EXPECT_EQ(fill->width, 256);
    FILL_setSize(fill, 0x4000, 1);
    FILL_begin(fill, large);
    EXPECT_EQ(fill->drawing, large);
}

} // namespace
} // namespace velm::test
