// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "audio/samples.h"
#include "audio/sound.h"
#include "foundation/chance.h"

#include <unistd.h>

namespace velm::test {
namespace {

TEST(Sound, SineKeepsItsPitchExactly) {
    const Sample s{List(8)};
    SOUND_sine(s, 11025);
    EXPECT_EQ(values(s), (List{0, 32766, 0, -32766, 0, 32766, 0, -32766}));
    const Sample period{List(SAMPLE_rate)};
    SOUND_sine(period, 1);
    EXPECT_EQ(period->data[1], 4);
    EXPECT_EQ(period->data[7350], 28377);
    for (std::int32_t i = 1; i < SAMPLE_rate / 2; ++i) {
        ASSERT_EQ(period->data[SAMPLE_rate / 2 - i], period->data[i]);
        ASSERT_EQ(period->data[SAMPLE_rate - i], -period->data[i]);
    }
    for (const std::int32_t frequency : {2, 3, 440, 7351, 22050, 44099}) {
        const Sample wave{List(SAMPLE_rate * 3 / 2)};
        SOUND_sine(wave, frequency);
        for (std::int32_t i = 0; i < wave->length; ++i) {
            const std::int64_t phase = std::int64_t{i} * frequency % SAMPLE_rate;
            ASSERT_EQ(wave->data[i], period->data[phase]) << frequency << " Hz at " << i;
        }
    }
}

TEST(Sound, SOUND_sineTableOverrun) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    // A process of its own, where the table is not built yet.
    const auto build = [] {
        SAMPLE_verbose = 1;
        const Sample s;
        const bool refused = printedBy([&s] { SOUND_sine(s, 440); }) == "SAMPLE error\n";
        const bool kept = printedBy([&s] { SOUND_sine(s, 440); }).empty();
        _exit(refused && kept ? 0 : 1);
    };
    EXPECT_EXIT(build(), testing::ExitedWithCode(0), "") << "one store misses the table, once";
}

TEST(Sound, SOUND_squareLeavesTailAndSOUND_squareLengthLimit) {
    Images engine(3);
    for (int round = 0; round < 300; ++round) {
        const std::int32_t length = engine.number(0, 3000);
        const std::int32_t frequency =
            round % 2 == 0 ? 28160 : engine.number(1, round % 4 == 1 ? 5000 : 200000);
        const Sample s{List(static_cast<std::size_t>(length), 7)};
        const Sample plain{List(static_cast<std::size_t>(length), 7)};
        SOUND_square(s, frequency);
        const std::int32_t period = 0x56220000 / frequency;
        std::int32_t phase = 0;
        std::int32_t j = 0;
        for (std::int32_t cycle = (length << 15) / period; cycle > 0; --cycle, phase += period) {
            SAMPLE_set(plain, j, 0);
            std::int32_t i = phase >> 15;
            for (; (period / 2 + phase) >> 15 > i; ++i) {
                SAMPLE_set(plain, i, 32767);
            }
            SAMPLE_set(plain, i, 0);
            for (j = ((period / 2 + phase) >> 15) + 1; ((period + phase) >> 15) - 1 > j; ++j) {
                SAMPLE_set(plain, j, -32768);
            }
            SAMPLE_set(plain, j, 0);
        }
        ASSERT_EQ(values(s), values(plain)) << frequency << " Hz, " << length << " values";
    }
    for (const auto& [length, kept] : {std::pair{24U, 4}, {65535U, 267}, {65536U, 65536}, {88200U, 88200}}) {
        const Sample s{List(length, 7)};
        SOUND_square(s, length == 24 ? 4410 : 100);
        EXPECT_EQ(std::count(s->data, s->data + length, 7), kept);
    }
}

TEST(Sound, NoiseDrawsFromTheEnd) {
    const auto draw = [] { return (chance() & 0xFFFF) - 32768; };
    chanceSeed(1);
    const Sample every{List(4)};
    SOUND_noise(every, SAMPLE_rate);
    const Sample seldom{List(22050)};
    SOUND_noise(seldom, 2);
    chanceSeed(1);
    draw(); // the value before the first index, which is never heard at the full rate
    for (std::int32_t i = 3; i >= 0; --i) {
        EXPECT_EQ(every->data[i], draw());
    }
    const List halves = {draw(), draw()};
    EXPECT_EQ(std::count(seldom->data + 11025, seldom->data + 22050, halves[0]), 11025);
    EXPECT_EQ(std::count(seldom->data, seldom->data + 11025, halves[1]), 11025);
}

void compareFades(std::uint32_t seed) {
    Images engine(seed);
    List lengths = {11025, 22050, 32766, 32767, 32768, 32769, 44100, 88200, 132300};
    for (std::int32_t length = 2; length < 400; ++length) {
        lengths.push_back(length);
    }
    for (const std::int32_t length : lengths) {
        const List before = randomValues(engine, length);
        const Sample ramp(before);
        for (const bool out : {true, false}) {
            const Sample plain(before);
            const Sample s(before);
            out ? SAMPLE_ramp(ramp, 0, 32767, length - 1, 0) : SAMPLE_ramp(ramp, 0, 0, length - 1, 32767);
            SAMPLE_multiply(plain, ramp);
            SAMPLE_shiftRight(plain, 15);
            out ? SOUND_fadeOut(s) : SOUND_fadeIn(s);
            ASSERT_EQ(SAMPLE_equals(s, plain), 1) << length << " values, out " << out << ", seed " << seed;
            SOUND_fadeOutTimes(s, 2);
            SOUND_fadeOut(plain);
            SOUND_fadeOut(plain);
            ASSERT_EQ(SAMPLE_equals(s, plain), 1) << length << " values twice more, seed " << seed;
        }
    }
}

TEST(Sound, FadesEqualTheRamps) {
    compareFades(4);
    compareFades(8); // on the other registers
    const Sample one({-32768});
    SOUND_fadeOut(one);
    EXPECT_EQ(one->data[0], -32767);
    SOUND_fadeIn(one);
    EXPECT_EQ(one->data[0], 0);
}

TEST(Sound, FadesOfNothingReportAsTheirRampDoes) {
    const Sample none;
    const Sample bare;
    SAMPLE_setCapacity(bare, 0);
    for (const auto fade : {SOUND_fadeOut, SOUND_fadeIn}) {
        expectReports(SAMPLE_verbose, 1, "SAMPLE error", [&] { fade(none); });
        expectReports(SAMPLE_verbose, 3, "SAMPLE error", [&] { fade(bare); });
    }
}

TEST(Sound, GainsRunDownAndUp) {
    const Sample s({32767, 32767, 32767, -32768});
    SOUND_decay(s);
    EXPECT_EQ(values(s), (List{32767, 24575, 16383, -8192}));
    const Sample rising({32767, 32767, 32767});
    SOUND_attack(rising);
    EXPECT_EQ(values(rising), (List{0, 10921, 21844})) << "thirds carry their fraction";
}

TEST(Sound, FailuresAreReportedAndChangeNothing) {
    const Sample s({5, 5});
    const Sample empty;
    expectReports(SOUND_verbose, 9, "SOUND Error.", [&] {
        SOUND_sine(s, 0), SOUND_sine(s, 44100), SOUND_square(s, 0), SOUND_square(s, -5);
        SOUND_square(s, 1445068801), SOUND_noise(nullptr, 1), SOUND_fadeOut(nullptr), SOUND_decay(empty);
        SOUND_check(nullptr), SOUND_check(s), SOUND_fadeOut(empty);
    });
    EXPECT_EQ(values(s), (List{5, 5}));
}

} // namespace
} // namespace velm::test
