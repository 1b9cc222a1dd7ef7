// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The sine table that all motion comes from, the SINE cursor that walks it, and SINE_TABLE, a computed table
// that is kept for its oddity. Angles are in 1/1024 of a turn. An entry e scales an amplitude A as (A * e) >>
// 15 (within +-A) or >> 16 (within +-A/2).
//
//     std::int32_t y = 240 - (SINE_table[angle & (SINE_tableMask >> 1)] >> 10);
#pragma once

#include "foundation/identity.h"
#include "foundation/wrap.h"

#include <array>
#include <cstdint>

namespace velm {

inline constexpr std::int32_t SINE_tableLength = 1024;
inline constexpr std::int32_t SINE_tableMask = 1023;
inline constexpr std::int32_t SINE_quarter = 256; ///< add to an angle for the cosine

/// One period, peak 32766 at both 255 and 256. The quarter is mirrored, not continued: entries 511 and 512
/// are both 0.
extern const std::array<std::int16_t, SINE_tableLength> SINE_table;

/// The entry of any angle, negative ones included.
inline std::int32_t SINE_entry(std::int32_t angle) {
    return SINE_table[static_cast<std::size_t>(angle & SINE_tableMask)];
}

/// `amplitude` times the sine of an angle, (amplitude * entry) >> 15: just under `amplitude` at most.
inline std::int32_t SINE_scaled(std::int32_t amplitude, std::int32_t angle) {
    return wrapMul(amplitude, SINE_entry(angle)) >> 15;
}

/// The same with the cosine.
inline std::int32_t SINE_cosineScaled(std::int32_t amplitude, std::int32_t angle) {
    return wrapMul(amplitude, SINE_entry(wrapAdd(angle, SINE_quarter))) >> 15;
}

/// A position on a period: `phase` moves once a frame by `speed`, `offset` once a use by `offsetStep`.
struct SINE {
    std::int32_t length = SINE_tableLength; ///< period of the table that is walked
    std::int32_t index = 0;                 ///< result: (phase + offset) reduced into 0..length-1
    std::int32_t phase = 0;                 ///< moved by `speed`
    std::int32_t speed = 1;                 ///< added to `phase` by SINE_advance
    std::int32_t offset = 0;                ///< moved by `offsetStep`
    std::int32_t offsetStep = 2;            ///< added to `offset` by SINE_next
};

extern const IDENTITY SINE_identity;
extern std::uint8_t SINE_verbose;

/// A cursor with the defaults above, or nullptr.
SINE* SINE_new();

/// Sets everything: the length, the phase and the offset (updating `index`), then `speed` and `offsetStep`.
void SINE_setup(SINE* cursor, std::int32_t length, std::int32_t phase, std::int32_t speed,
                std::int32_t offset, std::int32_t offsetStep);

/// Sets the period (>= 0) and reduces the phase to it.
void SINE_setLength(SINE* cursor, std::int32_t length);

/// Sets the phase, reduced into 0..length-1; a negative multiple of the length becomes the length itself.
void SINE_setPhase(SINE* cursor, std::int32_t phase);

/// Sets the offset as it stands and returns the new index, 0 (reported) without a period.
std::int32_t SINE_setOffset(SINE* cursor, std::int32_t offset);

/// Clears the offset, sets the phase and returns the index.
std::int32_t SINE_at(SINE* cursor, std::int32_t phase);

/// Moves the phase by `speed` and keeps it inside the period.
void SINE_advance(SINE* cursor);

/// Moves the offset by `offsetStep` and returns the new index.
std::int32_t SINE_next(SINE* cursor);

/// Copies everything but `index`.
void SINE_copy(const SINE* src, SINE* dst);

/// A new cursor with the fields of `src`, its `index` excepted; nullptr on failure.
SINE* SINE_clone(const SINE* src);

/// Frees the cursor and stores nullptr in the handle.
void SINE_delete(SINE** handle);

/// The cursor's error reporter: silent on purpose.
void SINE_error();

/// A table of its own size whose entries all come out 0 (see docs/quirks.md). Nothing in the demo uses it.
struct SINE_TABLE {
    std::int32_t* values = nullptr; ///< owned, `size` entries
    std::int32_t size = SINE_tableLength;
};

/// A computed table, or nullptr (reported).
SINE_TABLE* SINE_tableNew();

/// Replaces the entries by `size` (> 0) new ones; on failure it reports and leaves the table as it was.
void SINE_tableSetSize(SINE_TABLE* table, std::int32_t size);

/// Frees the table and stores nullptr in the handle.
void SINE_tableDelete(SINE_TABLE** handle);

/// Prints "SINE error" while SINE_verbose is set.
void SINE_tableError();

} // namespace velm
