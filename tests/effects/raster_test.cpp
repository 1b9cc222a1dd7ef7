// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/raster.h"
#include "foundation/chance.h"
#include "support/owned.h"

namespace velm::test {
namespace {

using Bars = Owned<RASTER_delete>;
using Colours = std::vector<std::uint32_t>;

/// Bars of random colours, the spare one included.
RASTER* newBars(std::int32_t count) {
    Images random(static_cast<std::uint32_t>(count));
    RASTER* bars = RASTER_new();
    RASTER_setCount(bars, count);
    for (std::int32_t i = 0; i <= count; ++i) {
        bars->colours[i] = random.pixel() | 1;
    }
    return bars;
}

Colours listOf(const RASTER* bars) {
    return {bars->colours, bars->colours + bars->count + 1};
}

/// The smoothing as it is written down, over a list with its spare colour.
Colours plainSmooth(const Colours& c, std::int32_t radius) {
    const auto count = static_cast<std::int32_t>(c.size()) - 1;
    const auto weights = 2 * (static_cast<std::uint32_t>(radius) + 1);
    Colours smooth(c.size());
    for (std::int32_t k = count; k >= 0; --k) {
        for (const std::uint32_t shift : {0U, 8U, 16U}) {
            const auto at = [&](std::int32_t i) { return (c[static_cast<std::size_t>(i)] >> shift) & 255; };
            std::uint32_t sum = 2 * at(k);
            for (std::int32_t j = radius; j >= 1; --j) {
                sum += at((k + j) % count) + at(std::abs(k - j) % count);
            }
            smooth[static_cast<std::size_t>(k)] |= sum / weights << shift;
        }
    }
    return smooth;
}

TEST(Raster, RASTER_advanceStopsAtEnd) {
    const Bars bars(newBars(10));
    constexpr std::int32_t moves[][3] = {{0x30000, 0x20000, 0x50000},   {0x9FFFF, 0x00001, 0},
                                         {0x90000, 0x150000, 0},        {0x10000, -0x20000, 0x90000},
                                         {0x10001, -0x150000, 0x00001}, {0x20000, -0xC0000, 0xA0000}};
    for (const auto& [from, speed, to] : moves) {
        bars->position = from;
        bars->speed = speed;
        RASTER_advance(bars);
        EXPECT_EQ(bars->position, to) << from << " by " << speed;
    }
}

TEST(Raster, RASTER_smoothStartsPastEndAndRASTER_smoothMirrorsStartAndRASTER_clearReachesSpare) {
    for (const std::int32_t count : {1, 2, 9, 100}) {
        const Bars bars(newBars(count));
        for (const std::int32_t radius : {1, 4, 250}) {
            const Colours expected = plainSmooth(listOf(bars), radius);
            RASTER_smooth(bars, radius);
            EXPECT_EQ(listOf(bars), expected) << count << " colours, radius " << radius;
        }
        bars->colours[count] = 1;
        RASTER_clear(bars);
        EXPECT_EQ(listOf(bars), Colours(static_cast<std::size_t>(count) + 1, 0));
    }
}

TEST(Raster, RASTER_cloneDrawsSpeedAndRASTER_equalsReportsEqual) {
    const Bars bars(newBars(5));
    chanceSeed(9);
    const int first = chance();
    const int second = chance();
    chanceSeed(9);
    const Bars clone(RASTER_clone(bars));
    EXPECT_EQ(chance(), second);
    expectReports(RASTER_verbose, 1, "RASTER error", [&] { EXPECT_EQ(RASTER_equals(bars, clone), 1); });
    clone->colours[4] ^= 1;
    expectReports(RASTER_verbose, 0, "", [&] { EXPECT_EQ(RASTER_equals(bars, clone), 0); });
    chanceSeed(9);
    EXPECT_EQ(Bars(RASTER_new())->speed, first % 1048575 + 65536);
}

TEST(Raster, RASTER_copyGoesOn) {
    const Bars shorter(newBars(5));
    const Bars longer(newBars(8));
    Colours expected = listOf(longer);
    std::copy_n(shorter->colours, 5, expected.begin());
    shorter->position = 0x12345;
    expectReports(RASTER_verbose, 1, "RASTER error", [&] { RASTER_copy(shorter, longer); });
    EXPECT_EQ(listOf(longer), expected);
    EXPECT_EQ(longer->position, 0x12345);
}

TEST(Raster, FilesAreOpenedAndClosedOnly) {
    const std::string path = testing::TempDir() + "raster_test.bars";
    const Bars bars(newBars(5));
    expectReports(RASTER_verbose, 1, "RASTER error", [&] {
        RASTER_save(bars, path.c_str()), RASTER_load(path.c_str());
        EXPECT_EQ(std::filesystem::file_size(path), 0U);
        std::filesystem::remove(path);
        EXPECT_EQ(RASTER_load(path.c_str()), nullptr);
    });
}

} // namespace
} // namespace velm::test
