// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "support/owned.h"
#include "vector/seg2d.h"
#include "vector/vec2d.h"

namespace velm::test {
namespace {

void expectAt(const VEC2D& point, std::int32_t x, std::int32_t y) {
    EXPECT_EQ(point.x, x);
    EXPECT_EQ(point.y, y);
    EXPECT_EQ(point.colour, 7U);
}

TEST(Vec2d, VEC2D_rotateZeroIsExact) {
    constexpr std::int32_t turns[][5] = {{100, 0, 256, 0, 99},    {0, 100, 256, -100, 0},
                                         {100, 0, -256, 0, -100}, {37, -21, 100, 42, 4}, // 42.05, 4.35
                                         {100, 0, 0, 100, 0},     {100, 0, 1024, 99, 0}};
    for (const auto& [x, y, angle, toX, toY] : turns) {
        VEC2D point{x, y, 7};
        VEC2D_rotate(&point, angle);
        expectAt(point, toX, toY);
    }
}

TEST(Vec2d, ArithmeticWraps) {
    constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
    constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
    VEC2D point{most, least, 7};
    const VEC2D one{1, -1, 9};
    VEC2D_add(&one, &point);
    expectAt(point, least, most);
    const VEC2D factor{2, 3, 9};
    VEC2D_scale(&point, &factor);
    expectAt(point, 0, most - 2);
    const VEC2D large{46341, 4, 0};
    EXPECT_EQ(VEC2D_lengthSquared(&large), -2147478999);
}

TEST(Vec2d, MissingPointsAreToldByDefault) {
    VEC2D point{5, 6, 7};
    EXPECT_EQ(VEC2D_verbose, 1);
    expectReports(VEC2D_verbose, 4, "VEC2D error", [&] {
        VEC2D_add(nullptr, &point), VEC2D_scale(&point, nullptr), VEC2D_copy(nullptr, &point);
        EXPECT_EQ(VEC2D_lengthSquared(nullptr), -1);
    });
    expectAt(point, 5, 6);
}

TEST(Seg2d, TransformsBothPointsAndDrawsInTheFirstOnesColour) {
    const Owned<SEG2D_delete> segment(SEG2D_new());
    segment->a->colour = 0xAA0000;
    const VEC2D offset{2, 0, 0};
    const VEC2D factor{3, 5, 0};
    SEG2D_translate(segment, &offset); // (2, 0) to (3, 1)
    SEG2D_scale(segment, &factor);     // (6, 0) to (9, 5)
    SEG2D_rotate(segment, 256);        // (0, 5) to (-5, 8)
    const VEC2D back{5, 0, 0};
    SEG2D_translate(segment, &back);
    const Picture img(IMG_new());
    SEG2D_draw(segment, img);
    EXPECT_EQ(IMG_getPixel(img, 5, 5), 0xAA0000U);
    EXPECT_EQ(IMG_getPixel(img, 0, 8), 0xAA0000U);
}

TEST(Seg2d, IncompleteSegmentsAreReported) {
    VEC2D_verbose = 0;
    VEC2D point{1, 2, 3};
    SEG2D half{&point, nullptr};
    expectReports(SEG2D_verbose, 6, "SEG2D error", [&] {
        SEG2D_translate(&half, &point), SEG2D_draw(&half, nullptr), SEG2D_copy(nullptr, &half);
        expectFailure(1, SEG2D_new), expectFailure(2, SEG2D_new), expectFailure(3, SEG2D_new);
    });
    EXPECT_EQ(point.x, 1);
    VEC2D_verbose = 1;
}

} // namespace
} // namespace velm::test
