// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "x11/keyboard.h"

#include "platform/clock.h"
#include "platform/xdpy.h"
#include "platform/xkbd.h"
#include "x11/display.h"
#include "x11/events.h"

#include <X11/Xutil.h>
#include <X11/keysym.h>

namespace velm {

namespace {

constexpr int lookedUpBytes = 8;

std::int32_t keycodeOf(KeySym symbol, unsigned int keycode) {
    switch (symbol) {
    case XK_Up:
    case XK_KP_Up:
        return XKBD_up;
    case XK_Down:
    case XK_KP_Down:
        return XKBD_down;
    default:
        return keycode == XKBD_up || keycode == XKBD_down ? 0 : static_cast<std::int32_t>(keycode);
    }
}

} // namespace

PressedKey x11LookUp(XKeyEvent& event) {
    PressedKey press{.micros = CLOCK_now()};
    KeySym symbol = NoSymbol;
    XLookupString(&event, press.text, lookedUpBytes, &symbol, nullptr);
    press.keycode = keycodeOf(symbol, event.keycode);
    return press;
}

void XKBD_poll(XKBD* keyboard) {
    if (XKBD_isUsable(keyboard)) {
        x11TakeEvents();
        giveKey(x11Events.keys, *keyboard);
    }
}

void XKBD_rest(XKBD*) {
    if (!XDPY_isOpen()) {
        return;
    }
    // Nobody else would notice now that the window is gone.
    XWindowAttributes attributes{};
    x11IsViewable(attributes);
    x11AwaitKey(XKBD_longestRest);
}

} // namespace velm
