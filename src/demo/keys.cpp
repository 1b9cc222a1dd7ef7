// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The key commands, and what ends every frame.
#include "demo/state.h"
#include "demo/velm4030.h"

#include <algorithm>
#include <cstdlib>

namespace velm {

namespace {

constexpr std::int32_t keycodeUp = 98;
constexpr std::int32_t keycodeDown = 104;

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
    } else if (key == 'e' || keycode == keycodeUp) {
        VELM4030_selectPrevious();
    } else if (key == 'd' || keycode == keycodeDown) {
        VELM4030_selectNext();
    }
}

void VELM4030_setFrameRate(std::int32_t framesPerSecond) {
    if (demo.fps != nullptr) {
        demo.fps->targetRate = framesPerSecond;
        XSND_setFrameRate(demo.sound, framesPerSecond);
    }
}

void VELM4030_fadeOut() {
    // VELM4030_fadeOutIsLong: one expects to stop at black, which two passes reach; all 32 are presented, and
    // leaving takes as long.
    constexpr int passes = 32;
    for (int i = 0; i < passes; ++i) {
        IMG_subColour(demo.screen, 0x808080);
        XDPY_present(demo.display, demo.screen);
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

bool VELM4030_endFrame() {
    XKBD_poll(demo.keyboard);
    VELM4030_handleKey(demo.keyboard);
    if (demo.framesLeft > 0 && --demo.framesLeft == 0) {
        demo.control |= controlNextPart;
    }
    if ((demo.control & controlNextPart) != 0) {
        demo.control &= static_cast<std::uint8_t>(~controlNextPart);
        return false;
    }
    FPS_tick(demo.fps);
    FPS_wait(demo.fps);
    return true;
}

} // namespace velm
