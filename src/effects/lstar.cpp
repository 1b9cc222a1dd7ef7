// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/lstar.h"

#include "effects/palette.h"
#include "foundation/chance.h"
#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/sine.h"
#include "foundation/wrap.h"
#include "image/img.h"
#include "image/imgfx.h"
#include "image/rgb888.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace velm {

const IDENTITY LSTAR_identity = makeIdentity("LSTAR", "20150621", "ZENDORAK", "C", "CODE");
std::uint8_t LSTAR_verbose = 0;

namespace {

constexpr std::int32_t mostCorners = 16;
constexpr std::int32_t worldMask = 0xFFFF;
constexpr std::int32_t depthRange = LSTAR_far - LSTAR_near;
constexpr std::int64_t focus = 256; ///< pixels at a depth of 1 for a unit of width

struct Point {
    std::int32_t x, y;
};

/// Where a star stands on the target when the sky has rolled by `angle` and the star is `z` deep.
Point project(const LSTAR& sky, const LSTAR_STAR& star, std::int32_t z, std::int32_t angle) {
    const std::int64_t x = SINE_cosineScaled(star.x, angle) - SINE_scaled(star.y, angle);
    const std::int64_t y = SINE_scaled(star.x, angle) + SINE_cosineScaled(star.y, angle);
    const std::int64_t depth = std::max(z, LSTAR_near);
    return {wrapAdd(sky.x, static_cast<std::int32_t>(x * focus / depth)),
            wrapAdd(sky.y, static_cast<std::int32_t>(y * focus / depth))};
}

void addLine(IMG* target, Point a, Point b, std::uint32_t colour) {
    IMGFX_addLine(target, a.x, a.y, b.x, b.y, colour);
}

/// The hue of a depth, full in front and black at the far end.
std::uint32_t colourAt(const LSTAR& sky, std::int32_t z) {
    const auto span = static_cast<std::int32_t>(std::int64_t{sky.hueSpan} * (z - LSTAR_near) / depthRange);
    const std::uint32_t hue = paletteColour(sky.colours, wrapAdd(sky.hue, span));
    const std::int32_t nearness = LSTAR_far - std::clamp(z, LSTAR_near, LSTAR_far);
    return RGB888_dim(hue, RGB888_fullWeight * nearness / depthRange);
}

void drawStreak(const LSTAR& sky, const LSTAR_STAR& star, IMG* target) {
    constexpr std::int32_t wideDepth = LSTAR_far / 4;
    constexpr std::int32_t dim = 96; // of 256
    const std::uint32_t colour = colourAt(sky, star.z);
    const auto before = [&](std::int32_t halves) {
        const std::int32_t z = wrapAdd(star.z, wrapMul(sky.speed, wrapMul(sky.trail, halves)) / 2);
        const std::int32_t angle = wrapSub(sky.angle, wrapMul(sky.turn, wrapMul(sky.trail, halves)) / 2);
        return project(sky, star, z, angle);
    };
    const Point head = before(0);
    const Point middle = before(1);
    addLine(target, before(2), middle, RGB888_dim(colour, dim));
    addLine(target, middle, head, colour);
    if (star.z < wideDepth) {
        addLine(target, {wrapAdd(middle.x, 1), middle.y}, {wrapAdd(head.x, 1), head.y}, colour);
    }
}

/// The corners of the polygon of star `index`, `corners` of them.
std::array<Point, mostCorners> cornersOf(const LSTAR& sky, std::int32_t index, std::int32_t corners) {
    const LSTAR_STAR& star = sky.stars[index];
    const Point centre = project(sky, star, star.z, sky.angle);
    const auto radius = static_cast<std::int32_t>(sky.size * focus / std::max(star.z, LSTAR_near));
    // Three times the sky's own roll, so that it shows; a start of its own for each star.
    const std::int32_t roll = wrapMul(3, sky.angle);
    const std::int32_t start = wrapAdd((index & 1) != 0 ? wrapSub(0, roll) : roll, wrapMul(index, 100));
    std::array<Point, mostCorners> points{};
    for (std::int32_t k = 0; k < corners; ++k) {
        const std::int32_t angle = wrapAdd(start, k * SINE_tableLength / corners);
        points[static_cast<std::size_t>(k)] = {wrapAdd(centre.x, SINE_cosineScaled(radius, angle)),
                                               wrapAdd(centre.y, SINE_scaled(radius, angle))};
    }
    return points;
}

bool canDraw(const LSTAR* sky, const IMG* target) {
    return sky != nullptr && sky->stars != nullptr && hasPixels(target);
}

} // namespace

LSTAR* LSTAR_new() {
    return newRecord<LSTAR>(LSTAR_error, LSTAR_delete, [](LSTAR& sky) {
        LSTAR_setCount(&sky, sky.count);
        return sky.stars != nullptr;
    });
}

void LSTAR_setCount(LSTAR* sky, std::int32_t count) {
    if (replaceArray(sky, LSTAR_error, &LSTAR::stars, &LSTAR::count, count)) {
        LSTAR_randomize(sky);
    }
}

void LSTAR_randomize(LSTAR* sky) {
    if (refused(sky == nullptr || sky->stars == nullptr, LSTAR_error)) {
        return;
    }
    for (std::int32_t i = 0; i < sky->count; ++i) {
        LSTAR_STAR& star = sky->stars[i];
        star.x = (chance() & worldMask) - (worldMask + 1) / 2;
        star.y = (chance() & worldMask) - (worldMask + 1) / 2;
        star.z = chance() % depthRange + LSTAR_near;
    }
}

void LSTAR_advance(LSTAR* sky) {
    if (refused(sky == nullptr || sky->stars == nullptr, LSTAR_error)) {
        return;
    }
    for (std::int32_t i = 0; i < sky->count; ++i) {
        std::int32_t& z = sky->stars[i].z;
        z = positiveModulo(wrapSub(z - LSTAR_near, sky->speed), depthRange) + LSTAR_near;
    }
    sky->angle = wrapAdd(sky->angle, sky->turn) & SINE_tableMask;
}

void LSTAR_draw(const LSTAR* sky, IMG* target) {
    if (refused(!canDraw(sky, target), LSTAR_error)) {
        return;
    }
    for (std::int32_t i = 0; i < sky->count; ++i) {
        drawStreak(*sky, sky->stars[i], target);
    }
}

void LSTAR_drawPolygons(const LSTAR* sky, IMG* target) {
    if (refused(!canDraw(sky, target), LSTAR_error)) {
        return;
    }
    const std::int32_t corners = std::clamp(sky->corners, 3, mostCorners);
    const std::int32_t skip = positiveModulo(sky->skip, corners);
    for (std::int32_t i = 0; i < sky->count; ++i) {
        const auto points = cornersOf(*sky, i, corners);
        const std::uint32_t colour = colourAt(*sky, sky->stars[i].z);
        for (std::int32_t k = 0; k < corners; ++k) {
            addLine(target, points[static_cast<std::size_t>(k)],
                    points[static_cast<std::size_t>((k + skip) % corners)], colour);
        }
    }
}

void LSTAR_delete(LSTAR** handle) {
    deleteRecord(handle, LSTAR_error, &LSTAR::stars);
}

void LSTAR_error() {
    reportLine(LSTAR_verbose, "LSTAR error");
}

} // namespace velm
