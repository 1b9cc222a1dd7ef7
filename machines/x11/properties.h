// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What the window tells a desktop about itself: its class, its process and its icon, so that task bars group
// and picture it. The title is XDPY's.
//
//     x11Describe();
#pragma once

namespace velm {

/// Sets WM_CLASS, WM_CLIENT_MACHINE, _NET_WM_PID and _NET_WM_ICON of the window.
void x11Describe();

} // namespace velm
