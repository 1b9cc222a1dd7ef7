// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "platform/sound_queue.h"

#include <algorithm>

namespace velm {

namespace {

constexpr std::int64_t microsOf(std::int64_t samples) {
    constexpr std::int64_t microsPerSecond = 1000000;
    return samples * microsPerSecond / SAMPLE_rate;
}

} // namespace

bool SoundQueue::push(std::span<const std::int16_t> block) {
    const std::lock_guard lock(mutex);
    if (waiting.empty()) {
        waiting.resize(full);
    }
    if (waiting.size() + block.size() > most) {
        return false;
    }
    waiting.insert(waiting.end(), block.begin(), block.end());
    return true;
}

void SoundQueue::pull(std::span<std::int16_t> bite, std::int64_t now) {
    const std::lock_guard lock(mutex);
    const auto count = static_cast<std::ptrdiff_t>(std::min(bite.size(), waiting.size()));
    std::copy_n(waiting.begin(), count, bite.begin());
    std::fill(bite.begin() + count, bite.end(), std::int16_t{0});
    waiting.erase(waiting.begin(), waiting.begin() + count);
    bittenMicros = now;
    biteMicros = microsOf(static_cast<std::int64_t>(bite.size()));
}

void SoundQueue::clear() {
    const std::lock_guard lock(mutex);
    waiting.clear();
}

std::int64_t SoundQueue::aheadMicros(std::int64_t now) {
    const std::lock_guard lock(mutex);
    const auto samples = static_cast<std::int64_t>(waiting.size());
    return microsOf(samples - full) - std::clamp<std::int64_t>(now - bittenMicros, 0, biteMicros);
}

} // namespace velm
