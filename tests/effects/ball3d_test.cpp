// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/ball3d.h"
#include "foundation/sine.h"
#include "image/rgb888.h"
#include "support/owned.h"

namespace velm::test {
namespace {

using Ball = Owned<BALL3D_delete>;

/// The ball as it is written down, point by point; what it prints is returned.
std::string plainBall(const BALL3D& ball, IMG* target) {
    std::int32_t lowest = 0;
    std::int32_t highest = 0;
    std::int32_t shade = 0;
    for (std::int32_t u = 0; u < 512; ++u) {
        const std::int32_t a = (SINE_entry(u) * ball.radius) >> 15;
        const std::int32_t b = (SINE_entry(u + 256) * ball.radius) >> 15;
        for (std::int32_t v = 0; v < 512; ++v) {
            const std::int32_t px = (SINE_entry(v + 256) * a) >> 15;
            const std::int32_t pz = (SINE_entry(v) * a) >> 15;
            shade = (ball.light.x * px + ball.light.y * b + ball.light.z * pz) / 9;
            lowest = std::min(lowest, shade);
            highest = std::max(highest, shade);
            const auto apply = shade < 0 ? RGB888_sub : RGB888_add;
            shade = std::abs(shade);
            const auto grey = static_cast<std::uint32_t>(shade | shade << 8 | shade << 16);
            IMG_putPixel(target, ball.x + px, ball.y + b, apply(ball.colour, grey));
        }
    }
    return shade <= 255 ? "" : "min=" + std::to_string(lowest) + " max=" + std::to_string(highest);
}

TEST(Ball3d, BALL3D_lastShadeDecidesAndBALL3D_greySpills) {
    Images random(4);
    const auto near = [&random] { return random.number(-14, 14); };
    const Ball ball(BALL3D_new());
    const Picture screen(noise(100, 90, 1));
    const Picture plain(noise(100, 90, 1));
    ball->target = screen;
    for (std::int32_t i = 0; i < 24; ++i) {
        ball->x = random.number(-40, 140);
        ball->y = random.number(-40, 130);
        ball->radius = i < 2 ? i : random.number(-20, 260);
        ball->colour = random.pixel();
        ball->light = {.x = near(), .y = near(), .z = near()};
        ASSERT_EQ(printedBy([&] { BALL3D_draw(ball); }), plainBall(*ball, plain));
        ASSERT_EQ(difference(screen, plain), "") << "ball " << i;
    }
    ball->light = {0, 10, 0};
    ball->radius = 230; // the last ring is at -230, its shade -255
    EXPECT_EQ(printedBy([&] { BALL3D_draw(ball); }), "");
    ball->radius = 231;
    EXPECT_EQ(printedBy([&] { BALL3D_draw(ball); }), "min=-256 max=255");
    ball->light = {0, 0, 100}; // far too bright, but not at the last point
    EXPECT_EQ(printedBy([&] { BALL3D_draw(ball); }), "");
}

} // namespace
} // namespace velm::test
