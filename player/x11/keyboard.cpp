// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "platform/xkbd.h"
#include "x11/display.h"

#include <X11/Xutil.h>
#include <cstdlib>

namespace velm {

namespace {

constexpr int lookedUpBytes = 8;
constexpr char escape = 27;

/// True when the window's close button was pressed since the last call.
bool takeClose() {
    XEvent event;
    return XCheckTypedWindowEvent(x11Display.connection, x11Display.window, ClientMessage, &event) != 0 &&
           event.xclient.message_type == x11Display.protocols &&
           static_cast<Atom>(event.xclient.data.l[0]) == x11Display.deleteWindow;
}

} // namespace

void XKBD_poll(XKBD* keyboard) {
    if (keyboard == nullptr) {
        XKBD_error();
        std::exit(0);
    }
    if (!XDPY_isOpen()) {
        XKBD_error();
        return;
    }
    if (takeClose()) {
        keyboard->text[0] = escape;
        return;
    }
    XEvent event;
    if (XCheckWindowEvent(x11Display.connection, x11Display.window, KeyPressMask, &event) != 0) {
        XLookupString(&event.xkey, keyboard->text, lookedUpBytes, nullptr, nullptr);
        keyboard->keycode = static_cast<std::int32_t>(event.xkey.keycode);
    }
}

} // namespace velm
