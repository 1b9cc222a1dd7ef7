// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What velm4030-capture is asked for.
//
//     // Leaves by itself on --help and on a wrong argument.
//     const CaptureOptions options = parseOptions(argc, argv);
#pragma once

#include "demo/scenes.h"
#include "headless/headless.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace velm {

struct CaptureOptions {
    std::uint32_t frames = 0;     ///< presentations
    const SCENE* scene = nullptr; ///< nullptr for the schedule
    bool tour = false;            ///< all scenes instead of one
    std::int32_t rate = 30;       ///< frames per second at the start
    std::vector<HeadlessKey> keys;
    std::vector<HeadlessPointer> pointers;
    std::string raw; ///< a file, "-" for standard output, "" for none; so are the next ones
    std::string crc;
    std::string ppmFolder;
    std::string audio;
    std::string film;
    std::int32_t scale = 2;     ///< enlargement of the film
    std::optional<double> gain; ///< dB; without, a film has the usual gain and a WAV file none
    std::int32_t block = 0; ///< bytes of the sound driver's block; 0 for what suits the rate of each frame
    bool quiet = false;
};

CaptureOptions parseOptions(int argc, char** argv);

} // namespace velm
