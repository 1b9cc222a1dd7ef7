// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/partixel.h"
#include "foundation/random.h"
#include "foundation/wide.h"
#include "support/owned.h"

#include <vector>

namespace velm::test {
namespace {

using Particles = Owned<PARTIXEL_delete>;

/// The rules once more, on a plain grid with its own generator, one pixel at a time.
struct Plain {
    std::int32_t width, height;
    std::vector<std::uint32_t> grid;
    std::uint32_t counter, multiplier, state;

    std::uint32_t get(std::int32_t x, std::int32_t y) const {
        return x < 0 || y < 0 || x >= width || y >= height ? 0
                                                           : grid[static_cast<std::size_t>(x + y * width)];
    }
    void put(std::int32_t x, std::int32_t y, std::uint32_t pixel) {
        if (x >= 0 && y >= 0 && x < width && y < height) {
            grid[static_cast<std::size_t>(x + y * width)] = pixel;
        }
    }
    std::int32_t draw() {
        counter += 1;
        multiplier = multiplier * (state * counter) % 0x1000000;
        state = (state + counter + multiplier) % 0x1000000;
        return static_cast<std::int32_t>(state);
    }

    std::int32_t water(std::uint32_t colour, bool toRight) {
        std::int32_t met = 0;
        for (std::int32_t y = height - 1; y >= 0; --y) {
            for (std::int32_t i = 0; i < width; ++i) {
                const std::int32_t x = toRight ? i : width - 1 - i;
                const std::int32_t ahead = toRight ? x + 1 : x - 1;
                if (get(x, y) != colour) {
                    continue;
                }
                ++met;
                if (get(x, y + 1) == 0) {
                    put(x, y + 1, colour), put(x, y, 0);
                } else if (get(ahead, y) == 0) {
                    put(ahead, y, colour), put(x, y, 0);
                } else if (get(2 * x - ahead, y) == 0) {
                    put(2 * x - ahead, y, colour), put(x, y, 0);
                }
            }
        }
        return met;
    }

    std::int32_t sparks() {
        std::int32_t met = 0;
        for (std::int32_t y = 0; y < height; ++y) {
            for (std::int32_t x = 0; x < width; ++x) {
                const std::uint32_t p = get(x, y);
                if ((p & 0xFFFF) != 0 || (p & 0xFF0000) == 0) {
                    continue;
                }
                ++met;
                const std::int32_t r1 = draw();
                const std::int32_t r2 = draw();
                const std::int32_t nx = x + r2 % 3 - 1;
                const std::int32_t ny = y - r1 % 5;
                const std::uint32_t q = get(nx, ny);
                const std::uint32_t level = p >> 16 & 0xFF;
                if (q == 0) {
                    put(nx, ny, level < 7 ? 0 : (level - 7) << 16), put(x, y, 0);
                } else if ((q & 0xFFFF) == 0 && (q & 0xFF0000) != 0) {
                    put(nx, ny, std::min(0xFFU, (q >> 16 & 0xFF) + 0xF0) << 16), put(x, y, 0);
                } else if (q <= 0xFF) {
                    put(nx, ny, 0x808080);
                } else {
                    put(x, y, 0);
                }
            }
        }
        return met;
    }
};

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

// 500 frames. The plain rules know none of the three as a case of its own.
TEST(Partixel, PARTIXEL_scanMeetsAgainAndPARTIXEL_sparkMergesWithItselfAndPARTIXEL_newWaterIsNotBlue) {
    RANDOM* const own = PARTIXEL_random;
    PARTIXEL_random = RANDOM_new();
    const Picture image(basin());
    Plain plain{96, 64, {image->pixels, image->pixels + 96 * 64}, 0x12345678, 33141, 1};
    const Particles blue(PARTIXEL_new());
    const Particles green(PARTIXEL_new());
    const Particles fire(PARTIXEL_new());
    blue->image = green->image = fire->image = image;
    blue->colour = 0x0000FF;
    green->update = PARTIXEL_waterLeft;
    fire->update = PARTIXEL_sparks;
    const auto put = [&](std::int32_t x, std::int32_t y, std::uint32_t pixel) {
        IMG_putPixel(image, x, y, pixel), plain.put(x, y, pixel);
    };
    std::uint32_t digest = 0;
    const std::int64_t allocations = allocationCount();
    const bool isWide = wideRegisters;
    for (std::int32_t frame = 0; frame < 500; ++frame) {
        wideRegisters = isWide && frame % 2 == 0;
        put(20 + frame % 7, 0, 0x0000FF), put(60 + frame % 5, 0, 0x0040E0);
        for (std::int32_t i = 0; i < 3; ++i) {
            put((frame * 11 + i * 29) % 96, 63, 0xFF0000);
        }
        ASSERT_EQ(blue->update(blue), plain.water(0x0000FF, true));
        ASSERT_EQ(green->update(green), plain.water(0x0040E0, false));
        ASSERT_EQ(fire->update(fire), plain.sparks());
        ASSERT_TRUE(std::equal(plain.grid.begin(), plain.grid.end(), image->pixels)) << "frame " << frame;
        for (const std::uint32_t pixel : plain.grid) {
            digest = digest * 31 + pixel;
        }
    }
    wideRegisters = isWide;
    EXPECT_EQ(allocationCount(), allocations);
    EXPECT_EQ(digest, 0x976F9FF8U) << "a third transcription, in another language, gives the same";
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
