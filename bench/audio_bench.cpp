// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What the sound costs: the bank of instruments at start-up, and a new pattern with its blend, which one
// frame in 360 has to afford.
#include "audio/music.h"
#include "demo/instruments.h"

#include <benchmark/benchmark.h>

namespace velm {
namespace {

void deleteMusic(MUSIC* music) {
    if (music->pattern != nullptr) {
        SAMPLE_delete(&music->pattern);
    }
    MUSIC_delete(&music);
}

void bankBuild(benchmark::State& state) {
    for (auto _ : state) {
        MUSIC* music = VELM4030_buildMusic();
        benchmark::ClobberMemory();
        state.PauseTiming();
        deleteMusic(music);
        state.ResumeTiming();
    }
}
BENCHMARK(bankBuild)->Unit(benchmark::kMillisecond);

template <void (*generate)(MUSIC*)>
void patternAndBlend(benchmark::State& state) {
    constexpr std::int32_t weight = 8;
    MUSIC* const music = VELM4030_buildMusic();
    for (auto _ : state) {
        generate(music);
        MUSIC_blend(music, weight);
        benchmark::ClobberMemory();
    }
    deleteMusic(music);
}
BENCHMARK(patternAndBlend<MUSIC_genSingle>)->Name("single")->Unit(benchmark::kMillisecond);
BENCHMARK(patternAndBlend<MUSIC_genSingleFaded>)->Name("singleFaded")->Unit(benchmark::kMillisecond);
BENCHMARK(patternAndBlend<MUSIC_genRepeat>)->Name("repeat")->Unit(benchmark::kMillisecond);
BENCHMARK(patternAndBlend<MUSIC_genRepeatFaded>)->Name("repeatFaded")->Unit(benchmark::kMillisecond);
BENCHMARK(patternAndBlend<MUSIC_genRoll>)->Name("roll")->Unit(benchmark::kMillisecond);

} // namespace
} // namespace velm

BENCHMARK_MAIN();
