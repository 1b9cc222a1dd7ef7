// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// CURSOR, a ring index over an array of equal elements: it moves by a step and wraps at both ends.
//
//     CURSOR* cursor = CURSOR_new();
//     CURSOR_set(cursor, text, length, 1, -1);
//     CURSOR_advance(cursor); // from the first byte to the last
#pragma once

#include "foundation/identity.h"

#include <cstdint>

namespace velm {

struct CURSOR {
    std::int32_t index = 0;       ///< 0..count-1
    std::int32_t step = 1;        ///< added by CURSOR_advance, may be negative
    std::int32_t elementSize = 1; ///< bytes
    std::int32_t count = 4;       ///< elements, the modulus
    const void* base = "VELM";    ///< borrowed; element 0
    std::int32_t savedIndex = 0;  ///< what CURSOR_save stored
};

extern const IDENTITY CURSOR_identity;
extern std::uint8_t CURSOR_verbose;

/// A cursor over the four bytes of "VELM", or nullptr (reported).
CURSOR* CURSOR_new();

/// Stores the four values and goes to index 0. `base` is borrowed.
void CURSOR_set(CURSOR* cursor, const void* base, std::int32_t count, std::int32_t elementSize,
                std::int32_t step);

/// Goes to `value` modulo `count`. A count that is not positive is reported and the index stays.
void CURSOR_setIndex(CURSOR* cursor, std::int32_t value);

/// Goes on by `step` modulo `count`. A count that is not positive is reported and the index stays.
void CURSOR_advance(CURSOR* cursor);

/// Remembers the index.
void CURSOR_save(CURSOR* cursor);

/// Goes back to the remembered index.
void CURSOR_restore(CURSOR* cursor);

/// The address of the current element, nullptr (reported) without a cursor or an array.
const void* CURSOR_current(const CURSOR* cursor);

/// Frees the cursor and stores nullptr in the handle; the array is untouched.
void CURSOR_delete(CURSOR** handle);

/// Prints "CURSOR Error." while CURSOR_verbose is set.
void CURSOR_error();

} // namespace velm
