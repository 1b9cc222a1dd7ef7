// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A pixel, and where it has been: the picture is kept, and darkened a little before each frame.
#include "kit/kit.h"

using namespace velm;

int main() {
    Owned<KIT_delete> kit(KIT_new());
    kit->keeps = true;
    while (KIT_nextFrame(kit)) {
        IMG_subColour(kit->screen, 0x010203); // blue goes first and red stays longest
        for (std::int32_t moment = 0; moment < 400; ++moment) {
            const std::int32_t time = kit->frame * 400 + moment;
            const std::int32_t reach = 80 + SINE_scaled(40, time / 97);
            const std::int32_t x = 128 + SINE_scaled(reach, time * 3 / 16 + time / 211);
            const std::int32_t y = 128 + SINE_scaled(reach, time * 5 / 16);
            IMG_putPixel(kit->screen, x, y, 0xFFF0C0);
        }
    }
}
