// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The demo started up once in this process, on the machine without a machine.
//
//     startDemo();
//     pressAt(headless.frames + 40, ' ');
//     VELM4030_sceneDefault();
#pragma once

#include "demo/state.h"
#include "demo/velm4030.h"
#include "headless/headless.h"

namespace velm::test {

/// What start-up showed first and left behind, before any scene ran.
struct StartupRecord {
    IMG* firstPicture = nullptr;
    bool wasEarly = false; ///< neither fonts nor music existed when the picture was shown
    RANDOM generator{};
    std::int32_t targetRate = 0;
};

/// Starts the demo, the first time it is called in this process.
inline const StartupRecord& startDemo() {
    static const StartupRecord record = [] {
        StartupRecord first;
        headless.onFrame = [&first](const IMG& frame) {
            if (first.firstPicture == nullptr) {
                first.firstPicture = IMG_clone(&frame);
                first.wasEarly = demo.fontBitmap1 == nullptr && demo.music == nullptr;
            }
        };
        VELM4030_init();
        headless.onFrame = nullptr;
        first.generator = *demo.random;
        first.targetRate = demo.fps->targetRate;
        return first;
    }();
    return record;
}

/// The key reaches the first poll after presentation `frame`.
inline void pressAt(std::uint32_t frame, char text, std::int32_t keycode = 1) {
    headless.keys.push_back({frame, text, keycode});
}

/// Presses a key now and lets the demo handle it.
inline void press(char text, std::int32_t keycode = 1) {
    demo.keyboard->text[0] = text;
    demo.keyboard->keycode = keycode;
    VELM4030_handleKey(demo.keyboard);
}

} // namespace velm::test
