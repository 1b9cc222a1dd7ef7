// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The demo sleeps by the display. A browser knows no alarm, so it rings in a sleep.
#include "platform/clock.h"

#include "platform/beat.h"
#include "web/browser.h"
#include "web/time.h"

#include <csignal>

namespace velm {

namespace {

Beat beat;
bool hasWaited = true; ///< since the last picture

struct {
    std::int64_t at = 0; ///< CLOCK_now() of the next ring; 0 for none
    std::uint32_t interval = 0;
} alarm;

void ringAlarm() {
    while (alarm.at != 0 && alarm.at <= CLOCK_now()) {
        alarm.at = alarm.interval == 0 ? 0 : alarm.at + alarm.interval;
        std::raise(SIGALRM);
    }
}

} // namespace

void waitBeforePicture() {
    if (!hasWaited) {
        browserWaitForDisplay();
    }
    hasWaited = false;
}

std::int64_t CLOCK_now() {
    return CLOCK_steady();
}

void CLOCK_sleep(std::int32_t micros) {
    beat.sleep(CLOCK_now(), micros + speakerCorrection());
    while (!beat.isOver(CLOCK_now())) {
        browserWaitForDisplay();
        ringAlarm();
    }
    hasWaited = true;
}

void CLOCK_alarm(std::uint32_t delay, std::uint32_t interval) {
    if (delay <= CLOCK_longestAlarm && interval <= CLOCK_longestAlarm) {
        alarm.at = delay == 0 ? 0 : CLOCK_now() + delay;
        alarm.interval = interval;
    }
}

} // namespace velm
