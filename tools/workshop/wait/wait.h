// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A wait for another process. steady.cpp goes by the clock that nobody sets, where the C library can
// (glibc 2.30 and later); wall.cpp by the one that every C library has.
//
//     const bool isDrawn = awaitPost(channel->drawn, 16);
#pragma once

#include <cstdint>
#include <ctime>
#include <semaphore.h>

namespace velm {

/// Takes a post of the semaphore; false when none comes within so many milliseconds.
bool awaitPost(sem_t& semaphore, std::int64_t millis);

/// The time of that clock in so many milliseconds.
inline timespec timeIn(std::int64_t millis, clockid_t clock) {
    constexpr std::int64_t nanosPerMilli = 1000000;
    constexpr std::int64_t nanosPerSecond = 1000000000;
    timespec until{};
    clock_gettime(clock, &until);
    const std::int64_t nanos = until.tv_nsec + millis * nanosPerMilli;
    until.tv_sec += static_cast<time_t>(nanos / nanosPerSecond);
    until.tv_nsec = static_cast<decltype(until.tv_nsec)>(nanos % nanosPerSecond);
    return until;
}

} // namespace velm
