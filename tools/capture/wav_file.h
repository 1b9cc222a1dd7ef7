// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The sound as a WAV file of 16-bit mono at 44100 samples per second, block after block as the device was
// handed it.
//
//     WavFile sound("demo.wav", 400 * 2942, 1);
//     sound.sound({block, 0});
//     sound.finish(0);
#pragma once

#include "capture/output.h"
#include "capture/output_file.h"

#include <cstdint>
#include <string>
#include <vector>

namespace velm {

/// Whether the header has room for sizes of 64 bits: 44 bytes without, 80 with it.
enum class WavRoom { plain, long64 };

/// What a file of at most so many bytes of samples needs.
WavRoom wavRoomFor(std::uint64_t mostDataBytes);

/// The header in front of so many bytes of samples. With room, a file that outgrows the 32 bits of RIFF
/// becomes an RF64 (EBU Tech 3306); a smaller one leaves the room unused, in a chunk that readers skip.
std::vector<std::byte> wavHeader(std::uint64_t dataBytes, WavRoom room);

class WavFile : public FileOutput {
public:
    /// Samples are multiplied by `gain`, as GAIN_apply does.
    WavFile(const std::string& path, std::uint64_t mostDataBytes, double gain);

    void sound(const Block& block) override;
    void finish(std::int64_t micros) override;

private:
    WavRoom room;
    double factor;
    std::uint64_t dataBytes = 0;
};

} // namespace velm
