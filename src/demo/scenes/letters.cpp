// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/letters.h"

#include "demo/scenes/caption.h"
#include "demo/state.h"
#include "demo/velm4030.h"

#include <utility>

namespace velm {

namespace {

/// Draws the letters' layer into a picture that they just fit in.
void takeLayer(IMG* into) {
    constexpr std::int32_t hop = 34; // pixels above the line that they bounce on
    IMG* const target = std::exchange(demo.textMedium->target, into);
    IMG_fill(into, 0);
    drawLettersAt(0, hop);
    demo.textMedium->target = target;
}

} // namespace

void drawLettersAt(std::int32_t x, std::int32_t y) {
    const KeptPen kept(demo.textMedium);
    const std::int32_t beforeX = std::exchange(settings.lettersX, x);
    const std::int32_t beforeY = std::exchange(settings.lettersY, y);
    VELM4030_logoLettersLayer();
    settings.lettersX = beforeX;
    settings.lettersY = beforeY;
}

void BigLetters::draw(std::int32_t left, std::int32_t top) {
    constexpr std::uint32_t outline = 0x100820;
    constexpr std::uint32_t light = 0x808080; // pure blue would be too dark
    takeLayer(letters);
    for (const std::int32_t rim : {2, 0}) {
        for (std::int32_t y = 0; y < letters->height; ++y) {
            for (std::int32_t x = 0; x < letters->width; ++x) {
                const std::uint32_t colour = IMG_getPixel(letters, x, y);
                if (colour != 0) {
                    IMG_fillRect(demo.screen, left + 2 * x - rim, top + 2 * y - rim, 2 + 2 * rim, 2 + 2 * rim,
                                 rim != 0 ? outline : colour | light);
                }
            }
        }
    }
}

} // namespace velm
