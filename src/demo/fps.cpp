// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/fps.h"

#include "foundation/record.h"
#include "foundation/wrap.h"
#include "platform/clock.h"

#include <algorithm>

namespace velm {

const IDENTITY FPS_identity = makeIdentity("FPS", "LINUX", "ZENDORAK", "20150503", "CODE");
std::uint8_t FPS_verbose = 0;

namespace {

constexpr std::int32_t microsPerSecond = 1000000;

std::int32_t lowWord(std::int64_t value) {
    return static_cast<std::int32_t>(static_cast<std::uint64_t>(value));
}

} // namespace

FPS* FPS_new() {
    return newRecord<FPS>(FPS_error);
}

std::int64_t FPS_now() {
    return CLOCK_now();
}

void FPS_start(FPS* fps) {
    if (fps != nullptr) {
        fps->startMicros = FPS_now();
    }
}

void FPS_tick(FPS* fps) {
    if (fps == nullptr) {
        return;
    }
    ++fps->frameCount;
    fps->endMicros = FPS_now();
    // FPS_lowWordsOnly: one expects a 64-bit difference; the low words are exact for any frame under 35
    // minutes, and a longer pause shows up as a short or negative time.
    fps->elapsedMicros = wrapSub(lowWord(fps->endMicros), lowWord(fps->startMicros));
    if (fps->elapsedMicros != 0) {
        fps->measuredRate = lowWord(microsPerSecond / fps->elapsedMicros);
    }
}

void FPS_wait(FPS* fps) {
    if (fps == nullptr || fps->targetRate == 0) {
        return;
    }
    const std::int32_t budget = microsPerSecond / fps->targetRate;
    fps->sleepMicros = wrapSub(budget, lowWord(fps->elapsedMicros));
    if (fps->sleepMicros > 0) {
        // A frame whose time came out negative has more left than it ever had; that much is not slept.
        CLOCK_sleep(std::min(fps->sleepMicros, budget));
        fps->shownRate = fps->targetRate;
    }
}

void FPS_delete(FPS** handle) {
    deleteRecord(handle, FPS_error);
}

void FPS_error() {}

} // namespace velm
