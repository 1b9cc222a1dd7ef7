// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The key commands.
#include "demo/state.h"
#include "demo/velm4030.h"

#include <algorithm>
#include <cstdlib>

namespace velm {

namespace {

/// Letters act in lower case only.
struct KeyCommand {
    char key;
    void (*act)();
};

void leave() {
    demo.control |= controlExit;
    VELM4030_fadeOut();
    std::exit(0);
}

void togglePause() {
    demo.paused ^= 1;
    VELM4030_pauseLoop();
}

void cycleClearMode() {
    demo.clearMode = static_cast<ClearMode>((static_cast<unsigned int>(demo.clearMode) + 1) & 3);
}

constexpr KeyCommand commands[] = {
    {27, leave},
    {' ', [] { demo.control |= controlNextPart; }},
    {'1', [] { settings.scrollOn ^= 1; }},
    {'2', [] { settings.flag2 ^= 1; }},
    {'3', [] { settings.flag3 ^= 1; }},
    {'4', [] { settings.rastersOn ^= 1; }},
    {'5', [] { VELM4030_setFrameRate(30); }},
    {'6', [] { VELM4030_setFrameRate(60); }},
    {'7', [] { settings.flag3 ^= 4; }},
    {'8', [] { demo.overlay ^= overlayRate; }},
    {'9', [] { demo.overlay ^= overlaySpare; }},
    {'0', [] { demo.muted ^= 1; }},
    {'b', [] { demo.blur ^= 1; }},
    {'g', [] { demo.glare ^= 1; }},
    {'f', [] { settings.fadeOn ^= 1; }},
    {'p', togglePause},
    {'s', [] { settings.flagS ^= 1; }},
    {'w', cycleClearMode},
    {'q', [] { demo.background ^= 0xFFFFFF; }},
};

} // namespace

void VELM4030_handleKey(XKBD* keyboard) {
    if (keyboard == nullptr || keyboard->text == nullptr) {
        return;
    }
    const char key = keyboard->text[0];
    const std::int32_t keycode = keyboard->keycode;
    keyboard->text[0] = '\0';
    keyboard->keycode = 0;
    const auto* const command = std::find_if(std::begin(commands), std::end(commands),
                                             [key](const KeyCommand& c) { return c.key == key; });
    if (command != std::end(commands)) {
        command->act();
    } else if (key == 'e' || keycode == XKBD_up) {
        VELM4030_selectPrevious();
    } else if (key == 'd' || keycode == XKBD_down) {
        VELM4030_selectNext();
    }
}

void VELM4030_setFrameRate(std::int32_t framesPerSecond) {
    if (demo.fps != nullptr) {
        demo.fps->targetRate = framesPerSecond;
        XSND_setFrameRate(demo.sound, framesPerSecond);
    }
}

void VELM4030_pauseLoop() {
    while (demo.paused != 0) {
        XKBD_poll(demo.keyboard);
        VELM4030_handleKey(demo.keyboard);
        if (demo.paused != 0) {
            XKBD_rest(demo.keyboard);
        }
    }
}

void VELM4030_selectPrevious() {
    demo.dirSelection = std::max(demo.dirSelection - 1, 0);
}

void VELM4030_selectNext() {
    if (demo.dirListing != nullptr) {
        demo.dirSelection = std::min(demo.dirSelection + 1, demo.dirListing->names->count - 1);
    }
}

} // namespace velm
