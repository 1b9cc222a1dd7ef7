// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "vector/cursor.h"

#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/wrap.h"

namespace velm {

const IDENTITY CURSOR_identity = makeIdentity("CURSOR", "C", "20150629", "CODE", "ZENDORAK");
std::uint8_t CURSOR_verbose = 0;

CURSOR* CURSOR_new() {
    return newRecord<CURSOR>(CURSOR_error);
}

void CURSOR_set(CURSOR* cursor, const void* base, std::int32_t count, std::int32_t elementSize,
                std::int32_t step) {
    if (refused(cursor == nullptr, CURSOR_error)) {
        return;
    }
    cursor->base = base;
    cursor->count = count;
    cursor->elementSize = elementSize;
    cursor->step = step;
    cursor->index = 0;
}

void CURSOR_setIndex(CURSOR* cursor, std::int32_t value) {
    if (!refused(cursor == nullptr || cursor->count <= 0, CURSOR_error)) {
        cursor->index = positiveModulo(value, cursor->count);
    }
}

void CURSOR_advance(CURSOR* cursor) {
    if (!refused(cursor == nullptr, CURSOR_error)) {
        CURSOR_setIndex(cursor, wrapAdd(cursor->index, cursor->step));
    }
}

void CURSOR_save(CURSOR* cursor) {
    if (!refused(cursor == nullptr, CURSOR_error)) {
        cursor->savedIndex = cursor->index;
    }
}

void CURSOR_restore(CURSOR* cursor) {
    if (!refused(cursor == nullptr, CURSOR_error)) {
        cursor->index = cursor->savedIndex;
    }
}

const void* CURSOR_current(const CURSOR* cursor) {
    if (refused(cursor == nullptr || cursor->base == nullptr, CURSOR_error)) {
        return nullptr;
    }
    return static_cast<const char*>(cursor->base) + std::int64_t{cursor->elementSize} * cursor->index;
}

void CURSOR_delete(CURSOR** handle) {
    deleteRecord(handle, CURSOR_error);
}

void CURSOR_error() {
    reportLine(CURSOR_verbose, "CURSOR Error.");
}

} // namespace velm
