// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/point_field.h"

#include "demo/scenes/beat.h"
#include "demo/scenes/caption.h"
#include "foundation/sine.h"

#include <algorithm>
#include <cstdlib>

namespace velm {

namespace {

/// Writes a full stop about a pixel.
void dot(LFONT* pen, std::int32_t x, std::int32_t y, std::int32_t scale) {
    constexpr std::int32_t glyphX = 7; // where it is in its cell
    constexpr std::int32_t glyphY = 10;
    LFONT_place(pen, x - glyphX * scale, y - glyphY * scale, scale);
    pen->character = '.';
    LFONT_drawChar(pen);
}

} // namespace

void drawField(std::int32_t frame, const PointField& field) {
    constexpr std::int32_t rings = 9;
    constexpr std::int32_t gap = 18;       // pixels from ring to ring
    constexpr std::int32_t firstRing = 6;  // points; so many more on each
    constexpr std::int32_t rippleStep = 3; // pixels a frame
    const std::int32_t ripple = frame % barFrames * rippleStep;
    const KeptPen kept(demo.textMedium);
    for (std::int32_t k = 1; k <= rings; ++k) {
        const std::int32_t away = gap * k + SINE_scaled(5, 90 * k - 14 * frame);
        const std::int32_t radius = curveBetween(0, away, field.out);
        const std::int32_t crest = std::max(0, curveFull - 6 * std::abs(ripple - away));
        LFONT_setColour(demo.textMedium, curveDim(curveMix(0x3850C0, 0xA0F4FF, crest), field.weight));
        for (std::int32_t i = 0; i < firstRing * k; ++i) {
            const std::int32_t angle = i * SINE_tableLength / (firstRing * k) + (k % 2 == 0 ? frame : -frame);
            dot(demo.textMedium, field.x + SINE_scaled(radius, angle),
                field.y + SINE_cosineScaled(radius, angle), crest > curveFull / 3 ? 2 : 1);
        }
    }
}

void drawPoint(std::int32_t frame, std::int32_t x, std::int32_t y, std::int32_t weight) {
    constexpr std::int32_t smallest = 3; // pixels from its middle
    constexpr std::int32_t swelling = 4;
    const std::int32_t radius = smallest + std::max(0, swelling - frame % (barFrames / 2) / 3);
    const KeptPen kept(demo.textMedium);
    LFONT_setColour(demo.textMedium, curveDim(0xFFFFFF, weight));
    for (std::int32_t dy = -radius; dy <= radius; ++dy) {
        for (std::int32_t dx = -radius; dx <= radius; ++dx) {
            if (dx * dx + dy * dy <= radius * radius) {
                dot(demo.textMedium, x + dx, y + dy, 1);
            }
        }
    }
}

} // namespace velm
