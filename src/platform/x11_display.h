// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What the X11 modules share: the connection and the window that XDPY opened. Only this folder's X11 sources
// include it, so Xlib's names stay here.
#pragma once

#include "platform/xdpy.h"

#include <X11/Xlib.h>

namespace velm {

/// The display state of the process, written by XDPY alone.
struct X11_DISPLAY {
    ::Display* connection; ///< nullptr until the first XDPY_open; never closed
    ::Window window;       ///< 0 while no window is open
    ::Window root;
    int screen;
    ::GC graphics;
    ::XImage* image;     ///< nullptr until the first presentation, then kept for the life of the program
    ::Atom protocols;    ///< the kind of message that carries it
    ::Atom deleteWindow; ///< what the window's close button sends
};

extern X11_DISPLAY x11Display;

/// Prints "velm4030: `what`" on standard error and ends the program with status 1.
[[noreturn]] void x11GiveUp(const char* what, const char* detail);

/// Ends the program when the window has gone behind our back; costs a round trip to the server.
void x11RequireWindow();

} // namespace velm
