// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/lrain.h"

#include "foundation/chance.h"
#include "foundation/random.h"
#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/wrap.h"
#include "image/img.h"
#include "image/imgfx.h"
#include "image/rgb888.h"

namespace velm {

const IDENTITY LRAIN_identity = makeIdentity("LRAIN", "20150702", "C", "ZENDORAK", "CODE");
std::uint8_t LRAIN_verbose = 0;

namespace {

constexpr std::int32_t nearest = 255;
constexpr std::int32_t slowest = 3 * fixedOne; // pixels a frame of the farthest drop
constexpr std::int32_t shortest = 4;           // pixels

/// 16.16 pixels that a drop falls a frame: 3 to just under 13.
std::int32_t speedOf(const LRAIN_DROP& drop) {
    return slowest + drop.near * (10 * fixedOne / nearest);
}

/// Pixels of the stroke: 4 to 35.
std::int32_t lengthOf(const LRAIN_DROP& drop) {
    return shortest + (drop.near >> 3);
}

/// 16.16 pixels that a drop drifts a frame; near ones drift more.
std::int32_t driftOf(const LRAIN& rain, std::int32_t near) {
    return static_cast<std::int32_t>((std::int64_t{rain.gust} * SINE_entry(rain.wind.phase) * near) >> 23);
}

/// Row on which a drop of that nearness lands.
std::int32_t groundOf(const LRAIN& rain, std::int32_t near) {
    return wrapAdd(rain.horizon, wrapMul(wrapSub(rain.height, rain.horizon), near) >> 8);
}

std::uint32_t colourOf(const LRAIN& rain, std::int32_t near) {
    return RGB888_mix(rain.farColour, rain.nearColour, static_cast<std::uint32_t>(near));
}

/// Puts a drop at a random place of a row. Two numbers multiplied make far drops the more frequent ones.
void startDrop(LRAIN& rain, LRAIN_DROP& drop, std::int32_t row) {
    const std::int32_t a = RANDOM_next(rain.random) & nearest;
    const std::int32_t b = RANDOM_next(rain.random) & nearest;
    drop.near = (a * b) >> 8;
    // A margin on both sides, so that the wind has drops to blow in.
    const std::int32_t place = wrapMul(RANDOM_next(rain.random) & 0xFFFF, wrapMul(2, rain.width) >> 8) >> 8;
    drop.x = wrapShl(wrapSub(place, rain.width / 2), 16);
    drop.y = wrapShl(row, 16);
}

void makeRing(LRAIN& rain, const LRAIN_DROP& drop) {
    rain.rings[rain.nextRing] = {
        .x = wholeOf(drop.x), .y = groundOf(rain, drop.near), .near = drop.near, .age = 0};
    rain.nextRing = (rain.nextRing + 1) % LRAIN_ringCount;
}

/// A flat ellipse of twelve strokes that grows and fades.
void drawRing(const LRAIN& rain, const LRAIN_RING& ring, IMG* target) {
    constexpr std::int32_t corners = 12;
    const std::int32_t radius = (ring.age + 1) * (48 + ring.near) >> 8;
    const std::int32_t light = (LRAIN_ringFrames - ring.age) * (RGB888_fullWeight / 2) / LRAIN_ringFrames;
    const std::uint32_t colour = RGB888_dim(colourOf(rain, ring.near), light);
    std::int32_t fromX = ring.x;
    std::int32_t fromY = ring.y;
    for (std::int32_t i = 0; i <= corners; ++i) {
        const std::int32_t angle = i * SINE_tableLength / corners;
        const std::int32_t x = ring.x + SINE_cosineScaled(radius, angle);
        const std::int32_t y = wrapAdd(ring.y, SINE_scaled(radius, angle) / 3);
        if (i > 0) {
            IMGFX_addLine(target, fromX, fromY, x, y, colour);
        }
        fromX = x;
        fromY = y;
    }
}

} // namespace

LRAIN* LRAIN_new() {
    return newRecord<LRAIN>(LRAIN_error, LRAIN_delete, [](LRAIN& rain) {
        rain.random = RANDOM_new();
        LRAIN_setCount(&rain, rain.count);
        return rain.random != nullptr && rain.drops != nullptr;
    });
}

void LRAIN_setCount(LRAIN* rain, std::int32_t count) {
    if (replaceArray(rain, LRAIN_error, &LRAIN::drops, &LRAIN::count, count)) {
        LRAIN_randomize(rain);
    }
}

void LRAIN_randomize(LRAIN* rain) {
    if (refused(rain == nullptr || rain->random == nullptr, LRAIN_error)) {
        return;
    }
    rain->random->counter = static_cast<std::uint32_t>(chance());
    for (std::int32_t i = 0; i < rain->count; ++i) {
        startDrop(*rain, rain->drops[i], 0);
        rain->drops[i].y =
            wrapMul(RANDOM_next(rain->random) & 0xFF, wrapShl(groundOf(*rain, rain->drops[i].near), 8));
    }
    for (LRAIN_RING& ring : rain->rings) {
        ring.age = LRAIN_ringFrames;
    }
}

void LRAIN_advance(LRAIN* rain) {
    if (refused(rain == nullptr, LRAIN_error)) {
        return;
    }
    SINE_advance(&rain->wind);
    for (LRAIN_RING& ring : rain->rings) {
        ring.age += ring.age < LRAIN_ringFrames ? 1 : 0;
    }
    for (std::int32_t i = 0; i < rain->count; ++i) {
        LRAIN_DROP& drop = rain->drops[i];
        drop.x = wrapAdd(drop.x, driftOf(*rain, drop.near));
        drop.y = wrapAdd(drop.y, speedOf(drop));
        if (wholeOf(drop.y) >= groundOf(*rain, drop.near)) {
            makeRing(*rain, drop);
            startDrop(*rain, drop, -lengthOf(drop));
        }
    }
}

void LRAIN_draw(const LRAIN* rain, IMG* target) {
    if (refused(rain == nullptr || !hasPixels(target), LRAIN_error)) {
        return;
    }
    for (const LRAIN_RING& ring : rain->rings) {
        if (ring.age < LRAIN_ringFrames) {
            drawRing(*rain, ring, target);
        }
    }
    for (std::int32_t i = 0; i < rain->count; ++i) {
        const LRAIN_DROP& drop = rain->drops[i];
        const std::int32_t length = lengthOf(drop);
        // The stroke lies along the way of the drop, so it leans as far as the wind drives it.
        const auto lean = static_cast<std::int32_t>(
            std::int64_t{driftOf(*rain, drop.near)} * length / (speedOf(drop) >> 8) >> 8);
        const std::int32_t x = wholeOf(drop.x);
        const std::int32_t y = wholeOf(drop.y);
        const std::uint32_t colour = colourOf(*rain, drop.near);
        IMGFX_addLine(target, x - lean, y - length, x, y, RGB888_dim(colour, RGB888_fullWeight / 2));
        IMGFX_addLine(target, x - lean / 3, y - length / 3, x, y, RGB888_dim(colour, RGB888_fullWeight / 2));
    }
}

void LRAIN_delete(LRAIN** handle) {
    deleteRecord(handle, LRAIN_error, deletedBy(RANDOM_delete, &LRAIN::random), &LRAIN::drops);
}

void LRAIN_error() {
    reportLine(LRAIN_verbose, "LRAIN error");
}

} // namespace velm
