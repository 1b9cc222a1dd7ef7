// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The wall clock of this program can be set: what it says is taken over, with an offset.
#include "platform/clock.h"

#include <chrono>
#include <ctime>
#include <gtest/gtest.h>
#include <sys/time.h>

namespace velm::test {
namespace {
time_t clockIsAhead = 0;
}
} // namespace velm::test

extern "C" int gettimeofday(timeval* now, void*) noexcept {
    *now = {std::time(nullptr) + velm::test::clockIsAhead, 0};
    return 0;
}

namespace velm::test {
namespace {

TEST(Clock, OnlyRunsForwardAndAsFastAsTimeWhenTheWallClockIsSet) {
    constexpr std::int64_t second = 1000000;
    using std::chrono::steady_clock;
    const auto steady = [begin = steady_clock::now()] {
        return std::chrono::duration_cast<std::chrono::microseconds>(steady_clock::now() - begin).count();
    };
    const std::int64_t begin = CLOCK_now();
    EXPECT_NEAR(static_cast<double>(begin), static_cast<double>(std::time(nullptr) * second), 60.0 * second)
        << "the wall clock's count at first";
    for (const time_t ahead : {0, -600, 600, 7200}) {
        clockIsAhead = ahead;
        CLOCK_sleep(2000);
        const std::int64_t least = steady();
        const std::int64_t now = CLOCK_now() - begin;
        EXPECT_GE(now, least - second / 10) << ahead;
        EXPECT_LE(now, steady() + second / 10) << ahead;
    }
    clockIsAhead = 0;
}

} // namespace
} // namespace velm::test
