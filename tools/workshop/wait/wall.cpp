// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "workshop/wait/wait.h"

namespace velm {

bool awaitPost(sem_t& semaphore, std::int64_t millis) {
    const timespec until = timeIn(millis, CLOCK_REALTIME);
    return sem_timedwait(&semaphore, &until) == 0;
}

} // namespace velm
