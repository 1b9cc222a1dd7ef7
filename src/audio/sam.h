// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// SAM, a sample and its file: the SAM format (a text header, then binary or decimal values), RIFF/WAVE, which
// is only read, and two headerless forms. The end of the file's name chooses the form. What is written is not
// always what is read: see docs/quirks.md.
//
//     SAM* sam = SAM_new();
//     SAM_setPath(sam, "voice.wav");
//     if (SAM_load(sam) != 0) { SOUND_fadeOut(sam->sample); }
#pragma once

#include "foundation/identity.h"

#include <cstdint>
#include <cstdio>

namespace velm {

struct SAMPLE;

struct SAM {
    SAMPLE* sample;         ///< owned; what was loaded or is to be saved; nullptr at first
    char* path;             ///< owned (delete[]); the file's name; nullptr at first
    std::FILE* file;        ///< the open file, nullptr when closed
    std::int32_t channels;  ///< from the header; the values of several stay interleaved
    std::int32_t depth;     ///< bits of a value, 8, 16, 24 or 32; from the header, set by hand for raw files
    char sign;              ///< 's' signed, 'u' unsigned; a SAM header may hold capitals
    char storage;           ///< 'b' or 'B' binary, 'a' or 'A' decimal text
    char endian;            ///< 'l' least significant byte first, 'm' most significant byte first
    std::int32_t position;  ///< index of the next value of SAM_readLooped
    char state;             ///< 'l' while looping, 'p' reserved for playing
    std::int32_t loopStart; ///< first index of the loop
    std::int32_t loopEnd;   ///< first index after the loop
};

extern const IDENTITY SAM_identity;
extern std::uint8_t SAM_verbose;

/// A record of zeros. Ends the process with status -1 (reported) when memory runs out: see docs/quirks.md.
SAM* SAM_new();

/// Keeps a copy of the file's name. When memory runs out it reports and the old name stays.
void SAM_setPath(SAM* sam, const char* path);
/// Takes the sample over, in place of the one before.
void SAM_setSample(SAM* sam, SAMPLE* sample);

// Every reader closes the file. On success it replaces the sample, otherwise all but `file` stays. A binary
// value that the end of the file cuts is dropped. Never more is allocated than the file can fill.

/// Reads the file: 1, or 0 (reported). The reader that the name's end suggests comes first ("sam"; "wav" and
/// "raw" both mean WAVE), then WAVE, SAM and raw.
std::int32_t SAM_load(SAM* sam);
/// Reads the file `path`, PCM after a WAVE header of 44 bytes: 1, or 0 (reported). Values of 8 and 16 bits
/// are read, all others are 0.
std::int32_t SAM_readWave(SAM* sam);
/// Reads the open file, or else `path`, as SAM: 1, or 0 (reported) when its header is cut short or its binary
/// values are wider than 32 bits. Text that is cut short is reported, and the answer is 1.
std::int32_t SAM_readSam(SAM* sam);
/// Reads the file `path` to its end as values of `depth` bits in `endian` order, the sign not extended: 1, or
/// 0 (reported) when `depth` or `endian` has no meaning.
std::int32_t SAM_readRaw(SAM* sam);

// Every writer writes to the open file and closes it: 1, or 0 (reported) when it does not take everything.

/// Opens a new file `path` unless one is open. "wav" and "raw" at the name's end choose their writers, all
/// other names, and none, SAM.
std::int32_t SAM_save(SAM* sam);
/// The SAM form, 16 bits in binary or text as `storage` says. With another letter only the header is written:
/// reported, 0.
std::int32_t SAM_writeSam(SAM* sam);
/// The line "8" or "16", then bytes, the most significant first. Nothing for values beyond 16 bits.
std::int32_t SAM_writeWav(SAM* sam);
/// "SAM", "binary", the number of values and their least width of 8, 16, 24 or 32 bits, a line each, then
/// bytes, the most significant first.
std::int32_t SAM_writeRaw(SAM* sam);

/// Fills `dst` from `position` on and moves the position: while looping, from the end of the loop back to its
/// start, otherwise to the end of the sample, with 0 after it. Returns the number of values copied. A
/// position or loop outside the sample is reported, and nothing is copied.
std::int32_t SAM_readLooped(SAM* sam, SAMPLE* dst);
/// 1 when nothing loops or plays and the position has reached the sample's end, else 0.
std::int32_t SAM_isFinished(const SAM* sam);

/// Scales the sample by the whole number 0x3FFF8000 / its largest magnitude. Silence is reported and stays.
void SAM_normalize(SAM* sam);
/// The low `width` (1..32, else reported and 0) bits of a value as a signed number, if the bits above are 0.
std::int32_t SAM_signExtend(std::int32_t value, std::int32_t width);
/// The bits that a signed value takes, one more than its magnitude has. Prints the value and the answer.
std::int32_t SAM_widthNeeded(std::int32_t value);
/// 1 when the text ends with the pattern, letter by letter as they stand, else 0.
std::int32_t SAM_endsWith(const char* text, const char* pattern);

/// Closes the file, frees name, sample and record, and stores nullptr in the handle.
void SAM_delete(SAM** handle);

/// Prints "SAM error." while SAM_verbose is set.
void SAM_error();

} // namespace velm
