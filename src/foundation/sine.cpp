// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "foundation/sine.h"

#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/wrap.h"

#include <cmath>

namespace velm {

const IDENTITY SINE_identity = makeIdentity("SINE", "C", "20150402", "ZENDORAK", "CODE");
std::uint8_t SINE_verbose = 0;

namespace {

// round(32767 * sin(2 pi i / 1024)) for the first quarter. SINE_tableOddEntries: one expects 23311 and 29534
// at 129 and 183; they hold one more, and every frame depends on them.
constexpr std::array<std::int16_t, SINE_quarter> quarterWave = {
    // clang-format off
    0, 201, 402, 603, 804, 1005, 1206, 1407, 1608, 1809, 2009, 2210, 2410, 2611, 2811, 3012,
    3212, 3412, 3612, 3811, 4011, 4210, 4410, 4609, 4808, 5007, 5205, 5404, 5602, 5800, 5998, 6195,
    6393, 6590, 6786, 6983, 7179, 7375, 7571, 7767, 7962, 8157, 8351, 8545, 8739, 8933, 9126, 9319,
    9512, 9704, 9896, 10087, 10278, 10469, 10659, 10849, 11039, 11228, 11417, 11605, 11793, 11980, 12167, 12353,
    12539, 12725, 12910, 13094, 13279, 13462, 13645, 13828, 14010, 14191, 14372, 14553, 14732, 14912, 15090, 15269,
    15446, 15623, 15800, 15976, 16151, 16325, 16499, 16673, 16846, 17018, 17189, 17360, 17530, 17700, 17869, 18037,
    18204, 18371, 18537, 18703, 18868, 19032, 19195, 19357, 19519, 19680, 19841, 20000, 20159, 20317, 20475, 20631,
    20787, 20942, 21096, 21250, 21403, 21554, 21705, 21856, 22005, 22154, 22301, 22448, 22594, 22739, 22884, 23027,
    23170, 23312, 23452, 23592, 23731, 23870, 24007, 24143, 24279, 24413, 24547, 24680, 24811, 24942, 25072, 25201,
    25329, 25456, 25582, 25708, 25832, 25955, 26077, 26198, 26319, 26438, 26556, 26674, 26790, 26905, 27019, 27133,
    27245, 27356, 27466, 27575, 27683, 27790, 27896, 28001, 28105, 28208, 28310, 28411, 28510, 28609, 28706, 28803,
    28898, 28992, 29085, 29177, 29268, 29358, 29447, 29535, 29621, 29706, 29791, 29874, 29956, 30037, 30117, 30195,
    30273, 30349, 30424, 30498, 30571, 30643, 30714, 30783, 30852, 30919, 30985, 31050, 31113, 31176, 31237, 31297,
    31356, 31414, 31470, 31526, 31580, 31633, 31685, 31736, 31785, 31833, 31880, 31926, 31971, 32014, 32057, 32098,
    32137, 32176, 32213, 32250, 32285, 32318, 32351, 32382, 32412, 32441, 32469, 32495, 32521, 32545, 32567, 32589,
    32609, 32628, 32646, 32663, 32678, 32692, 32705, 32717, 32728, 32737, 32745, 32752, 32757, 32761, 32765, 32766,
    // clang-format on
};

// SINE_mirroredQuarter: one expects entry 256 to be the peak and 512 - i to equal i; the quarter is laid down
// backwards as it stands, so the peak is flat (255 and 256) and so is each crossing (511 and 512 are both 0).
constexpr std::array<std::int16_t, SINE_tableLength> mirrorQuarter() {
    std::array<std::int16_t, SINE_tableLength> table{};
    constexpr std::size_t half = SINE_tableLength / 2;
    for (std::size_t i = 0; i < half; ++i) {
        table[i] = quarterWave[i < SINE_quarter ? i : half - 1 - i];
        table[i + half] = static_cast<std::int16_t>(-table[i]);
    }
    return table;
}

bool hasPeriod(const SINE* cursor) {
    return cursor != nullptr && cursor->length > 0;
}

/// Stores the reduced sum of phase and offset.
void updateIndex(SINE& cursor) {
    cursor.index = positiveModulo(wrapAdd(cursor.phase, cursor.offset), cursor.length);
}

} // namespace

constinit const std::array<std::int16_t, SINE_tableLength> SINE_table = mirrorQuarter();

SINE* SINE_new() {
    return newRecord<SINE>(SINE_error);
}

void SINE_setup(SINE* cursor, std::int32_t length, std::int32_t phase, std::int32_t speed,
                std::int32_t offset, std::int32_t offsetStep) {
    if (refused(cursor == nullptr, SINE_error)) {
        return;
    }
    SINE_setLength(cursor, length);
    SINE_setPhase(cursor, phase);
    SINE_setOffset(cursor, offset);
    cursor->speed = speed;
    cursor->offsetStep = offsetStep;
}

void SINE_setLength(SINE* cursor, std::int32_t length) {
    if (refused(cursor == nullptr || length < 0, SINE_error)) {
        return;
    }
    cursor->length = length;
    SINE_setPhase(cursor, cursor->phase);
}

void SINE_setPhase(SINE* cursor, std::int32_t phase) {
    if (refused(!hasPeriod(cursor), SINE_error)) {
        return;
    }
    // SINE_setPhaseReachesLength: one expects 0..length-1; a whole period below 0 becomes the length itself.
    // Motion depends on the index alone, which is reduced anyway.
    cursor->phase = phase % cursor->length + (phase < 0 ? cursor->length : 0);
    updateIndex(*cursor);
}

std::int32_t SINE_setOffset(SINE* cursor, std::int32_t offset) {
    if (refused(!hasPeriod(cursor), SINE_error)) {
        return 0;
    }
    cursor->offset = offset;
    updateIndex(*cursor);
    return cursor->index;
}

std::int32_t SINE_at(SINE* cursor, std::int32_t phase) {
    if (refused(!hasPeriod(cursor), SINE_error)) {
        return 0;
    }
    cursor->offset = 0;
    SINE_setPhase(cursor, phase);
    return cursor->index;
}

void SINE_advance(SINE* cursor) {
    if (refused(!hasPeriod(cursor), SINE_error)) {
        return;
    }
    cursor->phase = positiveModulo(wrapAdd(cursor->phase, cursor->speed), cursor->length);
    updateIndex(*cursor);
}

std::int32_t SINE_next(SINE* cursor) {
    return refused(cursor == nullptr, SINE_error)
               ? 0
               : SINE_setOffset(cursor, wrapAdd(cursor->offset, cursor->offsetStep));
}

void SINE_copy(const SINE* src, SINE* dst) {
    if (refused(src == nullptr || dst == nullptr, SINE_error)) {
        return;
    }
    const std::int32_t index = dst->index;
    *dst = *src;
    dst->index = index;
}

SINE* SINE_clone(const SINE* src) {
    if (refused(src == nullptr, SINE_error)) {
        return nullptr;
    }
    SINE* const clone = SINE_new();
    if (clone != nullptr) {
        SINE_copy(src, clone);
    }
    return clone;
}

void SINE_delete(SINE** handle) {
    deleteRecord(handle, SINE_error);
}

// SINE_errorIsSilent: one expects a line while verbose; the cursor prints none, so its failures stay quiet.
void SINE_error() {}

SINE_TABLE* SINE_tableNew() {
    return newRecord<SINE_TABLE>(SINE_tableError, SINE_tableDelete, [](SINE_TABLE& table) {
        SINE_tableSetSize(&table, table.size);
        return table.values != nullptr;
    });
}

void SINE_tableSetSize(SINE_TABLE* table, std::int32_t size) {
    if (!replaceArray(size > 0 ? table : nullptr, SINE_tableError, &SINE_TABLE::values, &SINE_TABLE::size,
                      size)) {
        return;
    }
    // SINE_tableIsFlat: one expects a scaled wave; the angle stands still and the sine is cut to an integer
    // unscaled, so every entry is 0.
    constexpr float angle = 0.0F;
    for (std::int32_t i = 0; i < size; ++i) {
        table->values[i] = static_cast<std::int32_t>(-std::sin(angle));
    }
}

void SINE_tableDelete(SINE_TABLE** handle) {
    deleteRecord(handle, SINE_tableError, &SINE_TABLE::values);
}

void SINE_tableError() {
    reportLine(SINE_verbose, "SINE error");
}

} // namespace velm
