// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// velm4030-capture: the demo on the machine without a machine, its frames and its sound written as they come.
#include "capture/options.h"
#include "capture/recorder.h"
#include "demo/velm4030.h"
#include "headless/headless.h"

#include <csignal>
#include <cstdlib>

namespace {

constexpr int statusEndlessPause = 3;

/// The demo ends in the middle of a frame, by a limit of ours or by its Escape key, so the recorder is
/// reached from wherever that is.
velm::Recorder* recorder = nullptr;

void finishRecording() {
    recorder->finish();
}

[[noreturn]] void reportEndlessPause() {
    recorder->endProgressLine();
    std::fprintf(stderr, "velm4030-capture: paused after frame %u, and no key is left to end it\n",
                 velm::headless.frames);
    std::exit(statusEndlessPause);
}

} // namespace

int main(int argc, char** argv) {
    using namespace velm;
    const CaptureOptions options = parseOptions(argc, argv);
    std::signal(SIGPIPE, SIG_IGN);
    static Recorder theRecorder(options);
    recorder = &theRecorder;
    headless.keys = options.keys;
    headless.pointers = options.pointers;
    headless.blockBytes = options.block;
    headless.frameLimit = options.frames;
    headless.onFrame = [](const IMG& frame) { recorder->frame(frame); };
    headless.onSound = [](std::span<const std::int16_t> samples) { recorder->sound(samples); };
    headless.onLimit = [] { std::exit(0); };
    headless.onEndlessPause = reportEndlessPause;
    VELM4030_start(); // a run that does not begin leaves no files
    std::atexit(finishRecording);
    VELM4030_setFrameRate(options.rate);
    SCENE_runForEver(options.scene);
}
