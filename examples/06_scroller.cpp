// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A scroller. The text is drawn into a strip, takes the colours of rolling bars, is bent by columns onto the
// screen, and once more, dimmed and upside down, as its reflection.
#include "effects/disty.h"
#include "effects/lstar.h"
#include "effects/raster.h"
#include "effects/scroll.h"
#include "kit/kit.h"

using namespace velm;

namespace {

constexpr const char* text = "THIS TEXT HAS NO END ... IT IS DRAWN, COLOURED, BENT AND MIRRORED ... ";

/// What stands above a row of the screen, mirrored below it in dark water.
void mirror(IMG* screen, std::int32_t row) {
    for (std::int32_t i = 1; i < 256 - row; ++i) {
        for (std::int32_t x = 0; x < 256; ++x) {
            const std::uint32_t light = IMG_getPixel(screen, x, row - i);
            IMG_putPixel(screen, x, row + i, RGB888_add(RGB888_dim(light, 190 - i * 2), 0x000A18));
        }
    }
}

} // namespace

int main() {
    Owned<KIT_delete> kit(KIT_new());
    const Owned<IMG_delete> strip(IMG_newSized(256, 16));
    const Owned<IMG_delete> colours(IMG_newSized(256, 16));
    Owned<RASTER_delete> bars(RASTER_new(), [](RASTER& made) {
        RASTER_setCount(&made, 384);
        made.speed = 3 << 16;
        for (std::int32_t i = 0; i < made.count; ++i) {
            made.colours[i] =
                RGB888_mix(RGB888_hue(i * 16), 0xFFFFFF, static_cast<std::uint32_t>(i % 8 * 24));
        }
    });
    Owned<SCROLL_delete> scroll(SCROLL_new());
    SCROLL_setup(scroll, text, kit->font, strip);
    scroll->speed = 2;
    Owned<DISTY_delete> wave(DISTY_new());
    wave->source = colours, wave->y = 132, wave->amplitude = 60;
    wave->wave.speed = 14, wave->wave.offsetStep = 4;
    Owned<LSTAR_delete> stars(LSTAR_new());
    stars->y = 96, stars->turn = 0, stars->colours = kit->hues;
    while (KIT_nextFrame(kit)) {
        LSTAR_draw(stars, kit->screen), LSTAR_advance(stars);
        IMG_fill(strip, 0);
        SCROLL_step(scroll), SCROLL_draw(scroll);
        RASTER_advance(bars), RASTER_draw(bars, colours);
        IMG_andMask(strip, colours);
        DISTY_draw(wave, kit->screen), DISTY_advance(wave);
        mirror(kit->screen, 190);
    }
}
