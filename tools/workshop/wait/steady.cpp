// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "workshop/wait/wait.h"

namespace velm {

bool awaitPost(sem_t& semaphore, std::int64_t millis) {
    const timespec until = timeIn(millis, CLOCK_MONOTONIC);
    return sem_clockwait(&semaphore, CLOCK_MONOTONIC, &until) == 0;
}

} // namespace velm
