// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The window's events. All that have come are taken at once, so that none pile up; what the keyboard and the
// pointer will read is kept, and everything else is dropped.
//
//     x11TakeEvents();
//     giveKey(x11Events.keys, *keyboard);
#pragma once

#include "platform/key_queue.h"
#include "platform/pointer_events.h"

#include <X11/Xlib.h>
#include <cstdint>

namespace velm {

struct X11_EVENTS {
    KeyQueue keys;         ///< every key press and the close button, for XKBD_poll
    PointerEvents pointer; ///< motions, presses and releases, for XPTR_poll
};

extern X11_EVENTS x11Events;

/// Asks that the close button sends us a message, where it would otherwise cut the connection.
void x11ReceiveClose();

/// Takes every event that has come so far. Does not wait.
void x11TakeEvents();

/// Waits for a key or the close button, `micros` at most, and takes every event meanwhile.
void x11AwaitKey(std::int64_t micros);

} // namespace velm
