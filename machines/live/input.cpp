// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What the window passes on, as the program's keyboard and pointer.
#include "live/live.h"
#include "platform/key_queue.h"
#include "platform/pointer_events.h"
#include "platform/xdpy.h"
#include "platform/xkbd.h"
#include "platform/xptr.h"

namespace velm {

namespace {

constexpr std::int32_t knownButtons = 3;
constexpr std::int32_t knownBits = (1 << knownButtons) - 1;

KeyQueue keys;
std::uint32_t heardTyped = 0; ///< of the bell
PointerEvents events;
Channel::Pointer now{}; ///< where the pointer is, whatever the program has seen of it

/// Takes what the window has passed on so far.
void takeInput() {
    Channel& channel = *liveChannel();
    for (Channel::Key key{}; channel.keys.take({&key, 1}) > 0;) {
        pushText(keys, key.text, key.keycode);
    }
    for (Channel::Pointer next{}; channel.pointers.take({&next, 1}) > 0; now = next) {
        if (next.x != now.x || next.y != now.y) {
            events.move(next.x, next.y);
        }
        for (std::int32_t number = 1; number <= knownButtons; ++number) {
            const std::int32_t bit = 1 << (number - 1);
            if (((next.buttons ^ now.buttons) & bit) != 0) {
                events.press(number, (next.buttons & bit) != 0);
            }
        }
    }
}

} // namespace

void XKBD_poll(XKBD* keyboard) {
    if (XKBD_isUsable(keyboard)) {
        takeInput();
        giveKey(keys, *keyboard);
    }
}

void XKBD_rest(XKBD*) {
    if (!XDPY_isOpen()) {
        return;
    }
    Channel& channel = *liveChannel();
    channel.rests.fetch_add(1, std::memory_order_relaxed);
    static_cast<void>(channel.typed.hasRung(heardTyped, XKBD_longestRest));
}

XPTR* XPTR_new() {
    return XPTR_make();
}

void XPTR_poll(XPTR* pointer) {
    if (XPTR_isUsable(pointer)) {
        takeInput();
        events.give(*pointer);
    }
}

void XPTR_query(XPTR* pointer) {
    if (XPTR_isUsable(pointer)) {
        takeInput();
        pointer->x = now.x;
        pointer->y = now.y;
        pointer->buttons = (pointer->buttons & ~knownBits) | (now.buttons & knownBits);
    }
}

std::int32_t XPTR_flush(XPTR* pointer) {
    // Without a record the events are discarded all the same.
    XPTR_isUsable(pointer);
    if (XDPY_isOpen()) {
        takeInput();
        events.forget();
    }
    return 0;
}

} // namespace velm
