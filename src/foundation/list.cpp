// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "foundation/list.h"

#include "foundation/memory.h"
#include "foundation/record.h"
#include "foundation/report.h"

#include <algorithm>

namespace velm {

const IDENTITY LIST_identity = makeIdentity("LIST", "20150611", "ZENDORAK", "C", "CODE");
std::uint8_t LIST_verbose = 0;

namespace {

constexpr std::int32_t firstCapacity = 2;

bool isRange(const LIST* list, std::int32_t from, std::int32_t to) {
    return list != nullptr && 0 <= from && from < to && to <= list->count;
}

/// Grows until `count` elements fit, and reports whether they do. A capacity that would pass 2^31 ends the
/// growth.
bool reserve(LIST* list, std::int64_t count) {
    while (list->capacity < count) {
        if (LIST_grow(list) == 0) {
            return false;
        }
    }
    return true;
}

} // namespace

LIST* LIST_new() {
    return newRecord<LIST>(LIST_error, LIST_delete,
                           [](LIST& list) { return LIST_setCapacity(&list, firstCapacity) != 0; });
}

void LIST_append(LIST* list, void* value) {
    LIST_insert(list, value, list == nullptr ? 0 : list->count);
}

void LIST_insert(LIST* list, void* value, std::int32_t index) {
    if (refused(list == nullptr || index < 0 || index > list->count, LIST_error)) {
        return;
    }
    if (!reserve(list, std::int64_t{list->count} + 1)) {
        return;
    }
    void** const end = list->items + list->count;
    std::copy_backward(list->items + index, end, end + 1);
    list->items[index] = value;
    ++list->count;
}

void LIST_insertRange(const LIST* src, LIST* dst, std::int32_t from, std::int32_t to, std::int32_t at) {
    if (refused(!isRange(src, from, to) || dst == nullptr || at < 0 || at > dst->count, LIST_error)) {
        return;
    }
    const std::int32_t length = to - from;
    if (!reserve(dst, std::int64_t{dst->count} + length)) {
        return;
    }
    // LIST_insertRangeTakesSpare: one expects the elements to move up; the slot behind them moves along, as
    // far as there is a slot for it, and shows when the count is raised.
    const std::int32_t moved = std::min(dst->count + 1, dst->capacity - length);
    std::copy_backward(dst->items + at, dst->items + moved, dst->items + moved + length);
    // LIST_insertRangeMeetsItself: one expects a list to take in its own elements as they were; the range is
    // copied from where the move has left it, the last element first.
    for (std::int32_t i = length - 1; i >= 0; --i) {
        dst->items[at + i] = src->items[from + i];
    }
    dst->count += length;
}

void LIST_set(LIST* list, std::int32_t index, void* value) {
    if (!refused(list == nullptr || index < 0 || index >= list->count, LIST_error)) {
        list->items[index] = value;
    }
}

std::int32_t LIST_indexOf(const LIST* list, const void* value) {
    if (refused(list == nullptr || value == nullptr, LIST_error)) {
        return -1;
    }
    void** const end = list->items + list->count;
    void** const found = std::find(list->items, end, value);
    return found == end ? -1 : static_cast<std::int32_t>(found - list->items);
}

void LIST_remove(LIST* list, std::int32_t index) {
    if (refused(list == nullptr || index < 0 || index >= list->count, LIST_error)) {
        return;
    }
    void** const end = list->items + list->count;
    std::copy(list->items + index + 1, end, list->items + index);
    end[-1] = nullptr;
    --list->count;
}

void LIST_removeRange(LIST* list, std::int32_t from, std::int32_t to) {
    if (refused(!isRange(list, from, to), LIST_error)) {
        return;
    }
    std::copy(list->items + to, list->items + list->count, list->items + from);
    list->count -= to - from;
}

void* LIST_pop(LIST* list) {
    if (refused(list == nullptr || list->count == 0, LIST_error)) {
        return nullptr;
    }
    --list->count;
    return list->items[list->count];
}

void LIST_setCount(LIST* list, std::int32_t count) {
    if (refused(list == nullptr || count < 0, LIST_error)) {
        return;
    }
    if (list->capacity < count && LIST_setCapacity(list, count) == 0) {
        return;
    }
    list->count = count;
}

std::int32_t LIST_setCapacity(LIST* list, std::int32_t capacity) {
    if (refused(list == nullptr || capacity < list->count, LIST_error)) {
        return 0;
    }
    void** const items = allocateArray<void*>(capacity);
    if (refused(items == nullptr, LIST_error)) {
        return 0;
    }
    std::copy(list->items, list->items + list->count, items);
    delete[] list->items;
    list->items = items;
    list->capacity = capacity;
    return 1;
}

std::int32_t LIST_grow(LIST* list) {
    if (refused(list == nullptr, LIST_error)) {
        return 0;
    }
    // Capacity 0 doubles to 0 and 2^30 past the range: both ask for a capacity that cannot be had.
    constexpr std::int32_t largestToDouble = 0x3FFFFFFF;
    const bool canDouble = list->capacity > 0 && list->capacity <= largestToDouble;
    return LIST_setCapacity(list, canDouble ? list->capacity * 2 : -1);
}

LIST* LIST_clone(const LIST* list) {
    if (refused(list == nullptr, LIST_error)) {
        return nullptr;
    }
    return list->count > 0 ? LIST_slice(list, 0, list->count) : LIST_new();
}

LIST* LIST_slice(const LIST* list, std::int32_t from, std::int32_t to) {
    if (refused(!isRange(list, from, to), LIST_error)) {
        return nullptr;
    }
    LIST* slice = LIST_new();
    if (slice != nullptr) {
        LIST_insertRange(list, slice, from, to, 0);
        if (slice->count != to - from) {
            LIST_delete(&slice);
        }
    }
    return slice;
}

std::int32_t LIST_equal(const LIST* a, const LIST* b) {
    return !refused(a == nullptr || b == nullptr, LIST_error) &&
                   (a == b || std::equal(a->items, a->items + a->count, b->items, b->items + b->count))
               ? 1
               : 0;
}

void LIST_delete(LIST** handle) {
    deleteRecord(handle, LIST_error, &LIST::items);
}

void LIST_error() {
    reportLine(LIST_verbose, "LIST error");
}

} // namespace velm
