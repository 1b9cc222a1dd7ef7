// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What every operation on whole samples costs, for two seconds of sound.
#include "audio/sample.h"
#include "audio/sound.h"
#include "foundation/owned.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstring>
#include <random>

namespace velm {
namespace {

constexpr std::int32_t length = 2 * SAMPLE_rate;
constexpr std::int32_t note = 440;
constexpr std::int32_t peak = 32000;

using Sound = Owned<SAMPLE_delete>;

Sound newSound(std::uint32_t seed) {
    Sound sound(SAMPLE_new());
    SAMPLE_setLength(sound, length);
    std::mt19937 engine(seed);
    std::generate_n(sound->data, length,
                    [&engine] { return static_cast<std::int32_t>(engine() & 0xFFFF) - 0x8000; });
    return sound;
}

struct Named {
    const char* name;
    void (*run)(SAMPLE* a, SAMPLE* b);
};

constexpr Named operations[] = {
    {"memcpy",
     [](SAMPLE* a, SAMPLE* b) { std::memcpy(a->data, b->data, sizeof *a->data * std::size_t{length}); }},
    {"clear", [](SAMPLE* a, SAMPLE*) { SAMPLE_clear(a); }},
    {"add", [](SAMPLE* a, SAMPLE* b) { SAMPLE_add(a, b); }},
    {"multiply", [](SAMPLE* a, SAMPLE* b) { SAMPLE_multiply(a, b); }},
    {"mixScaled", [](SAMPLE* a, SAMPLE* b) { SAMPLE_mixScaled(a, b, 3, 7); }},
    {"mixFixed", [](SAMPLE* a, SAMPLE* b) { SAMPLE_mixFixed(a, b, 0x6000); }},
    {"scale", [](SAMPLE* a, SAMPLE*) { SAMPLE_scale(a, 3); }},
    {"divide", [](SAMPLE* a, SAMPLE*) { SAMPLE_divide(a, 7); }},
    {"shiftRight", [](SAMPLE* a, SAMPLE*) { SAMPLE_shiftRight(a, 2); }},
    {"shiftLeft", [](SAMPLE* a, SAMPLE*) { SAMPLE_shiftLeft(a, 2); }},
    {"normalize",
     [](SAMPLE* a, SAMPLE* b) {
         a->data[0] = b->data[0]; // never silent
         SAMPLE_normalize(a, peak);
     }},
    {"rescale",
     [](SAMPLE* a, SAMPLE*) {
         a->data[0] = peak; // never flat
         a->data[1] = 0;
         SAMPLE_rescale(a, -peak, peak);
     }},
    {"rotate", [](SAMPLE* a, SAMPLE*) { SAMPLE_rotate(a, length / 3); }},
    {"resize", [](SAMPLE* a, SAMPLE*) { SAMPLE_resize(a, length); }},
    {"ramp", [](SAMPLE* a, SAMPLE*) { SAMPLE_ramp(a, 0, peak, length - 1, 0); }},
    {"sine", [](SAMPLE* a, SAMPLE*) { SOUND_sine(a, note); }},
    {"square",
     [](SAMPLE* a, SAMPLE*) {
         a->length = SAMPLE_rate; // the longest that takes a square wave
         SOUND_square(a, note);
         a->length = length;
     }},
    {"noise", [](SAMPLE* a, SAMPLE*) { SOUND_noise(a, note); }},
    {"fadeOut", [](SAMPLE* a, SAMPLE*) { SOUND_fadeOut(a); }},
    {"fadeIn", [](SAMPLE* a, SAMPLE*) { SOUND_fadeIn(a); }},
    {"decay", [](SAMPLE* a, SAMPLE*) { SOUND_decay(a); }},
    {"attack", [](SAMPLE* a, SAMPLE*) { SOUND_attack(a); }},
};

void runOperation(benchmark::State& state, void (*operation)(SAMPLE*, SAMPLE*)) {
    const Sound a = newSound(1);
    const Sound b = newSound(2);
    for (auto _ : state) {
        operation(a, b);
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * length);
}

[[maybe_unused]] const bool registered = [] {
    for (const Named& operation : operations) {
        benchmark::RegisterBenchmark(operation.name, runOperation, operation.run)
            ->Unit(benchmark::kMicrosecond);
    }
    return true;
}();

} // namespace
} // namespace velm
