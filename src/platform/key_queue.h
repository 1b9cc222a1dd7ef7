// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The key presses that wait for their polls. A machine pushes what its window receives; each XKBD_poll takes
// one, in order, so a crowd of keys waits for as many frames. Who wants to leave does not: an Escape that has
// waited for half a second goes first, and the close button, which arrives as Escape, goes at once.
//
//     pushKey(keys, {.text = "p", .keycode = 33, .micros = CLOCK_now()});
//     if (const std::optional<PressedKey> press = takeKey(keys, CLOCK_now())) { ... }
#pragma once

#include "platform/xkbd.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace velm {

/// The character that the Escape key stands for.
inline constexpr char KEY_escape = 27;

struct PressedKey {
    char text[9] = "";        ///< what the press stands for, at most 8 bytes; "" for arrow keys
    std::int32_t keycode = 0; ///< the X keycode
    std::int64_t micros = 0;  ///< CLOCK_now() when it arrived
};

/// A ring of fixed size. Zeroed memory is an empty queue, which touches no page before it is used.
struct KeyQueue {
    static constexpr std::uint32_t capacity = 20000;
    /// Microseconds for which an Escape keeps its turn.
    static constexpr std::int64_t patience = 500000;

    std::array<PressedKey, capacity> presses; ///< the ring
    std::uint32_t first = 0;                  ///< index of the press that came first
    std::uint32_t count = 0;                  ///< presses that wait
    bool closeAsked = false;                  ///< the close button was pressed
};

/// Appends a press. When the queue is full it is dropped, unless it is an Escape, which takes the last one's
/// place.
void pushKey(KeyQueue& queue, const PressedKey& press);

/// Appends a press that arrives now: what it stands for, of which 8 bytes are kept, and its X keycode.
void pushText(KeyQueue& queue, std::string_view text, std::int32_t keycode = 0);

/// Takes the press whose turn it is at the time `now`, if any waits.
std::optional<PressedKey> takeKey(KeyQueue& queue, std::int64_t now);

/// What a machine's XKBD_poll ends with: stores the press whose turn it is, if any waits, in the record.
void giveKey(KeyQueue& queue, XKBD& keyboard);

/// True while an Escape or the close button waits, whatever waits before it.
bool wantsToLeave(const KeyQueue& queue);

} // namespace velm
