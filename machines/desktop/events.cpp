// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "desktop/events.h"

#include "desktop/desktop.h"
#include "desktop/video.h"
#include "desktop/window.h"
#include "desktop/x11.h"
#include "foundation/memory.h"
#include "platform/clock.h"
#include "platform/key_queue.h"
#include "platform/xdpy.h"
#include "platform/xkbd.h"
#include "platform/xptr.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <utility>

namespace velm {

namespace {

KeyQueue keys;
std::deque<SDL_Point> motions;            ///< in the picture, first one first
std::deque<SDL_MouseButtonEvent> buttons; ///< likewise
constexpr std::size_t mostWaiting = 64;   ///< of either; what nobody reads is not kept
bool hasEntered = false;                  ///< the next motion is where the pointer came in
bool isRepeat = false;                    ///< the text that follows is of a key that is held
std::int64_t lastMotion = 0;              ///< CLOCK_now(); 0 while the pointer is parked, or has not moved

template <typename Item>
void keep(std::deque<Item>& queue, const Item& item) {
    if (queue.size() < mostWaiting) {
        queue.push_back(item);
    }
}

void pushText(const char* text, std::int32_t keycode = 0) {
    PressedKey press{.keycode = keycode, .micros = CLOCK_now()};
    std::strncpy(press.text, text, sizeof press.text - 1);
    pushKey(keys, press);
}

void changeVolume(std::int32_t by) {
    constexpr std::int32_t most = 100;
    desktop.volume = std::clamp(desktop.volume + by, 0, most);
    playerWindow.say("volume " + std::to_string(desktop.volume) + " %");
}

void keepPicture() {
    if (desktop.onPicture && playerWindow.frame != nullptr) {
        playerWindow.say(desktop.onPicture(*playerWindow.frame));
    }
}

void call(const std::function<void()>& hook) {
    if (hook) {
        hook();
    }
}

void onKey(const SDL_Keysym& key) {
    constexpr std::int32_t keycodeUp = 98;
    constexpr std::int32_t keycodeDown = 104;
    switch (key.sym) {
    case SDLK_ESCAPE:
        return pushText("\x1b");
    case SDLK_UP:
        return pushText("", keycodeUp);
    case SDLK_DOWN:
        return pushText("", keycodeDown);
    case SDLK_LEFT:
        return call(desktop.onPrevious);
    case SDLK_RIGHT:
        return call(desktop.onNext);
    case SDLK_F1:
        return playerWindow.toggleHelp();
    case SDLK_F11:
        return playerWindow.toggleFullScreen();
    case SDLK_F12:
        return keepPicture();
    case SDLK_RETURN:
        if ((key.mod & KMOD_ALT) != 0) {
            playerWindow.toggleFullScreen();
        }
        return;
    default:
        return;
    }
}

/// The characters that are the player's own; all others are the demo's.
void onText(const char* text) {
    constexpr std::int32_t volumeStep = 5;
    switch (text[1] == '\0' ? text[0] : '\0') {
    case 'h':
    case 'H':
        return playerWindow.toggleHelp();
    case '+':
    case '=':
        return changeVolume(volumeStep);
    case '-':
        return changeVolume(-volumeStep);
    default:
        return pushText(text);
    }
}

void onMotion(const SDL_MouseMotionEvent& motion) {
    // Where the pointer comes in is no motion: a demo that nobody has touched leaves it in its corner.
    if (std::exchange(hasEntered, false)) {
        return;
    }
    keep(motions, playerWindow.inPicture({motion.x, motion.y}));
    lastMotion = CLOCK_now();
}

/// On the full screen a pointer that rests leaves the picture, until it moves again.
void parkPointer() {
    constexpr std::int64_t patience = 2000000;
    if (playerWindow.isFull && lastMotion != 0 && CLOCK_now() - lastMotion > patience &&
        playerWindow.frame != nullptr) {
        keep(motions, {playerWindow.frame->width, playerWindow.frame->height});
        lastMotion = 0;
    }
}

/// True when the window has to be drawn anew.
bool onWindow(const SDL_WindowEvent& event) {
    switch (event.event) {
    case SDL_WINDOWEVENT_ENTER:
        hasEntered = true;
        return false;
    case SDL_WINDOWEVENT_HIDDEN:
    case SDL_WINDOWEVENT_MINIMIZED:
        playerWindow.isHidden = true;
        return false;
    case SDL_WINDOWEVENT_SHOWN:
    case SDL_WINDOWEVENT_RESTORED:
    case SDL_WINDOWEVENT_MAXIMIZED:
    case SDL_WINDOWEVENT_SIZE_CHANGED:
    case SDL_WINDOWEVENT_EXPOSED:
        playerWindow.isHidden = (SDL_GetWindowFlags(playerWindow.window) & SDL_WINDOW_MINIMIZED) != 0;
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
        if (!isRepeat) {
            onText(event.text.text);
        }
        return;
    case SDL_MOUSEMOTION:
        return onMotion(event.motion);
    case SDL_MOUSEBUTTONDOWN:
    case SDL_MOUSEBUTTONUP:
        return keep(buttons, event.button);
    default:
        return;
    }
}

/// Sets or clears the bit of one of the first three buttons.
void applyButton(XPTR* pointer, const SDL_MouseButtonEvent& event) {
    if (event.button < SDL_BUTTON_LEFT || event.button > SDL_BUTTON_RIGHT) {
        return;
    }
    const std::int32_t bit = 1 << (event.button - SDL_BUTTON_LEFT);
    pointer->buttons = event.state == SDL_PRESSED ? pointer->buttons | bit : pointer->buttons & ~bit;
}

/// Reports a missing record or window.
bool isUsable(const XPTR* pointer) {
    if (pointer == nullptr || !XDPY_isOpen()) {
        XPTR_error();
        return false;
    }
    return true;
}

} // namespace

void takeEvents() {
    bool isStale = false;
    SDL_Event event;
    while (SDL_PollEvent(&event) != 0) {
        if (tellsLoss(playerWindow.window, event)) {
            playerWindow.isForeign ? std::exit(0) : giveUp("the window is gone", "closed by another program");
        }
        if (event.type == SDL_QUIT) {
            keys.closeAsked = true;
        } else if (event.type == SDL_WINDOWEVENT) {
            isStale = onWindow(event.window) || isStale;
        } else if (!playerWindow.isForeign) {
            onInput(event);
        }
    }
    parkPointer();
    if (isStale) {
        playerWindow.redraw();
    }
}

void XKBD_poll(XKBD* keyboard) {
    if (keyboard == nullptr) {
        XKBD_error();
        std::exit(0);
    }
    if (!XDPY_isOpen()) {
        XKBD_error();
        return;
    }
    takeEvents();
    if (const std::optional<PressedKey> press = takeKey(keys, CLOCK_now())) {
        std::memcpy(keyboard->text, press->text, sizeof press->text);
        keyboard->keycode = press->keycode;
    }
}

void XKBD_rest(XKBD*) {
    constexpr int microsPerMilli = 1000;
    const bool spoke = CLOCK_now() < playerWindow.textUntil;
    SDL_Delay(XKBD_longestRest / microsPerMilli);
    if (spoke && CLOCK_now() >= playerWindow.textUntil) {
        playerWindow.redraw(); // what was said goes
    }
}

XPTR* XPTR_new() {
    XPTR* const pointer = XDPY_isOpen() ? allocateRecord<XPTR>() : nullptr;
    if (pointer == nullptr) {
        XPTR_error();
    } else if (!playerWindow.isForeign) {
        SDL_ShowCursor(SDL_DISABLE);
    }
    return pointer;
}

void XPTR_poll(XPTR* pointer) {
    if (!isUsable(pointer)) {
        return;
    }
    takeEvents();
    // XPTR_firstMotionWins: one expects the latest position; the frame's first motion is taken and XPTR_flush
    // drops the rest, so a fast pointer trails behind.
    if (!motions.empty()) {
        pointer->x = motions.front().x;
        pointer->y = motions.front().y;
        motions.pop_front();
    }
    if (!buttons.empty()) {
        applyButton(pointer, buttons.front());
        buttons.pop_front();
    }
}

void XPTR_query(XPTR* pointer) {
    if (!isUsable(pointer)) {
        return;
    }
    takeEvents();
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
    isUsable(pointer);
    if (XDPY_isOpen()) {
        takeEvents();
        motions.clear();
        buttons.clear();
    }
    return 0;
}

} // namespace velm
