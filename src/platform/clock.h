// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Time as the demo sees it, in microseconds: it only runs forward, whatever becomes of the wall clock.
// Without a screen it is virtual.
//
//     const std::int64_t begin = CLOCK_now();
//     CLOCK_sleep(33333);
#pragma once

#include <cstdint>

namespace velm {

/// Microseconds of the wall clock when the program first asked, plus what has passed since. Never runs back.
std::int64_t CLOCK_now();

/// What CLOCK_now returns on a machine that goes by the system's clock.
std::int64_t CLOCK_steady();

/// Sleeps for `micros` (> 0) microseconds; a signal may end it early.
void CLOCK_sleep(std::int32_t micros);

/// The longest delay of an alarm in microseconds: what ualarm takes.
inline constexpr std::uint32_t CLOCK_longestAlarm = 999999;

/// Raises SIGALRM after `delay` microseconds and then every `interval` (0: never again). A delay of 0 disarms
/// the alarm. A longer one than CLOCK_longestAlarm, of either, is refused and leaves the alarm as it was.
void CLOCK_alarm(std::uint32_t delay, std::uint32_t interval);

} // namespace velm
