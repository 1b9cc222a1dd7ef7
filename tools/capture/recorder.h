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

#include "capture/options.h"
#include "capture/output_file.h"
#include "image/img.h"

#include <cstdint>
#include <memory>
#include <span>

namespace velm {

class Film;

class Recorder {
public:
    explicit Recorder(const CaptureOptions& options);
    ~Recorder();

    /// A presentation, the next number.
    void frame(const IMG& img);

    /// A block that the sound device was handed.
    void sound(std::span<const std::int16_t> samples);

    /// Completes every file. Nothing is written afterwards.
    void finish();

private:
    void progress() const;

    const CaptureOptions& options;
    std::unique_ptr<OutputFile> raw;
    std::unique_ptr<OutputFile> crc;
    std::unique_ptr<OutputFile> audio;
    std::unique_ptr<Film> film;
    std::uint32_t frames = 0;
    std::uint32_t audioBytes = 0;
    double startSeconds = 0;
};

} // namespace velm
