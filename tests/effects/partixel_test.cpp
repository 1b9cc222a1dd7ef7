// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/partixel.h"
#include "support/owned.h"

#include <cstring>
#include <string>
#include <vector>

namespace velm::test {
namespace {

using Particles = Owned<PARTIXEL, PARTIXEL_delete>;

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

/// A frame's springs: water from above, sparks from below.
template <typename Put>
void feed(std::int32_t frame, Put put) {
    put(20 + frame % 7, 0, 0x0000FFU);
    put(60 + frame % 5, 0, 0x0040E0U);
    for (std::int32_t i = 0; i < 3; ++i) {
        put((frame * 11 + i * 29) % 96, 63, 0xFF0000U);
    }
}

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

TEST(Partixel, FiveHundredFramesAreThoseOfThePlainRules) {
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
    std::uint32_t digest = 0;
    const std::int64_t allocations = allocationCount();
    for (std::int32_t frame = 0; frame < 500; ++frame) {
        feed(frame,
             [&](auto x, auto y, auto pixel) { IMG_putPixel(image, x, y, pixel), plain.put(x, y, pixel); });
        ASSERT_EQ(blue->update(blue), plain.water(0x0000FF, true));
        ASSERT_EQ(green->update(green), plain.water(0x0040E0, false));
        ASSERT_EQ(fire->update(fire), plain.sparks());
        for (std::size_t i = 0; i < plain.grid.size(); ++i) {
            ASSERT_EQ(image->pixels[i], plain.grid[i]) << "frame " << frame << ", pixel " << i;
            digest = digest * 31 + plain.grid[i];
        }
    }
    EXPECT_EQ(allocationCount(), allocations);
    EXPECT_EQ(digest, 0x976F9FF8U) << "a third transcription, in another language, gives the same";
    RANDOM_delete(&PARTIXEL_random);
    PARTIXEL_random = own;
}

/// What an update makes of a picture of rows: w water, b blue, s spark, # wall.
std::string after(std::int32_t (*rule)(PARTIXEL*), std::int32_t width, const std::string& before,
                  std::int32_t expectedCount) {
    constexpr std::pair<char, std::uint32_t> kinds[] = {{'.', 0},        {'w', 0x0040E0}, {'b', 0x0000FF},
                                                        {'s', 0xFF0000}, {'f', 0xF80000}, {'#', 0x808080}};
    const Particles particles(PARTIXEL_new());
    const Picture image(IMG_newSized(width, static_cast<std::int32_t>(before.size()) / width));
    particles->image = image;
    for (std::size_t i = 0; i < before.size(); ++i) {
        image->pixels[i] = std::find_if(std::begin(kinds), std::end(kinds), [&](auto kind) {
                               return kind.first == before[i];
                           })->second;
    }
    EXPECT_EQ(rule(particles), expectedCount) << before;
    EXPECT_EQ(particles->particles, expectedCount) << before;
    std::string text;
    for (std::size_t i = 0; i < before.size(); ++i) {
        const auto* kind = std::find_if(std::begin(kinds), std::end(kinds),
                                        [&](auto each) { return each.second == image->pixels[i]; });
        text += kind == std::end(kinds) ? '?' : kind->first;
    }
    return text;
}

TEST(Partixel, PARTIXEL_scanMeetsAgain) {
    EXPECT_EQ(after(PARTIXEL_waterRight, 3, ".w.", 1), "...") << "it falls out of the bottom row";
    EXPECT_EQ(after(PARTIXEL_waterRight, 3, "#w####", 1), "#w####") << "boxed in";
    EXPECT_EQ(after(PARTIXEL_waterRight, 4, "w...####", 4), "....####") << "along the floor and off";
    EXPECT_EQ(after(PARTIXEL_waterLeft, 4, "w..#####", 1), "...#####") << "off the near side";
    EXPECT_EQ(after(PARTIXEL_waterLeft, 4, "#..w##.#", 2), "#...##w#");
}

/// Moves the generator to where the next two draws give this rise and this side.
void expectDraws(std::int32_t rise, std::int32_t side) {
    for (;; ++PARTIXEL_random->counter) {
        RANDOM trial = *PARTIXEL_random;
        if (RANDOM_next(&trial) % 5 == rise && RANDOM_next(&trial) % 3 - 1 == side) {
            return;
        }
    }
}

TEST(Partixel, PARTIXEL_sparkMergesWithItselfAndPARTIXEL_newWaterIsNotBlue) {
    const Particles any(PARTIXEL_new()); // makes the generator
    const struct {
        std::int32_t rise, side;
        const char* before;
        const char* after;
    } cases[] = {
        {1, 1, "....s.", "..f..."}, {0, 0, "....s.", "......"}, {2, 0, "....s.", "......"},
        {1, 0, ".b..s.", ".#..s."}, {1, 0, ".w..s.", ".w...."}, {1, 0, ".#..s.", ".#...."},
    };
    for (const auto& [rise, side, before, expected] : cases) {
        expectDraws(rise, side);
        EXPECT_EQ(after(PARTIXEL_sparks, 3, before, 1), expected);
    }
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
