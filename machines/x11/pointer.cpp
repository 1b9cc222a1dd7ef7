// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "platform/pointer_events.h"
#include "platform/xdpy.h"
#include "platform/xptr.h"
#include "x11/display.h"
#include "x11/events.h"

#include <iterator>

namespace velm {

namespace {

constexpr unsigned int buttonMasks[] = {Button1Mask, Button2Mask, Button3Mask};

/// The window whose system pointer is invisible already.
Window hiddenWindow = 0;

/// Gives the window a cursor that shows nothing, once.
void hidePointer() {
    if (!XDPY_isOpen() || hiddenWindow == x11Display.window) {
        return;
    }
    hiddenWindow = x11Display.window;
    // A pixmap's first content is undefined, so the one pixel is cleared: as its own mask it then shows
    // nothing.
    const char nothing = 0;
    const Pixmap empty = XCreateBitmapFromData(x11Display.connection, hiddenWindow, &nothing, 1, 1);
    XColor colour{};
    const Cursor cursor = XCreatePixmapCursor(x11Display.connection, empty, empty, &colour, &colour, 0, 0);
    XDefineCursor(x11Display.connection, hiddenWindow, cursor);
}

} // namespace

XPTR* XPTR_new() {
    XPTR* const pointer = XPTR_make();
    if (pointer != nullptr) {
        XDPY_selectInput();
        hidePointer();
    }
    return pointer;
}

void XPTR_poll(XPTR* pointer) {
    if (!XPTR_isUsable(pointer)) {
        return;
    }
    x11TakeEvents();
    x11Events.pointer.give(*pointer);
    hidePointer();
}

void XPTR_query(XPTR* pointer) {
    if (!XPTR_isUsable(pointer)) {
        return;
    }
    Window root = 0;
    Window child = 0;
    int rootX = 0;
    int rootY = 0;
    int x = 0;
    int y = 0;
    unsigned int state = 0;
    if (XQueryPointer(x11Display.connection, x11Display.window, &root, &child, &rootX, &rootY, &x, &y,
                      &state) != 0) {
        pointer->x = x;
        pointer->y = y;
        for (unsigned int button = 0; button < std::size(buttonMasks); ++button) {
            const std::int32_t bit = 1 << button;
            const bool held = (state & buttonMasks[button]) != 0;
            pointer->buttons = held ? pointer->buttons | bit : pointer->buttons & ~bit;
        }
    }
    hidePointer();
}

std::int32_t XPTR_flush(XPTR* pointer) {
    // Without a record the events are discarded all the same.
    XPTR_isUsable(pointer);
    if (XDPY_isOpen()) {
        x11TakeEvents();
        x11Events.pointer.forget();
    }
    return 0;
}

} // namespace velm
