// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Keys and the pointer. What is typed flies up from where the pointer is; a button drops rings into the
// water.
#include "effects/circle.h"
#include "image/imgfx.h"
#include "kit/kit.h"
#include "vector/vec2d.h"

#include <array>

using namespace velm;

namespace {

/// Something that begins at a place and a frame, and is over 60 frames later.
struct Thing {
    std::int32_t x, y, frame;
    char letter; ///< 0 for rings
};

void draw(KIT& kit, const Thing& thing) {
    const std::int32_t age = kit.frame - thing.frame;
    const std::uint32_t colour = RGB888_dim(RGB888_hue(thing.frame * 40), 256 - age * 4);
    if (age < 0 || age > 60 || thing.frame == 0) {
        return;
    }
    if (thing.letter == 0) {
        for (std::int32_t ring = 0; ring < 5; ++ring) {
            CIRCLE_addRing(kit.screen, thing.x, thing.y, age * 2 - ring * 7, colour);
        }
        return;
    }
    LFONT_place(kit.pen, thing.x + SINE_scaled(age / 2, age * 24), thing.y - age * 2, 1 + (60 - age) / 24);
    LFONT_setColour(kit.pen, colour);
    kit.pen->character = thing.letter;
    LFONT_drawChar(kit.pen);
}

} // namespace

int main() {
    Owned<KIT_delete> kit(KIT_new());
    std::array<Thing, 64> things{};
    std::size_t next = 0;
    while (KIT_nextFrame(kit)) {
        if (kit->key > ' ' || (kit->pointer->buttons != 0 && kit->frame % 6 == 0)) {
            things[next++ % things.size()] = {kit->pointer->x, kit->pointer->y, kit->frame, kit->key};
        }
        for (std::int32_t y = 0; y < 256; ++y) { // the water that waits
            const std::int32_t light = 24 + SINE_scaled(12, kit->frame * 5 + y * 6 + SINE_scaled(90, y * 3));
            IMG_drawHLine(kit->screen, RGB888_dim(0x40A0E0, light), y, 0, 255);
        }
        for (const Thing& thing : things) {
            draw(*kit, thing);
        }
        CIRCLE_addDisc(kit->screen, kit->pointer->x, kit->pointer->y, 3, 0xFFFFFF);
        LFONT_place(kit->smallPen, 8, 240, 1);
        LFONT_drawLine(kit->smallPen, "TYPE, MOVE, AND PRESS A BUTTON");
    }
}
