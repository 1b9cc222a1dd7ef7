// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// XSND, the only way sound leaves the program: a queue of borrowed samples, written to the device one block a
// call as signed 16-bit mono, 44100 a second. The write waits while the device is full, so it helps to pace
// the frames. Without a device, or with one that never answers, everything works and nothing is heard.
//
//     XSND* sound = XSND_new();
//     LIST_append(sound->queue, bar);
//     XSND_play(sound); // once a frame
#pragma once

#include "audio/sample.h"
#include "foundation/identity.h"
#include "foundation/list.h"

#include <cstdint>

namespace velm {

struct XSND {
    std::int32_t rate;           ///< samples per second; 44100, or what the driver made of it
    std::int32_t format;         ///< 16: signed 16-bit, low byte first
    std::int32_t stereo;         ///< 0: mono
    char sign;                   ///< 's': signed; describes only
    char endian;                 ///< 'l': low byte first; describes only
    const char* device;          ///< "/dev/dsp"
    std::int32_t fd;             ///< descriptor of the device, negative when it could not be opened
    std::int32_t blockSize;      ///< bytes of a block, as the driver says
    LIST* queue;                 ///< owned, its SAMPLEs are not: what is still to be played, head first
    const SAMPLE* current;       ///< borrowed: the head at the last play call
    std::int32_t position;       ///< index of the next value of `current`
    std::int16_t* block;         ///< owned: what is handed to the device; nullptr without one
    std::int32_t blockSamples;   ///< blockSize / 2; 0 without a device
    std::uint8_t flag;           ///< 0; not used
    std::int32_t samplesWritten; ///< what the device has taken so far
};

extern const IDENTITY XSND_identity;
extern std::uint8_t XSND_verbose;

/// Opens and sets up the device. A device that is missing or refuses is reported and gives a record that
/// plays nothing; only a record that cannot be allocated gives nullptr.
XSND* XSND_new();

/// Writes the next block of the queue's head: 1 while the queue holds samples, else 0. The tail of a sample
/// is a short block, perhaps an empty one, and takes it off the queue. Values keep their low 16 bits, without
/// clipping. A device that takes less, or nothing, does not stop the playing.
std::int32_t XSND_play(XSND* sound);

/// The same, but gives 1 when `current` is only partly played, else 0.
std::int32_t XSND_playPart(XSND* sound);

/// Says how often a second XSND_play is called from now on. Where the device leaves the size of its blocks to
/// the demo they follow, so that a second of frames stays a second of sound; without memory for one the block
/// stays.
void XSND_setFrameRate(XSND* sound, std::int32_t framesPerSecond);

/// The empty text.
const char* XSND_name(const XSND* sound);
/// Always 0: nothing is held back.
std::int32_t XSND_flush(const XSND* sound);
/// 1 when there is a record and the word is not 0, else 0 (reported).
std::int32_t XSND_isReady(const XSND* sound, std::int32_t word);

/// Frees the block and the queue, but not its samples, closes the device, frees the record and stores nullptr
/// in the handle.
void XSND_delete(XSND** handle);

/// Prints "XSND error" while XSND_verbose is set.
void XSND_error();

} // namespace velm
