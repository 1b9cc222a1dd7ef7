// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The sound between the demo, which gives a block a frame, and the device, which takes bites when it likes.
// Two threads use it. A queue that ran dry begins anew with a silence, so that the device has something
// ahead.
//
//     if (queue.push(block)) { ... }   // the demo
//     queue.pull(bite);                // the device
#pragma once

#include "audio/sample.h"

#include <cstdint>
#include <deque>
#include <mutex>
#include <span>

namespace velm {

class SoundQueue {
public:
    static constexpr std::int64_t full = SAMPLE_rate / 4; ///< samples that are to wait
    static constexpr std::int64_t most = 2 * full;        ///< samples that may wait

    /// Appends a block; false, and nothing happens, when it would wait for too long.
    bool push(std::span<const std::int16_t> block);

    /// Fills a bite at the time `now`, with silence where nothing waits.
    void pull(std::span<std::int16_t> bite, std::int64_t now);

    /// Forgets what waits.
    void clear();

    /// How far what waits is beyond `full`, in microseconds; negative while it lacks. The device plays on
    /// between two bites.
    [[nodiscard]] std::int64_t aheadMicros(std::int64_t now);

private:
    std::mutex mutex;
    std::deque<std::int16_t> waiting;
    std::int64_t bittenMicros = 0; ///< the time of the last bite
    std::int64_t biteMicros = 0;   ///< how long it lasts
};

} // namespace velm
