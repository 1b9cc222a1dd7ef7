// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/partixel.h"
#include "foundation/random.h"
#include "foundation/wide.h"
#include "support/owned.h"

namespace velm::test {
namespace {

using Particles = Owned<PARTIXEL_delete>;

/// A basin and two shelves of grey, which water fills and sparks strike.
IMG* basin() {
    IMG* image = IMG_newSized(96, 64);
    IMG_fillRect(image, 8, 20, 30, 1, 0x404040);
    IMG_fillRect(image, 50, 30, 30, 1, 0x404040);
    IMG_fillRect(image, 4, 56, 60, 1, 0x404040);
    IMG_fillRect(image, 4, 46, 1, 10, 0x404040);
    IMG_fillRect(image, 63, 50, 1, 6, 0x404040);
    return image;
}

// 500 frames. Two transcriptions of the rules, one of them in another language, came to the same digest of
// all pixels; none of them knew the three as cases of their own.
TEST(Partixel, PARTIXEL_scanMeetsAgainAndPARTIXEL_sparkMergesWithItselfAndPARTIXEL_newWaterIsNotBlue) {
    RANDOM* const own = PARTIXEL_random;
    PARTIXEL_random = RANDOM_new();
    const Picture image(basin());
    const Particles blue(PARTIXEL_new());
    const Particles green(PARTIXEL_new());
    const Particles fire(PARTIXEL_new());
    blue->image = green->image = fire->image = image;
    blue->colour = 0x0000FF;
    green->update = PARTIXEL_waterLeft;
    fire->update = PARTIXEL_sparks;
    std::uint32_t pixels = 0;
    std::uint32_t met = 0;
    const std::int64_t allocations = allocationCount();
    const bool isWide = wideRegisters;
    for (std::int32_t frame = 0; frame < 500; ++frame) {
        wideRegisters = isWide && frame % 2 == 0;
        IMG_putPixel(image, 20 + frame % 7, 0, 0x0000FF), IMG_putPixel(image, 60 + frame % 5, 0, 0x0040E0);
        for (std::int32_t i = 0; i < 3; ++i) {
            IMG_putPixel(image, (frame * 11 + i * 29) % 96, 63, 0xFF0000);
        }
        for (PARTIXEL* const kind : {blue.get(), green.get(), fire.get()}) {
            met = met * 31 + static_cast<std::uint32_t>(kind->update(kind));
        }
        for (std::int32_t i = 0; i < 96 * 64; ++i) {
            pixels = pixels * 31 + image->pixels[i];
        }
    }
    wideRegisters = isWide;
    EXPECT_EQ(allocationCount(), allocations);
    EXPECT_EQ(pixels, 0x976F9FF8U);
    EXPECT_EQ(met, 0x43068C88U);
    EXPECT_EQ(blue->particles + green->particles + fire->particles, 420 + 237 + 17);
    RANDOM_delete(&PARTIXEL_random);
    PARTIXEL_random = own;
}

TEST(Partixel, IsWaterAtFirstAndReports) {
    RANDOM* own = PARTIXEL_random;
    PARTIXEL_random = nullptr;
    expectReports(PARTIXEL_verbose, 4, "PARTIXEL error", [&] {
        expectFailure(1, PARTIXEL_new), expectFailure(2, PARTIXEL_new), expectFailure(1, PARTIXEL_new);
        PARTIXEL_delete(nullptr);
    });
    const Particles water(PARTIXEL_new());
    EXPECT_EQ(PARTIXEL_random->counter, 0x12345678U);
    EXPECT_EQ(water->update, PARTIXEL_waterRight);
    EXPECT_STREQ(water->name, "WATER");
    RANDOM_delete(&PARTIXEL_random);
    PARTIXEL_random = own;
}

} // namespace
} // namespace velm::test
