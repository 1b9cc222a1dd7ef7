// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The whole screen: by the window manager where one can, else by a window that no manager touches.
//
//     const bool managed = managerCanFillScreen();
//     managed ? askManagerToFillScreen() : takeKeyboard();
#pragma once

namespace velm {

/// True when a running window manager knows the full-screen state (EWMH).
bool managerCanFillScreen();

/// Marks the window, before it is mapped, as one that shall fill the screen.
void askManagerToFillScreen();

/// Gives the mapped window the keyboard, which a window without a manager gets from nobody, and gives it back
/// when the program ends.
void takeKeyboard();

} // namespace velm
