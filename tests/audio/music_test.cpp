// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "audio/music.h"
#include "audio/samples.h"
#include "audio/sound.h"
#include "foundation/list.h"
#include "foundation/random.h"

#include <span>

namespace velm::test {
namespace {

class MusicTest : public testing::Test {
protected:
    static constexpr std::int32_t barLength = 1003;

    void SetUp() override {
        SAMPLE_setLength(music->bar, barLength);
        for (std::int32_t i = 1; i <= 5; ++i) {
            SAMPLE* instrument = SAMPLE_new();
            SAMPLE_append(instrument, 1000 * i);
            SAMPLE_append(instrument, -3 * i);
            MUSIC_addInstrument(music, instrument);
        }
    }
    void TearDown() override { pattern = Pattern(music->pattern); } // which MUSIC_delete leaves

    using Pattern = Owned<SAMPLE_delete>;
    Pattern pattern;
    Owned<MUSIC_delete> music{MUSIC_new()};
};

/// Hits and spacing by the density drawn.
struct Figure {
    void (*generate)(MUSIC*);
    bool fades;
    std::int32_t hits[4];
    std::int32_t parts[4];
};

/// The pattern as the plain steps make it, drawn from a copy of the generator.
void composePlainly(const MUSIC* music, RANDOM draws, const Figure& figure, SAMPLE* pattern) {
    const std::int32_t length = music->bar->length;
    SAMPLE_setLength(pattern, length);
    SAMPLE_clear(pattern);
    const auto* instrument = static_cast<const SAMPLE*>(
        LIST_get(music->instruments, RANDOM_next(&draws) % music->instruments->count));
    std::int32_t offset = 0;
    for (const std::int32_t part : {2, 4, 16, 8}) {
        offset += (RANDOM_next(&draws) & 1) * (length / part);
    }
    const std::int32_t density = RANDOM_next(&draws) & 3;
    for (std::int32_t hit = 0; hit < figure.hits[density]; ++hit) {
        SAMPLE_add(pattern, instrument);
        if (figure.fades) {
            SOUND_fadeOut(pattern);
        }
        SAMPLE_rotate(pattern, length / figure.parts[density]);
    }
    for (std::int32_t& value : std::span(pattern->data, pattern->data + length)) {
        value = value * (4 - density) >> 2;
    }
    SAMPLE_rotate(pattern, offset);
}

TEST_F(MusicTest, PatternsOfSeveralHitsFollowTheirDraws) {
    const Figure figures[] = {{MUSIC_genRepeat, false, {1, 2, 4, 8}, {1, 2, 4, 8}},
                              {MUSIC_genRepeatFaded, true, {1, 2, 4, 8}, {1, 2, 4, 8}},
                              {MUSIC_genRoll, false, {5, 1, 3, 7}, {6, 2, 4, 8}}};
    const Sample expected;
    for (int round = 0; round < 200; ++round) {
        for (const Figure& figure : figures) {
            composePlainly(music, *MUSIC_random, figure, expected);
            figure.generate(music);
            ASSERT_EQ(values(music->pattern), values(expected)) << "round " << round;
        }
    }
}

TEST_F(MusicTest, TheGeneratorIsSharedAndStartsTheSame) {
    RANDOM* const before = MUSIC_random;
    const Owned<MUSIC_delete> other(MUSIC_new());
    EXPECT_EQ(MUSIC_random, before);
    EXPECT_EQ(other->bar->length, 132300);
    const auto makeFirst = [] {
        MUSIC_random = nullptr;
        MUSIC_new();
        const RANDOM& r = *MUSIC_random;
        std::_Exit(r.counter == 0x12345678 && r.multiplier == 33141 && r.state == 1 ? 0 : 1);
    };
    EXPECT_EXIT(makeFirst(), testing::ExitedWithCode(0), "");
}

TEST_F(MusicTest, TicksAndBlendsOnceThereIsAPattern) {
    MUSIC_tick(music);
    MUSIC_blend(music, 8);
    EXPECT_EQ(music->tick, 0);
    MUSIC_genSingle(music);
    EXPECT_EQ(music->pattern->length, barLength);
    MUSIC_tick(music);
    EXPECT_EQ(music->tick, 1);
    SAMPLE_setLength(music->bar, 3);
    MUSIC_genRepeat(music);
    EXPECT_EQ(music->pattern->length, 3) << "a pattern of another length makes way";
    for (std::int32_t i = 0; i < 3; ++i) {
        SAMPLE_set(music->bar, i, 100 * (i - 1));
        SAMPLE_set(music->pattern, i, 5 - 6 * i);
    }
    MUSIC_blend(music, 1);
    MUSIC_blend(music, 0);
    EXPECT_EQ(values(music->bar), (List{-100, 0, 100}));
    MUSIC_blend(music, 8);
    EXPECT_EQ(values(music->bar), (List{-86, 0, 86})) << "-695 and -1 and 693 eighths, cut towards 0";
}

TEST_F(MusicTest, MUSIC_deleteLeavesPattern) {
    for (const int nth : {1, 2, 3, 4, 5, 6}) {
        expectFailure(nth, MUSIC_new);
    }
    const Owned<MUSIC_delete> silent(MUSIC_new());
    const RANDOM before = *MUSIC_random;
    expectReports(MUSIC_verbose, 2, "MUSIC ERROR", [&] {
        MUSIC_addInstrument(music, nullptr), MUSIC_genRoll(nullptr), MUSIC_delete(nullptr);
        MUSIC_genSingle(silent); // it has no instruments
    });
    EXPECT_EQ(MUSIC_random->counter, before.counter);
    EXPECT_EQ(silent->pattern, nullptr);
    EXPECT_EQ(music->instruments->count, 5);
    MUSIC_genSingle(music);
    pattern = Pattern(music->pattern);
    music = Owned<MUSIC_delete>(MUSIC_new());
    EXPECT_EQ(pattern->length, barLength);
}

} // namespace
} // namespace velm::test
