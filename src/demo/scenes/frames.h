// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The loop of every scene: a scene says how many frames it has and what one of them draws. scenes/acts.h
// makes whole scenes with it.
//
//     runFrames(750, [](std::int32_t frame) {
//         IMG_drawHLine(demo.screen, 0xFFFFFF, frame & 255, 0, 255);
//         VELM4030_mouseLayer();
//     });
#pragma once

#include "demo/scenes/shared.h" // IWYU pragma: export
#include "demo/scenes/table.h"  // IWYU pragma: export
#include "demo/state.h"         // IWYU pragma: export
#include "demo/velm4030.h"      // IWYU pragma: export

#include <cstdint>

namespace velm {

/// How frames are filtered, shown and cleared until a key changes it. A scene says what differs from this.
struct SceneLook {
    std::uint32_t fadeStep = 0x101010; ///< what ClearMode::fade takes away a frame
    std::uint8_t fadeOn = 0;           ///< 1: ClearMode::fade fades
    std::uint8_t glare = 0;            ///< 1: the glare filter is on
    ClearMode clearMode = ClearMode::black;
};

/// Every scene begins with a look of its own; none begins blurred.
void setLook(const SceneLook& look);

/// Calls draw(frame) for frame 0 to `count` - 1, each time between the start of the frame's time and what
/// ends it: the post layer, the music layer and the keys. Space ends the loop early.
template <typename Draw>
void runFrames(std::int32_t count, Draw draw) {
    for (std::int32_t frame = 0; frame < count; ++frame) {
        FPS_start(demo.fps);
        draw(frame);
        VELM4030_postLayer();
        VELM4030_musicLayer();
        if (!VELM4030_endFrame()) {
            break;
        }
    }
}

/// All that is left of a scene whose set-up ran out of memory: one black frame. It still reads the keys and
/// takes its time, so that Escape works even where every scene ends like this. What the scenes share is
/// dropped, as it may be in pieces.
void runEmptyFrame();

} // namespace velm
