// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/distx.h"
#include "effects/disty.h"
#include "support/owned.h"

namespace velm::test {
namespace {

/// Line by line; row or column i is i + 1 steps into the wave.
template <typename Dist>
void plain(const Dist& dist, IMG* target) {
    constexpr bool isX = std::is_same_v<Dist, DISTX>;
    for (std::int32_t i = 0; i < (isX ? dist.source->height : dist.source->width); ++i) {
        const std::int32_t angle = dist.wave.phase + (i + 1) * dist.wave.offsetStep;
        const std::int32_t shift = (dist.amplitude * SINE_entry(angle)) >> 16;
        const std::int32_t onto = i + (isX ? dist.y : dist.x);
        if (onto >= 0 && onto < (isX ? target->height : target->width)) {
            const auto copy = isX ? IMG_copyRowWrapped : IMG_copyColumnWrapped;
            copy(dist.source, target, i, onto, shift + (isX ? dist.x : dist.y));
        }
    }
}

/// Draws several frames of random waves beside the plain rule, all of them over what stands there.
template <typename Dist>
void expectPlain(Dist* dist, void (*draw)(Dist*, IMG*), void (*advance)(Dist*)) {
    EXPECT_EQ(dist->amplitude, 16);
    EXPECT_EQ(dist->wave.offsetStep, 16);
    Images random(5);
    const Picture fast(noise(96, 40, 1));
    const Picture slow(noise(96, 40, 1));
    dist->wave.speed = 25;
    for (const auto& [width, height] : {std::pair{96, 16}, {150, 60}, {1, 1}, {20, 3}}) {
        const Picture strip(noise(width, height, 2));
        dist->source = strip;
        for (std::int32_t i = 0; i < 12; ++i) {
            dist->x = random.number(-100, 100);
            dist->y = random.number(-40, 40);
            dist->amplitude = random.number(-20, 280);
            dist->wave.offsetStep = random.number(-5, 35);
            draw(dist, fast);
            plain(*dist, slow);
            ASSERT_EQ(difference(fast, slow), "") << width << "x" << height << ", wave " << i;
            advance(dist);
        }
    }
    EXPECT_EQ(dist->wave.phase, 48 * 25 % 1024);
}

TEST(Dist, DrawAsThePlainRule) {
    expectPlain<DISTX>(Owned<DISTX_delete>(DISTX_new()), DISTX_draw, DISTX_advance);
    expectPlain<DISTY>(Owned<DISTY_delete>(DISTY_new()), DISTY_draw, DISTY_advance);
}

TEST(Dist, APictureBentIntoItselfIsReadAsItChanges) {
    const Owned<DISTY_delete> dist(DISTY_new());
    const Picture fast(noise(40, 30, 3));
    const Picture slow(noise(40, 30, 3));
    dist->source = fast;
    dist->x = 3;
    DISTY_draw(dist, fast);
    dist->source = slow;
    plain<DISTY>(*dist, slow);
    EXPECT_EQ(difference(fast, slow), "");
}

} // namespace
} // namespace velm::test
