// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "x11/events.h"

#include "platform/clock.h"
#include "x11/display.h"
#include "x11/keyboard.h"

#include <poll.h>

namespace velm {

X11_EVENTS x11Events{};

namespace {

/// What the window's close button sends, and the kind of message that carries it.
struct CloseMessage {
    ::Atom protocols = 0;
    ::Atom deleteWindow = 0;
};
CloseMessage closeMessage;

bool isClose(const XClientMessageEvent& message) {
    return message.message_type == closeMessage.protocols &&
           static_cast<::Atom>(message.data.l[0]) == closeMessage.deleteWindow;
}

/// The state is that before the event: a button that was held is being let go.
bool wasHeld(const XButtonEvent& event) {
    constexpr unsigned int maskOfFirst = Button1Mask;
    return event.button <= Button5 && (event.state & maskOfFirst << (event.button - Button1)) != 0;
}

void keepOfWindow(XEvent& event) {
    switch (event.type) {
    case KeyPress:
        pushKey(x11Events.keys, x11LookUp(event.xkey));
        break;
    case MotionNotify:
        x11Events.pointer.move(event.xmotion.x, event.xmotion.y);
        break;
    case ButtonPress:
    case ButtonRelease:
        x11Events.pointer.press(static_cast<std::int32_t>(event.xbutton.button), !wasHeld(event.xbutton));
        break;
    case ClientMessage:
        x11Events.keys.closeAsked = x11Events.keys.closeAsked || isClose(event.xclient);
        break;
    default:
        break;
    }
}

} // namespace

void x11ReceiveClose() {
    closeMessage.protocols = XInternAtom(x11Display.connection, "WM_PROTOCOLS", False);
    closeMessage.deleteWindow = XInternAtom(x11Display.connection, "WM_DELETE_WINDOW", False);
    XSetWMProtocols(x11Display.connection, x11Display.window, &closeMessage.deleteWindow, 1);
}

void x11TakeEvents() {
    for (int waiting = XPending(x11Display.connection); waiting > 0; --waiting) {
        XEvent event;
        XNextEvent(x11Display.connection, &event);
        if (event.type == MappingNotify) {
            XRefreshKeyboardMapping(&event.xmapping);
        } else if (event.xany.window == x11Display.window) {
            keepOfWindow(event);
        }
    }
}

void x11AwaitKey(std::int64_t micros) {
    constexpr std::int64_t microsPerMilli = 1000;
    const std::int64_t end = CLOCK_now() + micros;
    x11TakeEvents();
    while (x11Events.keys.count == 0 && !x11Events.keys.closeAsked) {
        const std::int64_t left = (end - CLOCK_now()) / microsPerMilli;
        if (left <= 0) {
            return;
        }
        pollfd input{ConnectionNumber(x11Display.connection), POLLIN, 0};
        poll(&input, 1, static_cast<int>(left));
        x11TakeEvents();
    }
}

} // namespace velm
