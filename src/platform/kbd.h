// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// KBD, a table with one handler per key code. The demo makes one; its scenes read keys through XKBD.
//
//     table->handlers[65] = onSpace;
//     table->current = 65;
//     KBD_dispatch(table);
#pragma once

#include "foundation/identity.h"

#include <cstdint>

namespace velm {

struct KBD {
    static constexpr std::int32_t keys = 256;

    std::int32_t current;     ///< index of the key to dispatch, 0..255
    std::int32_t reserved[5]; ///< not used
    void (*handlers[keys])(); ///< nullptr where a key has none
};

extern const IDENTITY KBD_identity;
extern std::uint8_t KBD_verbose;

/// A table without handlers, or nullptr (reported).
KBD* KBD_new();

/// Calls the handler of the current key, if it has one. A missing table or an index outside is reported.
void KBD_dispatch(KBD* table);

/// The current key's index; 0 (reported) without a table.
std::int32_t KBD_current(const KBD* table);
/// Always 0: nothing is queued here.
std::int32_t KBD_flush(const KBD* table);
/// 1 for two tables, whichever they are; 0 (reported) when one is missing.
std::int32_t KBD_same(const KBD* a, const KBD* b);

/// Frees the table and stores nullptr in the handle.
void KBD_delete(KBD** handle);

/// Prints "KBD error" while KBD_verbose is set.
void KBD_error();

} // namespace velm
