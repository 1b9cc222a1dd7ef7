// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The system's clock and its working folder.
#include "foundation/dir.h"
#include "live/live.h"
#include "platform/clock.h"
#include "platform/folder.h"

#include <algorithm>
#include <unistd.h>

namespace velm {

std::int64_t CLOCK_now() {
    return CLOCK_steady();
}

void CLOCK_sleep(std::int32_t micros) {
    usleep(static_cast<useconds_t>(std::max(micros + liveCorrection(), 0)));
}

void CLOCK_alarm(std::uint32_t delay, std::uint32_t interval) {
    ualarm(delay, interval); // it refuses what is too long
}

std::int32_t FOLDER_read(DIR* dir) {
    return DIR_read(dir, ".");
}

} // namespace velm
