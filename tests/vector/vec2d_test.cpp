// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "support/capture_stdout.h"
#include "vector/vec2d.h"

#include <limits>

namespace velm::test {

namespace {

void expectAt(const VEC2D& point, std::int32_t x, std::int32_t y) {
    EXPECT_EQ(point.x, x);
    EXPECT_EQ(point.y, y);
    EXPECT_EQ(point.colour, 7U);
}

VEC2D rotated(std::int32_t x, std::int32_t y, std::int32_t angle) {
    VEC2D point{x, y, 7};
    VEC2D_rotate(&point, angle);
    return point;
}

} // namespace

TEST(Vec2d, RotationTurnsClockwiseAndRoundsDown) {
    expectAt(rotated(100, 0, 256), 0, 99);
    expectAt(rotated(0, 100, 256), -100, 0);
    expectAt(rotated(100, 0, -256), 0, -100);
    expectAt(rotated(37, -21, 100), 42, 4); // 42.05, 4.35
}

TEST(Vec2d, VEC2D_rotateZeroIsExact) {
    expectAt(rotated(100, 0, 0), 100, 0);
    expectAt(rotated(100, 0, 1024), 99, 0);
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
    EXPECT_EQ(printedBy([&] {
                  VEC2D_add(nullptr, &point);
                  VEC2D_scale(&point, nullptr);
                  VEC2D_copy(nullptr, &point);
                  EXPECT_EQ(VEC2D_lengthSquared(nullptr), -1);
              }),
              "VEC2D error\nVEC2D error\nVEC2D error\nVEC2D error\n");
    expectAt(point, 5, 6);
}

} // namespace velm::test
