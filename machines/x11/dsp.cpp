// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The program's thread never waits for a driver by itself: a thread of the device's own makes the calls, and
// this side waits for it as long as a viewer would.
#include "platform/dsp.h"

#include "platform/key_queue.h"
#include "platform/xdpy.h"
#include "x11/display.h"
#include "x11/events.h"
#include "x11/oss_thread.h"

namespace velm {

namespace {

using namespace std::chrono_literals;

/// Opening and requests hold up the start.
constexpr OssDuration openPatience = 1s;
/// A device that takes a block in less than this paces the frames.
constexpr OssDuration writePatience = 2s;

/// The program's one device; nullptr when there is none, or when it was given up.
OssThread* thread = nullptr;
const char* pathOfDevice = "";

bool viewerLeaves() {
    if (!XDPY_isOpen()) {
        return false;
    }
    x11TakeEvents();
    return wantsToLeave(x11Events.keys);
}

/// Waits for the call under way. One that takes too long costs the device. Somebody who wants to leave is not
/// kept waiting; the call then goes on.
bool isDone(OssDuration patience) {
    constexpr OssDuration slice = 50ms;
    while (!OSS_awaitCall(thread, slice)) {
        if (OSS_callLasts(thread) >= patience) {
            x11Say("playing silent, no answer from", pathOfDevice);
            OSS_leave(&thread);
            return false;
        }
        if (viewerLeaves()) {
            return false;
        }
    }
    return true;
}

bool isOpen(std::int32_t device) {
    return thread != nullptr && device >= 0 && OSS_device(thread) == device;
}

} // namespace

std::int32_t DSP_open(const char* path) {
    if (thread != nullptr || (thread = OSS_start()) == nullptr) {
        return -1;
    }
    pathOfDevice = path;
    OSS_callOpen(thread, path);
    if (!isDone(openPatience)) {
        return -1;
    }
    const std::int32_t device = OSS_device(thread);
    if (device < 0) {
        OSS_leave(&thread);
    }
    return device;
}

std::int32_t DSP_frameRate(std::int32_t, std::int32_t) {
    return 0; // the driver alone knows its blocks
}

std::int32_t DSP_request(std::int32_t device, DspRequest request, std::int32_t* word) {
    if (!isOpen(device) || !isDone(openPatience)) {
        return -1;
    }
    OSS_callRequest(thread, request, word);
    return isDone(openPatience) ? OSS_answer(thread, word) : -1;
}

std::int32_t DSP_write(std::int32_t device, const std::int16_t* block, std::int32_t samples) {
    if (!isOpen(device) || !isDone(writePatience) || !OSS_callWrite(thread, block, samples)) {
        return -1;
    }
    return isDone(writePatience) ? OSS_answer(thread, nullptr) : -1;
}

void DSP_close(std::int32_t device) {
    if (isOpen(device)) {
        OSS_leave(&thread);
    }
}

} // namespace velm
