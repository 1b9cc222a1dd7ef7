// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What a program and the window that it plays in share: a piece of memory. Frames go to and fro by two bells:
// the window asks for one, the program draws it. Keys, pointer and sound go by rings, whenever there are any.
//
//     channel->asked.ring();                         // the window: draw frame `frame`
//     if (channel->drawn.hasRung(heard, 8000)) { }   // `picture` is it
#pragma once

// IWYU pragma: begin_exports
#include "platform/bell.h"
#include "platform/ring.h"
// IWYU pragma: end_exports

#include <atomic>
#include <cstdint>

namespace velm {

struct Channel {
    static constexpr std::int32_t size = 256; ///< of the picture, pixels, both ways

    /// Frames a second that a window shows, and takes sound: the most that a program can have.
    static constexpr std::int32_t mostRate = 60;

    /// A key that was pressed, see XKBD.
    struct Key {
        char text[9];
        std::int32_t keycode;
    };
    /// Where the pointer has been, see XPTR.
    struct Pointer {
        std::int32_t x, y, buttons;
        bool operator==(const Pointer&) const = default;
    };

    Bell asked; ///< rung by the window
    Bell drawn; ///< rung by the program
    Bell typed; ///< rung by the window: `keys` has one more

    std::int32_t frame;               ///< number of the frame that is asked for
    std::int32_t hasSound;            ///< 0 where the window is silent
    std::atomic<std::uint32_t> rests; ///< of a paused program, so far

    Ring<Key, 1024> keys;           ///< from the window
    Ring<Pointer, 256> pointers;    ///< from the window
    Ring<std::int16_t, 8192> sound; ///< to the window
    std::uint32_t picture[size * size];
};

/// The environment variable that tells a program the descriptor of its channel.
inline constexpr const char* channelVariable = "VELM_LIVE";

} // namespace velm
