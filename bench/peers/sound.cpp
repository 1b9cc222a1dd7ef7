// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Samples, as many as a picture has pixels: STK's table sine, in its own double precision, and volk's
// arithmetic in single precision, as wide as our integers.
#include "audio/sound.h"

#include "audio/sample.h"
#include "foundation/chance.h"
#include "rounds.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <stk/SineWave.h>
#include <volk/volk.h>

namespace velm::peers {

namespace {

Owned<SAMPLE_delete> silence(Size size) {
    Owned<SAMPLE_delete> made(SAMPLE_new());
    SAMPLE_setLength(made, size.pixels());
    SAMPLE_clear(made);
    return made;
}

Owned<SAMPLE_delete> noiseSample(Size size) {
    Owned<SAMPLE_delete> made = silence(size);
    std::generate_n(made->data, made->length, [] { return (chance() & 0xFFFF) - 0x8000; });
    return made;
}

/// A sample as volk wants it: on the boundary that its processor likes.
class Floats {
public:
    explicit Floats(const SAMPLE& sample)
        : values(static_cast<float*>(
              volk_malloc(sizeof(float) * static_cast<std::size_t>(sample.length), volk_get_alignment()))) {
        std::copy_n(sample.data, sample.length, values);
    }
    Floats(const Floats&) = delete;
    Floats& operator=(const Floats&) = delete;
    ~Floats() { volk_free(values); }
    float* get() const { return values; }

private:
    float* values;
};

/// Largest difference between our values and theirs times `scale`.
template <typename Value>
Agreement samplesAgree(const SAMPLE& ours, const Value* theirs, double scale, std::int64_t tolerance) {
    double most = 0;
    for (std::int32_t i = 0; i < ours.length; ++i) {
        most = std::max(most, std::abs(ours.data[i] - static_cast<double>(theirs[i]) * scale));
    }
    return agreementWithin(static_cast<std::int64_t>(std::ceil(most)), tolerance);
}

Contender limit(const Owned<SAMPLE_delete>& from, const Owned<SAMPLE_delete>& to) {
    return {
        "memcpy",
        [&] { std::memcpy(to->data, from->data, sizeof(*to->data) * static_cast<std::size_t>(to->length)); },
        {}};
}

void sine(Table& table) {
    constexpr std::int32_t frequency = 440;
    constexpr double fullScale = 32767;
    const Owned<SAMPLE_delete> ours = silence(table.size);
    stk::Stk::setSampleRate(SAMPLE_rate);
    stk::SineWave wave;
    wave.setFrequency(frequency);
    stk::StkFrames frames(static_cast<unsigned>(table.size.pixels()), 1);
    const auto fromTheStart = [&] {
        wave.reset();
        wave.tick(frames);
    };
    compare(table, "table sine",
            {{"ours", [&] { SOUND_sine(ours, frequency); }, {}},
             {"STK", fromTheStart, [&] { return samplesAgree(*ours, &frames[0], fullScale, 2); }}});
}

void adding(Table& table) {
    const Owned<SAMPLE_delete> voice = noiseSample(table.size);
    const Owned<SAMPLE_delete> sum = noiseSample(table.size);
    const Owned<SAMPLE_delete> copy = silence(table.size);
    const Floats theirVoice(*voice);
    const Floats theirSum(*sum);
    const auto volk = [&, count = static_cast<unsigned>(sum->length)] {
        volk_32f_x2_add_32f(theirSum.get(), theirSum.get(), theirVoice.get(), count);
    };
    compare(table, "samples added",
            {{"ours", [&] { SAMPLE_add(sum, voice); }, {}},
             {"volk", volk, [&] { return samplesAgree(*sum, theirSum.get(), 1, 0); }},
             limit(voice, copy)});
}

/// Scaled mixing is two operations of volk's, done in blocks that stay in the processor's nearest memory.
void mixing(Table& table) {
    constexpr std::int32_t numerator = 3;
    constexpr std::int32_t denominator = 8;
    constexpr std::int32_t fixed = numerator * 0x10000 / denominator;
    constexpr float gain = static_cast<float>(numerator) / denominator;
    constexpr unsigned block = 2048;
    const Owned<SAMPLE_delete> voice = noiseSample(table.size);
    const Owned<SAMPLE_delete> sum = noiseSample(table.size);
    const Owned<SAMPLE_delete> fixedSum(SAMPLE_clone(sum));
    const Owned<SAMPLE_delete> copy = silence(table.size);
    const Floats theirVoice(*voice);
    const Floats theirSum(*sum);
    const Floats scaled(*silence({block, 1}));
    const auto volk = [&, count = static_cast<unsigned>(sum->length)] {
        for (unsigned at = 0; at < count; at += block) {
            const unsigned length = std::min(block, count - at);
            volk_32f_s32f_multiply_32f(scaled.get(), theirVoice.get() + at, gain, length);
            volk_32f_x2_add_32f(theirSum.get() + at, theirSum.get() + at, scaled.get(), length);
        }
    };
    const auto mixScaled = [&] { SAMPLE_mixScaled(sum, voice, numerator, denominator); };
    const auto mixFixed = [&] { SAMPLE_mixFixed(fixedSum, voice, fixed); };
    compare(table, "mixing, n / d",
            {{"ours", mixScaled, {}},
             {"volk", volk, [&] { return samplesAgree(*sum, theirSum.get(), 1, 1); }},
             limit(voice, copy)});
    std::copy_n(fixedSum->data, fixedSum->length, theirSum.get());
    compare(table, "mixing, 16.16",
            {{"ours", mixFixed, {}},
             {"volk", volk, [&] { return samplesAgree(*fixedSum, theirSum.get(), 1, 1); }},
             limit(voice, copy)});
}

} // namespace

void sound(Table& table) {
    sine(table);
    adding(table);
    mixing(table);
}

} // namespace velm::peers
