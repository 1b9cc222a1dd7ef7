// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "x11_session.h"

#include "process.h"

#include <X11/Xutil.h>
#include <X11/extensions/Xfixes.h>
#include <stdexcept>

namespace velm::test {

Session::Session(std::string display) : connection(XOpenDisplay(display.c_str())), name(std::move(display)) {
    if (connection == nullptr) {
        throw std::runtime_error("no display " + name);
    }
}

Session::~Session() {
    XCloseDisplay(connection);
}

::Window Session::findDemo() const {
    return findBelow(DefaultRootWindow(connection));
}

::Window Session::findBelow(::Window parent) const {
    ::Window root = 0;
    ::Window grandparent = 0;
    ::Window* children = nullptr;
    unsigned int count = 0;
    ::Window found = 0;
    XQueryTree(connection, parent, &root, &grandparent, &children, &count);
    for (unsigned int i = 0; i < count && found == 0; ++i) {
        char* title = nullptr;
        if (XFetchName(connection, children[i], &title) != 0) {
            found = std::string(title) == "VELM4030" ? children[i] : 0;
            XFree(title);
        }
        found = found == 0 ? findBelow(children[i]) : found;
    }
    XFree(children);
    return found;
}

Session::Place Session::placeOf(::Window window) const {
    XWindowAttributes attributes{};
    XGetWindowAttributes(connection, window, &attributes);
    Place place{0, 0, attributes.width, attributes.height};
    ::Window child = 0;
    XTranslateCoordinates(connection, window, DefaultRootWindow(connection), 0, 0, &place.x, &place.y,
                          &child);
    return place;
}

std::vector<unsigned long> Session::screen(int x, int y, unsigned int width, unsigned int height) const {
    XImage* image =
        XGetImage(connection, DefaultRootWindow(connection), x, y, width, height, AllPlanes, ZPixmap);
    std::vector<unsigned long> pixels;
    for (int row = 0; row < static_cast<int>(height); ++row) {
        for (int column = 0; column < static_cast<int>(width); ++column) {
            pixels.push_back(XGetPixel(image, column, row));
        }
    }
    XDestroyImage(image);
    return pixels;
}

void Session::xdotool(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), "xdotool");
    if (runTool(arguments, {{"DISPLAY", name}}) != 0) {
        throw std::runtime_error("xdotool failed");
    }
}

void Session::send(::Window window, XEvent event, long mask, int times) const {
    event.xany.window = window;
    for (int i = 0; i < times; ++i) {
        XSendEvent(connection, window, False, mask, &event);
    }
    XSync(connection, False);
}

void Session::sendClose(::Window window) const {
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.message_type = XInternAtom(connection, "WM_PROTOCOLS", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = static_cast<long>(XInternAtom(connection, "WM_DELETE_WINDOW", False));
    send(window, event, NoEventMask);
}

std::vector<unsigned long> Session::property(::Window window, const char* property) const {
    ::Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char* bytes = nullptr;
    XGetWindowProperty(connection, window, XInternAtom(connection, property, False), 0, 1 << 16, False,
                       AnyPropertyType, &type, &format, &count, &left, &bytes);
    const auto* const words = reinterpret_cast<const unsigned long*>(bytes);
    std::vector<unsigned long> all(words, words + (format == 32 ? count : 0));
    XFree(bytes);
    return all;
}

bool Session::cursorIsVisible() const {
    int eventBase = 0;
    int errorBase = 0;
    XFixesQueryExtension(connection, &eventBase, &errorBase);
    XFixesCursorImage* image = XFixesGetCursorImage(connection);
    const bool visible = std::any_of(image->pixels, image->pixels + image->width * image->height,
                                     [](unsigned long pixel) { return (pixel >> 24) != 0; });
    XFree(image);
    return visible;
}

unsigned long onScreen(int depth, std::uint32_t pixel) {
    const unsigned long red = (pixel >> 16) & 255;
    const unsigned long green = (pixel >> 8) & 255;
    const unsigned long blue = pixel & 255;
    if (depth == 16) {
        return (red >> 3) << 11 | (green >> 2) << 5 | blue >> 3;
    }
    if (depth == 30) {
        const auto widened = [](unsigned long value) { return value << 2 | value >> 6; };
        return widened(red) << 20 | widened(green) << 10 | widened(blue);
    }
    return pixel;
}

} // namespace velm::test
