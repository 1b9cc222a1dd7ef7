// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "platform/kbd.h"

#include "foundation/record.h"
#include "foundation/report.h"

namespace velm {

const IDENTITY KBD_identity = makeIdentity("KBD", "20150222", "CODE", "LINUX", "ZENDORAK");
std::uint8_t KBD_verbose = 0;

KBD* KBD_new() {
    return newRecord<KBD>(KBD_error);
}

void KBD_dispatch(KBD* table) {
    if (refused(table == nullptr || table->current < 0 || table->current >= KBD::keys, KBD_error)) {
        return;
    }
    if (table->handlers[table->current] != nullptr) {
        table->handlers[table->current]();
    }
}

std::int32_t KBD_current(const KBD* table) {
    return refused(table == nullptr, KBD_error) ? 0 : table->current;
}

std::int32_t KBD_flush(const KBD* table) {
    if (table == nullptr) {
        KBD_error();
    }
    return 0;
}

std::int32_t KBD_same(const KBD* a, const KBD* b) {
    return refused(a == nullptr || b == nullptr, KBD_error) ? 0 : 1;
}

void KBD_delete(KBD** handle) {
    deleteRecord(handle, KBD_error);
}

void KBD_error() {
    reportLine(KBD_verbose, "KBD error");
}

} // namespace velm
