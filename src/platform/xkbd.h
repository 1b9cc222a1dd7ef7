// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// XKBD, the keys of the window: one key press a call, left as text and keycode in the one record that the key
// handler reads and clears.
//
//     XKBD_poll(keyboard);
//     VELM4030_handleKey(keyboard);
#pragma once

#include "foundation/identity.h"

#include <cstdint>

namespace velm {

struct XKBD {
    char* text; ///< owned, 9 bytes: what the last key press stands for, at most 8 bytes; "" for arrow keys
    std::int32_t keycode; ///< the X keycode of the last key press
};

/// The keycodes by which the program knows its arrows, whatever the keyboard has for them.
inline constexpr std::int32_t XKBD_up = 98;
inline constexpr std::int32_t XKBD_down = 104;

extern const IDENTITY XKBD_identity;
extern std::uint8_t XKBD_verbose;

/// The process's one record, made by the first call, or nullptr (reported). Every call selects the window's
/// input.
XKBD* XKBD_new();

/// Takes one pending key press, if there is one, without waiting; else the record stays as it is. Presses
/// come in order, but for an Escape that has waited for half a second (see key_queue.h). The window's close
/// button arrives as the Escape key. A missing record is reported and ends the program with status 0.
void XKBD_poll(XKBD* keyboard);

/// The longest rest of a paused demo in microseconds: short enough for a key to seem to act at once.
inline constexpr std::int32_t XKBD_longestRest = 10000;

/// The demo is paused: between two polls it does nothing but call this. A machine may wait here,
/// XKBD_longestRest microseconds at most, and does what a window needs while it stands still.
void XKBD_rest(XKBD* keyboard);

/// The text "XKBD".
const char* XKBD_getName(const XKBD* keyboard);
/// Always 0: there is no state beyond the record.
std::int32_t XKBD_getState(const XKBD* keyboard);
/// 1 when both are the same record, else 0.
std::int32_t XKBD_same(const XKBD* a, const XKBD* b);
/// Always 0: pending keys wait for their frames and are never discarded.
std::int32_t XKBD_flush(const XKBD* keyboard);

/// Frees the text and the record and stores nullptr in the handle.
void XKBD_delete(XKBD** handle);

/// What a machine's XKBD_poll begins with: true for a record while a window is open. A missing record is
/// reported and ends the program with status 0, a missing window is reported.
bool XKBD_isUsable(const XKBD* keyboard);

/// Prints "XKBD error" while XKBD_verbose is set.
void XKBD_error();

} // namespace velm
