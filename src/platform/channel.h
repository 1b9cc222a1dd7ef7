// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What a program and the window that it plays in share: a piece of memory, and two semaphores that pass it to
// and fro. The window asks for a frame and says what has been pressed, the program draws it and leaves
// picture and sound.
//
//     sem_post(&channel->asked);  // the window: draw frame `frame`
//     sem_wait(&channel->drawn);  // `picture` is it
#pragma once

#include <cstdint>
#include <semaphore.h>

namespace velm {

struct Channel {
    static constexpr std::int32_t size = 256;         ///< of the picture, pixels, both ways
    static constexpr std::int32_t mostSamples = 8192; ///< of a frame; what is beyond is lost
    static constexpr std::int32_t textBytes = 9;

    sem_t asked; ///< posted by the window
    sem_t drawn; ///< posted by the program

    std::int32_t frame;         ///< number of the frame that is asked for
    char text[textBytes];       ///< of a key that was pressed, see XKBD; "" for none
    std::int32_t keycode;       ///< of that key, 0 for none
    std::int32_t x, y, buttons; ///< of the pointer
    std::int32_t samples;       ///< in `sound`, since the last frame
    std::int16_t sound[mostSamples];
    std::uint32_t picture[size * size];
};

/// The environment variable that tells a program the descriptor of its channel.
inline constexpr const char* channelVariable = "VELM_LIVE";

} // namespace velm
