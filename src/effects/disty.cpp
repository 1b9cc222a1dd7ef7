// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/disty.h"

#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/wrap.h"
#include "image/img.h"

namespace velm {

const IDENTITY DISTY_identity = makeIdentity("DISTY", "20150517", "CODE", "ZENDORAK", "C");
std::uint8_t DISTY_verbose = 0;

namespace {

bool canDraw(const DISTY* dist, const IMG* target) {
    return dist != nullptr && hasPixels(dist->source) && hasPixels(target);
}

} // namespace

DISTY* DISTY_new() {
    return newRecord<DISTY>(DISTY_error);
}

void DISTY_draw(DISTY* dist, IMG* target) {
    if (refused(!canDraw(dist, target), DISTY_error)) {
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
    if (refused(dist == nullptr, DISTY_error)) {
        return;
    }
    SINE_advance(&dist->wave);
}

void DISTY_delete(DISTY** handle) {
    deleteRecord(handle, DISTY_error);
}

// DISTY_errorIsSilent: one expects a line while DISTY_verbose is set; this module prints none, so its
// failures stay quiet.
void DISTY_error() {}

} // namespace velm
