// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What the X11 modules share: the connection, the window, and how both of them end. Every implementation of
// the window includes it, and so do the keyboard and the pointer that go with any of them.
//
//     x11Connect("velm4030");
//     x11Display.window = XCreateSimpleWindow(x11Display.connection, x11Display.root, ...);
//     x11ReceiveClose();
#pragma once

#include "platform/xdpy.h"

#include <X11/Xlib.h>

namespace velm {

/// The display state of the process, written by XDPY alone.
struct X11_DISPLAY {
    const char* program;   ///< what messages begin with
    ::Display* connection; ///< nullptr until the first XDPY_open; never closed, but gone once x11GiveUp ran
    ::Window window;       ///< 0 while no window is open
    ::Window root;
    int screen;
    ::GC graphics;
    ::Atom protocols;    ///< the kind of message that carries it
    ::Atom deleteWindow; ///< what the window's close button sends
};

extern X11_DISPLAY x11Display;

/// Keys, buttons and motions: what the keyboard and the pointer need selected.
inline constexpr long x11InputEvents = KeyPressMask | KeyReleaseMask | ButtonPressMask | ButtonReleaseMask |
                                       PointerMotionMask | ButtonMotionMask;

/// Connects to the default display, once. Ends the program when there is none, when it is lost later on, and
/// when it has no place in a pixel for a colour of ours.
void x11Connect(const char* program);

/// Asks that the close button sends us a message, where it would otherwise cut the connection.
void x11ReceiveClose();

/// What the server says about the window, after everything that was asked of it before; false when the window
/// cannot be seen. Ends the program when the window has gone behind our back.
bool x11IsViewable(XWindowAttributes& attributes);

/// Gives a window manager a moment to map the window, so that the start-up picture is seen; without one the
/// window is there at once.
void x11WaitForWindowManager();

/// A black image in the layout of the default visual, or nullptr. Free it with XDestroyImage.
XImage* x11NewImage(std::int32_t width, std::int32_t height);

/// While one of these lives, protocol errors are expected and only noted.
class X11ErrorTrap {
public:
    X11ErrorTrap();
    ~X11ErrorTrap();
    X11ErrorTrap(const X11ErrorTrap&) = delete;
    X11ErrorTrap& operator=(const X11ErrorTrap&) = delete;

    /// Waits for the server's answers and tells whether one of them was an error.
    [[nodiscard]] bool caught() const;
};

/// Prints "`program`: `what` "`detail`"" on standard error and ends the program with status 1.
[[noreturn]] void x11GiveUp(const char* what, const char* detail);

/// The window's own part: turns a place in the window into one of the picture.
void x11ToPicture(std::int32_t& x, std::int32_t& y);

} // namespace velm
