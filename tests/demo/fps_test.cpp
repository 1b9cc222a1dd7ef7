// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/fps.h"
#include "foundation/owned.h"
#include "headless/headless.h"
#include "platform/clock.h"
#include "platform/timer.h"

#include <csignal>
#include <gtest/gtest.h>

namespace velm::test {
namespace {

class FpsTest : public testing::Test {
protected:
    void SetUp() override {
        headless.micros = 5000000;
        fps->targetRate = 30;
    }

    /// A frame whose drawing takes so long; gives what it slept.
    std::int64_t frame(std::int64_t drawing) {
        FPS_start(fps);
        headless.micros += drawing;
        FPS_tick(fps);
        const std::int64_t before = headless.micros;
        FPS_wait(fps);
        return headless.micros - before;
    }

    const Owned<FPS_delete> fps{FPS_new()};
};

TEST_F(FpsTest, SleepsWhatIsLeftOfTheFrame) {
    EXPECT_EQ(frame(10000), 23333);
    EXPECT_EQ(fps->shownRate, 30);
    EXPECT_EQ(fps->measuredRate, 100);
    fps->targetRate = 60;
    EXPECT_EQ(frame(16665), 1);
    EXPECT_EQ(fps->shownRate, 60);
    EXPECT_EQ(fps->frameCount, 2U);
}

TEST_F(FpsTest, ASlowFrameNeitherSleepsNorChangesTheShownRate) {
    frame(0);
    fps->targetRate = 60;
    EXPECT_EQ(frame(16666), 0);
    EXPECT_EQ(frame(40000), 0);
    EXPECT_EQ(fps->shownRate, 30);
    EXPECT_EQ(fps->sleepMicros, 16666 - 40000);
}

TEST_F(FpsTest, AFrameWithoutTimeKeepsTheMeasuredRate) {
    frame(1000);
    EXPECT_EQ(frame(0), 33333);
    EXPECT_EQ(fps->measuredRate, 1000);
}

TEST_F(FpsTest, NoSleepIsLongerThanAFrame) {
    for (const std::int64_t minutes : {36, 50, 71}) {
        EXPECT_LE(frame(minutes * 60000000), 33333) << "after " << minutes << " minutes";
        EXPECT_EQ(fps->sleepMicros, 33333 - fps->elapsedMicros);
        EXPECT_EQ(fps->shownRate, 30);
    }
}

TEST_F(FpsTest, FPS_lowWordsOnly) {
    headless.micros = 0x1FFFFFFFFLL - 100;
    frame(1000);
    EXPECT_EQ(fps->elapsedMicros, 1000) << "exact across the wrap of the low word";
    frame(0x100000000LL + 7);
    EXPECT_EQ(fps->elapsedMicros, 7) << "a frame of 71 minutes looks short";
}

std::vector<std::int64_t> rung;

TEST(Alarm, RingsInVirtualTime) {
    const std::int64_t begin = CLOCK_now();
    TIMER timer{.interval = 300, .handler = [](std::int32_t) { rung.push_back(CLOCK_now()); }, .repeat = 'y'};
    TIMER_start(&timer);
    CLOCK_sleep(299), CLOCK_sleep(601);
    timer.interval = 1000000;
    TIMER_start(&timer); // refused: the alarm before goes on
    CLOCK_sleep(300);
    timer = {.interval = 50, .handler = timer.handler, .repeat = 'n'};
    TIMER_start(&timer);
    CLOCK_sleep(1000);
    timer.interval = 0;
    TIMER_start(&timer);
    CLOCK_sleep(1000);
    std::signal(SIGALRM, SIG_DFL);
    EXPECT_EQ(rung,
              (std::vector<std::int64_t>{begin + 300, begin + 600, begin + 900, begin + 1200, begin + 1250}));
    EXPECT_EQ(CLOCK_now(), begin + 3200);
}

} // namespace
} // namespace velm::test
