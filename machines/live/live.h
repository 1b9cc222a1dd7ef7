// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A machine inside another program's window, which is how velm4030-live plays a source file: whatever becomes
// of this process, the window stays.
#pragma once

// IWYU pragma: begin_exports
#include "platform/channel.h"
// IWYU pragma: end_exports

#include <cstdint>

namespace velm {

/// What this program shares with its window; nullptr where no window has started it.
Channel* liveChannel();

/// Microseconds to add to the next sleep, so that the sound stays with the window's device.
std::int32_t liveCorrection();

} // namespace velm
