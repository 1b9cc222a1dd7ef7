// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/disty.h"

#include "foundation/memory.h"
#include "foundation/wrap.h"

namespace velm {

const IDENTITY DISTY_identity = makeIdentity("DISTY", "20150517", "CODE", "ZENDORAK", "C");
std::uint8_t DISTY_verbose = 0;

namespace {

constexpr std::int32_t newAmplitude = 16;
constexpr std::int32_t newSpeed = 1;
constexpr std::int32_t newColumnStep = 16;

bool canDraw(const DISTY* dist, const IMG* target) {
    return dist != nullptr && dist->source != nullptr && dist->source->pixels != nullptr &&
           target != nullptr && target->pixels != nullptr;
}

} // namespace

DISTY* DISTY_new() {
    DISTY* dist = allocateRecord<DISTY>();
    if (dist == nullptr) {
        DISTY_error();
        return nullptr;
    }
    SINE_setup(&dist->wave, SINE_tableLength, 0, newSpeed, 0, newColumnStep);
    dist->amplitude = newAmplitude;
    return dist;
}

void DISTY_draw(DISTY* dist, IMG* target) {
    if (!canDraw(dist, target)) {
        DISTY_error();
        return;
    }
    SINE_setOffset(&dist->wave, 0);
    for (std::int32_t column = 0; column < dist->source->width; ++column) {
        // The step comes before the look-up, so that column 0 is already one step into the wave.
        const std::int32_t shift = wrapMul(dist->amplitude, SINE_entry(SINE_next(&dist->wave))) >> 16;
        const std::int32_t targetColumn = wrapAdd(dist->x, column);
        if (targetColumn >= 0 && targetColumn < target->width) {
            IMG_copyColumnWrapped(dist->source, target, column, targetColumn, wrapAdd(dist->y, shift));
        }
    }
}

void DISTY_advance(DISTY* dist) {
    if (dist == nullptr) {
        DISTY_error();
        return;
    }
    SINE_advance(&dist->wave);
}

void DISTY_delete(DISTY** handle) {
    if (handle == nullptr || *handle == nullptr) {
        DISTY_error();
        return;
    }
    delete *handle;
    *handle = nullptr;
}

// DISTY_errorIsSilent: one expects a line while DISTY_verbose is set; this module never printed one.
void DISTY_error() {}

} // namespace velm
