// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The system's clock and its working folder. Sleeping is in sound.cpp: the sound leads.
#include "foundation/dir.h"
#include "platform/clock.h"
#include "platform/folder.h"

#include <unistd.h>

namespace velm {

std::int64_t CLOCK_now() {
    return CLOCK_steady();
}

void CLOCK_alarm(std::uint32_t delay, std::uint32_t interval) {
    ualarm(delay, interval); // it refuses what is too long
}

std::int32_t FOLDER_read(DIR* dir) {
    return DIR_read(dir, ".");
}

} // namespace velm
