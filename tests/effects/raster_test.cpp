// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/owned.h"
#include "effects/raster.h"
#include "image/rgb888.h"
#include "support/capture_stdout.h"

#include <cstdlib>
#include <filesystem>
#include <vector>

namespace velm::test {

namespace {

using Bars = Owned<RASTER, RASTER_delete>;
using Colours = std::vector<std::uint32_t>;

/// Bars of random colours, the spare one included.
RASTER* newBars(std::int32_t count, std::uint32_t seed) {
    std::mt19937 random(seed);
    RASTER* bars = RASTER_new();
    RASTER_setCount(bars, count);
    std::generate_n(bars->colours, count + 1, [&] { return random() & 0xFFFFFFU; });
    return bars;
}

Colours listOf(const RASTER* bars) {
    return {bars->colours, bars->colours + bars->count + 1};
}

std::int32_t advanced(RASTER* bars, std::int32_t position, std::int32_t speed) {
    bars->position = position;
    bars->speed = speed;
    RASTER_advance(bars);
    return bars->position;
}

/// The smoothing as it is written down, over a list with its spare colour.
Colours plainSmooth(const Colours& c, std::int32_t radius) {
    const auto count = static_cast<std::int32_t>(c.size()) - 1;
    Colours smooth(c.size());
    for (std::int32_t k = count; k >= 0; --k) {
        for (const std::uint32_t shift : {0U, 8U, 16U}) {
            const auto channel = [&](std::int32_t i) {
                return (c[static_cast<std::size_t>(i)] >> shift) & 255;
            };
            std::uint32_t sum = 2 * channel(k);
            for (std::int32_t j = radius; j >= 1; --j) {
                sum += channel((k + j) % count) + channel(std::abs(k - j) % count);
            }
            smooth[static_cast<std::size_t>(k)] |= sum / (2 * (static_cast<std::uint32_t>(radius) + 1))
                                                   << shift;
        }
    }
    return smooth;
}

} // namespace

TEST(Raster, AdvancesAroundBothEnds) {
    const Bars bars(newBars(10, 1));
    EXPECT_EQ(advanced(bars, 0x30000, 0x20000), 0x50000);
    EXPECT_EQ(advanced(bars, 0x9FFFF, 0x00001), 0);
    EXPECT_EQ(advanced(bars, 0x90000, 0x150000), 0x00000);
    EXPECT_EQ(advanced(bars, 0x10000, -0x20000), 0x90000);
    EXPECT_EQ(advanced(bars, 0x10001, -0x150000), 0x00001);
}

TEST(Raster, RASTER_advanceStopsAtEnd) {
    const Bars bars(newBars(10, 1));
    EXPECT_EQ(advanced(bars, 0x20000, -0xC0000), 0xA0000);
    const Picture target(IMG_newSized(1, 1));
    RASTER_draw(bars, target);
    EXPECT_EQ(target->pixels[0], bars->colours[0]);
}

TEST(Raster, PaintsRowsAndColumns) {
    const Bars bars(newBars(7, 2));
    for (const std::int32_t position : {0, 0x6FFFF, -0x18000}) {
        bars->position = position;
        const Picture old(noise(20, 30, 1));
        const Picture rows(noise(20, 30, 1));
        const Picture columns(noise(20, 30, 1));
        const Picture blended(noise(20, 30, 1));
        RASTER_draw(bars, rows);
        RASTER_drawVertical(bars, columns);
        RASTER_drawBlend(bars, blended, 77);
        const std::int32_t first = (position >> 16) + 7;
        for (std::int32_t i = 0; i < 20 * 30; ++i) {
            const std::uint32_t colour = bars->colours[(first + i / 20) % 7];
            ASSERT_EQ(rows->pixels[i], colour);
            ASSERT_EQ(columns->pixels[i], bars->colours[(first + i % 20) % 7]);
            ASSERT_EQ(blended->pixels[i], RGB888_mix(old->pixels[i], colour, 77));
        }
    }
}

TEST(Raster, RASTER_smoothStartsPastEndAndRASTER_smoothMirrorsStart) {
    for (const std::int32_t count : {1, 2, 9, 100}) {
        const Bars bars(newBars(count, 3));
        for (const std::int32_t radius : {1, 4, 250}) {
            const Colours expected = plainSmooth(listOf(bars), radius);
            RASTER_smooth(bars, radius);
            EXPECT_EQ(listOf(bars), expected) << count << " colours, radius " << radius;
        }
    }
}

TEST(Raster, RASTER_clearReachesSpare) {
    const Bars bars(newBars(5, 1));
    RASTER_clear(bars);
    EXPECT_EQ(listOf(bars), Colours(6, 0));
}

TEST(Raster, RASTER_cloneDrawsSpeed) {
    const Bars bars(newBars(5, 1));
    std::srand(9);
    const int first = std::rand();
    const int second = std::rand();
    std::srand(9);
    const Bars clone(RASTER_clone(bars));
    EXPECT_EQ(std::rand(), second);
    EXPECT_EQ(clone->speed, bars->speed);
    std::srand(9);
    EXPECT_EQ(Bars(RASTER_new())->speed, first % 1048575 + 65536);
}

TEST(Raster, RASTER_equalsReportsEqual) {
    const Bars a(newBars(5, 1));
    const Bars b(RASTER_clone(a));
    RASTER_verbose = 1;
    EXPECT_EQ(printedBy([&] { EXPECT_EQ(RASTER_equals(a, b), 1); }), "RASTER error\n");
    b->colours[4] ^= 1;
    EXPECT_EQ(printedBy([&] { EXPECT_EQ(RASTER_equals(a, b), 0); }), "");
    RASTER_verbose = 0;
}

TEST(Raster, RASTER_copyGoesOn) {
    const Bars shorter(newBars(5, 1));
    const Bars longer(newBars(8, 2));
    const Colours expected = {shorter->colours[0], shorter->colours[4], longer->colours[5]};
    shorter->position = 0x12345;
    RASTER_verbose = 1;
    EXPECT_EQ(printedBy([&] { RASTER_copy(shorter, longer); }), "RASTER error\n");
    EXPECT_EQ((Colours{longer->colours[0], longer->colours[4], longer->colours[5]}), expected);
    EXPECT_EQ(longer->position, 0x12345);
    EXPECT_EQ(longer->count, 8);
    RASTER_verbose = 0;
}

TEST(Raster, FilesAreOpenedAndClosedOnly) {
    const std::string path = testing::TempDir() + "raster_test.bars";
    const Bars bars(newBars(5, 1));
    RASTER_verbose = 1;
    EXPECT_EQ(printedBy([&] { RASTER_save(bars, path.c_str()), RASTER_load(path.c_str()); }), "");
    EXPECT_EQ(std::filesystem::file_size(path), 0U);
    std::filesystem::remove(path);
    EXPECT_EQ(printedBy([&] { EXPECT_EQ(RASTER_load(path.c_str()), nullptr); }), "RASTER error\n");
    RASTER_verbose = 0;
}

} // namespace velm::test
