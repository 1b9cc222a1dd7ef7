// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// velm4030-capture: the demo on the machine without a machine, its frames and its sound written as they come.
#include "capture/console.h"
#include "capture/options.h"
#include "capture/recorder.h"
#include "capture/signals.h"
#include "demo/programme.h"
#include "demo/scenes.h"
#include "demo/velm4030.h"
#include "headless/headless.h"
#include "image/img.h"

#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <unistd.h>

namespace {

constexpr int statusNotWritten = 1;
constexpr int statusEndlessPause = 3;

/// The demo ends in the middle of a frame, by a limit of ours or by its Escape key, so the recorder is
/// reached from wherever that is.
velm::Recorder* recorder = nullptr;

void finishRecording() {
    if (!recorder->finish()) {
        std::_Exit(statusNotWritten);
    }
}

void record(const velm::IMG& frame) {
    recorder->frame(frame);
    if (recorder->isIdle()) {
        std::_Exit(recorder->finish() ? 0 : statusNotWritten);
    }
}

[[noreturn]] void reportEndlessPause() {
    velm::say("paused after frame " + std::to_string(velm::headless.frames) +
              ", and no key is left to end it");
    std::exit(statusEndlessPause);
}

/// An output must not become standard output because the caller has closed that.
void takeClosedStreams() {
    int descriptor = STDIN_FILENO;
    while (descriptor >= 0 && descriptor <= STDERR_FILENO) {
        descriptor = open("/dev/null", O_RDONLY | O_CLOEXEC);
    }
    close(descriptor);
}

} // namespace

int main(int argc, char** argv) {
    using namespace velm;
    const CaptureOptions options = parseOptions(argc, argv);
    takeClosedStreams();
    cleanUpOnSignals();
    static Recorder theRecorder(options);
    if (!theRecorder.isReady()) {
        return statusNotWritten;
    }
    recorder = &theRecorder;
    headless.keys = options.keys;
    headless.pointers = options.pointers;
    headless.blockBytes = options.block;
    headless.frameLimit = options.frames;
    headless.onFrame = record;
    headless.onSound = [](std::span<const std::int16_t> samples) { recorder->sound(samples); };
    headless.onLimit = [] { std::exit(0); };
    headless.onEndlessPause = reportEndlessPause;
    VELM4030_start(); // a run that does not begin leaves no files
    std::atexit(finishRecording);
    VELM4030_setFrameRate(options.rate);
    if (options.tour) {
        PROGRAMME tour;
        PROGRAMME_play(tour);
    }
    SCENE_runForEver(options.scene);
}
