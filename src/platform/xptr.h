// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// XPTR, the mouse pointer over the window: its position in window pixels and which of the first three buttons
// are held. The system's own pointer is invisible inside the window; MOUSE draws ours.
//
//     XPTR_poll(pointer);
//     ... use pointer->x, pointer->y ...
//     XPTR_flush(pointer);
#pragma once

#include "foundation/identity.h"

#include <cstdint>

namespace velm {

struct XPTR {
    std::int32_t x;           ///< window pixels
    std::int32_t y;           ///< window pixels
    std::int32_t reserved[4]; ///< never written here, but compared and copied
    std::int32_t buttons;     ///< bits 0, 1, 2: button 1, 2, 3 is held; other bits are left alone
};

extern const IDENTITY XPTR_identity;
extern std::uint8_t XPTR_verbose;

/// A pointer at (0, 0) that follows the open window, whose system pointer becomes invisible; nullptr
/// (reported) when no window is open.
XPTR* XPTR_new();

/// Takes at most one motion event and one button event of the window. So the position is the first motion of
/// a frame's queue, not the last: see docs/quirks.md.
void XPTR_poll(XPTR* pointer);

/// Asks the server for the position and the buttons.
void XPTR_query(XPTR* pointer);

/// Discards every pending motion and button event; returns 0. A machine need not keep what would be
/// discarded.
std::int32_t XPTR_flush(XPTR* pointer);

/// 1 when all seven fields are equal, else 0.
std::int32_t XPTR_equals(const XPTR* a, const XPTR* b);

/// Copies all seven fields.
void XPTR_copy(const XPTR* src, XPTR* dst);

/// Always returns nullptr (see docs/quirks.md).
XPTR* XPTR_clone(const XPTR* src);

/// The empty text.
const char* XPTR_name(const XPTR* pointer);

/// Frees the record and stores nullptr in the handle.
void XPTR_delete(XPTR** handle);

/// What every machine's XPTR_new begins with: a record at (0, 0) for the open window, else nullptr
/// (reported).
XPTR* XPTR_make();

/// True for a record whose window is open; reported otherwise.
bool XPTR_isUsable(const XPTR* pointer);

/// Prints "XPTR error" while XPTR_verbose is set.
void XPTR_error();

} // namespace velm
