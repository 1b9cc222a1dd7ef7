// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What velm4030-play is asked for.
//
//     // Leaves by itself on --help, on --list and on a wrong argument.
//     const PlayOptions options = parseOptions(argc, argv);
#pragma once

#include "demo/programme.h"
#include "desktop/desktop.h"

#include <cstdint>

namespace velm {

struct PlayOptions {
    PROGRAMME programme;      ///< what to show, in which order
    std::int32_t rate = 30;   ///< frames per second at the start
    std::uint32_t frames = 0; ///< quits after so many; 0 for never
    Desktop desktop;          ///< window, full screen or foreign window, and sound
};

PlayOptions parseOptions(int argc, char** argv);

} // namespace velm
