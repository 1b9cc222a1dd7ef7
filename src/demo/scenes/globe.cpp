// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/globe.h"

#include "foundation/chance.h"
#include "foundation/sine.h"
#include "image/imgfx.h"

#include <algorithm>

namespace velm {

namespace {

constexpr std::int32_t shades = 256;    // from the middle to the edge, by the square of the distance
constexpr std::int32_t glowShades = 96; // from the edge outwards, in the same steps

using Shades = std::array<std::uint32_t, shades + glowShades>;

/// What a globe looks like at every distance from its middle.
Shades shadesOf(const Globe& globe) {
    constexpr std::int32_t thickness = 30; // of the air at most, pixels
    const std::int32_t inner = std::max(shades - 2 * thickness * shades / globe.radius, shades / 2);
    Shades colours{};
    for (std::int32_t i = 0; i < shades; ++i) {
        const std::int32_t air = curveRise(i, inner, shades);
        const std::uint32_t colour = curveMix(globe.land, globe.air, air * air / curveFull * air / curveFull);
        colours[static_cast<std::size_t>(i)] = curveDim(colour, globe.weight);
    }
    for (std::int32_t i = shades; i < shades + glowShades; ++i) {
        const std::int32_t left = curveFull - curveRise(i, shades, shades + glowShades);
        const std::int32_t light = left * left / curveFull * left / curveFull;
        colours[static_cast<std::size_t>(i)] = curveDim(globe.air, light * globe.weight / curveFull * 3 / 4);
    }
    return colours;
}

/// How much sun falls on a point of the near side, whose distance from the place nearest to the sun is given
/// in shades.
std::int32_t sunAt(const Globe& globe, std::int32_t shade) {
    constexpr std::int32_t dusk = 300; // shades
    const std::int32_t light = curveFull - curveRise(shade, 20, dusk);
    return light * light / curveFull * globe.sun / curveFull;
}

/// Walks a row of a globe and its glow.
void drawRow(const Globe& globe, const Shades& colours, std::int32_t y, IMG* target) {
    const std::int32_t shadesPerUnit = (shades << 16) / (globe.radius * globe.radius); // 16.16
    const auto shadeOf = [shadesPerUnit](std::int32_t dx, std::int32_t dy) {
        return static_cast<std::int32_t>(std::int64_t{dx * dx + dy * dy} * shadesPerUnit >> 16);
    };
    const std::int32_t outer = globe.radius * 5 / 4;
    const std::int32_t end = std::min(globe.x + outer, target->width);
    for (std::int32_t x = std::max(globe.x - outer, 0); x < end; ++x) {
        std::uint32_t& pixel = target->pixels[y * target->width + x];
        const std::int32_t shade = shadeOf(x - globe.x, y - globe.y);
        if (shade >= shades + glowShades) {
            continue;
        }
        const std::uint32_t colour = colours[static_cast<std::size_t>(shade)];
        if (shade >= shades) {
            pixel = RGB888_add(pixel, colour);
        } else if (globe.sun <= 0) {
            pixel = colour;
        } else {
            const std::int32_t aside = globe.radius * 3 / 5;
            pixel =
                curveMix(colour, globe.day, sunAt(globe, shadeOf(x - globe.x + aside, y - globe.y + aside)));
        }
    }
}

} // namespace

void drawGlobe(const Globe& globe, IMG* target) {
    const Shades colours = shadesOf(globe);
    const std::int32_t outer = globe.radius * 5 / 4;
    const std::int32_t end = std::min(globe.y + outer, target->height);
    for (std::int32_t y = std::max(globe.y - outer, 0); y < end; ++y) {
        drawRow(globe, colours, y, target);
    }
}

Towns::Towns() {
    constexpr std::int32_t spread = 14; // of a group, 1/1024 turns
    Light group{};
    for (std::int32_t i = 0; i < count; ++i) {
        if (i % groupSize == 0) {
            group.across = static_cast<std::int16_t>(chance() % 512 - 256);
            group.around = static_cast<std::int16_t>(chance() % SINE_tableLength);
        }
        const auto near = [](std::int32_t place) {
            const std::int32_t farthest = chance() % spread + 1;
            return static_cast<std::int16_t>(place + chance() % (2 * farthest) - farthest);
        };
        lights[static_cast<std::size_t>(i)] = {near(group.across), near(group.around)};
    }
}

void drawTowns(const Towns& towns, const Globe& globe, std::int32_t roll, IMG* target) {
    constexpr std::int32_t edge = 64; // where the ball turns away, there is none
    constexpr std::int32_t brightest = 210;
    const std::int32_t night = globe.weight * (curveFull - globe.sun * 3 / 4) / curveFull;
    for (const Towns::Light& light : towns.lights) {
        const std::int32_t angle = (light.around + roll) & SINE_tableMask;
        const std::int32_t near = SINE_scaled(SINE_cosineScaled(curveFull, light.across), angle);
        const std::int32_t shown = std::clamp(3 * near - edge, 0, brightest) * night / curveFull;
        if (shown == 0) {
            continue;
        }
        const std::int32_t belt = SINE_cosineScaled(globe.radius, light.across);
        const std::int32_t x = globe.x + SINE_scaled(globe.radius, light.across);
        const std::int32_t y = globe.y - SINE_cosineScaled(belt, angle);
        IMGFX_addPixel(target, x, y, curveDim((light.around & 3) != 0 ? 0xFFB050 : 0xFFF0C0, shown));
    }
}

} // namespace velm
