// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What a capture writes: frames, checksums, sound and film.
//
//     Recorder recorder(options);
//     recorder.frame(*screen);
//     recorder.sound(block);
//     recorder.finish();
#pragma once

#include "capture/film.h"
#include "capture/options.h"
#include "capture/output_file.h"
#include "image/img.h"

#include <cstdint>
#include <optional>
#include <span>

namespace velm {

class Recorder {
public:
    explicit Recorder(const CaptureOptions& options);
    ~Recorder();

    /// A presentation, the next number.
    void frame(const IMG& img);

    /// A block that the sound device was handed.
    void sound(std::span<const std::int16_t> samples);

    /// Ends the progress line, so that a message can follow.
    void endProgressLine();

    /// Completes every file. Nothing is written afterwards.
    void finish();

private:
    void progress();

    const CaptureOptions& options;
    std::optional<OutputFile> raw;
    std::optional<OutputFile> crc;
    std::optional<OutputFile> audio;
    std::optional<Film> film;
    std::uint32_t frames = 0;
    std::uint32_t audioBytes = 0;
    double startSeconds = 0;
    bool lineIsOpen = false; ///< the terminal's cursor stands behind a progress line
};

} // namespace velm
