// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The fleet; its shapes are drawn in circle_shape.cpp.
#include "effects/circle.h"

#include "foundation/chance.h"
#include "foundation/fixed.h"
#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/wrap.h"
#include "image/img.h"
#include "image/rgb888.h"

#include <algorithm>

namespace velm {

const IDENTITY CIRCLE_identity = makeIdentity("CIRCLE", "ZENDORAK", "20150613", "CODE", "C");
std::uint8_t CIRCLE_verbose = 0;

namespace {

constexpr std::int32_t mostPixels = CIRCLE_largestRadius;

/// A length in pixels as 16.16, at least 1.0 and small enough for two of them to be added.
std::int32_t lengthOf(std::int32_t pixels) {
    return std::clamp(pixels, 1, mostPixels) * fixedOne;
}

CIRCLE_BODY randomBody(const CIRCLE& circle) {
    constexpr std::int32_t speeds = 4 * fixedOne;
    constexpr std::int32_t growths = 2 * fixedOne;
    CIRCLE_BODY body{};
    body.x = chance() % lengthOf(circle.width);
    body.y = chance() % lengthOf(circle.height);
    body.speedX = chance() % speeds - speeds / 2;
    body.speedY = chance() % speeds - speeds / 2;
    body.radius = chance() % lengthOf(circle.largest);
    body.growth = chance() % growths + fixedOne / 2;
    body.colour = (static_cast<std::uint32_t>(chance()) & 0x7F7F7F) + 0x808080;
    return body;
}

/// One axis of a centre: what would go past an edge comes back from it, and moves the other way.
void bounce(std::int32_t& place, std::int32_t& speed, std::int32_t size) {
    const std::int64_t moved = std::int64_t{place} + speed;
    const std::int64_t back = moved < 0 ? -moved : moved > size ? 2 * std::int64_t{size} - moved : moved;
    if (back != moved) {
        speed = wrapSub(0, speed);
    }
    place = static_cast<std::int32_t>(std::clamp<std::int64_t>(back, 0, size));
}

/// Calls ring(body, radius in pixels) for every nested ring of every circle, the widest first, or reports.
template <typename Ring>
void forEachRing(const CIRCLE* circle, const IMG* target, Ring ring) {
    if (refused(circle == nullptr || circle->bodies == nullptr || !hasPixels(target), CIRCLE_error)) {
        return;
    }
    const std::int32_t spacing = std::max(circle->spacing, 1);
    for (std::int32_t i = 0; i < circle->count; ++i) {
        const CIRCLE_BODY& body = circle->bodies[i];
        std::int32_t radius = wholeOf(body.radius);
        for (std::int32_t k = 0; k < circle->rings && radius >= 0; ++k) {
            ring(body, radius);
            radius -= spacing;
        }
    }
}

} // namespace

CIRCLE* CIRCLE_new() {
    return newRecord<CIRCLE>(CIRCLE_error, CIRCLE_delete, [](CIRCLE& circle) {
        CIRCLE_setCount(&circle, circle.count);
        return circle.bodies != nullptr;
    });
}

void CIRCLE_setCount(CIRCLE* circle, std::int32_t count) {
    if (replaceArray(circle, CIRCLE_error, &CIRCLE::bodies, &CIRCLE::count, count)) {
        CIRCLE_randomize(circle);
    }
}

void CIRCLE_randomize(CIRCLE* circle) {
    if (refused(circle == nullptr || circle->bodies == nullptr, CIRCLE_error)) {
        return;
    }
    for (std::int32_t i = 0; i < circle->count; ++i) {
        circle->bodies[i] = randomBody(*circle);
    }
}

void CIRCLE_advance(CIRCLE* circle) {
    if (refused(circle == nullptr || circle->bodies == nullptr, CIRCLE_error)) {
        return;
    }
    const std::int32_t largest = lengthOf(circle->largest);
    for (std::int32_t i = 0; i < circle->count; ++i) {
        CIRCLE_BODY& body = circle->bodies[i];
        bounce(body.x, body.speedX, lengthOf(circle->width));
        bounce(body.y, body.speedY, lengthOf(circle->height));
        body.radius = positiveModulo(wrapAdd(body.radius, body.growth), largest);
    }
}

void CIRCLE_draw(const CIRCLE* circle, IMG* target) {
    forEachRing(circle, target, [target](const CIRCLE_BODY& body, std::int32_t radius) {
        CIRCLE_drawRing(target, wholeOf(body.x), wholeOf(body.y), radius, body.colour);
    });
}

void CIRCLE_drawAdd(const CIRCLE* circle, IMG* target) {
    forEachRing(circle, target, [=](const CIRCLE_BODY& body, std::int32_t radius) {
        const std::int32_t largest = std::clamp(circle->largest, 1, mostPixels);
        const std::int32_t left = std::max(largest - radius, 0);
        const std::int32_t brightness = RGB888_fullWeight * left / largest;
        CIRCLE_addRing(target, wholeOf(body.x), wholeOf(body.y), radius, RGB888_dim(body.colour, brightness));
    });
}

void CIRCLE_drawXor(const CIRCLE* circle, IMG* target) {
    forEachRing(circle, target, [target](const CIRCLE_BODY& body, std::int32_t radius) {
        CIRCLE_xorDisc(target, wholeOf(body.x), wholeOf(body.y), radius, body.colour);
    });
}

void CIRCLE_delete(CIRCLE** handle) {
    deleteRecord(handle, CIRCLE_error, &CIRCLE::bodies);
}

void CIRCLE_error() {
    reportLine(CIRCLE_verbose, "CIRCLE error");
}

} // namespace velm
