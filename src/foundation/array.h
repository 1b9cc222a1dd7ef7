// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// ARRAY, elements of one fixed size kept by value in one growable buffer: what LIST is for pointers, for
// everything else. The element type is the caller's; the array knows bytes only.
//
//     ARRAY* array = ARRAY_new();
//     ARRAY_setElementSize(array, sizeof(SEG2D));
//     ARRAY_push(array, &segment);
#pragma once

#include "foundation/identity.h"

#include <cstdint>

namespace velm {

struct ARRAY {
    std::uint32_t elementSize = 4; ///< bytes per element
    std::int32_t capacity = 2;     ///< elements that `data` can hold, doubling as it grows
    std::int32_t count = 0;        ///< elements in use, 0 <= count <= capacity
    std::uint8_t* data = nullptr;  ///< owned; element i begins at byte i * elementSize
};

extern const IDENTITY ARRAY_identity;
extern std::uint8_t ARRAY_verbose;

/// An empty array, or nullptr (reported).
ARRAY* ARRAY_new();

/// Empties the array and makes its elements zeroed ones of `size` bytes; the capacity stays. When memory runs
/// out, it reports and leaves the array as it was.
void ARRAY_setElementSize(ARRAY* array, std::uint32_t size);

/// Doubles the capacity, keeping the elements: 1, or 0 (reported, unchanged) when memory runs out.
std::int32_t ARRAY_grow(ARRAY* array);

/// Appends a copy of the element, which may lie in the array itself, growing when the array is full. When it
/// cannot grow, it reports and appends nothing.
void ARRAY_push(ARRAY* array, const void* element);

/// Inserts a copy of the element before `index` (0..count), moving later elements up.
void ARRAY_insert(ARRAY* array, const void* element, std::int32_t index);

/// Checks its arguments as an insertion of elements from..to-1 of `src` into `dst` before `at` would, and
/// does nothing more: see docs/quirks.md.
void ARRAY_insertRange(const ARRAY* src, const ARRAY* dst, std::int32_t from, std::int32_t to,
                       std::int32_t at);

/// Copies the element at `index` (0..count-1) to `destination`.
void ARRAY_get(const ARRAY* array, void* destination, std::int32_t index);

/// Copies `source` into the element at `index` (0..count-1).
void ARRAY_set(ARRAY* array, const void* source, std::int32_t index);

/// A copy of the element at `index`, or nullptr (reported). The caller frees it with delete[].
std::uint8_t* ARRAY_getCopy(const ARRAY* array, std::int32_t index);

/// A copy of the last element, which is removed; nullptr (reported) when the array is empty. The caller frees
/// it with delete[].
std::uint8_t* ARRAY_pop(ARRAY* array);

/// Removes the element at `index` (0..count-1), moving later elements down.
void ARRAY_deleteAt(ARRAY* array, std::int32_t index);

/// Removes elements from..to-1 (0 <= from < to <= count).
void ARRAY_removeRange(ARRAY* array, std::int32_t from, std::int32_t to);

/// Zeroes the elements in use and sets the count to 0. A capacity of 0 is reported.
void ARRAY_clear(ARRAY* array);

/// The first index whose bytes are the element's, or -1.
std::int32_t ARRAY_indexOf(const ARRAY* array, const void* element);

/// 1 when the element at `index` (0..count-1) has the same bytes, else 0.
std::int32_t ARRAY_equalAt(const ARRAY* array, const void* element, std::int32_t index);

/// 1 when both are the same array or hold equal elements of the same size, else 0. Two missing arrays are
/// equal, too (see docs/quirks.md).
std::int32_t ARRAY_equal(const ARRAY* a, const ARRAY* b);

/// Copies as many bytes, not elements, from `src` to `dst` as the shorter one has elements: see
/// docs/quirks.md.
void ARRAY_copyInto(const ARRAY* src, ARRAY* dst);

/// A new array with the same elements, or nullptr (reported).
ARRAY* ARRAY_clone(const ARRAY* src);

/// Checks the range (0 <= from < to <= count) and returns a new, empty array (see docs/quirks.md), or nullptr
/// (reported).
ARRAY* ARRAY_slice(const ARRAY* array, std::int32_t from, std::int32_t to);

/// "ARRAY{\n", every byte in use as a character, "\n}\n" and a NUL; nullptr (reported) on failure. The caller
/// frees it with delete[].
char* ARRAY_toText(const ARRAY* array);

/// Makes, fills, changes and prints an array on standard output, saying what it does.
void ARRAY_selfTest();

/// Frees the buffer and the record and stores nullptr in the handle.
void ARRAY_delete(ARRAY** handle);

/// Prints "ARRAY error" while ARRAY_verbose is set.
void ARRAY_error();

} // namespace velm
