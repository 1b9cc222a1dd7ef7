// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/circle.h"
#include "image/rgb888.h"
#include "support/owned.h"

#include <set>
#include <span>

namespace velm::test {
namespace {

using Points = std::set<std::pair<std::int32_t, std::int32_t>>; ///< (row, column) about the centre

/// One octant by the true square root, mirrored seven times.
Points plainRing(std::int32_t radius) {
    Points ring;
    for (std::int32_t b = 0;; ++b) {
        const auto a = static_cast<std::int32_t>(std::lround(std::sqrt(double(radius) * radius - b * b)));
        if (b > a) {
            return ring;
        }
        for (const std::int32_t s : {-1, 1}) {
            ring.insert({{s * b, a}, {s * b, -a}, {s * a, b}, {s * a, -b}});
        }
    }
}

Points plainDisc(std::int32_t radius) {
    Points disc;
    for (const auto& [y, x] : plainRing(radius)) {
        for (std::int32_t i = -std::abs(x); i <= std::abs(x); ++i) {
            disc.insert({y, i});
        }
    }
    return disc;
}

TEST(Circle, ShapesAreClippedAsThePlainRule) {
    const auto set = [](std::uint32_t, std::uint32_t colour) { return colour; };
    const auto add = [](std::uint32_t old, std::uint32_t colour) { return RGB888_add(old, colour); };
    const auto exclusive = [](std::uint32_t old, std::uint32_t colour) { return old ^ colour; };
    Images random(8);
    const auto compare = [&](Points (*shape)(std::int32_t), auto draw, auto rule) {
        for (std::int32_t i = 0; i < 60; ++i) {
            const std::int32_t radius = i < 16 ? i : random.number(0, 90);
            const std::int32_t x = i < 16 ? 20 : random.number(-60, 100);
            const std::int32_t y = i < 16 ? 16 : random.number(-60, 90);
            const std::uint32_t colour = random.pixel();
            const Picture actual(noise(40, 32, 3));
            const Picture expected(noise(40, 32, 3));
            draw(actual, x, y, radius, colour);
            for (const auto& [row, column] : shape(radius)) {
                IMG_putPixel(expected, x + column, y + row,
                             rule(IMG_getPixel(expected, x + column, y + row), colour));
            }
            ASSERT_EQ(difference(actual, expected), "") << radius << " at " << x << ", " << y;
        }
    };
    compare(plainRing, CIRCLE_drawRing, set);
    compare(plainRing, CIRCLE_addRing, add);
    compare(plainDisc, CIRCLE_drawDisc, set);
    compare(plainDisc, CIRCLE_addDisc, add);
    compare(plainDisc, CIRCLE_xorDisc, exclusive);
}

TEST(Circle, ExtremesLeaveThePictureAlone) {
    const Picture image(noise(40, 32, 3));
    const Picture before(noise(40, 32, 3));
    constexpr std::int32_t most = 0x7FFFFFFF;
    for (const std::int32_t far : {most, -most - 1}) {
        CIRCLE_drawRing(image, far, 4, CIRCLE_largestRadius, 1), CIRCLE_drawDisc(image, 4, far, 100, 1);
        CIRCLE_drawDisc(image, 4, 4, far, 1);
    }
    CIRCLE_drawDisc(image, 4, 4, CIRCLE_largestRadius + 1, 1);
    CIRCLE_drawRing(image, 4, 4, CIRCLE_largestRadius, 1); // the picture lies far inside
    EXPECT_EQ(difference(image, before), "");
    CIRCLE_drawDisc(image, CIRCLE_largestRadius + 39, 4, CIRCLE_largestRadius, 1);
    EXPECT_EQ(IMG_getPixel(image, 39, 4), 1U) << "only the leftmost pixel of the widest disc";
    EXPECT_EQ(IMG_getPixel(image, 38, 4), IMG_getPixel(before, 38, 4));
    expectReports(CIRCLE_verbose, 1, "CIRCLE error", [] { CIRCLE_drawRing(nullptr, 0, 0, 1, 1); });
}

TEST(Circle, BouncesOffTheEdgesAndBeginsAgain) {
    const Owned<CIRCLE_delete> fleet(CIRCLE_new());
    fleet->width = 30, fleet->height = 20, fleet->largest = 10;
    fleet->bodies[0] = {0x10000, 0x138000, -0x18000, 0x10000, 0x98000, 0x10000, 1};
    CIRCLE_advance(fleet);
    const CIRCLE_BODY& first = fleet->bodies[0];
    EXPECT_TRUE(first.x == 0x8000 && first.speedX == 0x18000) << "off the left edge";
    EXPECT_TRUE(first.y == 0x138000 && first.speedY == -0x10000) << "off the lower edge";
    EXPECT_EQ(first.radius, 0x8000);
}

TEST(Circle, SizesOutOfRangeCountAsTheNearestInIt) {
    const Owned<CIRCLE_delete> fleet(CIRCLE_new());
    const Picture target(IMG_newSized(1, 1));
    for (const auto& [size, nearest] :
         {std::pair{10, 10}, {0, 1}, {100000, CIRCLE_largestRadius}, {0x7FFFFFFF, CIRCLE_largestRadius}}) {
        fleet->width = fleet->height = fleet->largest = size;
        CIRCLE_setCount(fleet, 100);
        fleet->bodies[1].speedX = 0x7FFFFFFF, fleet->bodies[1].growth = -0x8000;
        for (std::int32_t frame = 0; frame < 200; ++frame) {
            CIRCLE_advance(fleet);
            for (const CIRCLE_BODY& body : std::span(fleet->bodies, 100)) {
                for (const std::int32_t length : {body.x, body.y, body.radius}) {
                    ASSERT_TRUE(length >= 0 && length <= nearest << 16) << size << ": " << length;
                }
            }
        }
        CIRCLE_setCount(fleet, 1);
        fleet->bodies[0] = {0, 0, 0, 0, 0, 0, 0x808080};
        IMG_fill(target, 0);
        CIRCLE_drawAdd(fleet, target);
        EXPECT_EQ(target->pixels[0], 0x808080U) << "a ring that has just begun is bright";
    }
}

TEST(Circle, NestsFadeAndInterfere) {
    const Owned<CIRCLE_delete> fleet(CIRCLE_new());
    CIRCLE_setCount(fleet, 1);
    fleet->bodies[0] = {10 << 16, 10 << 16, 0, 0, 8 << 16, 0, 0x808080};
    fleet->rings = 9, fleet->spacing = 4, fleet->largest = 16;
    const auto column = [&](void (*draw)(const CIRCLE*, IMG*)) {
        const Picture target(IMG_newSized(21, 21));
        draw(fleet, target);
        return std::vector<std::uint32_t>(target->pixels + 10 * 21 + 10, target->pixels + 10 * 21 + 19);
    };
    using Row = std::vector<std::uint32_t>;
    constexpr std::uint32_t c = 0x808080;
    EXPECT_EQ(column(CIRCLE_draw), (Row{c, 0, 0, 0, c, 0, 0, 0, c}));
    EXPECT_EQ(column(CIRCLE_drawAdd), (Row{c, 0, 0, 0, 0x606060, 0, 0, 0, 0x404040}));
    EXPECT_EQ(column(CIRCLE_drawXor), (Row{c, 0, 0, 0, 0, c, c, c, c}));
}

} // namespace
} // namespace velm::test
