// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A chain of filters. The frame before is blurred, darkened and lies under the new one, so sparks draw smoke.
#include "effects/circle.h"
#include "image/imgfx.h"
#include "kit/kit.h"

using namespace velm;
using Picture = Owned<IMG_delete>;

int main() {
    Owned<KIT_delete> kit(KIT_new());
    kit->keeps = true;
    const Picture glow(IMG_newSized(256, 256));
    const Picture smoke(IMG_newSized(256, 256));
    while (KIT_nextFrame(kit)) {
        IMGFX_glare8(kit->screen, glow, 7); // 1: light spreads to all eight neighbours
        IMGFX_blur7(glow, smoke);           // 2: and along its row
        IMG_subColour(smoke, 0x04080E);     // 3: it cools, blue first
        IMG_fill(kit->screen, 0);
        IMGFX_opaqueBlit(smoke, kit->screen, 0, 1, 0, 0, 256, 255); // 4: and rises
        for (std::int32_t i = 0; i < 9; ++i) {
            const std::int32_t angle = kit->frame * 7 + i * 114;
            const std::int32_t x = 128 + SINE_scaled(90, angle);
            const std::int32_t y = 150 + SINE_scaled(80, angle * 2 + kit->frame * 3);
            CIRCLE_addDisc(kit->screen, x, y, 3, RGB888_dim(RGB888_hue(760 + i * 70), 200));
        }
    }
}
