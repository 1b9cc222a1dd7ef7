// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// LIST, the general container: an ordered sequence of borrowed pointers in one growable array. It never owns
// its elements; deleting a list frees only its own storage.
//
//     LIST* list = LIST_new();
//     LIST_append(list, segment);
//     auto* first = static_cast<SEG2D*>(LIST_get(list, 0));
#pragma once

#include "foundation/identity.h"
#include "foundation/report.h"

#include <cstdint>

namespace velm {

struct LIST {
    std::int32_t capacity; ///< slots allocated in `items`, doubling as it grows
    std::int32_t count;    ///< elements in use, 0 <= count <= capacity
    void** items;          ///< owned; elements 0..count-1 in order, freshly grown slots are nullptr
};

extern const IDENTITY LIST_identity;
extern std::uint8_t LIST_verbose;

/// An empty list of capacity 2, or nullptr (reported).
LIST* LIST_new();

/// Appends a value, doubling the capacity when the list is full. When it cannot grow, nothing is appended.
void LIST_append(LIST* list, void* value);

/// Inserts before `index` (0..count), moving later elements up.
void LIST_insert(LIST* list, void* value, std::int32_t index);

/// Inserts elements from..to-1 of `src` into `dst` before `at` (0..dst count): elements from `at` on, and the
/// slot behind the last one, move up, then the range is copied. A list that is inserted into itself copies
/// what stands in the range after the move (see docs/quirks.md).
void LIST_insertRange(const LIST* src, LIST* dst, std::int32_t from, std::int32_t to, std::int32_t at);

/// Replaces the element at `index` (0..count-1).
void LIST_set(LIST* list, std::int32_t index, void* value);

/// The first index that holds `value`, or -1. A nullptr value is reported, and the answer is -1.
std::int32_t LIST_indexOf(const LIST* list, const void* value);

/// Removes the element at `index`, moving later elements down; the freed last slot becomes nullptr.
void LIST_remove(LIST* list, std::int32_t index);

/// Removes elements from..to-1 (0 <= from < to <= count). The vacated slots keep their old values.
void LIST_removeRange(LIST* list, std::int32_t from, std::int32_t to);

/// Removes and returns the last element; nullptr (reported) when the list is empty.
void* LIST_pop(LIST* list);

/// Grows the capacity to `count` if it is smaller, then sets the count.
void LIST_setCount(LIST* list, std::int32_t count);

/// Reallocates to `capacity` slots, keeping the elements: 1, or 0 (reported, unchanged) when memory runs out
/// or the elements would not fit.
std::int32_t LIST_setCapacity(LIST* list, std::int32_t capacity);

/// Doubles the capacity.
std::int32_t LIST_grow(LIST* list);

/// A new list with the same elements (not copies of them), or nullptr.
LIST* LIST_clone(const LIST* list);

/// A new list with elements from..to-1 (0 <= from < to <= count), or nullptr (reported).
LIST* LIST_slice(const LIST* list, std::int32_t from, std::int32_t to);

/// 1 when both are the same list or hold the same values in the same order, else 0.
std::int32_t LIST_equal(const LIST* a, const LIST* b);

/// Frees the list's storage and the record and stores nullptr in the handle; the elements are untouched.
void LIST_delete(LIST** handle);

/// Prints "LIST error" while LIST_verbose is set.
void LIST_error();

/// The element at `index`, or nullptr (reported) outside 0..count-1.
inline void* LIST_get(const LIST* list, std::int32_t index) {
    const bool isOutside = list == nullptr || index < 0 || index >= list->count;
    return refused(isOutside, LIST_error) ? nullptr : list->items[index];
}

} // namespace velm
