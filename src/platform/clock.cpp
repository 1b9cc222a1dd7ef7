// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "platform/clock.h"

#include <chrono>
#include <sys/time.h>

namespace velm {

namespace {

std::int64_t wallMicros() {
    timeval now{};
    gettimeofday(&now, nullptr);
    return std::int64_t{now.tv_sec} * 1000000 + now.tv_usec;
}

} // namespace

std::int64_t CLOCK_steady() {
    // The wall clock is read once: it may be set back, and frames must not wait until it is there again.
    using Steady = std::chrono::steady_clock;
    static const Steady::time_point steadyBegin = Steady::now();
    static const std::int64_t wallBegin = wallMicros();
    return wallBegin +
           std::chrono::duration_cast<std::chrono::microseconds>(Steady::now() - steadyBegin).count();
}

} // namespace velm
