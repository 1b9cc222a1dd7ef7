// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "x11/display.h"

#include <X11/Xutil.h>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace velm {

X11_DISPLAY x11Display{};

namespace {

/// While set, protocol errors are expected and only noted.
bool errorsAreExpected = false;
bool errorWasCaught = false;

int onError(::Display*, XErrorEvent* error) {
    const bool ours = x11Display.window != 0 && error->resourceid == x11Display.window;
    if (!errorsAreExpected && ours && (error->error_code == BadWindow || error->error_code == BadDrawable)) {
        x11GiveUp("the window is gone", "closed by another program");
    }
    errorWasCaught = true;
    XDPY_error();
    return 0;
}

[[noreturn]] int onConnectionLost(::Display*) {
    x11GiveUp("lost the display", XDisplayName(nullptr));
}

} // namespace

void x11Connect(const char* program) {
    if (x11Display.connection != nullptr) {
        return;
    }
    x11Display.program = program;
    x11Display.connection = XOpenDisplay(nullptr);
    if (x11Display.connection == nullptr) {
        x11GiveUp("cannot open display", XDisplayName(nullptr));
    }
    XSetErrorHandler(onError);
    XSetIOErrorHandler(onConnectionLost);
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

void x11ReceiveClose() {
    x11Display.protocols = XInternAtom(x11Display.connection, "WM_PROTOCOLS", False);
    x11Display.deleteWindow = XInternAtom(x11Display.connection, "WM_DELETE_WINDOW", False);
    XSetWMProtocols(x11Display.connection, x11Display.window, &x11Display.deleteWindow, 1);
}

bool x11IsViewable(XWindowAttributes& attributes) {
    return XGetWindowAttributes(x11Display.connection, x11Display.window, &attributes) != 0 &&
           attributes.map_state == IsViewable;
}

void x11WaitForWindowManager() {
    constexpr int tries = 100;
    constexpr useconds_t pause = 1000;
    XWindowAttributes attributes{};
    for (int i = 0; i < tries && !x11IsViewable(attributes); ++i) {
        usleep(pause);
    }
}

XImage* x11NewImage(std::int32_t width, std::int32_t height) {
    XImage* const image =
        XCreateImage(x11Display.connection, DefaultVisual(x11Display.connection, x11Display.screen),
                     static_cast<unsigned int>(DefaultDepth(x11Display.connection, x11Display.screen)),
                     ZPixmap, 0, nullptr, static_cast<unsigned int>(width), static_cast<unsigned int>(height),
                     BitmapPad(x11Display.connection), 0);
    if (image == nullptr) {
        return nullptr;
    }
    // Xlib frees the samples, and does so with free().
    image->data = static_cast<char*>(std::calloc(static_cast<std::size_t>(image->height),
                                                 static_cast<std::size_t>(image->bytes_per_line)));
    if (image->data == nullptr) {
        XDestroyImage(image);
        return nullptr;
    }
    return image;
}

X11ErrorTrap::X11ErrorTrap() {
    XSync(x11Display.connection, False);
    errorsAreExpected = true;
    errorWasCaught = false;
}

X11ErrorTrap::~X11ErrorTrap() {
    XSync(x11Display.connection, False);
    errorsAreExpected = false;
}

bool X11ErrorTrap::caught() const {
    XSync(x11Display.connection, False);
    return errorWasCaught;
}

void x11GiveUp(const char* what, const char* detail) {
    std::fprintf(stderr, "%s: %s \"%s\"\n", x11Display.program, what, detail);
    x11Display.connection = nullptr; // nothing that runs at the program's end may use it
    std::exit(1);
}

bool XDPY_isOpen() {
    return x11Display.connection != nullptr && x11Display.window != 0;
}

void XDPY_close(XDPY** handle) {
    if (handle == nullptr || *handle == nullptr || *handle != XDPY_current) {
        XDPY_error();
        return;
    }
    x11Display.window = 0;
    XDPY_current = nullptr;
    delete *handle;
    *handle = nullptr;
}

} // namespace velm
