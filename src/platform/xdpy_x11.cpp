// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "foundation/memory.h"
#include "platform/x11_display.h"
#include "platform/x11_pixels.h"

#include <X11/Xutil.h>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace velm {

X11_DISPLAY x11Display{};

namespace {

constexpr std::uint32_t windowSize = 256;
constexpr unsigned int borderWidth = 2;
constexpr unsigned long borderColour = 0xFFFFFF;
constexpr unsigned long backgroundColour = 0x0080FF;

/// While set, protocol errors are expected and only counted.
bool errorsAreExpected = false;

int onError(::Display*, XErrorEvent* error) {
    const bool ours = x11Display.window != 0 && error->resourceid == x11Display.window;
    if (!errorsAreExpected && ours && (error->error_code == BadWindow || error->error_code == BadDrawable)) {
        x11GiveUp("the window is gone", "closed by another program");
    }
    XDPY_error();
    return 0;
}

[[noreturn]] int onConnectionLost(::Display*) {
    x11GiveUp("lost the display", XDisplayName(nullptr));
}

void connect() {
    if (x11Display.connection != nullptr) {
        return;
    }
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
        x11GiveUp("needs a TrueColor display, unlike", XDisplayName(nullptr));
    }
}

std::uint32_t rootDepth() {
    return static_cast<std::uint32_t>(DefaultDepth(x11Display.connection, 0));
}

/// Asks that the close button sends us a message, where it would otherwise cut the connection.
void receiveClose() {
    x11Display.protocols = XInternAtom(x11Display.connection, "WM_PROTOCOLS", False);
    x11Display.deleteWindow = XInternAtom(x11Display.connection, "WM_DELETE_WINDOW", False);
    XSetWMProtocols(x11Display.connection, x11Display.window, &x11Display.deleteWindow, 1);
}

bool isViewable() {
    XWindowAttributes attributes{};
    return XGetWindowAttributes(x11Display.connection, x11Display.window, &attributes) != 0 &&
           attributes.map_state == IsViewable;
}

/// Gives a window manager a moment to map the window, so that the start-up picture is seen; without one the
/// window is there at once.
void waitForWindowManager() {
    constexpr int tries = 100;
    constexpr useconds_t pause = 1000;
    for (int i = 0; i < tries && !isViewable(); ++i) {
        usleep(pause);
    }
}

/// An image of the window's size: what the server shows, or an empty one where it cannot tell (a window that
/// is partly off the screen).
XImage* makeImage(const XDPY* display) {
    errorsAreExpected = true;
    XImage* image = XGetImage(x11Display.connection, x11Display.window, 0, 0, display->width, display->height,
                              AllPlanes, ZPixmap);
    errorsAreExpected = false;
    if (image != nullptr) {
        return image;
    }
    const auto depth = static_cast<unsigned int>(DefaultDepth(x11Display.connection, x11Display.screen));
    image = XCreateImage(x11Display.connection, DefaultVisual(x11Display.connection, x11Display.screen),
                         depth, ZPixmap, 0, nullptr, display->width, display->height,
                         BitmapPad(x11Display.connection), 0);
    if (image == nullptr) {
        return nullptr;
    }
    image->data = allocateArray<char>(std::int64_t{image->bytes_per_line} * image->height);
    if (image->data == nullptr) {
        XDestroyImage(image);
        return nullptr;
    }
    return image;
}

bool haveImage(const XDPY* display) {
    if (x11Display.image == nullptr) {
        x11Display.image = makeImage(display);
    }
    return x11Display.image != nullptr;
}

} // namespace

void x11GiveUp(const char* what, const char* detail) {
    std::fprintf(stderr, "velm4030: %s \"%s\"\n", what, detail);
    std::exit(1);
}

void x11RequireWindow() {
    isViewable();
}

XDPY* XDPY_open() {
    connect();
    XDPY* const display = allocateRecord<XDPY>();
    XDPY_current = display;
    if (display == nullptr) {
        XDPY_error();
        return nullptr;
    }
    x11Display.window = XCreateSimpleWindow(x11Display.connection, x11Display.root, 0, 0, windowSize,
                                            windowSize, borderWidth, borderColour, backgroundColour);
    if (x11Display.window == 0) {
        XDPY_error();
        return nullptr;
    }
    display->width = windowSize;
    display->height = windowSize;
    display->depth = rootDepth();
    receiveClose();
    XFlush(x11Display.connection);
    XMapWindow(x11Display.connection, x11Display.window);
    XRaiseWindow(x11Display.connection, x11Display.window);
    XFlush(x11Display.connection);
    XDPY_selectInput();
    XDPY_dump.on = 0;
    XDPY_resize(display, windowSize, windowSize);
    XStoreName(x11Display.connection, x11Display.window, "VELM4030");
    XFlush(x11Display.connection);
    waitForWindowManager();
    return display;
}

bool XDPY_isOpen() {
    return x11Display.connection != nullptr && x11Display.window != 0;
}

void XDPY_selectInput() {
    constexpr long mask = KeyPressMask | KeyReleaseMask | ButtonPressMask | ButtonReleaseMask |
                          PointerMotionMask | ButtonMotionMask;
    static_assert(mask == 0x204F);
    if (XDPY_isOpen()) {
        XSelectInput(x11Display.connection, x11Display.window, mask);
    }
}

void XDPY_resize(XDPY* display, std::int32_t width, std::int32_t height) {
    if (display == nullptr || width < 0 || height < 0 || !XDPY_isOpen()) {
        XDPY_error();
        return;
    }
    const auto newWidth = static_cast<std::uint32_t>(width);
    const auto newHeight = static_cast<std::uint32_t>(height);
    XResizeWindow(x11Display.connection, x11Display.window, newWidth, newHeight);
    XFlush(x11Display.connection);
    display->depth = rootDepth();
    display->width = newWidth;
    display->height = newHeight;
    XFlush(x11Display.connection);
}

void XDPY_present(XDPY* display, const IMG* img) {
    if (!XDPY_accepts(display, img)) {
        XDPY_error();
        return;
    }
    XDPY_dumpFrame(img);
    if (!isViewable()) {
        return;
    }
    if (!haveImage(display)) {
        XDPY_error();
        return;
    }
    XFlush(x11Display.connection);
    XImage* const image = x11Display.image;
    x11CopyPixels(*img, *image);
    // A window that grew since shows the part that the first image can hold.
    const auto width = static_cast<unsigned int>(std::min(img->width, image->width));
    const auto height = static_cast<unsigned int>(std::min(img->height, image->height));
    XPutImage(x11Display.connection, x11Display.window, x11Display.graphics, image, 0, 0, 0, 0, width,
              height);
    XFlush(x11Display.connection);
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
