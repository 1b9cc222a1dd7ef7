// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "platform/timer.h"
#include "support/owned.h"

#include <csignal>
#include <dlfcn.h>
#include <sys/time.h>
#include <unistd.h>

namespace velm::test {
namespace {

void tick(std::int32_t) {}
void other(std::int32_t) {}

using Handler = void (*)(std::int32_t);

Handler listening() {
    struct sigaction action {};
    sigaction(SIGALRM, nullptr, &action);
    return action.sa_handler;
}

Handler listeningWhileArmed = SIG_ERR;

/// The process's real timer: what is left to the next alarm and from there to the one after.
itimerval armed() {
    itimerval value{};
    getitimer(ITIMER_REAL, &value);
    return value;
}

struct Timer : testing::Test {
    Timer() { timer->handler = tick; }
    ~Timer() override {
        ualarm(0, 0);
        std::signal(SIGALRM, SIG_DFL);
    }
    /// Starts with this interval and this way of repeating.
    void start(std::uint32_t interval, char repeat) const {
        timer->interval = interval;
        timer->repeat = repeat;
        TIMER_start(timer);
    }

    Owned<TIMER_delete> timer{TIMER_new()};
};

} // namespace
} // namespace velm::test

// Stands before the C library's own, notes the handler of the moment and goes on to the real thing.
extern "C" useconds_t ualarm(useconds_t delay, useconds_t interval) noexcept {
    velm::test::listeningWhileArmed = velm::test::listening();
    const auto real = reinterpret_cast<useconds_t (*)(useconds_t, useconds_t)>(dlsym(RTLD_NEXT, "ualarm"));
    return real(delay, interval);
}

namespace velm::test {
namespace {

TEST_F(Timer, StartsAndStopsTheProcesssAlarm) {
    EXPECT_EQ(timer->repeat, 'n');
    start(1000, 'y');
    EXPECT_EQ(armed().it_interval.tv_usec, 1000);
    start(0, 'n');
    EXPECT_EQ(armed().it_value.tv_usec + armed().it_interval.tv_usec, 0);
    EXPECT_EQ(listening(), tick);
}

TEST_F(Timer, TIMER_armsBeforeItListensAndTIMER_otherRepeatListens) {
    std::signal(SIGALRM, other);
    start(900000, 'n');
    EXPECT_EQ(listeningWhileArmed, other);
    EXPECT_EQ(listening(), tick);
    timer->handler = other;
    start(1000, 'N');
    EXPECT_EQ(listening(), other);
    EXPECT_GT(armed().it_value.tv_usec, 1000) << "the alarm before is still due";
}

TEST_F(Timer, TIMER_secondsAreRefusedAndTIMER_sameReportsDifference) {
    start(999999, 'y');
    start(1000000, 'y');
    EXPECT_EQ(armed().it_interval.tv_usec, 999999);
    const Owned<TIMER_delete> second(TIMER_new());
    EXPECT_EQ(TIMER_same(timer, timer), 1);
    expectReports(TIMER_verbose, 5, "TIMER error", [&] {
        EXPECT_EQ(TIMER_same(timer, second) + TIMER_same(nullptr, nullptr), 0);
        TIMER_start(nullptr), TIMER_delete(nullptr);
        expectFailure(1, TIMER_new);
    });
}

} // namespace
} // namespace velm::test
