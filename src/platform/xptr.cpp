// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What every implementation of the pointer shares: the record. Reading it is the machine's.
#include "platform/xptr.h"

#include "foundation/record.h"
#include "foundation/report.h"
#include "platform/xdpy.h"

#include <algorithm>
#include <iterator>

namespace velm {

const IDENTITY XPTR_identity = makeIdentity("XPTR", "20150228", "XWINDOWS", "CODE", "ZENDORAK");
std::uint8_t XPTR_verbose = 0;

XPTR* XPTR_make() {
    return refused(!XDPY_isOpen(), XPTR_error) ? nullptr : newRecord<XPTR>(XPTR_error);
}

bool XPTR_isUsable(const XPTR* pointer) {
    return !refused(pointer == nullptr || !XDPY_isOpen(), XPTR_error);
}

std::int32_t XPTR_equals(const XPTR* a, const XPTR* b) {
    return !refused(a == nullptr || b == nullptr, XPTR_error) && a->x == b->x && a->y == b->y &&
                   a->buttons == b->buttons &&
                   std::equal(std::begin(a->reserved), std::end(a->reserved), std::begin(b->reserved))
               ? 1
               : 0;
}

void XPTR_copy(const XPTR* src, XPTR* dst) {
    if (!refused(src == nullptr || dst == nullptr, XPTR_error)) {
        *dst = *src;
    }
}

XPTR* XPTR_clone(const XPTR* src) {
    if (refused(src == nullptr, XPTR_error)) {
        return nullptr;
    }
    // XPTR_cloneGivesNothing: one expects the new record; it is made like any other, and never handed back.
    XPTR* clone = XPTR_new();
    XPTR_copy(src, clone);
    delete clone;
    return nullptr;
}

const char* XPTR_name(const XPTR* pointer) {
    if (pointer == nullptr) {
        XPTR_error();
    }
    return "";
}

void XPTR_delete(XPTR** handle) {
    deleteRecord(handle, XPTR_error);
}

void XPTR_error() {
    reportLine(XPTR_verbose, "XPTR error");
}

} // namespace velm
