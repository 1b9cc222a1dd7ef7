// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The frames as they are: raw words, checksums, numbered pictures.
//
//     Checksums checksums("-");
//     checksums.frame({1, *screen, words, 0});
#pragma once

#include "capture/output.h"
#include "capture/output_file.h"

#include <string>

namespace velm {

/// All words, one frame after the other.
class RawFrames : public FileOutput {
public:
    using FileOutput::FileOutput;

    void frame(const Frame& frame) override { file.write(frame.bytes); }
};

/// A line a frame: its number and the CRC-32 of its bytes.
class Checksums : public FileOutput {
public:
    using FileOutput::FileOutput;

    void frame(const Frame& frame) override;
};

/// A P6 file a frame, in a folder that is made if it is not there.
class NumberedPictures : public Output {
public:
    explicit NumberedPictures(std::string path);

    /// True for the name of any frame's picture.
    static bool mayWrite(const std::string& name);

    void frame(const Frame& frame) override;
    void finish(std::int64_t) override { status = OutputState::whole; }
    [[nodiscard]] OutputState state() const override { return status; }
    [[nodiscard]] const std::string& name() const override { return folder; }

private:
    std::string folder;
    OutputState status = OutputState::open;
};

} // namespace velm
