// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Advanced Linux Sound Architecture: the desktop's default device, behind which PulseAudio and PipeWire
// answer, too. It is kept full, by silence when there is nothing else: a device that has run dry needs a
// while to start again, and sound is lost meanwhile.
#include "audio/sample.h"
#include "sound_driver.h"

#include <algorithm>
#include <alsa/asoundlib.h>
#include <vector>

namespace velm {

namespace {

snd_pcm_t* device = nullptr;
snd_pcm_sframes_t bufferSamples = 0;
bool isIdle = true; ///< what plays is silence

/// Writes all of it; a device that stops in between is left for the next write to start.
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

bool writeSilence(snd_pcm_sframes_t samples) {
    return samples <= 0 || writeAll(std::vector<std::int16_t>(static_cast<std::size_t>(samples)));
}

/// How many samples the device lacks to hold a buffer and an eighth. A sound server takes its sound in bites;
/// the samples that it has still to play tell of the time in between. The eighth waits in front of a buffer
/// that is full.
std::int32_t lackNow() {
    snd_pcm_sframes_t toPlay = 0;
    if (snd_pcm_delay(device, &toPlay) < 0) {
        toPlay = 0; // it has stopped
    }
    toPlay = std::clamp<snd_pcm_sframes_t>(toPlay, 0, 2 * bufferSamples);
    return static_cast<std::int32_t>(bufferSamples + bufferSamples / 8 - toPlay);
}

/// How many samples fit now; a device that has stopped is empty and made ready. Negative when it is lost.
snd_pcm_sframes_t roomNow() {
    const snd_pcm_sframes_t room = snd_pcm_avail_update(device);
    if (room >= 0) {
        return room;
    }
    isIdle = true;
    return snd_pcm_prepare(device) < 0 ? -1 : bufferSamples;
}

} // namespace

bool alsaOpen() {
    constexpr unsigned int channels = 1;
    constexpr int mayResample = 1;
    constexpr unsigned int bufferMicros = 200000;
    snd_pcm_uframes_t buffer = 0;
    snd_pcm_uframes_t period = 0;
    if (snd_pcm_open(&device, "default", SND_PCM_STREAM_PLAYBACK, 0) < 0 ||
        snd_pcm_set_params(device, SND_PCM_FORMAT_S16_LE, SND_PCM_ACCESS_RW_INTERLEAVED, channels,
                           SAMPLE_rate, mayResample, bufferMicros) < 0 ||
        snd_pcm_get_params(device, &buffer, &period) < 0) {
        return false;
    }
    bufferSamples = static_cast<snd_pcm_sframes_t>(buffer);
    // A sound server takes up to two buffers before it plays; what does not fit then waits until it does.
    return writeSilence(2 * bufferSamples + bufferSamples / 2);
}

std::optional<std::int32_t> alsaWrite(std::span<const std::int16_t> samples) {
    // After a silence the device is filled up first. The block then has to wait as it will from now on.
    if (roomNow() < 0 || (isIdle && !writeSilence(lackNow()))) {
        return std::nullopt;
    }
    isIdle = false;
    return writeAll(samples) ? std::optional(lackNow()) : std::nullopt;
}

bool alsaIdle() {
    const snd_pcm_sframes_t room = roomNow();
    if (room < 0) {
        return false;
    }
    if (room <= bufferSamples - bufferSamples / 4) {
        return true;
    }
    isIdle = true;
    return writeSilence(room - bufferSamples / 2);
}

} // namespace velm
