// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What the page passes on, as the demo's keyboard and pointer.
#include "platform/key_queue.h"
#include "platform/pointer_events.h"
#include "platform/xkbd.h"
#include "platform/xptr.h"
#include "web/browser.h"
#include "web/web.h"

namespace velm {

namespace {

KeyQueue keys;
PointerEvents events;

/// Where the pointer is now, whatever the demo has seen of it.
struct {
    std::int32_t x, y, buttons;
} now{};

} // namespace

void WEB_press(const char* text, std::int32_t keycode) {
    pushText(keys, text, keycode);
}

void WEB_point(std::int32_t x, std::int32_t y) {
    now.x = x;
    now.y = y;
    events.move(x, y);
}

void WEB_button(std::int32_t number, bool isHeld) {
    constexpr std::int32_t known = 3;
    if (number < 1 || number > known) {
        return;
    }
    const std::int32_t bit = 1 << (number - 1);
    now.buttons = isHeld ? now.buttons | bit : now.buttons & ~bit;
    events.press(number, isHeld);
}

void XKBD_poll(XKBD* keyboard) {
    if (XKBD_isUsable(keyboard)) {
        giveKey(keys, *keyboard);
    }
}

void XKBD_rest(XKBD*) {
    browserWait(XKBD_longestRest);
}

XPTR* XPTR_new() {
    return XPTR_make();
}

void XPTR_poll(XPTR* pointer) {
    if (XPTR_isUsable(pointer)) {
        events.give(*pointer);
    }
}

void XPTR_query(XPTR* pointer) {
    if (!XPTR_isUsable(pointer)) {
        return;
    }
    constexpr std::int32_t known = 7;
    pointer->x = now.x;
    pointer->y = now.y;
    pointer->buttons = (pointer->buttons & ~known) | now.buttons;
}

std::int32_t XPTR_flush(XPTR* pointer) {
    XPTR_isUsable(pointer);
    events.forget();
    return 0;
}

} // namespace velm
