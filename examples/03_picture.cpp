// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A picture over a picture. Both are painted once; 0 pixels of the upper one are clear, so what lies below
// shows.
#include "effects/circle.h"
#include "image/imgfx.h"
#include "kit/kit.h"

using namespace velm;
using Picture = Owned<IMG_delete>;

namespace {

/// An evening: dark blue, then rose, then gold at the horizon, and a sea below it that mirrors it.
void paintEvening(IMG* img) {
    constexpr std::int32_t horizon = 168;
    for (std::int32_t y = 0; y < 256; ++y) {
        const std::int32_t height = y < horizon ? horizon - y : (y - horizon) * 2;
        const auto far = static_cast<std::uint32_t>(height * 256 / horizon);
        const std::uint32_t sky = RGB888_mix(RGB888_mix(0xFFC060, 0xC03060, far), 0x100838, far);
        IMG_drawHLine(img, y < horizon ? sky : RGB888_sub(sky, 0x201810), y, 0, 255);
    }
}

/// A sun of stripes, clear all around.
Picture paintSun() {
    Picture sun(IMG_newSized(96, 96));
    for (std::int32_t radius = 47; radius > 0; --radius) {
        const auto inner = static_cast<std::uint32_t>(256 - radius * 5);
        CIRCLE_drawDisc(sun, 48, 48, radius, RGB888_mix(0xFF4060, 0xFFF0A0, inner));
    }
    for (std::int32_t y = 50, thick = 2; y < 96; y += 11, ++thick) {
        IMG_fillRect(sun, 0, y, 96, thick, 0);
    }
    return sun;
}

} // namespace

int main() {
    Owned<KIT_delete> kit(KIT_new());
    const Picture evening(IMG_newSized(256, 256));
    paintEvening(evening);
    const Picture sun = paintSun();
    while (KIT_nextFrame(kit)) {
        IMG_copy(evening, kit->screen);
        const std::int32_t y = 64 + SINE_scaled(24, kit->frame * 3);
        IMG_blit(sun, kit->screen, 0, 0, 80, y, 96, 168 - y);
        for (std::int32_t row = 168; row < 256; ++row) { // its light on the water, broken by waves
            const std::int32_t reach = 60 - (row - 168) / 2;
            const std::int32_t x = 128 + SINE_scaled(6 + (row - 168) / 8, row * row / 6 - kit->frame * 20);
            const std::int32_t width = reach * (row % 4) / 5;
            IMG_blendHLine(kit->screen, 0xFFC080, row, x - width, x + width, 110);
        }
    }
}
