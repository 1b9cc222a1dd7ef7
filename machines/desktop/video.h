// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The way to a screen: Wayland natively where it runs, X11 otherwise, the bare console without either.
//
//     openVideo();
//     SDL_Window* const window = SDL_CreateWindow(...);
#pragma once

#include <SDL.h>

namespace velm {

/// Starts SDL's video, once. Without a screen it ends the program.
void openVideo();

/// True while SDL's video is X11.
bool isX11();

/// Prints "velm4030-play: `what` "`detail`"" on standard error and ends the program with status 1.
[[noreturn]] void giveUp(const char* what, const char* detail);

/// The X display that is used.
const char* displayName();

} // namespace velm
