// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A timer without a machine: its alarms come while virtual time passes, at the same moments in every run.
#include "headless/headless.h"
#include "platform/clock.h"
#include "platform/timer.h"

#include <csignal>
#include <gtest/gtest.h>

namespace velm::test {
namespace {

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
