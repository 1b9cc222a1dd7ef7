// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// MUSIC, a tune without a score: one bar of three seconds that is played over and over. Now and then a
// pattern of one random instrument is composed and blended in with a small weight, so that the old fades as
// the new arrives and the loop never quite repeats.
//
//     MUSIC_addInstrument(music, instrument);
//     MUSIC_genRepeat(music);
//     MUSIC_blend(music, 8);
#pragma once

#include "audio/sample.h"
#include "foundation/identity.h"

#include <cstdint>

namespace velm {

struct LIST;
struct RANDOM;

inline constexpr std::int32_t MUSIC_barLength = 3 * SAMPLE_rate;

struct MUSIC {
    std::int32_t tick = 0;     ///< frames counted so far
    std::int32_t period = 300; ///< ticks between two patterns
    SAMPLE* bar;               ///< owned: what is played, MUSIC_barLength values, silent at first
    LIST* instruments;         ///< owned with its samples, in the order added
    SAMPLE* pattern; ///< scratch of the bar's length, made by the first pattern; MUSIC_delete leaves it
};

extern const IDENTITY MUSIC_identity;
extern std::uint8_t MUSIC_verbose;

/// The one generator of all tunes, made by the first MUSIC_new and never freed.
extern RANDOM* MUSIC_random;

/// A tune without instruments, or nullptr (reported).
MUSIC* MUSIC_new();

/// Appends an instrument, which the tune then owns. Without either, nothing happens.
void MUSIC_addInstrument(MUSIC* music, SAMPLE* instrument);

/// Counts a frame, once there is a pattern.
void MUSIC_tick(MUSIC* music);

// Each composes the pattern: draws an instrument and one of the 16 sixteenths of the bar to start on, and
// lays hits from there, going round. A tune without instruments is reported.

/// One hit.
void MUSIC_genSingle(MUSIC* music);
/// One hit, fading out over the bar.
void MUSIC_genSingleFaded(MUSIC* music);
/// 1, 2, 4 or 8 evenly spaced hits; the more there are, the quieter they are.
void MUSIC_genRepeat(MUSIC* music);
/// The same, everything before a hit fading once more with it.
void MUSIC_genRepeatFaded(MUSIC* music);
/// 5, 1, 3 or 7 hits, spaced as if there were one more.
void MUSIC_genRoll(MUSIC* music);

/// bar = (bar * (n - 1) + pattern) / n, once there is a pattern and when n > 1.
void MUSIC_blend(MUSIC* music, std::int32_t n);

/// Composes on: one of the five patterns, by the low three bits of a number of any generator, half of the
/// time a repeat, and blends it in with a weight of 1/8.
void MUSIC_compose(MUSIC* music, std::int32_t number);

/// Frees the bar, the instruments and the record and stores nullptr in the handle. The pattern is not freed.
void MUSIC_delete(MUSIC** handle);

/// Prints "MUSIC ERROR" while MUSIC_verbose is set.
void MUSIC_error();

} // namespace velm
