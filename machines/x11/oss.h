// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The Open Sound System's device, with the operations of dsp.h. Every one of them may wait for as long as the
// driver likes.
//
//     const std::int32_t device = OSS_open("/dev/dsp");
//     OSS_write(device, block, 1471);
#pragma once

#include "platform/dsp.h"

namespace velm {

/// Opens the device for writing and gives its descriptor, or a negative number.
std::int32_t OSS_open(const char* path);

/// The largest block in bytes that a driver may name: almost twelve seconds of sound.
inline constexpr std::int32_t OSS_largestBlock = 1 << 20;

/// Makes a request: a negative number when it is refused, or when the driver names a block beyond reason.
std::int32_t OSS_request(std::int32_t device, DspRequest request, std::int32_t* word);

/// Hands over a block of samples, low byte first, once, waiting while the device is full: the bytes taken, or
/// -1.
std::int32_t OSS_write(std::int32_t device, const std::int16_t* block, std::int32_t samples);

/// Closes the device. A negative descriptor is none, and nothing happens.
void OSS_close(std::int32_t device);

} // namespace velm
