// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The sound device as the demo sees it. The speaker runs in a thread of the browser's, shares no memory with
// the program and tells now and then how far it is.
#include "audio/sample.h"
#include "platform/clock.h"
#include "platform/dsp.h"
#include "platform/gain.h"
#include "platform/pace.h"
#include "platform/sound_queue.h"
#include "web/browser.h"
#include "web/time.h"
#include "web/web.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace velm {

namespace {

constexpr std::int32_t theDevice = 0;

/// What the speaker has told last, and what it was sent.
struct {
    std::uint32_t given = 0;    ///< samples that it was sent, modulo 2^32
    std::uint32_t received = 0; ///< those that had arrived, likewise
    std::int32_t waiting = 0;   ///< those that it had still to play
    std::int64_t toldMicros = 0;
} speaker;

Pace pace;
bool speakerLeads = false; ///< it took a block since the last sleep

/// Samples that the speaker has still to play, those on their way included.
std::int64_t samplesAhead() {
    return std::int64_t{speaker.waiting} + static_cast<std::int32_t>(speaker.given - speaker.received);
}

/// How far that is beyond what is to wait; the speaker plays on between two reports.
std::int64_t aheadMicros() {
    constexpr std::int64_t longestSilence = 50000;
    constexpr std::int64_t microsPerSecond = 1000000;
    const std::int64_t since = std::clamp<std::int64_t>(CLOCK_now() - speaker.toldMicros, 0, longestSilence);
    return (samplesAhead() - SoundQueue::full) * microsPerSecond / SAMPLE_rate - since;
}

} // namespace

void WEB_heard(std::int32_t waiting, std::uint32_t received) {
    speaker.waiting = waiting;
    speaker.received = received;
    speaker.toldMicros = CLOCK_now();
}

std::int32_t speakerCorrection() {
    return std::exchange(speakerLeads, false) ? pace.correction(aheadMicros()) : 0;
}

std::int32_t DSP_open(const char*) {
    return theDevice; // the speaker may come later, or not at all
}

std::int32_t DSP_frameRate(std::int32_t, std::int32_t framesPerSecond) {
    return DSP_blockBytes(framesPerSecond);
}

std::int32_t DSP_request(std::int32_t, DspRequest request, std::int32_t* word) {
    if (request == DspRequest::blockSize) {
        *word = DSP_blockBytes(DSP_usualRate);
    }
    return 0;
}

std::int32_t DSP_write(std::int32_t, const std::int16_t* block, std::int32_t samples) {
    std::vector<std::int16_t> loud(block, block + samples);
    GAIN_apply(loud, GAIN_factor(web.gain));
    const bool hasRoom = samplesAhead() + samples <= SoundQueue::most;
    speakerLeads = hasRoom && browserPlay(loud.data(), samples) != 0;
    if (!speakerLeads) {
        return 0;
    }
    speaker.given += static_cast<std::uint32_t>(samples);
    return samples * static_cast<std::int32_t>(sizeof *block);
}

void DSP_close(std::int32_t) {}

} // namespace velm
