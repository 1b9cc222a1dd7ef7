// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/frames.h"

namespace velm {

void setLook(const SceneLook& look) {
    settings.fadeStep = look.fadeStep;
    settings.fadeOn = look.fadeOn;
    demo.blur = 0;
    demo.glare = look.glare;
    demo.clearMode = look.clearMode;
}

void runEmptyFrame() {
    dropShared();
    runFrames(1, [](std::int32_t) { IMG_fill(demo.screen, 0); });
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

void VELM4030_fadeOut() {
    // VELM4030_fadeOutIsLong: one expects to stop at black, which two passes reach; all 32 are presented, and
    // leaving takes as long.
    constexpr int passes = 32;
    for (int i = 0; i < passes; ++i) {
        IMG_subColour(demo.screen, 0x808080);
        XDPY_present(demo.display, demo.screen);
    }
}

} // namespace velm
