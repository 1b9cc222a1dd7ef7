// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "kit/kit.h"

using namespace velm;

int main() {
    Owned<KIT_delete> kit(KIT_new());
    while (KIT_nextFrame(kit)) {
        const std::int32_t time = kit->frame;
        for (std::int32_t y = 0; y < 256; ++y) {
            for (std::int32_t x = 0; x < 256; ++x) {
                std::int32_t height = SINE_entry(x * 3 + time * 5);
                height = SINE_entry(y * 2 - time * 3 + (height >> 6));
                height = SINE_entry(x - y * 3 + time * 4 + (height >> 6));
                IMG_putPixel(kit->screen, x, y, RGB888_hue(height >> 5));
            }
        }
    }
}
