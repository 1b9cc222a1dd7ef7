// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The layers that the scenes share, in the order in which a frame meets them.
#include "demo/state.h"
#include "demo/velm4030.h"
#include "foundation/sine.h"
#include "foundation/wrap.h"
#include "image/imgfx.h"

#include <string_view>

namespace velm {

namespace {

/// Prepares `screen` for the next frame.
void clearScreen() {
    constexpr std::uint32_t white = 0xFFFFFF;
    switch (demo.clearMode) {
    case ClearMode::black:
        IMG_fill(demo.screen, 0x000000);
        break;
    case ClearMode::white:
        IMG_fill(demo.screen, white);
        break;
    case ClearMode::background:
        IMG_fill(demo.screen, demo.background);
        break;
    case ClearMode::fade:
        if (settings.fadeOn == 0) {
            break;
        }
        if (demo.background == white) {
            IMG_addColour(demo.screen, settings.fadeStep);
        } else {
            IMG_subColour(demo.screen, settings.fadeStep);
        }
        break;
    }
}

} // namespace

void VELM4030_rasterLayer() {
    RASTER_advance(demo.rasters);
    RASTER_draw(demo.rasters, demo.rasterTarget);
}

void VELM4030_mouseLayer() {
    XPTR_poll(demo.pointer);
    MOUSE_update(demo.mouseTrail);
    MOUSE_draw(demo.mouseTrail);
    XPTR_flush(demo.pointer);
}

void VELM4030_fpsLayer() {
    if ((demo.overlay & overlayRate) == 0 || demo.textMedium == nullptr || demo.fps == nullptr) {
        return;
    }
    constexpr std::int32_t countX = 128;
    demo.textMedium->target = demo.screen;
    LFONT_place(demo.textMedium, 0, 0, 1);
    // VELM4030_rateInHex: one expects 30; the overlay has always spoken hexadecimal and says 1E.
    LFONT_drawHexByte(demo.textMedium, static_cast<std::uint8_t>(demo.fps->shownRate));
    LFONT_drawLine(demo.textMedium, "fps");
    LFONT_place(demo.textMedium, countX, 0, 1);
    LFONT_drawHexLong(demo.textMedium, demo.fps->frameCount);
}

void VELM4030_logoLettersLayer() {
    if (demo.textMedium == nullptr || demo.fps == nullptr || demo.hueRamp == nullptr ||
        demo.hueRamp->length == 0) {
        return;
    }
    LFONT* const pen = demo.textMedium;
    const auto frame = static_cast<std::int32_t>(demo.fps->frameCount);
    LFONT_place(pen, settings.lettersX, settings.lettersY, 1);
    std::int32_t k = 0;
    std::uint32_t colour = 0;
    for (const char letter : std::string_view("VELM")) {
        const std::int32_t hue = wrapAdd(frame, 192 - 64 * k) % demo.hueRamp->length;
        colour = static_cast<std::uint32_t>(SAMPLE_get(demo.hueRamp, hue));
        OBJ2D_setColour(static_cast<OBJ2D*>(LIST_get(pen->glyphs, letter)), colour);
        // VELM4030_lettersBounce: one expects a swing about the line; only the upper half of the wave is
        // used.
        const std::int32_t angle = wrapAdd(wrapMul(17, frame), 96 - 32 * k) & (SINE_tableMask >> 1);
        pen->position->y = settings.lettersY - (SINE_entry(angle) >> 10);
        pen->character = static_cast<unsigned char>(letter);
        LFONT_drawChar(pen);
        ++k;
    }
    LFONT_setColour(pen, colour); // the whole font keeps the last letter's
}

void VELM4030_postLayer() {
    constexpr std::int32_t glareShift = 3;
    if (demo.glare != 0) {
        IMGFX_glare(demo.screen, demo.glareImage, glareShift);
    } else {
        IMG_copy(demo.screen, demo.glareImage);
    }
    if (demo.blur != 0) {
        IMGFX_blur(demo.glareImage, demo.blurImage);
    } else {
        IMG_copy(demo.glareImage, demo.blurImage);
    }
    XDPY_present(demo.display, demo.blur != 0 || demo.glare != 0 ? demo.blurImage : demo.screen);
    clearScreen();
}

void VELM4030_musicLayer() {
    constexpr std::int32_t barsQueued = 4;
    if (demo.music == nullptr || demo.music->period == 0 || demo.sound == nullptr || demo.muted != 0) {
        return;
    }
    MUSIC_tick(demo.music);
    if (demo.music->tick % demo.music->period == 0) {
        MUSIC_compose(demo.music, RANDOM_next(demo.random));
    }
    if (demo.sound->queue != nullptr && demo.sound->queue->count < barsQueued) {
        LIST_append(demo.sound->queue, demo.music->bar);
    }
    XSND_play(demo.sound);
}

} // namespace velm
