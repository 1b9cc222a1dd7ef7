// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// SOUND fills samples with raw waves at 44100 values a second, full scale 16-bit, and shapes them with linear
// fades. Every generator works on the whole current length of the sample, which the caller sets first.
//
//     SAMPLE_setLength(voice, 22050);
//     SOUND_sine(voice, 440);
//     SOUND_fadeOut(voice);
#pragma once

#include "audio/sample.h"
#include "foundation/identity.h"

#include <cstdint>

namespace velm {

extern const IDENTITY SOUND_identity;
extern std::uint8_t SOUND_verbose;

/// A sine of 1..44099 Hz that starts at 0, read from a table without interpolation. The first call builds the
/// table, which is kept; other frequencies are reported.
void SOUND_sine(SAMPLE* sample, std::int32_t frequency);

/// The whole cycles of a square wave of 1..1445068800 Hz that fit, their edges softened by a 0 each. What
/// follows the last one stays as it was. Other frequencies are reported. A sample of 65536..131071 values is
/// left alone, a longer one mostly: see docs/quirks.md.
void SOUND_square(SAMPLE* sample, std::int32_t frequency);

/// White noise that takes a new value of chance() `rate` times a second, filled in from the end. The first
/// value lasts half a second's worth of steps.
void SOUND_noise(SAMPLE* sample, std::int32_t rate);

/// Multiplies by the line from 32767 at the first value to 0 at the last, then shifts right by 15. On a
/// sample without values SAMPLE reports the line.
void SOUND_fadeOut(SAMPLE* sample);
/// The same so many times, in one pass over the memory.
void SOUND_fadeOutTimes(SAMPLE* sample, std::int32_t times);
/// The same with the line from 0 to 32767.
void SOUND_fadeIn(SAMPLE* sample);

/// Fades out by a gain of 15 bits that runs from 32768 down. An empty sample is reported.
void SOUND_decay(SAMPLE* sample);
/// Fades in by the same gain running up from 0.
void SOUND_attack(SAMPLE* sample);

/// Reports a missing pointer.
void SOUND_check(const void* pointer);

/// Prints "SOUND Error." while SOUND_verbose is set.
void SOUND_error();

} // namespace velm
