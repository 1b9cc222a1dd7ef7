// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Plasma: a sea of colour, and nothing else.
#include "demo/state.h"
#include "demo/velm4030.h"
#include "effects/plasma.h"

namespace velm {

void VELM4030_scenePlasma() {
    constexpr std::int32_t frames = 600;
    demo.clearMode = ClearMode::black;
    PLASMA* sea = PLASMA_new();
    for (std::int32_t left = frames; left > 0; --left) {
        FPS_start(demo.fps);
        PLASMA_advance(sea);
        PLASMA_draw(sea, demo.screen);
        VELM4030_fpsLayer();
        VELM4030_postLayer();
        VELM4030_musicLayer();
        if (!VELM4030_endFrame()) {
            break;
        }
    }
    PLASMA_delete(&sea);
}

} // namespace velm
