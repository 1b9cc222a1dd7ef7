// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What the X11 modules share: the connection, the window, and how both of them end.
//
//     x11Connect();
//     x11Display.window = XCreateSimpleWindow(x11Display.connection, x11Display.root, ...);
//     x11GiveUp("lost the display", ":0");
#pragma once

#include <X11/Xlib.h>

namespace velm {

/// The display state of the process, written by XDPY alone.
struct X11_DISPLAY {
    ::Display* connection; ///< nullptr until the first XDPY_open; never closed, but gone once x11GiveUp ran
    ::Window window;       ///< 0 while no window is open
    ::Window root;
    int screen;
    ::GC graphics;
};

extern X11_DISPLAY x11Display;

/// Connects to the default display, once. Ends the program when there is none, when it is lost later on, and
/// when it has no place in a pixel for a colour of ours.
void x11Connect();

/// What the server says about the window, after everything that was asked of it before; false when the window
/// cannot be seen. Ends the program when the window has gone behind our back.
bool x11IsViewable(XWindowAttributes& attributes);

/// While one of these lives, protocol errors are expected and only noted.
class X11ErrorTrap {
public:
    X11ErrorTrap();
    ~X11ErrorTrap();
    X11ErrorTrap(const X11ErrorTrap&) = delete;
    X11ErrorTrap& operator=(const X11ErrorTrap&) = delete;
};

/// Prints one line on standard error: "velm4030: `what` "`detail`"".
void x11Say(const char* what, const char* detail);

/// Says it and ends the program with status 1.
[[noreturn]] void x11GiveUp(const char* what, const char* detail);

} // namespace velm
