// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "capture/recorder.h"

#include "capture/bytes.h"
#include "capture/console.h"
#include "capture/film.h"
#include "capture/frame_outputs.h"
#include "capture/wav_file.h"
#include "headless/headless.h"
#include "platform/dsp.h"
#include "platform/gain.h"

#include <algorithm>

namespace velm {

namespace {

using Outputs = std::vector<std::unique_ptr<Output>>;

template <typename Kind, typename... Arguments>
void addIf(Outputs& outputs, const std::string& path, const Arguments&... arguments) {
    if (!path.empty()) {
        outputs.push_back(std::make_unique<Kind>(path, arguments...));
    }
}

bool isOpen(const std::unique_ptr<Output>& output) {
    return output->state() == OutputState::open;
}

/// A presentation has one block at most.
std::uint64_t mostSoundBytes(const CaptureOptions& options) {
    constexpr std::int32_t slowest = 30;
    const std::int32_t block = options.block > 0 ? options.block : DSP_blockBytes(slowest);
    return (std::uint64_t{options.frames} + 1) * static_cast<std::uint64_t>(block);
}

} // namespace

Recorder::Recorder(const CaptureOptions& captureOptions) : options(captureOptions) {
    // The folder first: others may stand in it.
    addIf<NumberedPictures>(outputs, options.ppmFolder);
    addIf<RawFrames>(outputs, options.raw);
    addIf<Checksums>(outputs, options.crc);
    addIf<WavFile>(outputs, options.audio, mostSoundBytes(options), GAIN_factor(options.gain.value_or(0)));
    addIf<Film>(outputs, options.film,
                FilmLook{options.rate, options.scale, GAIN_factor(options.gain.value_or(GAIN_usual))});
}

bool Recorder::isReady() const {
    return std::all_of(outputs.begin(), outputs.end(), isOpen);
}

void Recorder::frame(const IMG& img) {
    std::vector<std::uint32_t> turned;
    const Frame frame{++frames, img, bytesOf<std::uint32_t>(pixelsOf(img), turned), headless.micros};
    for (const auto& output : outputs) {
        if (isOpen(output)) {
            output->frame(frame);
        }
    }
    if (!options.quiet) {
        showProgress(frames, options.frames);
    }
}

void Recorder::sound(std::span<const std::int16_t> samples) {
    for (const auto& output : outputs) {
        if (isOpen(output)) {
            output->sound({samples, headless.micros});
        }
    }
}

bool Recorder::isIdle() const {
    return !outputs.empty() && std::none_of(outputs.begin(), outputs.end(), isOpen);
}

bool Recorder::finish() {
    endProgress();
    bool all = true;
    for (const auto& output : outputs) {
        if (isOpen(output)) {
            output->finish(headless.micros);
        }
        const bool isAlone = outputs.size() == 1;
        if (output->state() == OutputState::cut && !isAlone) {
            say("cannot write all of " + output->name() + ": its reader has left");
        }
        all = all &&
              (output->state() == OutputState::whole || (output->state() == OutputState::cut && isAlone));
    }
    return all;
}

} // namespace velm
