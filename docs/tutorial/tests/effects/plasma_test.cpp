// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/plasma.h"
#include "foundation/chance.h"
#include "foundation/sine.h"
#include "support/owned.h"

namespace velm::test {
namespace {

using Sea = Owned<PLASMA_delete>;

Sea seaOf(unsigned seed) {
    chanceSeed(seed);
    return Sea(PLASMA_new());
}

/// The plain rule: what a pixel is, without the loop around it.
std::uint32_t expectedAt(const PLASMA* sea, std::int32_t x, std::int32_t y) {
    std::int32_t height = 0;
    std::int32_t sum = 0;
    for (const PLASMA_WAVE& wave : sea->waves) {
        height = SINE_entry(wave.phase + x * wave.across + y * wave.down + height / 64 - (height % 64 < 0));
        sum += height;
    }
    return sea->colours[(sum + 0x20000) / 256 % PLASMA_colourCount];
}

TEST(Plasma, FillsPicturesOfAnySizeByThePlainRule) {
    for (std::uint32_t seed = 1; seed <= 20; ++seed) {
        const Picture target(Images(seed).image());
        const Picture expected(IMG_clone(target));
        const Sea sea = seaOf(seed);
        for (int frame = 0; frame < 3; ++frame) {
            PLASMA_advance(sea);
        }
        PLASMA_draw(sea, target);
        for (std::int32_t i = 0; i < expected->width * expected->height; ++i) {
            expected->pixels[i] = expectedAt(sea, i % expected->width, i / expected->width);
        }
        EXPECT_EQ(difference(target, expected), "") << "seed " << seed;
    }
}

TEST(Plasma, TwoDoNotDisturbEachOtherAndDrawingAllocatesNothing) {
    const Sea alone = seaOf(1);
    const Sea first = seaOf(1);
    const Sea second = seaOf(2);
    const Picture a(IMG_newSized(32, 32));
    const Picture b(IMG_newSized(32, 32));
    const std::int64_t allocations = allocationCount();
    PLASMA_advance(alone), PLASMA_draw(alone, a);
    PLASMA_advance(first), PLASMA_advance(second), PLASMA_draw(second, b), PLASMA_draw(first, b);
    EXPECT_EQ(allocationCount(), allocations);
    EXPECT_EQ(difference(a, b), "");
    PLASMA_draw(second, b);
    EXPECT_NE(difference(a, b), "");
}

TEST(Plasma, BadCallsAreReported) {
    const Sea sea = seaOf(1);
    expectReports(PLASMA_verbose, 6, "PLASMA error", [&] {
        PLASMA_randomize(nullptr), PLASMA_advance(nullptr), PLASMA_delete(nullptr);
        PLASMA_draw(sea, nullptr), PLASMA_draw(nullptr, nullptr);
        expectFailure(1, PLASMA_new);
    });
}

} // namespace
} // namespace velm::test
