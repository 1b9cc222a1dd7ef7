// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "foundation/report.h"
#include "image/img.h"
#include "platform/program.h"
#include "platform/xdpy.h"
#include "x11/display.h"
#include "x11/events.h"
#include "x11/pixels.h"
#include "x11/properties.h"

#include <algorithm>
#include <cstdlib>
#include <unistd.h>

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

/// Gives a window manager a moment to map the window, so that the start-up picture is seen; without one the
/// window is there at once.
void awaitWindowManager() {
    constexpr int tries = 100;
    constexpr useconds_t pause = 1000;
    XWindowAttributes attributes{};
    for (int i = 0; i < tries && !x11IsViewable(attributes); ++i) {
        usleep(pause);
    }
}

/// A black image in the layout of the default visual, or nullptr.
XImage* makeBlackImage(std::uint32_t width, std::uint32_t height) {
    XImage* const image =
        XCreateImage(x11Display.connection, DefaultVisual(x11Display.connection, x11Display.screen),
                     static_cast<unsigned int>(DefaultDepth(x11Display.connection, x11Display.screen)),
                     ZPixmap, 0, nullptr, width, height, BitmapPad(x11Display.connection), 0);
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

/// An image of the window's size: what the server shows, or an empty one where it cannot tell (a window that
/// is partly off the screen).
XImage* makeImage(const XDPY* display) {
    XImage* image = nullptr;
    {
        const X11ErrorTrap trap;
        image = XGetImage(x11Display.connection, x11Display.window, 0, 0, display->width, display->height,
                          AllPlanes, ZPixmap);
    }
    return image != nullptr ? image : makeBlackImage(display->width, display->height);
}

bool haveImage(const XDPY* display) {
    if (frameImage == nullptr) {
        frameImage = makeImage(display);
    }
    return frameImage != nullptr;
}

} // namespace

XDPY* XDPY_open() {
    x11Connect();
    XDPY* const display = XDPY_make(rootDepth());
    if (display == nullptr) {
        return nullptr;
    }
    x11Display.window = XCreateSimpleWindow(x11Display.connection, x11Display.root, 0, 0, windowSize,
                                            windowSize, borderWidth, borderColour, backgroundColour);
    if (refused(x11Display.window == 0, XDPY_error)) {
        return nullptr;
    }
    x11ReceiveClose();
    x11Describe();
    XFlush(x11Display.connection);
    XMapWindow(x11Display.connection, x11Display.window);
    XRaiseWindow(x11Display.connection, x11Display.window);
    XFlush(x11Display.connection);
    XDPY_selectInput();
    XDPY_resize(display, windowSize, windowSize);
    XStoreName(x11Display.connection, x11Display.window, programNames.title);
    XFlush(x11Display.connection);
    awaitWindowManager();
    return display;
}

void XDPY_selectInput() {
    constexpr long inputEvents = KeyPressMask | KeyReleaseMask | ButtonPressMask | ButtonReleaseMask |
                                 PointerMotionMask | ButtonMotionMask;
    static_assert(inputEvents == 0x204F);
    if (XDPY_isOpen()) {
        XSelectInput(x11Display.connection, x11Display.window, inputEvents);
    }
}

void XDPY_resize(XDPY* display, std::int32_t width, std::int32_t height) {
    if (refused(display == nullptr || width < 0 || height < 0 || !XDPY_isOpen(), XDPY_error)) {
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
    if (refused(!XDPY_accepts(display, img), XDPY_error)) {
        return;
    }
    XDPY_dumpFrame(img);
    XWindowAttributes attributes{};
    if (!x11IsViewable(attributes)) {
        return;
    }
    if (refused(!haveImage(display), XDPY_error)) {
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
