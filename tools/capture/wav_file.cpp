// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "capture/wav_file.h"

#include "capture/bytes.h"

namespace velm {

WavFile::WavFile(const std::string& path, std::uint64_t mostDataBytes, double gain)
    : FileOutput(path), room(wavRoomFor(mostDataBytes)), factor(gain) {
    file.write(wavHeader(0, room));
}

void WavFile::sound(const Block& block) {
    const std::vector<std::int16_t> words = louderWords(block.samples, factor);
    file.write(std::as_bytes(std::span(words)));
    dataBytes += block.samples.size_bytes();
}

void WavFile::finish(std::int64_t) {
    file.rewriteStart(wavHeader(dataBytes, room));
    file.finish();
}

} // namespace velm
