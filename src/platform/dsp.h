// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The sound device itself, as XSND sees it: the Open Sound System's "/dev/dsp" here, whatever takes blocks
// without a machine. A descriptor below 0 is no device.
//
//     const std::int32_t device = DSP_open("/dev/dsp");
//     DSP_request(device, DspRequest::speed, &rate);
//     DSP_write(device, block, 1024);
#pragma once

#include <cstdint>

namespace velm {

/// What is asked of a device, by the Open Sound System's numbers. All but `reset` pass a word and may get
/// another one back.
enum class DspRequest : std::uint32_t {
    reset = 0x5000,
    speed = 0xC0045002,     ///< samples per second
    stereo = 0xC0045003,    ///< 0 for mono
    blockSize = 0xC0045004, ///< answer only: bytes of a block
    format = 0xC0045005,    ///< 16: signed 16-bit, low byte first
    toPlay = 0x80045017,    ///< answer only: bytes that have still to be played
};

/// The block in bytes that suits a frame rate: one sample more than a frame lasts. A bar of three seconds
/// then takes 90 calls at 30 frames a second and 180 at 60, its last block being short, and picture and sound
/// stay together. Exactly a frame would add an empty call to every bar.
constexpr std::int32_t DSP_blockBytes(std::int32_t framesPerSecond) {
    constexpr std::int32_t samplesPerSecond = 44100;
    return 2 * (samplesPerSecond / framesPerSecond + 1);
}

/// Frames a second as long as nobody has told another rate.
inline constexpr std::int32_t DSP_usualRate = 30;

/// The demo plays one block a frame: tells the device how many frames a second has from now on. Returns the
/// bytes of the block that suits it, or 0 where the device's own block stays.
std::int32_t DSP_frameRate(std::int32_t device, std::int32_t framesPerSecond);

/// Opens the device for writing. Returns its descriptor, or a negative number, as when it takes too long.
std::int32_t DSP_open(const char* path);

/// Makes a request: a negative number when it is refused. `word` is nullptr for `reset`.
std::int32_t DSP_request(std::int32_t device, DspRequest request, std::int32_t* word);

/// Hands over a block, once, waiting while the device is full, which paces the frames; a device that takes
/// nothing for seconds may be given up, with one line. Returns the bytes taken, perhaps fewer than offered,
/// or -1.
std::int32_t DSP_write(std::int32_t device, const std::int16_t* block, std::int32_t samples);

/// Closes the device.
void DSP_close(std::int32_t device);

} // namespace velm
