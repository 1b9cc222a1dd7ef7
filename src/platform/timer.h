// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// TIMER calls a handler after a delay, once or over and over, by the process's one alarm signal. The demo
// paces its frames by FPS instead.
//
//     TIMER* timer = TIMER_new();
//     timer->interval = 20000, timer->repeat = 'y', timer->handler = onTick;
//     TIMER_start(timer);
#pragma once

#include "foundation/identity.h"

#include <cstdint>

namespace velm {

struct TIMER {
    std::uint32_t interval = 0;              ///< delay in microseconds, below 1000000; 0 stops the alarm
    void (*handler)(std::int32_t) = nullptr; ///< takes the signal's number, runs as a signal handler
    char repeat = 'n';                       ///< 'n': once, 'y': every `interval`
};

extern const IDENTITY TIMER_identity;
extern std::uint8_t TIMER_verbose;

/// A stopped timer, or nullptr (reported).
TIMER* TIMER_new();

/// Arms the alarm, which replaces the one before, then makes `handler` the one that it calls. The process has
/// one alarm and one handler, whatever the number of timers. Without a handler an alarm ends the process. See
/// docs/quirks.md for long intervals and other values of `repeat`.
void TIMER_start(const TIMER* timer);

/// The empty text.
const char* TIMER_getName(const TIMER* timer);

/// 1 when both are the same timer, else 0 (reported).
std::int32_t TIMER_same(const TIMER* a, const TIMER* b);

/// Frees the record and stores nullptr in the handle. What has been started goes on.
void TIMER_delete(TIMER** handle);

/// Prints "TIMER error" while TIMER_verbose is set.
void TIMER_error();

} // namespace velm
