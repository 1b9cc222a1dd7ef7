// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The sound device as the program sees it: a ring that the window empties at the pace of its own device.
#include "audio/sample.h"
#include "live/live.h"
#include "platform/clock.h"
#include "platform/dsp.h"
#include "platform/pace.h"

#include <algorithm>
#include <array>
#include <span>
#include <unistd.h>
#include <utility>

namespace velm {

namespace {

constexpr std::int32_t theDevice = 0;

Pace pace;
bool soundLeads = false;    ///< a block went to the window since the last sleep
bool isTaken = true;        ///< the window has taken sound when it was last waited for
std::int64_t lastBlock = 0; ///< CLOCK_now() when the program last gave one

/// Sound begins with a silence, so that a frame that takes a little longer is not heard.
void lead() {
    constexpr std::int64_t longSilence = 2000000;
    constexpr std::size_t samples = SAMPLE_rate / 20;
    const std::int64_t now = CLOCK_now();
    if (now - std::exchange(lastBlock, now) > longSilence) {
        static constexpr std::array<std::int16_t, samples> silence{};
        liveChannel()->sound.push(silence);
    }
}

/// Hands over as much as the window takes, waiting while it takes some now and then; returns what is left.
std::span<const std::int16_t> handOver(std::span<const std::int16_t> block) {
    constexpr std::int64_t patience = 500000;
    constexpr useconds_t nap = 1000;
    for (std::int64_t last = CLOCK_now();; usleep(nap)) {
        if (const std::uint32_t taken = liveChannel()->sound.push(block); taken > 0) {
            block = block.subspan(taken);
            last = CLOCK_now();
            isTaken = true;
        }
        isTaken = isTaken && CLOCK_now() - last < patience;
        if (block.empty() || !isTaken) {
            return block;
        }
    }
}

} // namespace

std::int32_t liveCorrection() {
    constexpr std::int64_t microsPerSecond = 1000000;
    if (!std::exchange(soundLeads, false)) {
        return 0;
    }
    return pace.correction(liveChannel()->sound.count() * microsPerSecond / SAMPLE_rate);
}

std::int32_t DSP_open(const char*) {
    return liveChannel() != nullptr && liveChannel()->hasSound != 0 ? theDevice : -1;
}

std::int32_t DSP_request(std::int32_t, DspRequest request, std::int32_t* word) {
    if (request == DspRequest::blockSize) {
        *word = DSP_blockBytes(DSP_usualRate);
    }
    return 0;
}

std::int32_t DSP_frameRate(std::int32_t, std::int32_t framesPerSecond) {
    return DSP_blockBytes(std::min(framesPerSecond, Channel::mostRate));
}

std::int32_t DSP_write(std::int32_t, const std::int16_t* block, std::int32_t samples) {
    const std::span<const std::int16_t> whole(block, static_cast<std::size_t>(samples));
    lead();
    const std::span<const std::int16_t> left = handOver(whole);
    soundLeads = left.empty();
    return static_cast<std::int32_t>(whole.size_bytes() - left.size_bytes());
}

void DSP_close(std::int32_t) {}

} // namespace velm
