// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "audio/sample.h"
#include "effects/lstar.h"
#include "foundation/chance.h"
#include "support/owned.h"

namespace velm::test {
namespace {

TEST(Lstar, OneStarFliesOutOfTheMiddleAndComesBack) {
    const Owned<LSTAR_delete> sky(LSTAR_new());
    LSTAR_setCount(sky, 1);
    sky->turn = 0;
    sky->stars[0] = {4096, 0, 32768};
    const auto rightmost = [&] {
        const Picture screen(IMG_newSized(256, 256));
        LSTAR_draw(sky, screen);
        for (std::int32_t x = 255; x >= 0; --x) {
            if (IMG_getPixel(screen, x, 128) != 0) {
                return x;
            }
        }
        return -1;
    };
    EXPECT_EQ(rightmost(), 128 + 32 - 1) << "the cosine's peak is 32766 of 32768";
    sky->speed = 16384;
    LSTAR_advance(sky);
    EXPECT_EQ(rightmost(), 128 + 64 - 1);
    LSTAR_advance(sky);
    EXPECT_EQ(sky->stars[0].z, LSTAR_far - LSTAR_near) << "passed the viewer";
}

TEST(Lstar, DepthDecidesHueAndBrightness) {
    const Owned<SAMPLE_delete> colours(SAMPLE_new());
    SAMPLE_setLength(colours, 2);
    SAMPLE_set(colours, 0, 0xFF0000), SAMPLE_set(colours, 1, 0x0000FF);
    const Owned<LSTAR_delete> sky(LSTAR_new());
    LSTAR_setCount(sky, 1);
    sky->colours = colours, sky->hueSpan = 2, sky->speed = sky->turn = 0;
    const auto shown = [&](std::int32_t z) {
        const Picture screen(IMG_newSized(256, 256));
        sky->stars[0] = {0, 0, z};
        sky->trail = 0;
        LSTAR_draw(sky, screen);
        return screen->pixels[128 * 256 + 128];
    };
    EXPECT_EQ(shown(LSTAR_near), 0xFF0000U);
    EXPECT_EQ(shown(LSTAR_far - 1), 0U) << "appears out of black";
    const std::uint32_t far = shown(LSTAR_near + (LSTAR_far - LSTAR_near) / 2);
    EXPECT_TRUE(far > 0x80 && far < 0x100) << "blue, and dimmer";
}

TEST(Lstar, ClipsAndStaysInItsWorld) {
    chanceSeed(5);
    const Owned<LSTAR_delete> sky(LSTAR_new());
    const Picture screen(IMG_newSized(64, 48));
    std::int32_t most = 0;
    for (const std::int32_t speed : {700, -5000, 0x7FFFFFFF}) {
        sky->speed = speed, sky->x = speed == 700 ? 32 : -40;
        for (std::int32_t frame = 0; frame < 200; ++frame, LSTAR_advance(sky)) {
            IMG_fill(screen, 0);
            LSTAR_draw(sky, screen), LSTAR_drawPolygons(sky, screen);
            most = std::max(most, lit(screen));
            for (std::int32_t i = 0; i < sky->count; ++i) {
                ASSERT_TRUE(sky->stars[i].z >= LSTAR_near && sky->stars[i].z < LSTAR_far);
            }
        }
    }
    EXPECT_GT(most, 100);
}

} // namespace
} // namespace velm::test
