// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "audio/sample.h"
#include "sound_driver.h"

#include <alsa/asoundlib.h>
#include <vector>

namespace velm {

namespace {

snd_pcm_t* device = nullptr;
snd_pcm_uframes_t bufferSamples = 0;

/// Writes all of it; an end of the sound that comes in between is left for the next block to mend.
bool writeAll(std::span<const std::int16_t> samples) {
    while (!samples.empty()) {
        const snd_pcm_sframes_t written = snd_pcm_writei(device, samples.data(), samples.size());
        if (written == -EPIPE || written == -ESTRPIPE) {
            return true;
        }
        if (written < 0) {
            return false;
        }
        samples = samples.subspan(static_cast<std::size_t>(written));
    }
    return true;
}

/// Fills the device with silence but for the block to come, so that it starts, or goes on, with all that it
/// can hold.
bool fillWithSilence(std::size_t blockSamples) {
    const std::size_t room = bufferSamples > blockSamples ? bufferSamples - blockSamples : 0;
    return writeAll(std::vector<std::int16_t>(room));
}

} // namespace

bool alsaOpen() {
    constexpr unsigned int channels = 1;
    constexpr int mayResample = 1;
    constexpr unsigned int bufferMicros = 120000;
    snd_pcm_uframes_t periodSamples = 0;
    return snd_pcm_open(&device, "default", SND_PCM_STREAM_PLAYBACK, 0) >= 0 &&
           snd_pcm_set_params(device, SND_PCM_FORMAT_S16_LE, SND_PCM_ACCESS_RW_INTERLEAVED, channels,
                              SAMPLE_rate, mayResample, bufferMicros) >= 0 &&
           snd_pcm_get_params(device, &bufferSamples, &periodSamples) >= 0;
}

bool alsaWrite(std::span<const std::int16_t> samples) {
    const snd_pcm_sframes_t room = snd_pcm_avail_update(device);
    const bool stopped = room < 0;
    // Some devices stop when they have nothing left (a pause, a muted demo), others play on without a sound.
    if (stopped && snd_pcm_prepare(device) < 0) {
        return false;
    }
    if ((stopped || static_cast<snd_pcm_uframes_t>(room) >= bufferSamples) &&
        !fillWithSilence(samples.size())) {
        return false;
    }
    return writeAll(samples);
}

} // namespace velm
