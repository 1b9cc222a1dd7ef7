// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The demo started up once in this process, on the machine without a machine.
//
//     startDemo();
//     pressAt(headless.frames + 40, ' ');
//     VELM4030_sceneDefault();
#pragma once

#include "demo/scenes.h"
#include "demo/state.h"
#include "demo/velm4030.h"
#include "headless/headless.h"
#include "support/test.h"

namespace velm::test {

/// What start-up showed first and left behind, before any scene ran.
struct StartupRecord {
    bool wasEarly = false; ///< neither fonts nor music existed when the first picture was shown
    RANDOM generator{};
};

/// Starts the demo, the first time it is called in this process.
inline const StartupRecord& startDemo() {
    static const StartupRecord record = [] {
        StartupRecord first;
        headless.onFrame = [&first](const IMG&) {
            first.wasEarly = first.wasEarly || (demo.fontBitmap1 == nullptr && demo.music == nullptr);
        };
        VELM4030_init();
        headless.onFrame = nullptr;
        first.generator = *demo.random;
        return first;
    }();
    return record;
}

/// The key reaches the first poll after presentation `frame`.
inline void pressAt(std::uint32_t frame, char text, std::int32_t keycode = 1) {
    headless.keys.push_back({frame, text, keycode});
}

/// Runs a scene, which Space ends after that presentation if nothing has ended it before.
inline void runUntil(const SCENE& scene, std::uint32_t frame) {
    pressAt(frame, ' ');
    scene.run();
    headless.keys.clear();
    headless.nextKey = 0;
}

/// Takes away the listing that the browser's scene makes and DIR_delete leaves in pieces.
inline void dropListing() {
    if (demo.dirListing != nullptr) {
        while (demo.dirListing->names->count > 0) {
            delete[] static_cast<char*>(LIST_pop(demo.dirListing->names));
        }
        LIST_delete(&demo.dirListing->names);
        DIR_delete(&demo.dirListing);
    }
}

/// Presses a key now and lets the demo handle it.
inline void press(char text, std::int32_t keycode = 1) {
    demo.keyboard->text[0] = text;
    demo.keyboard->keycode = keycode;
    VELM4030_handleKey(demo.keyboard);
}

} // namespace velm::test
