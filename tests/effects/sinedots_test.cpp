// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/sinedots.h"
#include "foundation/chance.h"
#include "foundation/sine.h"
#include "image/imgfx.h"
#include "support/owned.h"

namespace velm::test {
namespace {

using Dots = Owned<SINEDOTS_delete>;

/// The curve as it is written down: every dot by itself.
template <typename Plot>
void plainDots(const SINEDOTS& dots, IMG* target, Plot plot) {
    SINEDOTS_AXES p[3] = {dots.phase[0], dots.phase[1], dots.phase[2]};
    for (std::int32_t i = 0; i < dots.count; ++i) {
        std::int32_t sumX = 0;
        std::int32_t sumY = 0;
        for (std::int32_t k = 0; k < 3; ++k) {
            sumX += SINE_entry(p[k].x) * (target->width >> (k + 1));
            sumY += SINE_entry(p[k].y) * (target->height >> (k + 1));
            p[k].x = (p[k].x + dots.step[k].x) & 1023;
            p[k].y = (p[k].y + dots.step[k].y) & 1023;
        }
        plot(target, (target->width >> 1) + (sumX >> 16), (target->height >> 1) + (sumY >> 16), dots.colour);
    }
}

TEST(Sinedots, SINEDOTS_depthTakesNextFieldAndDrawsAsThePlainRule) {
    const Dots dots(SINEDOTS_new());
    for (const std::int32_t count : {1, 1000, 1024, 1025, 5000, 16384}) {
        for (const auto& [width, height] : {std::pair{256, 256}, {64, 37}, {1, 1}, {3, 200}}) {
            SINEDOTS_setCount(dots, count);
            SINEDOTS_randomize(dots);
            dots->step[1].x = -(chance() % 5);
            dots->colour = static_cast<std::uint32_t>(chance()) & 0x071F80U;
            const Picture fast(noise(width, height, 3));
            const Picture plain(noise(width, height, 3));
            for (std::int32_t frame = 0; frame < 3; ++frame) {
                SINEDOTS_drawAdd(dots, fast);
                plainDots(*dots, plain, IMGFX_addPixel);
                ASSERT_EQ(difference(fast, plain), "") << count << " dots, added";
                SINEDOTS_draw(dots, fast);
                plainDots(*dots, plain, IMG_putPixel);
                ASSERT_EQ(difference(fast, plain), "") << count << " dots, set";
                SINEDOTS_advance(dots);
            }
            EXPECT_EQ(dots->depth, static_cast<std::int32_t>(reinterpret_cast<std::uintptr_t>(fast->pixels)));
        }
    }
}

} // namespace
} // namespace velm::test
