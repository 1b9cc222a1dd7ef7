// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Hands every frame and every block of sound to all that a capture writes.
//
//     Recorder recorder(options);
//     recorder.frame(*screen);
//     recorder.sound(block);
//     const bool everything = recorder.finish();
#pragma once

#include "capture/options.h"
#include "capture/output.h"
#include "image/img.h"

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace velm {

class Recorder {
public:
    explicit Recorder(const CaptureOptions& options);

    /// True when every output could be opened.
    [[nodiscard]] bool isReady() const;

    /// A presentation, the next number.
    void frame(const IMG& img);

    /// A block that the sound device was handed.
    void sound(std::span<const std::int16_t> samples);

    /// True when something was asked for and none of it takes more.
    [[nodiscard]] bool isIdle() const;

    /// Completes every output that still can be; nothing is written afterwards. True when each is whole, and
    /// when the only one is a pipe whose reader has left. Another that was cut is named in a line.
    bool finish();

private:
    const CaptureOptions& options;
    std::vector<std::unique_ptr<Output>> outputs;
    std::uint32_t frames = 0;
};

} // namespace velm
