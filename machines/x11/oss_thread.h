// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A thread that makes the calls of one Open Sound System device, one at a time, because a driver may take for
// ever. Who makes a call waits for it as long as they like, and leaves a thread that hangs to itself.
//
//     OssThread* thread = OSS_start();
//     OSS_callOpen(thread, "/dev/dsp");
//     if (!OSS_awaitCall(thread, 1s)) { OSS_leave(&thread); }
#pragma once

#include "platform/dsp.h"

#include <chrono>
#include <cstdint>

namespace velm {

using OssDuration = std::chrono::milliseconds;

/// One device and its thread.
struct OssThread;

/// A thread that waits for its first call, or nullptr.
OssThread* OSS_start();

/// Makes a call; none may be under way. What is handed over is copied; a write is refused when there is no
/// memory for that.
void OSS_callOpen(OssThread* thread, const char* path);
void OSS_callRequest(OssThread* thread, DspRequest request, const std::int32_t* word);
bool OSS_callWrite(OssThread* thread, const std::int16_t* block, std::int32_t samples);

/// Waits until no call is under way; false when that takes longer.
bool OSS_awaitCall(OssThread* thread, OssDuration limit);

/// How long ago the call under way was made.
OssDuration OSS_callLasts(const OssThread* thread);

/// What the last call gave, after it. Stores a request's answer in `word`, unless that is nullptr or the
/// request failed.
std::int32_t OSS_answer(const OssThread* thread, std::int32_t* word);

/// The descriptor of the device, negative when it is not open. No call may be under way.
std::int32_t OSS_device(const OssThread* thread);

/// Stores nullptr in the handle. The thread closes the device and ends, after the call under way. When there
/// is none, this waits for it a quarter of a second at most: a program that ends must not take a sound
/// server's library away from under its thread.
void OSS_leave(OssThread** handle);

} // namespace velm
