// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What the desktop tells, as the demo's keyboard and pointer.
#include "desktop/canvas.h"
#include "desktop/desktop.h"
#include "desktop/video.h"
#include "desktop/window.h"
#include "desktop/x11.h"
#include "image/img.h"
#include "platform/clock.h"
#include "platform/key_queue.h"
#include "platform/pointer_events.h"
#include "platform/xdpy.h"
#include "platform/xkbd.h"
#include "platform/xptr.h"

#include <cstdlib>
#include <cstring>
#include <string>
#include <utility>

namespace velm {

namespace {

KeyQueue keys;
PointerEvents pointerEvents;
bool hasEntered = false;     ///< the next motion is where the pointer came in
bool isRepeat = false;       ///< the text that follows is of a key that is held
std::int64_t lastMotion = 0; ///< CLOCK_now(); 0 while the pointer is parked, or has not moved

void onKey(const SDL_Keysym& key) {
    const char* const name = SDL_GetKeyName(key.sym);
    const bool writes = std::strlen(name) == 1; // then the text follows
    if (writes || desktop.onKey(((key.mod & KMOD_ALT) != 0 ? "Alt+" : "") + std::string(name))) {
        return;
    }
    switch (key.sym) {
    case SDLK_ESCAPE:
        return pushText(keys, "\x1b");
    case SDLK_UP:
        return pushText(keys, "", XKBD_up);
    case SDLK_DOWN:
        return pushText(keys, "", XKBD_down);
    default:
        return;
    }
}

void onMotion(const SDL_MouseMotionEvent& event) {
    // Where the pointer comes in is no motion: a demo that nobody has touched leaves it in its corner.
    if (std::exchange(hasEntered, false)) {
        return;
    }
    const SDL_Point place = playerWindow.inPicture({event.x, event.y});
    pointerEvents.move(place.x, place.y);
    lastMotion = CLOCK_now();
}

/// On the full screen a pointer that rests leaves the picture, until it moves again.
void parkPointer() {
    constexpr std::int64_t patience = 2000000;
    const IMG* const frame = desktopFrame();
    if (playerWindow.isFull && lastMotion != 0 && CLOCK_now() - lastMotion > patience && frame != nullptr) {
        pointerEvents.move(frame->width, frame->height);
        lastMotion = 0;
    }
}

/// True when the window has to be drawn anew.
bool onWindow(const SDL_WindowEvent& event) {
    switch (event.event) {
    case SDL_WINDOWEVENT_ENTER:
        hasEntered = true;
        return false;
    case SDL_WINDOWEVENT_SHOWN:
    case SDL_WINDOWEVENT_RESTORED:
    case SDL_WINDOWEVENT_MAXIMIZED:
    case SDL_WINDOWEVENT_SIZE_CHANGED:
    case SDL_WINDOWEVENT_EXPOSED:
        playerWindow.canvas.forget();
        return true;
    default:
        return false;
    }
}

void onInput(const SDL_Event& event) {
    switch (event.type) {
    case SDL_KEYDOWN:
        isRepeat = event.key.repeat != 0;
        if (!isRepeat) {
            onKey(event.key.keysym);
        }
        return;
    case SDL_TEXTINPUT:
        if (!isRepeat && !desktop.onKey(event.text.text)) {
            pushText(keys, event.text.text);
        }
        return;
    case SDL_MOUSEMOTION:
        return onMotion(event.motion);
    case SDL_MOUSEBUTTONDOWN:
    case SDL_MOUSEBUTTONUP:
        return pointerEvents.press(event.button.button, event.button.state == SDL_PRESSED);
    default:
        return;
    }
}

} // namespace

void PlayerWindow::takeEvents() {
    bool isStale = false;
    SDL_Event event;
    while (SDL_PollEvent(&event) != 0) {
        if (tellsLoss(window, event)) {
            isForeign ? std::exit(0) : giveUp("the window is gone", "closed by another program");
        }
        if (event.type == SDL_QUIT) {
            keys.closeAsked = true;
        } else if (event.type == SDL_WINDOWEVENT) {
            isStale = onWindow(event.window) || isStale;
        } else if (!isForeign) {
            onInput(event);
        }
    }
    parkPointer();
    if (isStale) {
        desktopRedraw();
    }
}

void XKBD_poll(XKBD* keyboard) {
    if (XKBD_isUsable(keyboard)) {
        playerWindow.takeEvents();
        giveKey(keys, *keyboard);
    }
}

void XKBD_rest(XKBD*) {
    constexpr int microsPerMilli = 1000;
    SDL_Delay(XKBD_longestRest / microsPerMilli);
    desktop.onRest();
}

XPTR* XPTR_new() {
    XPTR* const pointer = XPTR_make();
    if (pointer != nullptr && !playerWindow.isForeign) {
        SDL_ShowCursor(SDL_DISABLE);
    }
    return pointer;
}

void XPTR_poll(XPTR* pointer) {
    if (XPTR_isUsable(pointer)) {
        playerWindow.takeEvents();
        pointerEvents.give(*pointer);
    }
}

void XPTR_query(XPTR* pointer) {
    if (!XPTR_isUsable(pointer)) {
        return;
    }
    playerWindow.takeEvents();
    SDL_Point place{};
    const std::uint32_t held = SDL_GetMouseState(&place.x, &place.y);
    constexpr std::int32_t known = 7;
    const SDL_Point picture = playerWindow.inPicture(place);
    pointer->x = picture.x;
    pointer->y = picture.y;
    pointer->buttons = (pointer->buttons & ~known) | (static_cast<std::int32_t>(held) & known);
}

std::int32_t XPTR_flush(XPTR* pointer) {
    // Without a record the events are discarded all the same.
    XPTR_isUsable(pointer);
    if (XDPY_isOpen()) {
        playerWindow.takeEvents();
        pointerEvents.forget();
    }
    return 0;
}

} // namespace velm
