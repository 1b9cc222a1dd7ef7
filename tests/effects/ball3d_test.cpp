// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/ball3d.h"
#include "effects/owned.h"
#include "foundation/sine.h"
#include "image/rgb888.h"
#include "support/capture_stdout.h"

#include <algorithm>
#include <cstdlib>

namespace velm::test {

namespace {

using Ball = Owned<BALL3D, BALL3D_delete>;

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
            const bool dark = shade < 0;
            shade = std::abs(shade);
            const auto grey = static_cast<std::uint32_t>(shade | shade << 8 | shade << 16);
            const std::uint32_t colour = dark ? RGB888_sub(ball.colour, grey) : RGB888_add(ball.colour, grey);
            IMG_putPixel(target, ball.x + px, ball.y + b, colour);
        }
    }
    return shade <= 255 ? "" : "min=" + std::to_string(lowest) + " max=" + std::to_string(highest);
}

} // namespace

TEST(Ball3d, DrawsItsNumbersInOrder) {
    srandom(8810);
    const Ball ball(BALL3D_new());
    const long after = random();
    srandom(8810);
    for (const std::int32_t number : {ball->x, ball->y, ball->z, ball->radius}) {
        EXPECT_EQ(number, random() % 256);
    }
    EXPECT_EQ(ball->colour, random());
    EXPECT_EQ(ball->colour2, random());
    EXPECT_EQ(after, random());
}

TEST(Ball3d, DrawsAsThePlainRule) {
    std::mt19937 random(4);
    const auto within = [&](std::int32_t low, std::int32_t high) {
        return low + static_cast<std::int32_t>(random() % static_cast<std::uint32_t>(high - low + 1));
    };
    const Ball ball(BALL3D_new());
    const Picture screen(noise(100, 90, 1));
    const Picture plain(noise(100, 90, 1));
    ball->target = screen;
    for (std::int32_t i = 0; i < 24; ++i) {
        ball->x = within(-40, 140);
        ball->y = within(-40, 130);
        ball->radius = i < 2 ? i : within(-20, 260);
        ball->colour = static_cast<std::uint32_t>(random());
        ball->light = {.x = within(-10, 10), .y = within(-10, 10), .z = within(-10, 10)};
        ASSERT_EQ(printedBy([&] { BALL3D_draw(ball); }), plainBall(*ball, plain));
        ASSERT_EQ(firstDifference(screen, plain), "") << "ball " << i;
    }
}

TEST(Ball3d, BALL3D_lastShadeDecides) {
    const Ball ball(BALL3D_new());
    const Picture screen(IMG_newSized(16, 16));
    ball->target = screen;
    const auto printed = [&](std::int32_t radius, BALL3D_LIGHT light) {
        ball->radius = radius;
        ball->light = light;
        return printedBy([&] { BALL3D_draw(ball); });
    };
    EXPECT_EQ(printed(230, {0, 10, 0}), "");                 // the last ring is at -230, its shade -255
    EXPECT_EQ(printed(240, {0, 10, 0}), "min=-266 max=265"); // rings from 239 to -240
    EXPECT_EQ(printed(240, {0, 0, 100}), "");                // far too bright, but not at the last point
}

TEST(Ball3d, BALL3D_greySpills) {
    const Ball ball(BALL3D_new());
    const Picture pixel(IMG_newSized(1, 1)); // it shows the last ring, at -90, of shade 260 = 0x104 or -260
    ball->target = pixel;
    ball->x = 0, ball->y = ball->radius = 90;
    ball->colour = 0x804020;
    ball->light.y = -26;
    EXPECT_NE(printedBy([&] { BALL3D_draw(ball); }), "");
    EXPECT_EQ(pixel->pixels[0], 0x804020U + 0x050504U);
    ball->light.y = 26;
    EXPECT_NE(printedBy([&] { BALL3D_draw(ball); }), "");
    EXPECT_EQ(pixel->pixels[0], 0x804020U - 0x050504U);
}

} // namespace velm::test
