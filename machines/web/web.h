// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The seam for a page in a browser: a canvas, the keys and the pointer that the page passes on, and a speaker
// that plays what it is sent. The browser's own part is in browser.h; nothing else waits.
//
//     web.gain = GAIN_usual;
//     VELM4030_main();
//     ... meanwhile, from the page: WEB_press(" ", 0), WEB_point(128, 20)
#pragma once

#include <cstdint>

namespace velm {

/// The one page of the process. Set it up before the demo starts.
struct Web {
    double gain = 0; ///< decibels by which the sound is raised; it saturates
};

extern Web web;

/// A key was pressed: the text that it writes, at most 8 bytes, and its X keycode where the demo asks for it.
void WEB_press(const char* text, std::int32_t keycode);

/// The pointer moved to a pixel of the picture.
void WEB_point(std::int32_t x, std::int32_t y);

/// A button, 1 to 3, was pressed or let go.
void WEB_button(std::int32_t number, bool isHeld);

/// The speaker tells how many samples wait in it, and how many it has been given, modulo 2^32.
void WEB_heard(std::int32_t waiting, std::uint32_t received);

} // namespace velm
