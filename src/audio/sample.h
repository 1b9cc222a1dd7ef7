// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// SAMPLE, the one sound type: a growable array of signed 32-bit values, mono, 44100 a second. Wider than what
// the device takes, so that voices can be added before they are scaled back; arithmetic wraps at 32 bits and
// nothing saturates. Also used as a plain array of 32-bit values.
//
//     SAMPLE* voice = SAMPLE_new();
//     SAMPLE_setLength(voice, 22050);
//     SOUND_sine(voice, 440);
#pragma once

#include "foundation/identity.h"

#include <cstdint>
#include <cstdio>

namespace velm {

inline constexpr std::int32_t SAMPLE_rate = 44100; ///< values per second

struct SAMPLE {
    std::int32_t length;   ///< values in use, 0 <= length <= capacity
    std::int32_t capacity; ///< values allocated
    std::int32_t* data;    ///< owned (freeAligned); nullptr when the capacity is 0. Values past `length` keep
                           ///< what they held
};

/// True for a sample that can hold values, and for one that does.
[[nodiscard]] inline bool hasData(const SAMPLE* sample) {
    return sample != nullptr && sample->data != nullptr;
}
[[nodiscard]] inline bool hasValues(const SAMPLE* sample) {
    return hasData(sample) && sample->length > 0;
}

extern const IDENTITY SAMPLE_identity;
extern std::uint8_t SAMPLE_verbose;

/// An empty sample of capacity 32, or nullptr (reported).
SAMPLE* SAMPLE_new();
/// A new sample of `count` signed bytes, or nullptr (reported).
SAMPLE* SAMPLE_fromBytes(const std::int8_t* bytes, std::int32_t count);
/// A new sample with the same values, or nullptr (reported).
SAMPLE* SAMPLE_clone(const SAMPLE* src);
/// A new sample of the values from..to-1, as far as the sample has them, or nullptr (reported).
SAMPLE* SAMPLE_slice(const SAMPLE* sample, std::int32_t from, std::int32_t to);

/// Reallocates to exactly `count` (>= 0) values, keeping those in use that fit; 0 frees them all. When memory
/// runs out it reports and changes nothing.
void SAMPLE_setCapacity(SAMPLE* sample, std::int32_t count);
/// Grows the capacity to `length` (>= 0) if it is smaller, then sets the length. Only values that are newly
/// allocated are 0.
void SAMPLE_setLength(SAMPLE* sample, std::int32_t length);

/// The value at `index`; 0 (reported) outside 0..length-1.
std::int32_t SAMPLE_get(const SAMPLE* sample, std::int32_t index);
/// Stores a value; an index outside 0..length-1 is reported and nothing is stored.
void SAMPLE_set(SAMPLE* sample, std::int32_t index, std::int32_t value);
/// Appends a value, doubling the capacity when it is full. A sample without data is reported.
void SAMPLE_append(SAMPLE* sample, std::int32_t value);
/// Inserts all of `other`, which may be the sample itself, before `position` (0..length).
void SAMPLE_insert(SAMPLE* sample, const SAMPLE* other, std::int32_t position);
/// Inserts one value before `index` (0..length).
void SAMPLE_insertValue(SAMPLE* sample, std::int32_t value, std::int32_t index);
/// Removes the value at `index` (0..length-1), moving the later ones down.
void SAMPLE_removeAt(SAMPLE* sample, std::int32_t index);
/// The first index at or after `start` (>= 0) that holds `value`, or -1.
std::int32_t SAMPLE_find(const SAMPLE* sample, std::int32_t value, std::int32_t start);
/// Copies `count` values; both ranges must lie inside. The samples may be the same and the ranges overlap.
void SAMPLE_copy(const SAMPLE* src, SAMPLE* dst, std::int32_t count, std::int32_t srcStart,
                 std::int32_t dstStart);

/// Sets every value to 0.
void SAMPLE_clear(SAMPLE* sample);
/// a[i] += b[i] as far as both reach.
void SAMPLE_add(SAMPLE* a, const SAMPLE* b);
/// a[i] *= b[i] as far as both reach.
void SAMPLE_multiply(SAMPLE* a, const SAMPLE* b);
/// a[i] += b[i] * n / d, the quotient truncated towards 0; d must not be 0.
void SAMPLE_mixScaled(SAMPLE* a, const SAMPLE* b, std::int32_t n, std::int32_t d);
/// a[i] += (b[i] * f) >> 16: `f` is 16.16.
void SAMPLE_mixFixed(SAMPLE* a, const SAMPLE* b, std::int32_t f);
/// Multiplies every value.
void SAMPLE_scale(SAMPLE* sample, std::int32_t factor);
/// Divides every value by `divisor` (not 0), truncating towards 0.
void SAMPLE_divide(SAMPLE* sample, std::int32_t divisor);
/// Arithmetic shift by count mod 32; a count outside 0..32 is reported.
void SAMPLE_shiftRight(SAMPLE* sample, std::int32_t count);
/// Shift left by count mod 32; a count outside 0..32 is reported.
void SAMPLE_shiftLeft(SAMPLE* sample, std::int32_t count);

/// The smallest value; 0 (reported) of an empty sample.
std::int32_t SAMPLE_min(const SAMPLE* sample);
/// The largest value; 0 (reported) of an empty sample.
std::int32_t SAMPLE_max(const SAMPLE* sample);
/// Scales so that the largest magnitude becomes `peak` or, by rounding down, just misses it. Silence is
/// reported and stays.
void SAMPLE_normalize(SAMPLE* sample, std::int32_t peak);
/// Maps smallest..largest onto low..high in a straight line. A sample of equal values is reported and stays.
void SAMPLE_rescale(SAMPLE* sample, std::int32_t low, std::int32_t high);

/// Moves every value `amount` indices up, what leaves at the end coming in at the start; a negative amount
/// moves down. An empty sample is reported.
void SAMPLE_rotate(SAMPLE* sample, std::int32_t amount);
/// The same towards lower indices.
void SAMPLE_rotateLeft(SAMPLE* sample, std::int32_t amount);
/// Stretches or squeezes to `length` (>= 0) values, each the nearest old one at or below its place. An empty
/// sample is reported.
void SAMPLE_resize(SAMPLE* sample, std::int32_t length);
/// Writes a straight line (Bresenham) from y1 at the lower index towards y2 at the higher one. Both must lie
/// inside. Indices are put in order, values are not; a steep line stops short of y2: see docs/quirks.md.
void SAMPLE_ramp(SAMPLE* sample, std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2);

/// 1 when lengths and values are equal, else 0 (reported).
std::int32_t SAMPLE_equals(const SAMPLE* a, const SAMPLE* b);

/// "SAMPLE { 2\n-5\n7\n}\n", or "SAMPLE { 0 }\n" when it is empty; nullptr on failure. The caller frees it
/// with delete[].
char* SAMPLE_toText(const SAMPLE* sample);
/// Reads what SAMPLE_toText writes; nullptr (reported) when it is malformed or cut short.
SAMPLE* SAMPLE_fromText(const char* text);

/// Appends values of `bytes` (1..4) bytes each, until `count` are read or the file ends, and returns their
/// number. `endian` is 'l', or 'm' for the most significant byte first. Nothing extends the sign.
std::int32_t SAMPLE_readRaw(SAMPLE* sample, std::FILE* file, std::int32_t bytes, char endian,
                            std::int32_t count);
/// Writes the low `bytes` (1..4) bytes of every value: 1, or 0 (reported) when the file takes less.
std::int32_t SAMPLE_writeRaw(const SAMPLE* sample, std::FILE* file, std::int32_t bytes, char endian);

/// Frees the values and the record and stores nullptr in the handle.
void SAMPLE_delete(SAMPLE** handle);

/// Prints "SAMPLE error" while SAMPLE_verbose is set.
void SAMPLE_error();

} // namespace velm
