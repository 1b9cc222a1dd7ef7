// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What a key of the server stands for in the program.
//
//     pushKey(keys, x11LookUp(event.xkey));
#pragma once

#include "platform/key_queue.h"

#include <X11/Xlib.h>

namespace velm {

/// The press as the program knows it: its text, and 98 or 104 as the keycode of an arrow up or down, whatever
/// keycode the server's keymap has for it. Another key with one of these keycodes gets 0, so that it is no
/// arrow.
PressedKey x11LookUp(XKeyEvent& event);

} // namespace velm
