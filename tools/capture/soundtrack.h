// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A film's sound, every block where virtual time puts it. The demo plays a block a frame and a frame has not
// quite its samples, so blocks follow each other as they come as long as they are near their place; a real
// gap gets silence.
//
//     Soundtrack track(stream, GAIN_factor(12));
//     track.add({block, micros});
//     track.finish(samples);
#pragma once

#include "capture/output.h"

#include <cstdint>
#include <cstdio>

namespace velm {

class Soundtrack {
public:
    /// Writes bare samples, low byte first, multiplied by `gain`. The stream is borrowed, and a file.
    Soundtrack(std::FILE* stream, double gain) : file(stream), factor(gain) {}

    /// A block that begins before its place by more than a tenth of a second gets silence before it; one that
    /// begins after it by as much is left out. False when it could not be written.
    bool add(const Block& block);

    /// Fills up with silence, or cuts, to this length in samples; false when that could not be done.
    bool finish(std::int64_t samples);

private:
    bool write(std::span<const std::int16_t> samples);
    bool addSilenceUpTo(std::int64_t samples);

    std::FILE* file;
    double factor;
    std::int64_t written = 0; ///< samples
};

} // namespace velm
