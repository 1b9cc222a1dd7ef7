// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Seven groups of instruments. Each recipe starts an instrument, adds partial voices that it makes in the
// scratch sample, normalises and fades. Peaks fall as notes rise, so that the arrangement does not get
// shrill.
//
// The order is part of the sound: noise draws from chance(), and the scratch carries over what a square wave
// leaves untouched, from call to call and from group to group.
#include "demo/instruments.h"

#include "audio/sample.h"
#include "audio/sound.h"

#include <array>
#include <cstdint>
#include <initializer_list>

namespace velm {

namespace {

constexpr std::int32_t musicPeriod = 360;
constexpr std::int32_t quarterSecond = SAMPLE_rate / 4;
constexpr std::int32_t halfSecond = SAMPLE_rate / 2;
constexpr std::int32_t oneSecond = SAMPLE_rate;
constexpr std::int32_t twoSeconds = SAMPLE_rate * 2;

/// Hertz, an octave a row from C to B. Whole numbers, some cut and some rounded: the tuning is as it stands.
constexpr std::array<std::int32_t, 96> notes = {
    // clang-format off
    32, 34, 36, 39, 41, 44, 46, 49, 52, 55, 58, 62,
    65, 69, 73, 78, 82, 87, 93, 98, 104, 110, 117, 123,
    131, 139, 147, 156, 165, 175, 185, 196, 208, 220, 233, 247,
    262, 277, 294, 311, 330, 349, 370, 392, 415, 440, 466, 494,
    523, 554, 587, 622, 659, 698, 740, 784, 831, 880, 932, 988,
    1046, 1109, 1174, 1244, 1318, 1397, 1480, 1568, 1661, 1760, 1864, 1975,
    2093, 2217, 2349, 2489, 2637, 2793, 2960, 3135, 3322, 3520, 3729, 3951,
    4186, 4434, 4698, 4978, 5274, 5587, 5920, 6272, 6645, 7040, 7458, 7902,
    // clang-format on
};

std::int32_t note(std::int32_t index) {
    return notes[static_cast<std::size_t>(index) % notes.size()];
}

SAMPLE* newInstrument(std::int32_t length) {
    SAMPLE* const instrument = SAMPLE_new();
    SAMPLE_setLength(instrument, length);
    return instrument;
}

/// Normalises, fades and hands the instrument over.
void finish(MUSIC* music, SAMPLE* instrument, std::int32_t peak, std::int32_t fades) {
    SAMPLE_normalize(instrument, peak);
    SOUND_fadeOutTimes(instrument, fades);
    MUSIC_addInstrument(music, instrument);
}

void addSineOrgan(MUSIC* music, SAMPLE* scratch) {
    for (std::int32_t i = 0; i < 48; ++i) {
        SAMPLE* const instrument = newInstrument(halfSecond);
        SOUND_sine(instrument, note(i));
        for (const std::int32_t octave : {1, 2}) {
            SOUND_sine(scratch, note(i) << octave);
            SAMPLE_shiftRight(scratch, octave);
            SAMPLE_add(instrument, scratch);
        }
        finish(music, instrument, 32000 - 500 * i, 1);
    }
}

void addSineWithNoise(MUSIC* music, SAMPLE* scratch) {
    SAMPLE_setLength(scratch, halfSecond);
    for (std::int32_t i = 0; i < 12; ++i) {
        SAMPLE* const instrument = newInstrument(halfSecond);
        SOUND_sine(instrument, note(i));
        SOUND_fadeOut(instrument);
        for (const std::int32_t octave : {3, 4}) {
            SOUND_noise(scratch, note(i) << octave);
            SOUND_fadeOutTimes(scratch, 6);
            SAMPLE_add(instrument, scratch);
        }
        finish(music, instrument, 22000 - 200 * i, 1);
    }
}

void addSquareWithNoise(MUSIC* music, SAMPLE* scratch) {
    for (std::int32_t i = 36; i < 48; ++i) {
        SAMPLE* const instrument = newInstrument(halfSecond);
        SOUND_square(instrument, note(i));
        SAMPLE_shiftRight(instrument, 2);
        SOUND_fadeOut(instrument);
        SOUND_noise(scratch, note(i) / 4);
        SAMPLE_shiftRight(scratch, 4);
        SOUND_fadeOut(scratch);
        SAMPLE_add(instrument, scratch);
        SOUND_noise(scratch, note(i) / 2);
        SAMPLE_shiftRight(scratch, 2);
        for (const std::int32_t octave : {2, 3}) {
            SOUND_fadeOut(scratch);
            SAMPLE_add(instrument, scratch);
            SOUND_noise(scratch, note(i) << octave);
            SOUND_fadeOutTimes(scratch, 3);
        }
        SOUND_fadeOutTimes(scratch, 2);
        SAMPLE_add(instrument, scratch);
        finish(music, instrument, 28000 - 300 * i, 5);
    }
}

/// Twelve hats that differ by their noise only.
void addNoiseHat(MUSIC* music, SAMPLE* scratch) {
    constexpr std::int32_t spikes = 28160; // above what the rate can carry: a few spikes among zeros
    SAMPLE_setLength(scratch, quarterSecond);
    for (std::int32_t i = 84; i < 96; ++i) {
        SAMPLE* const instrument = newInstrument(quarterSecond);
        SOUND_square(instrument, spikes);
        SOUND_fadeOutTimes(instrument, 5);
        for (const std::int32_t rate : {SAMPLE_rate, SAMPLE_rate / 2}) {
            SOUND_noise(scratch, rate);
            SOUND_fadeOutTimes(scratch, 5);
            SAMPLE_add(instrument, scratch);
        }
        SAMPLE_shiftRight(instrument, 2);
        finish(music, instrument, 8000, 5);
    }
}

void addSquareOrgan(MUSIC* music, SAMPLE* scratch) {
    SAMPLE_setLength(scratch, oneSecond);
    for (std::int32_t i = 96; i < 108; ++i) {
        const std::int32_t frequency = note(i - 84);
        SAMPLE* const instrument = newInstrument(oneSecond);
        SOUND_square(instrument, frequency);
        for (const std::int32_t octave : {1, 2}) {
            SOUND_square(scratch, frequency << octave);
            SAMPLE_add(instrument, scratch);
        }
        finish(music, instrument, 28000 - 200 * i, 1);
    }
}

/// Twelve chords of one wave: a note and five more, counted from it in semitones.
void addChords(MUSIC* music, SAMPLE* scratch, std::int32_t first, std::int32_t length, std::int32_t loudest,
               void (*wave)(SAMPLE*, std::int32_t), std::initializer_list<std::int32_t> intervals) {
    SAMPLE_setLength(scratch, length);
    for (std::int32_t i = first; i < first + 12; ++i) {
        SAMPLE* const instrument = newInstrument(length);
        wave(instrument, note(i));
        for (const std::int32_t interval : intervals) {
            wave(scratch, note(i + interval));
            SAMPLE_add(instrument, scratch);
        }
        finish(music, instrument, loudest - 400 * i, 1);
    }
}

} // namespace

MUSIC* VELM4030_buildMusic() {
    MUSIC* const music = MUSIC_new();
    SAMPLE* scratch = newInstrument(halfSecond);
    if (music == nullptr || scratch == nullptr) {
        return music;
    }
    music->period = musicPeriod;
    addSineOrgan(music, scratch);
    addSineWithNoise(music, scratch);
    addSquareWithNoise(music, scratch);
    addNoiseHat(music, scratch);
    addSquareOrgan(music, scratch);
    addChords(music, scratch, 36, twoSeconds, 32000, SOUND_sine, {4, 7, -5, -8, -12});
    addChords(music, scratch, 48, oneSecond, 28000, SOUND_square, {5, 9, -3, -7, -12});
    SAMPLE_delete(&scratch);
    return music;
}

} // namespace velm
