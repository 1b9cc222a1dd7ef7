// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The window's events. All that have come are taken at once, so that none pile up; what the keyboard and the
// pointer will read is kept, and everything else is dropped.
//
//     x11TakeEvents();
//     const std::optional<PressedKey> press = takeKey(x11Events.keys, CLOCK_now());
#pragma once

#include "platform/key_queue.h"

#include <X11/Xlib.h>

#include <cstdint>
#include <optional>

namespace velm {

struct X11_EVENTS {
    KeyQueue keys;                      ///< every key press and the close button, for XKBD_poll
    std::optional<XMotionEvent> motion; ///< the first one since XPTR took one or flushed
    std::optional<XButtonEvent> button; ///< the same for presses and releases
};

extern X11_EVENTS x11Events;

/// Asks that the close button sends us a message, where it would otherwise cut the connection.
void x11ReceiveClose();

/// Takes every event that has come so far. Does not wait.
void x11TakeEvents();

/// Waits for a key or the close button, `micros` at most, and takes every event meanwhile.
void x11AwaitKey(std::int64_t micros);

} // namespace velm
