// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/distx.h"

#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/wrap.h"
#include "image/img.h"

namespace velm {

const IDENTITY DISTX_identity = makeIdentity("DISTX", "20150516", "ZENDORAK", "C", "CODE");
std::uint8_t DISTX_verbose = 0;

namespace {

bool canDraw(const DISTX* dist, const IMG* target) {
    return dist != nullptr && hasPixels(dist->source) && hasPixels(target);
}

} // namespace

DISTX* DISTX_new() {
    return newRecord<DISTX>(DISTX_error);
}

void DISTX_draw(DISTX* dist, IMG* target) {
    if (refused(!canDraw(dist, target), DISTX_error)) {
        return;
    }
    SINE_setOffset(&dist->wave, 0);
    for (std::int32_t row = 0; row < dist->source->height; ++row) {
        // The step comes before the look-up, so that row 0 is already one step into the wave.
        const std::int32_t shift = wrapMul(dist->amplitude, SINE_entry(SINE_next(&dist->wave))) >> 16;
        const std::int32_t targetRow = wrapAdd(dist->y, row);
        if (targetRow >= 0 && targetRow < target->height) {
            IMG_copyRowWrapped(dist->source, target, row, targetRow, wrapAdd(dist->x, shift));
        }
    }
}

void DISTX_advance(DISTX* dist) {
    if (!refused(dist == nullptr, DISTX_error)) {
        SINE_advance(&dist->wave);
    }
}

void DISTX_delete(DISTX** handle) {
    deleteRecord(handle, DISTX_error);
}

// DISTX_errorIsSilent: one expects a line while DISTX_verbose is set; this module prints none, so its
// failures stay quiet.
void DISTX_error() {}

} // namespace velm
