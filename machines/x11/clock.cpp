// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "platform/clock.h"

#include <chrono>
#include <sys/time.h>
#include <unistd.h>

namespace velm {

namespace {

std::int64_t wallMicros() {
    timeval now{};
    gettimeofday(&now, nullptr);
    return std::int64_t{now.tv_sec} * 1000000 + now.tv_usec;
}

} // namespace

std::int64_t CLOCK_now() {
    // The wall clock is read once: it may be set back, and frames must not wait until it is there again.
    using Steady = std::chrono::steady_clock;
    static const Steady::time_point steadyBegin = Steady::now();
    static const std::int64_t wallBegin = wallMicros();
    return wallBegin +
           std::chrono::duration_cast<std::chrono::microseconds>(Steady::now() - steadyBegin).count();
}

void CLOCK_sleep(std::int32_t micros) {
    usleep(static_cast<useconds_t>(micros));
}

void CLOCK_alarm(std::uint32_t delay, std::uint32_t interval) {
    // TIMER_secondsAreRefused: one expects any number of microseconds to do; ualarm refuses a second or more,
    // nobody looks at its answer, and the alarm before stays.
    ualarm(delay, interval);
}

} // namespace velm
