// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What SDL leaves to Xlib under X11: how a lost connection and a lost window are told, windows of other
// programs, and who manages the windows. SDL has loaded Xlib already; nothing here links it.
//
//     watchX11();
//     SDL_Window* const window = foreignWindow(0x1200003);
#pragma once

#include "image/pixel_layout.h"

#include <SDL.h>
#include <cstdint>
#include <optional>

namespace velm {

/// From now on a lost connection ends the program with one line, and an error of the protocol goes unheard.
void watchX11();

/// The window of that number as one of SDL's, or nullptr. Its owner keeps its keys, buttons and cursor.
SDL_Window* foreignWindow(std::uint64_t number);

/// The root window's number, or that of the window that says it stands in for it.
std::uint64_t rootWindow();

/// The layout of a window's pixels where they are words of 32 bits with masks, as ours on a screen of 30
/// bits.
std::optional<PixelLayout> pixelsOf(SDL_Window* window);

/// Fills a window with rows of such pixels; false when memory runs out.
bool putRows(SDL_Window* window, char* rows, SDL_Point size);

/// True for the event that the window is gone behind our back.
bool tellsLoss(SDL_Window* window, const SDL_Event& event);

/// True when a window manager runs.
bool hasManager();

/// Where no manager does, a window of SDL's takes the keyboard: who has it now gets it back when the program
/// ends.
void lendKeyboard();

} // namespace velm
