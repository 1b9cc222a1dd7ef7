// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "capture/soundtrack.h"

#include "capture/bytes.h"

#include <algorithm>
#include <unistd.h>

namespace velm {

namespace {

constexpr std::int64_t samplesPerSecond = 44100;
constexpr std::int64_t microsPerSecond = 1000000;
constexpr std::int64_t nearEnough = samplesPerSecond / 10; ///< three blocks at 30 frames a second

} // namespace

bool Soundtrack::add(const Block& block) {
    const std::int64_t place = block.micros * samplesPerSecond / microsPerSecond;
    if (written - place > nearEnough) {
        return true;
    }
    if (place - written > nearEnough && !addSilenceUpTo(place)) {
        return false;
    }
    return write(block.samples);
}

bool Soundtrack::finish(std::int64_t samples) {
    if (!addSilenceUpTo(samples) || std::fflush(file) != 0) {
        return false;
    }
    return ftruncate(fileno(file), samples * static_cast<std::int64_t>(sizeof(std::int16_t))) == 0;
}

bool Soundtrack::write(std::span<const std::int16_t> samples) {
    const std::vector<std::int16_t> words = louderWords(samples, factor);
    written += static_cast<std::int64_t>(words.size());
    return std::fwrite(words.data(), sizeof words[0], words.size(), file) == words.size();
}

bool Soundtrack::addSilenceUpTo(std::int64_t samples) {
    static constexpr std::int16_t silence[4096] = {};
    while (written < samples) {
        const std::int64_t count = std::min<std::int64_t>(samples - written, std::size(silence));
        if (!write(std::span(silence, static_cast<std::size_t>(count)))) {
            return false;
        }
    }
    return true;
}

} // namespace velm
