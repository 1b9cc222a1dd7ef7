// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/tunnel_dust.h"

#include "demo/scenes/curves.h"
#include "foundation/chance.h"
#include "foundation/sine.h"
#include "image/imgfx.h"

#include <algorithm>
#include <cstddef>

namespace velm {

namespace {

constexpr std::int32_t step = 256;       // of RECT's way from one frame to the next
constexpr std::int32_t sharp = 4 * step; // at this distance a frame has its size

/// Small as a rule, at most `reach` either way.
std::int32_t scatter(std::int32_t reach) {
    const std::int32_t there = chance() % (reach + 1);
    return there - chance() % (reach + 1);
}

/// Anywhere on a line of so many pixels, from its middle.
std::int32_t spread(std::int32_t length) {
    return chance() % length - length / 2;
}

/// A small cross about a speck that is close.
void addRays(IMG* target, std::int32_t x, std::int32_t y, std::uint32_t colour) {
    IMGFX_addPixel(target, x - 1, y, colour);
    IMGFX_addPixel(target, x + 1, y, colour);
    IMGFX_addPixel(target, x, y - 1, colour);
    IMGFX_addPixel(target, x, y + 1, colour);
}

} // namespace

TunnelDust::TunnelDust(const RECT* tunnel) {
    if (tunnel == nullptr) {
        return;
    }
    constexpr std::int32_t fromEdge = 12; // pixels
    for (Mote& mote : motes) {
        const bool isUpright = (chance() & 1) != 0;
        const std::int32_t side = (chance() & 1) != 0 ? 1 : -1;
        const std::int32_t width = tunnel->paneWidth;
        const std::int32_t height = tunnel->paneHeight;
        mote.x = (isUpright ? side * width / 2 : spread(width)) + scatter(fromEdge);
        mote.y = (isUpright ? spread(height) : side * height / 2) + scatter(fromEdge);
        mote.along = chance() % tunnel->count * step + scatter(step / 4);
    }
}

void TunnelDust::draw(const RECT& tunnel, IMG* target, std::int32_t weight) const {
    for (const Mote& mote : motes) {
        drawMote(tunnel, mote, target, weight);
    }
}

// RECT's own view of its frames. A speck is gone before it is so far that all of them would crowd together.
void TunnelDust::drawMote(const RECT& tunnel, const Mote& mote, IMG* target, std::int32_t weight) {
    constexpr std::int32_t nearest = 160; // what is nearer has passed
    constexpr std::int32_t close = 3 * step;
    constexpr std::int32_t farthest = 20 * step;
    const std::int32_t ring = tunnel.count * step;
    const std::int32_t away = positiveModulo(mote.along - tunnel.travel, ring);
    if (away <= nearest || away >= farthest) {
        return;
    }
    const auto wound = [&](const SINE& wind) {
        return SINE_scaled(tunnel.reach, wind.phase + ((wind.offsetStep * away) >> 8)) -
               SINE_scaled(tunnel.reach, wind.phase);
    };
    const std::int32_t angle = tunnel.turn + ((tunnel.twist * away) >> 8);
    const std::int32_t turnedX = SINE_cosineScaled(mote.x, angle) - SINE_scaled(mote.y, angle);
    const std::int32_t turnedY = SINE_scaled(mote.x, angle) + SINE_cosineScaled(mote.y, angle);
    const std::int32_t x = tunnel.width / 2 + (turnedX + wound(tunnel.windX)) * sharp / away;
    const std::int32_t y = tunnel.height / 2 + (turnedY + wound(tunnel.windY)) * sharp / away;
    const auto pane = static_cast<std::size_t>(positiveModulo(mote.along, ring) / step);
    const std::int32_t clear = std::min(curveRise(away, nearest, 2 * nearest), (farthest - away) / 16);
    const std::uint32_t colour = curveDim(curveMix(tunnel.panes[pane].colour, 0xFFFFFF, 110),
                                          (weight * std::min(clear, curveFull)) >> 8);
    IMGFX_addPixel(target, x, y, colour);
    if (away < close) {
        addRays(target, x, y, curveDim(colour, curveFull * (close - away) / close));
    }
}

} // namespace velm
