// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What a page asks of the machine while the program waits for its next frame: plain words, for JavaScript to
// call.
//
//     module._pagePoint(128, 20); // in JavaScript
#pragma once

#include <cstdint>

extern "C" {

/// Where the page writes the name of a key, as browsers have it: the text that it writes, or a word such as
/// "ArrowUp". At most so many bytes, the 0 included.
inline constexpr std::int32_t pageKeyBytes = 32;
char* pageKeyName();
/// Presses that key; 0 when it writes nothing and the program does not know it.
std::int32_t pageKey();

/// The largest enlargement of a picture of `width` by `height` pixels in a window of so many, and the pixels
/// left and above it.
std::int32_t pageScale(std::int32_t width, std::int32_t height, std::int32_t windowWidth,
                       std::int32_t windowHeight);
std::int32_t pageLeft(std::int32_t width, std::int32_t height, std::int32_t windowWidth,
                      std::int32_t windowHeight);
std::int32_t pageTop(std::int32_t width, std::int32_t height, std::int32_t windowWidth,
                     std::int32_t windowHeight);

/// The pointer is over a pixel of the picture; a button, 1 to 3, is held or let go.
void pagePoint(std::int32_t x, std::int32_t y);
void pageButton(std::int32_t number, std::int32_t isHeld);

/// The speaker's report, see WEB_heard.
void pageHeard(std::int32_t waiting, std::uint32_t received);

/// Samples that are to wait in the speaker before it begins.
std::int32_t pageSamplesAhead();
}
