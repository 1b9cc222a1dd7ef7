// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What a frame costs, everything but the display and the sound device: whole scenes on the headless platform,
// divided by the frames that they present.
#include "demo/scenes.h"
#include "demo/state.h"
#include "demo/velm4030.h"
#include "headless/headless.h"

#include <benchmark/benchmark.h>
#include <string>

namespace velm {
namespace {

void startOnce() {
    if (demo.fps == nullptr) {
        VELM4030_init();
    }
}

/// Time per presentation of whole runs of a scene, each ended by Space where it has no end of its own.
void runScene(benchmark::State& state, void (*scene)()) {
    constexpr std::uint32_t longest = 3100;
    startOnce();
    std::uint32_t frames = 0;
    for (auto _ : state) {
        const std::uint32_t before = headless.frames;
        headless.keys = {{before + longest, ' ', 0}};
        headless.nextKey = 0;
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

[[maybe_unused]] const bool registered = [] {
    for (const SCENE& scene : SCENE_all()) {
        benchmark::RegisterBenchmark(std::string(scene.name).c_str(), runScene, scene.run)
            ->Unit(benchmark::kMillisecond);
    }
    return true;
}();
BENCHMARK(filters);

} // namespace
} // namespace velm
