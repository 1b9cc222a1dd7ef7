// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// How long frames last on a display that has a beat of its own.
#include "platform/beat.h"
#include "support/test.h"

namespace velm {
namespace {

/// Frames on a display in virtual time: how many beats each took.
std::vector<int> beatsOfFrames(double displayRate, std::int32_t rate, int frames) {
    const double period = 1e6 / displayRate;
    constexpr std::int32_t work = 3000;
    Beat beat;
    std::int64_t beats = 0;
    std::vector<int> taken;
    for (int frame = 0; frame < frames; ++frame) {
        const std::int64_t before = beats;
        const auto atBeat = [&] { return std::llround(static_cast<double>(beats) * period); };
        std::int64_t now = atBeat() + work;
        for (beat.sleep(now, 1000000 / rate - work); !beat.isOver(now); now = atBeat()) {
            ++beats;
        }
        taken.push_back(static_cast<int>(beats - before));
    }
    return taken;
}

struct Display {
    double rate;
    double tolerance; ///< of the frames' rate, a part of it
};

class BeatTest : public testing::TestWithParam<Display> {};

TEST_P(BeatTest, FramesKeepTheirRateAndNoneStandsOut) {
    const auto [rate, tolerance] = GetParam();
    for (const std::int32_t wanted : {30, 60}) {
        constexpr int frames = 3000;
        const std::vector<int> taken = beatsOfFrames(rate, wanted, frames);
        std::int64_t beats = 0;
        const double usual = rate / wanted;
        for (const int count : taken) {
            beats += count;
            EXPECT_LT(std::abs(count - usual), 1.1) << "at " << wanted;
        }
        const double reached = frames * rate / static_cast<double>(beats);
        EXPECT_NEAR(reached / wanted, 1, tolerance) << "at " << wanted;
    }
}

INSTANTIATE_TEST_SUITE_P(Displays, BeatTest,
                         testing::Values(Display{60, 0.001}, Display{59.94, 0.002}, Display{75, 0.02},
                                         Display{100, 0.02}, Display{120, 0.001}, Display{144, 0.02}));

TEST(BeatTest, LocksToADisplayThatIsNearlyAsFast) {
    for (const int count : beatsOfFrames(59.94, 60, 3000)) {
        ASSERT_EQ(count, 1);
    }
}

TEST(BeatTest, CatchesUpNothingOfALongRest) {
    Beat beat;
    beat.sleep(0, 33333);
    EXPECT_FALSE(beat.isOver(0));
    ASSERT_TRUE(beat.isOver(60000000)); // the page was hidden
    beat.sleep(60000000, 33333);
    EXPECT_FALSE(beat.isOver(60000000));
    EXPECT_FALSE(beat.isOver(60005000));
    EXPECT_TRUE(beat.isOver(60033333));
}

} // namespace
} // namespace velm
