// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What the desktop tells: keys and pointer wait for the demo's polls, the player's own keys and what happens
// to the window act at once.
//
//     takeEvents();
#pragma once

namespace velm {

/// Takes all that has happened since the last call, and draws the window anew where it has to be.
void takeEvents();

} // namespace velm
