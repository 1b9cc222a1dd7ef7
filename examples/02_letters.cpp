// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A line font. Every letter is a drawing: it is placed, enlarged, turned and coloured like one.
#include "kit/kit.h"
#include "vector/vec2d.h"

#include <string_view>

using namespace velm;

namespace {

/// A word in which every letter has its own hue, place and tilt; `late` frames behind the others.
void drawWord(KIT& kit, std::string_view word, std::int32_t y, std::int32_t late) {
    const auto count = static_cast<std::int32_t>(word.size());
    const std::int32_t pitch = 224 / count;
    for (std::int32_t i = 0; i < count; ++i) {
        const std::int32_t angle = (kit.frame - late) * 16 - i * 96;
        LFONT_place(kit.pen, 20 + i * pitch, y + SINE_scaled(12, angle), 2);
        kit.pen->angle = SINE_scaled(60, angle + 200);
        kit.pen->character = word[static_cast<std::size_t>(i)];
        const std::uint32_t hue = RGB888_hue(kit.frame * 8 + i * 120 + y * 4);
        LFONT_setColour(kit.pen, RGB888_dim(hue, 256 - 40 * late));
        LFONT_drawChar(kit.pen);
    }
}

} // namespace

int main() {
    Owned<KIT_delete> kit(KIT_new());
    while (KIT_nextFrame(kit)) {
        for (std::int32_t late = 5; late >= 0; --late) {
            drawWord(*kit, "LIGHT", 32, late);
            drawWord(*kit, "MADE", 104, late);
            drawWord(*kit, "LETTERS", 176, late);
        }
    }
}
