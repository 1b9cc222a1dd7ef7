// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/backmove.h"

#include "foundation/chance.h"
#include "foundation/fixed.h"
#include "foundation/memory.h"
#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/wrap.h"
#include "image/img.h"
#include "image/rgb888.h"

#include <algorithm>

namespace velm {

const IDENTITY BACKMOVE_identity = makeIdentity("BACKMOVE", "20150612", "C", "ZENDORAK", "CODE");
std::uint8_t BACKMOVE_verbose = 0;

namespace {

constexpr std::int32_t leastSpeed = fixedOne / 2;
constexpr std::int32_t speedRange = 2 * fixedOne;
constexpr std::int32_t pathSpeeds = 4;
constexpr std::int32_t leastReach = 16;
constexpr std::int32_t reachRange = 32;

bool isPicture(const IMG* img) {
    return hasPixels(img) && img->width > 0 && img->height > 0;
}

/// The lowest bit of one number decides which way, the others how fast.
std::int32_t randomSpeed() {
    const std::int32_t number = chance();
    const std::int32_t size = leastSpeed + (number >> 1) % speedRange;
    return (number & 1) != 0 ? size : -size;
}

std::int64_t reduced(std::int64_t value, std::int64_t modulus) {
    const std::int64_t rest = value % modulus;
    return rest < 0 ? rest + modulus : rest;
}

/// The picture's column that stands at the left of target row `y`, which shows picture row `row`.
std::int32_t firstColumn(const BACKMOVE& back, std::int32_t y, std::int32_t row) {
    const std::int64_t band = std::int64_t{row} * back.depths / back.picture->height;
    const std::int64_t travelled = wholeOf(back.x * (band + 1) / back.depths);
    const std::int32_t angle = wrapAdd(back.ripple.phase, wrapMul(back.ripple.offsetStep, y));
    const std::int32_t shift = SINE_scaled(back.rippleReach, angle);
    return static_cast<std::int32_t>(
        reduced(travelled + SINE_scaled(back.reachX, back.pathX.phase) + shift, back.picture->width));
}

/// Calls touch(target pixel, picture pixel at the brightness asked for) all over the target, or reports. Each
/// row is a few runs, from the first column to the picture's edge and then from its other edge on.
template <typename Touch>
void paint(const BACKMOVE* back, IMG* target, Touch touch) {
    if (refused(back == nullptr || !isPicture(back->picture) || !hasPixels(target) ||
                    target->pixels == back->picture->pixels,
                BACKMOVE_error)) {
        return;
    }
    const IMG& picture = *back->picture;
    const std::int32_t brightness = back->brightness;
    const std::int64_t top = wholeOf(back->y) + SINE_scaled(back->reachY, back->pathY.phase);
    std::uint32_t* to = target->pixels;
    for (std::int32_t y = 0; y < target->height; ++y) {
        const auto row = static_cast<std::int32_t>(reduced(top + y, picture.height));
        const std::uint32_t* const from = rowOf(picture, row);
        std::int32_t column = firstColumn(*back, y, row);
        for (std::int32_t left = target->width; left > 0;) {
            const std::int32_t run = std::min(left, picture.width - column);
            for (std::int32_t i = 0; i < run; ++i) {
                touch(to[i], RGB888_dim(from[column + i], brightness));
            }
            to += run;
            left -= run;
            column = 0;
        }
    }
}

} // namespace

BACKMOVE* BACKMOVE_new() {
    BACKMOVE* back = allocateRecord<BACKMOVE>();
    BACKMOVE_randomize(back); // reports when memory ran out
    return back;
}

void BACKMOVE_setPicture(BACKMOVE* back, const IMG* picture) {
    if (refused(back == nullptr || !isPicture(picture), BACKMOVE_error)) {
        return;
    }
    back->picture = picture;
}

void BACKMOVE_setDepths(BACKMOVE* back, std::int32_t depths) {
    if (refused(back == nullptr || depths < 1 || depths > BACKMOVE_mostDepths, BACKMOVE_error)) {
        return;
    }
    back->depths = depths;
    back->x = back->y = 0;
}

void BACKMOVE_randomize(BACKMOVE* back) {
    if (refused(back == nullptr, BACKMOVE_error)) {
        return;
    }
    back->speedX = randomSpeed();
    back->speedY = randomSpeed();
    SINE_setPhase(&back->pathX, chance() & SINE_tableMask);
    SINE_setPhase(&back->pathY, chance() & SINE_tableMask);
    back->pathX.speed = chance() % pathSpeeds + 1;
    back->pathY.speed = chance() % pathSpeeds + 1;
    back->reachX = chance() % reachRange + leastReach;
    back->reachY = chance() % reachRange + leastReach;
}

void BACKMOVE_advance(BACKMOVE* back) {
    if (refused(back == nullptr || !isPicture(back->picture), BACKMOVE_error)) {
        return;
    }
    // After as many pictures as there are depths every band has moved by whole pictures, so nothing jumps.
    const std::int64_t turns = toFixed(back->depths);
    back->x = reduced(back->x + back->speedX, turns * back->picture->width);
    back->y = reduced(back->y + back->speedY, turns * back->picture->height);
    SINE_advance(&back->pathX);
    SINE_advance(&back->pathY);
    SINE_advance(&back->ripple);
}

void BACKMOVE_draw(const BACKMOVE* back, IMG* target) {
    paint(back, target, [](std::uint32_t& pixel, std::uint32_t colour) { pixel = colour; });
}

void BACKMOVE_drawOver(const BACKMOVE* back, IMG* target) {
    paint(back, target,
          [](std::uint32_t& pixel, std::uint32_t colour) { pixel = colour != 0 ? colour : pixel; });
}

void BACKMOVE_drawAdd(const BACKMOVE* back, IMG* target) {
    paint(back, target,
          [](std::uint32_t& pixel, std::uint32_t colour) { pixel = RGB888_add(pixel, colour); });
}

void BACKMOVE_delete(BACKMOVE** handle) {
    deleteRecord(handle, BACKMOVE_error);
}

void BACKMOVE_error() {
    reportLine(BACKMOVE_verbose, "BACKMOVE error");
}

} // namespace velm
