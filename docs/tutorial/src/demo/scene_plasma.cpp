// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Plasma: a sea of colour, and nothing else.
#include "demo/scene_frames.h"
#include "demo/state.h"
#include "demo/velm4030.h"
#include "effects/plasma.h"

namespace velm {

void VELM4030_scenePlasma() {
    constexpr std::int32_t frames = 600;
    setLook({});
    PLASMA* sea = PLASMA_new();
    runFrames(frames, [sea](std::int32_t) {
        PLASMA_advance(sea);
        PLASMA_draw(sea, demo.screen);
        drawPointerAndOverlay();
    });
    PLASMA_delete(&sea);
}

} // namespace velm
