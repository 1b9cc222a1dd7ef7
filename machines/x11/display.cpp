// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "x11/display.h"

#include "platform/program.h"
#include "platform/xdpy.h"

#include <cstdio>
#include <cstdlib>

namespace velm {

X11_DISPLAY x11Display{};

namespace {

/// While set, protocol errors are expected.
bool errorsAreExpected = false;

int onError(::Display*, XErrorEvent* error) {
    const bool ours = x11Display.window != 0 && error->resourceid == x11Display.window;
    if (!errorsAreExpected && ours && (error->error_code == BadWindow || error->error_code == BadDrawable)) {
        x11GiveUp("the window is gone", "closed by another program");
    }
    XDPY_error();
    return 0;
}

/// A server may go while it still answers the first questions of a connection.
[[noreturn]] int onConnectionLost(::Display*) {
    x11GiveUp(x11Display.connection == nullptr ? "cannot open display" : "lost the display",
              XDisplayName(nullptr));
}

} // namespace

void x11Connect() {
    if (x11Display.connection != nullptr) {
        return;
    }
    XSetErrorHandler(onError);
    XSetIOErrorHandler(onConnectionLost);
    x11Display.connection = XOpenDisplay(nullptr);
    if (x11Display.connection == nullptr) {
        x11GiveUp("cannot open display", XDisplayName(nullptr));
    }
    x11Display.root = DefaultRootWindow(x11Display.connection);
    x11Display.screen = DefaultScreen(x11Display.connection);
    x11Display.graphics = DefaultGC(x11Display.connection, x11Display.screen);
    // Without masks for the channels there is no place in a pixel for a colour of ours.
    const Visual* const visual = DefaultVisual(x11Display.connection, x11Display.screen);
    if (visual->red_mask == 0 || visual->green_mask == 0 || visual->blue_mask == 0) {
        XCloseDisplay(x11Display.connection);
        x11GiveUp("needs a TrueColor display, unlike", XDisplayName(nullptr));
    }
}

bool x11IsViewable(XWindowAttributes& attributes) {
    return XGetWindowAttributes(x11Display.connection, x11Display.window, &attributes) != 0 &&
           attributes.map_state == IsViewable;
}

X11ErrorTrap::X11ErrorTrap() {
    XSync(x11Display.connection, False);
    errorsAreExpected = true;
}

X11ErrorTrap::~X11ErrorTrap() {
    XSync(x11Display.connection, False);
    errorsAreExpected = false;
}

void x11Say(const char* what, const char* detail) {
    std::fprintf(stderr, "%s: %s \"%s\"\n", programNameOr("velm4030"), what, detail);
}

void x11GiveUp(const char* what, const char* detail) {
    x11Say(what, detail);
    x11Display.connection = nullptr; // nothing that runs at the program's end may use it
    std::exit(1);
}

bool XDPY_isOpen() {
    return x11Display.connection != nullptr && x11Display.window != 0;
}

void XDPY_close(XDPY** handle) {
    if (XDPY_drop(handle)) {
        x11Display.window = 0;
    }
}

} // namespace velm
