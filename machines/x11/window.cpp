// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "foundation/memory.h"
#include "platform/xkbd.h"
#include "x11/display.h"
#include "x11/pixels.h"

#include <algorithm>
#include <poll.h>

namespace velm {

namespace {

constexpr std::uint32_t windowSize = 256;
constexpr unsigned int borderWidth = 2;
constexpr unsigned long borderColour = 0xFFFFFF;
constexpr unsigned long backgroundColour = 0x0080FF;

/// nullptr until the first presentation, then kept for the life of the program.
XImage* frameImage = nullptr;

std::uint32_t rootDepth() {
    return static_cast<std::uint32_t>(DefaultDepth(x11Display.connection, 0));
}

/// An image of the window's size: what the server shows, or an empty one where it cannot tell (a window that
/// is partly off the screen).
XImage* makeImage(const XDPY* display) {
    XImage* image = nullptr;
    {
        const X11ErrorTrap trap;
        image = XGetImage(x11Display.connection, x11Display.window, 0, 0, display->width, display->height,
                          AllPlanes, ZPixmap);
    }
    return image != nullptr ? image
                            : x11NewImage(static_cast<std::int32_t>(display->width),
                                          static_cast<std::int32_t>(display->height));
}

bool haveImage(const XDPY* display) {
    if (frameImage == nullptr) {
        frameImage = makeImage(display);
    }
    return frameImage != nullptr;
}

} // namespace

XDPY* XDPY_open() {
    x11Connect("velm4030");
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
    x11ReceiveClose();
    XFlush(x11Display.connection);
    XMapWindow(x11Display.connection, x11Display.window);
    XRaiseWindow(x11Display.connection, x11Display.window);
    XFlush(x11Display.connection);
    XDPY_selectInput();
    XDPY_dump.on = 0;
    XDPY_resize(display, windowSize, windowSize);
    XStoreName(x11Display.connection, x11Display.window, "VELM4030");
    XFlush(x11Display.connection);
    x11WaitForWindowManager();
    return display;
}

void XDPY_selectInput() {
    static_assert(x11InputEvents == 0x204F);
    if (XDPY_isOpen()) {
        XSelectInput(x11Display.connection, x11Display.window, x11InputEvents);
    }
}

void x11ToPicture(std::int32_t&, std::int32_t&) {}

void XKBD_rest(XKBD*) {
    if (!XDPY_isOpen()) {
        return;
    }
    // Nobody else would notice now that the window is gone.
    XWindowAttributes attributes{};
    x11IsViewable(attributes);
    if (XPending(x11Display.connection) == 0) {
        constexpr int microsPerMilli = 1000;
        pollfd input{ConnectionNumber(x11Display.connection), POLLIN, 0};
        poll(&input, 1, XKBD_longestRest / microsPerMilli);
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
    XWindowAttributes attributes{};
    if (!x11IsViewable(attributes)) {
        return;
    }
    if (!haveImage(display)) {
        XDPY_error();
        return;
    }
    XFlush(x11Display.connection);
    XImage* const image = frameImage;
    x11CopyPixels(*img, *image);
    // A window that grew since shows the part that the first image can hold.
    const auto width = static_cast<unsigned int>(std::min(img->width, image->width));
    const auto height = static_cast<unsigned int>(std::min(img->height, image->height));
    XPutImage(x11Display.connection, x11Display.window, x11Display.graphics, image, 0, 0, 0, 0, width,
              height);
    XFlush(x11Display.connection);
}

} // namespace velm
