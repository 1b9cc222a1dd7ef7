// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/disty.h"

#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/wrap.h"
#include "image/img.h"

#include <algorithm>
#include <array>

namespace velm {

const IDENTITY DISTY_identity = makeIdentity("DISTY", "20150517", "CODE", "ZENDORAK", "C");
std::uint8_t DISTY_verbose = 0;

namespace {

bool canDraw(const DISTY* dist, const IMG* target) {
    return dist != nullptr && hasPixels(dist->source) && hasPixels(target);
}

constexpr std::int32_t together = 16; ///< columns; the pixels of one lie far apart in memory

/// Neighbouring columns on their way, copied row by row.
struct Columns {
    std::int32_t first = 0;                    ///< of the source
    std::int32_t count = 0;                    ///< so many of them
    std::array<std::int32_t, together> rows{}; ///< of the target, where each begins

    void copy(const IMG& source, IMG& target, std::int32_t x) {
        for (std::int32_t y = 0; y < std::min(source.height, target.height); ++y) {
            const std::uint32_t* const from = rowOf(source, y) + first;
            for (std::int32_t i = 0; i < count; ++i) {
                std::int32_t& row = rows[static_cast<std::size_t>(i)];
                if (from[i] != 0) {
                    rowOf(target, row)[x + first + i] = from[i];
                }
                row = row + 1 < target.height ? row + 1 : 0;
            }
        }
        count = 0;
    }
};

} // namespace

DISTY* DISTY_new() {
    return newRecord<DISTY>(DISTY_error);
}

void DISTY_draw(DISTY* dist, IMG* target) {
    if (refused(!canDraw(dist, target), DISTY_error)) {
        return;
    }
    SINE_setOffset(&dist->wave, 0);
    const std::int32_t most =
        dist->source->pixels == target->pixels ? 1 : together; // what is read may change
    Columns columns;
    for (std::int32_t column = 0; column < dist->source->width; ++column) {
        // The step comes before the look-up, so that column 0 is already one step into the wave.
        const std::int32_t shift = wrapMul(dist->amplitude, SINE_entry(SINE_next(&dist->wave))) >> 16;
        const std::int32_t targetColumn = wrapAdd(dist->x, column);
        if (targetColumn < 0 || targetColumn >= target->width) {
            continue;
        }
        if (columns.count == 0) {
            columns.first = column;
        }
        columns.rows[static_cast<std::size_t>(columns.count)] =
            positiveModulo(wrapAdd(dist->y, shift), target->height);
        if (++columns.count == most) {
            columns.copy(*dist->source, *target, dist->x);
        }
    }
    columns.copy(*dist->source, *target, dist->x);
}

void DISTY_advance(DISTY* dist) {
    if (!refused(dist == nullptr, DISTY_error)) {
        SINE_advance(&dist->wave);
    }
}

void DISTY_delete(DISTY** handle) {
    deleteRecord(handle, DISTY_error);
}

// DISTY_errorIsSilent: one expects a line while DISTY_verbose is set; this module prints none, so its
// failures stay quiet.
void DISTY_error() {}

} // namespace velm
