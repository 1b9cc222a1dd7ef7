// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/raster.h"

#include "foundation/chance.h"
#include "foundation/fixed.h"
#include "foundation/memory.h"
#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/wrap.h"
#include "image/img.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace velm {

const IDENTITY RASTER_identity = makeIdentity("RASTER", "C", "20150605", "CODE", "ZENDORAK");
std::uint8_t RASTER_verbose = 0;

namespace {

constexpr std::int32_t speedRange = 0xFFFFF;

std::uint32_t* allocateColours(std::int32_t count) {
    return count < 0 ? nullptr : allocateArray<std::uint32_t>(std::int64_t{count} + 1);
}

bool hasColours(const RASTER* raster) {
    return raster != nullptr && raster->colours != nullptr && raster->count > 0;
}

/// Calls paint(line, colour) for `lines` lines of the target, or reports.
template <typename Paint>
void paintLines(const RASTER* raster, const IMG* target, std::int32_t IMG::*lines, Paint paint) {
    if (refused(!hasColours(raster) || !hasPixels(target), RASTER_error)) {
        return;
    }
    std::int32_t index = positiveModulo(wholeOf(raster->position), raster->count);
    for (std::int32_t line = 0; line < target->*lines; ++line) {
        paint(line, raster->colours[index]);
        index = index + 1 == raster->count ? 0 : index + 1;
    }
}

/// The weighted mean about one index, 2 for the colour itself and 1 for each neighbour, rounded down per
/// channel.
std::uint32_t smoothed(const RASTER& raster, std::int64_t index, std::int64_t radius) {
    std::uint64_t sums[3] = {0, 0, 0};
    const auto add = [&sums](std::uint32_t colour, std::uint64_t weight) {
        for (std::uint32_t channel = 0; channel < 3; ++channel) {
            sums[channel] += weight * ((colour >> (8 * channel)) & 255);
        }
    };
    add(raster.colours[index], 2);
    for (std::int64_t j = radius; j > 0; --j) {
        add(raster.colours[(index + j) % raster.count], 1);
        add(raster.colours[std::abs(index - j) % raster.count], 1);
    }
    const std::uint64_t weights = 2 * (static_cast<std::uint64_t>(radius) + 1);
    return static_cast<std::uint32_t>((sums[2] / weights) << 16 | (sums[1] / weights) << 8 |
                                      sums[0] / weights);
}

/// Opens and closes a file, or reports.
void touch(const char* path, const char* mode) {
    std::FILE* file = path == nullptr ? nullptr : std::fopen(path, mode);
    if (!refused(file == nullptr, RASTER_error)) {
        std::fclose(file);
    }
}

} // namespace

RASTER* RASTER_new() {
    return newRecord<RASTER>(RASTER_error, RASTER_delete, [](RASTER& raster) {
        RASTER_setCount(&raster, raster.count);
        if (raster.colours == nullptr) {
            return false;
        }
        raster.speed = chance() % speedRange + fixedOne;
        return true;
    });
}

RASTER* RASTER_load(const char* path) {
    touch(path, "rb");
    return nullptr;
}

void RASTER_setCount(RASTER* raster, std::int32_t count) {
    std::uint32_t* const colours = raster == nullptr ? nullptr : allocateColours(count);
    if (adoptArray(raster, RASTER_error, &RASTER::colours, colours)) {
        raster->count = count;
        raster->position = 0;
    }
}

void RASTER_clear(RASTER* raster) {
    if (refused(raster == nullptr || raster->colours == nullptr, RASTER_error)) {
        return;
    }
    // RASTER_clearReachesSpare: one expects `count` colours; one more is cleared, which every list has room
    // for and RASTER_smooth reads.
    std::fill_n(raster->colours, std::int64_t{raster->count} + 1, 0U);
}

void RASTER_smooth(RASTER* raster, std::int32_t radius) {
    std::uint32_t* const colours =
        hasColours(raster) && radius > 0 ? allocateColours(raster->count) : nullptr;
    if (refused(colours == nullptr, RASTER_error)) {
        return;
    }
    // RASTER_smoothStartsPastEnd: one expects `count` colours; the spare one is smoothed like a last colour
    // and its neighbours wrap from there. RASTER_smoothMirrorsStart: before index 0 the list is mirrored
    // instead of wrapped.
    for (std::int32_t k = raster->count; k >= 0; --k) {
        colours[k] = smoothed(*raster, k, radius);
    }
    adoptArray(raster, RASTER_error, &RASTER::colours, colours);
}

void RASTER_advance(RASTER* raster) {
    const std::int32_t length = hasColours(raster) ? wrapShl(raster->count, 16) : 0;
    if (refused(length == 0, RASTER_error)) {
        return;
    }
    raster->position = wrapAdd(raster->position, raster->speed);
    if (raster->position >= length) {
        raster->position %= length;
    } else if (raster->position < 0) {
        // RASTER_advanceStopsAtEnd: one expects 0..length-1; a whole length below 0 becomes the length
        // itself. It shows the same colours and is reduced a frame later.
        raster->position = wrapAdd(raster->position % length, length);
    }
}

void RASTER_draw(const RASTER* raster, IMG* target) {
    paintLines(raster, target, &IMG::height, [target](std::int32_t y, std::uint32_t colour) {
        IMG_drawHLine(target, colour, y, 0, target->width - 1);
    });
}

void RASTER_drawBlend(const RASTER* raster, IMG* target, std::uint32_t alpha) {
    paintLines(raster, target, &IMG::height, [=](std::int32_t y, std::uint32_t colour) {
        IMG_blendHLine(target, colour, y, 0, target->width - 1, alpha);
    });
}

void RASTER_drawVertical(const RASTER* raster, IMG* target) {
    paintLines(raster, target, &IMG::width, [target](std::int32_t x, std::uint32_t colour) {
        IMG_drawVLine(target, colour, x, 0, target->height - 1);
    });
}

std::int32_t RASTER_equals(const RASTER* a, const RASTER* b) {
    if (refused(a == nullptr || b == nullptr || a->colours == nullptr || b->colours == nullptr,
                RASTER_error)) {
        return 0;
    }
    if (a->count != b->count || a->position != b->position || a->speed != b->speed ||
        !std::equal(a->colours, a->colours + a->count, b->colours)) {
        return 0;
    }
    // RASTER_equalsReportsEqual: one expects a report on failure; it comes with the answer 1.
    RASTER_error();
    return 1;
}

void RASTER_copy(const RASTER* src, RASTER* dst) {
    if (refused(src == nullptr || dst == nullptr || src->colours == nullptr || dst->colours == nullptr,
                RASTER_error)) {
        return;
    }
    if (src->count != dst->count) {
        // RASTER_copyGoesOn: one expects nothing to be copied after the report; what fits is copied all the
        // same.
        RASTER_error();
    }
    std::copy_n(src->colours, std::min(src->count, dst->count), dst->colours);
    dst->position = src->position;
    dst->speed = src->speed;
}

RASTER* RASTER_clone(const RASTER* src) {
    if (refused(src == nullptr || src->colours == nullptr, RASTER_error)) {
        return nullptr;
    }
    // RASTER_cloneDrawsSpeed: one expects the random generator to be left alone; a clone is made like any
    // other raster first, and later random numbers depend on it.
    RASTER* clone = RASTER_new();
    if (clone == nullptr) {
        return nullptr;
    }
    if (clone->count != src->count) {
        RASTER_setCount(clone, src->count);
    }
    if (clone->count != src->count) {
        RASTER_delete(&clone);
        return nullptr;
    }
    RASTER_copy(src, clone);
    return clone;
}

void RASTER_save(const RASTER* raster, const char* path) {
    if (!refused(raster == nullptr, RASTER_error)) {
        touch(path, "wb");
    }
}

void RASTER_delete(RASTER** handle) {
    deleteRecord(handle, RASTER_error, &RASTER::colours);
}

void RASTER_error() {
    reportLine(RASTER_verbose, "RASTER error");
}

} // namespace velm
