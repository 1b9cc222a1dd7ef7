// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What a frame costs, everything but the display and the sound device: whole scenes on the headless platform,
// divided by the frames that they present.
#include "demo/state.h"
#include "demo/velm4030.h"
#include "headless.h"

#include <benchmark/benchmark.h>

namespace velm {
namespace {

void startOnce() {
    if (demo.fps == nullptr) {
        VELM4030_init();
    }
}

/// Time per presentation of whole runs of a scene.
void runScene(benchmark::State& state, void (*scene)()) {
    startOnce();
    std::uint32_t frames = 0;
    for (auto _ : state) {
        const std::uint32_t before = headless.frames;
        scene();
        frames += headless.frames - before;
    }
    state.counters["frame"] =
        benchmark::Counter(frames, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void filters(benchmark::State& state) {
    startOnce();
    demo.blur = 1;
    demo.glare = 1;
    for (auto _ : state) {
        VELM4030_postLayer();
    }
    demo.blur = 0;
    demo.glare = 0;
}

BENCHMARK_CAPTURE(runScene, default, VELM4030_sceneDefault)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(runScene, interludeA, VELM4030_sceneInterludeA)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(runScene, interludeB, VELM4030_sceneInterludeB)->Unit(benchmark::kMillisecond);
BENCHMARK(filters);

} // namespace
} // namespace velm
