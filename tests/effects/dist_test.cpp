// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/distx.h"
#include "effects/disty.h"
#include "effects/owned.h"
#include "foundation/wrap.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace velm::test {

namespace {

/// The shift of row or column i, which is i + 1 steps into the wave.
template <typename Dist>
std::int32_t shiftOf(const Dist& dist, std::int32_t i) {
    return (dist.amplitude * SINE_entry(dist.wave.phase + (i + 1) * dist.wave.offsetStep)) >> 16;
}

void plain(const DISTX& dist, IMG* target) {
    for (std::int32_t r = 0; r < dist.source->height; ++r) {
        for (std::int32_t c = 0; c < std::min(dist.source->width, target->width); ++c) {
            if (const std::uint32_t pixel = IMG_getPixel(dist.source, c, r); pixel != 0) {
                IMG_putPixel(target, positiveModulo(dist.x + shiftOf(dist, r) + c, target->width), dist.y + r,
                             pixel);
            }
        }
    }
}

void plain(const DISTY& dist, IMG* target) {
    for (std::int32_t c = 0; c < dist.source->width; ++c) {
        for (std::int32_t r = 0; r < std::min(dist.source->height, target->height); ++r) {
            if (const std::uint32_t pixel = IMG_getPixel(dist.source, c, r); pixel != 0) {
                IMG_putPixel(target, dist.x + c,
                             positiveModulo(dist.y + shiftOf(dist, c) + r, target->height), pixel);
            }
        }
    }
}

/// Draws several frames of random waves beside the plain rule, all of them over what stands there.
template <typename Dist>
void expectPlain(Dist* dist, void (*draw)(Dist*, IMG*), void (*advance)(Dist*)) {
    EXPECT_EQ(dist->amplitude, 16);
    EXPECT_EQ(dist->wave.offsetStep, 16);
    std::mt19937 random(5);
    const Picture fast(noise(96, 40, 1));
    const Picture slow(noise(96, 40, 1));
    for (const auto& [width, height] : {std::pair{96, 16}, {150, 60}, {1, 1}, {20, 3}}) {
        const Picture strip(noise(width, height, 2));
        dist->source = strip;
        dist->wave.speed = 25;
        for (std::int32_t i = 0; i < 12; ++i) {
            dist->x = static_cast<std::int32_t>(random() % 200) - 100;
            dist->y = static_cast<std::int32_t>(random() % 80) - 40;
            dist->amplitude = static_cast<std::int32_t>(random() % 300) - 20;
            dist->wave.offsetStep = static_cast<std::int32_t>(random() % 40) - 5;
            draw(dist, fast);
            plain(*dist, slow);
            ASSERT_EQ(firstDifference(fast, slow), "") << width << "x" << height << ", wave " << i;
            advance(dist);
        }
    }
    EXPECT_EQ(dist->wave.phase, 48 * 25 % 1024);
}

} // namespace

TEST(Dist, DrawAsThePlainRule) {
    expectPlain<DISTX>(Owned<DISTX, DISTX_delete>(DISTX_new()), DISTX_draw, DISTX_advance);
    expectPlain<DISTY>(Owned<DISTY, DISTY_delete>(DISTY_new()), DISTY_draw, DISTY_advance);
}

} // namespace velm::test
