// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What velm4030-play is asked for.
//
//     // Leaves by itself on --help, on --list and on a wrong argument.
//     const PlayOptions options = parseOptions(argc, argv);
#pragma once

#include "demo/programme.h"

#include <cstdint>
#include <string>

namespace velm {

struct PlayOptions {
    PROGRAMME programme;    ///< what to show, in which order
    std::int32_t scale = 0; ///< 0 for what suits the screen
    bool fullScreen = false;
    std::string sound;         ///< a driver's name, "" for the first that answers
    std::int32_t volume = 100; ///< per cent
    std::int32_t rate = 30;    ///< frames per second at the start
    std::uint32_t frames = 0;  ///< presentations, then it leaves; 0 for no end
};

PlayOptions parseOptions(int argc, char** argv);

} // namespace velm
