// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "audio/music.h"

#include "audio/sound.h"
#include "foundation/list.h"
#include "foundation/random.h"
#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/wrap.h"

#include <initializer_list>

namespace velm {

const IDENTITY MUSIC_identity = makeIdentity("MUSIC", "ZENDORAK", "CODE", "C", "20150412");
std::uint8_t MUSIC_verbose = 0;
RANDOM* MUSIC_random = nullptr;

namespace {

constexpr std::uint32_t seed = 0x12345678;

enum class Fade : bool { no, yes };
enum class Hits : bool { one, several };

/// What all patterns draw.
struct Draws {
    const SAMPLE* instrument; ///< nullptr: the pattern stays silent
    std::int32_t offset;      ///< where the pattern starts, a sixteenth of the bar
    std::int32_t density;     ///< 0..3; 0 without a draw of it
};

bool hasPattern(const MUSIC* music) {
    return music != nullptr && music->bar != nullptr && music->pattern != nullptr;
}

/// Makes the pattern silent and as long as the bar; false when memory runs out.
bool clearPattern(MUSIC* music) {
    const std::int32_t length = music->bar->length;
    if (music->pattern != nullptr && music->pattern->length != length) {
        SAMPLE_delete(&music->pattern);
    }
    if (music->pattern == nullptr) {
        music->pattern = SAMPLE_new();
        SAMPLE_setLength(music->pattern, length);
    }
    SAMPLE_clear(music->pattern);
    return music->pattern != nullptr && music->pattern->length == length;
}

void deleteInstruments(MUSIC& music) {
    while (music.instruments != nullptr && music.instruments->count > 0) {
        auto* instrument = static_cast<SAMPLE*>(LIST_pop(music.instruments));
        SAMPLE_delete(&instrument);
    }
}

void requireGenerator() {
    if (MUSIC_random == nullptr) {
        MUSIC_random = RANDOM_new();
        if (MUSIC_random != nullptr) {
            MUSIC_random->counter = seed;
        }
    }
}

std::int32_t drawBit() {
    return RANDOM_next(MUSIC_random) & 1;
}

/// Half, quarter, sixteenth and eighth of the bar, each or not: the order of the weights is that of the
/// draws.
std::int32_t drawOffset(std::int32_t barLength) {
    std::int32_t offset = 0;
    for (const std::int32_t shift : {1, 2, 4, 3}) {
        offset += drawBit() * (barLength >> shift);
    }
    return offset;
}

/// Clears the pattern and draws the instrument, the offset and, for several hits, the density.
Draws begin(MUSIC* music, Hits hits) {
    if (music == nullptr || music->bar == nullptr || music->instruments == nullptr) {
        return {};
    }
    if (refused(music->instruments->count == 0 || !clearPattern(music), MUSIC_error)) {
        return {};
    }
    const std::int32_t index = RANDOM_next(MUSIC_random) % music->instruments->count;
    Draws draws{};
    draws.offset = drawOffset(music->bar->length);
    draws.density = hits == Hits::several ? RANDOM_next(MUSIC_random) & 3 : 0;
    draws.instrument = static_cast<const SAMPLE*>(LIST_get(music->instruments, index));
    return draws;
}

void genSingle(MUSIC* music, Fade fade) {
    const Draws draws = begin(music, Hits::one);
    if (draws.instrument == nullptr) {
        return;
    }
    SAMPLE_add(music->pattern, draws.instrument);
    if (fade == Fade::yes) {
        SOUND_fadeOut(music->pattern);
    }
    SAMPLE_rotate(music->pattern, draws.offset);
}

/// Lays `count` hits, turning the pattern on by a part of the bar after each, then makes a dense pattern
/// quieter: (4 - density) / 4.
void layHits(MUSIC* music, const Draws& draws, std::int32_t count, std::int32_t parts, Fade fade) {
    for (std::int32_t hit = 0; hit < count; ++hit) {
        SAMPLE_add(music->pattern, draws.instrument);
        if (fade == Fade::yes) {
            SOUND_fadeOut(music->pattern);
        }
        SAMPLE_rotate(music->pattern, music->bar->length / parts);
    }
    SAMPLE_scale(music->pattern, 4 - draws.density);
    SAMPLE_shiftRight(music->pattern, 2);
    SAMPLE_rotate(music->pattern, draws.offset);
}

void genRepeat(MUSIC* music, Fade fade) {
    const Draws draws = begin(music, Hits::several);
    if (draws.instrument != nullptr) {
        const std::int32_t count = 1 << draws.density;
        layHits(music, draws, count, count, fade);
    }
}

} // namespace

MUSIC* MUSIC_new() {
    return newRecord<MUSIC>(MUSIC_error, MUSIC_delete, [](MUSIC& music) {
        music.bar = SAMPLE_new();
        SAMPLE_setLength(music.bar, MUSIC_barLength);
        music.instruments = LIST_new();
        requireGenerator();
        const bool hasBar = music.bar != nullptr && music.bar->length == MUSIC_barLength;
        return !refused(!hasBar || music.instruments == nullptr || MUSIC_random == nullptr, MUSIC_error);
    });
}

void MUSIC_addInstrument(MUSIC* music, SAMPLE* instrument) {
    if (music != nullptr && instrument != nullptr) {
        LIST_append(music->instruments, instrument);
    }
}

void MUSIC_tick(MUSIC* music) {
    if (hasPattern(music)) {
        music->tick = wrapAdd(music->tick, 1);
    }
}

void MUSIC_genSingle(MUSIC* music) {
    genSingle(music, Fade::no);
}

void MUSIC_genSingleFaded(MUSIC* music) {
    genSingle(music, Fade::yes);
}

void MUSIC_genRepeat(MUSIC* music) {
    genRepeat(music, Fade::no);
}

void MUSIC_genRepeatFaded(MUSIC* music) {
    genRepeat(music, Fade::yes);
}

void MUSIC_genRoll(MUSIC* music) {
    const Draws draws = begin(music, Hits::several);
    if (draws.instrument != nullptr) {
        // The density that would leave no hit means five.
        const std::int32_t count = draws.density == 0 ? 5 : (1 << draws.density) - 1;
        layHits(music, draws, count, count + 1, Fade::no);
    }
}

void MUSIC_blend(MUSIC* music, std::int32_t n) {
    if (hasPattern(music) && n > 1) {
        SAMPLE_scale(music->bar, n - 1);
        SAMPLE_add(music->bar, music->pattern);
        SAMPLE_divide(music->bar, n);
    }
}

void MUSIC_compose(MUSIC* music, std::int32_t number) {
    constexpr std::int32_t blendWeight = 8;
    switch (number & 7) {
    case 0:
        MUSIC_genSingle(music);
        break;
    case 1:
        MUSIC_genSingleFaded(music);
        break;
    case 2:
        MUSIC_genRoll(music);
        break;
    case 3:
        MUSIC_genRepeatFaded(music);
        break;
    default:
        MUSIC_genRepeat(music);
        break;
    }
    MUSIC_blend(music, blendWeight);
}

void MUSIC_delete(MUSIC** handle) {
    // MUSIC_deleteLeavesPattern: one expects the scratch to go as well; it stays with whoever still has it.
    deleteRecord(handle, MUSIC_error, deletedBy(SAMPLE_delete, &MUSIC::bar), deleteInstruments,
                 deletedBy(LIST_delete, &MUSIC::instruments));
}

void MUSIC_error() {
    reportLine(MUSIC_verbose, "MUSIC ERROR");
}

} // namespace velm
