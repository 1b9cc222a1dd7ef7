// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "capture/wav_file.h"

#include "capture/bytes.h"
#include "platform/gain.h"

namespace velm {

WavFile::WavFile(const std::string& path, std::uint64_t mostDataBytes, double gain)
    : file(path), room(wavRoomFor(mostDataBytes)), factor(gain) {
    file.write(wavHeader(0, room));
}

void WavFile::sound(const Block& block) {
    std::vector<std::int16_t> samples(block.samples.begin(), block.samples.end());
    GAIN_apply(samples, factor);
    const std::vector<std::byte> bytes = lowByteFirst<std::int16_t>(samples);
    file.write(bytes);
    dataBytes += bytes.size();
}

void WavFile::finish(std::int64_t) {
    file.rewriteStart(wavHeader(dataBytes, room));
    file.finish();
}

} // namespace velm
