// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "platform/dsp.h"

#include "headless/headless.h"

namespace velm {

namespace {

constexpr std::int32_t theDevice = 0;

} // namespace

std::int32_t DSP_open(const char*) {
    return headless.hasSound ? theDevice : -1;
}

std::int32_t DSP_frameRate(std::int32_t, std::int32_t framesPerSecond) {
    return headless.blockBytes > 0 ? 0 : DSP_blockBytes(framesPerSecond);
}

std::int32_t DSP_request(std::int32_t, DspRequest request, std::int32_t* word) {
    if (request == DspRequest::blockSize) {
        *word = headless.blockBytes > 0 ? headless.blockBytes : DSP_blockBytes(DSP_usualRate);
    }
    return 0;
}

std::int32_t DSP_write(std::int32_t, const std::int16_t* block, std::int32_t samples) {
    if (headless.onSound) {
        headless.onSound(std::span(block, static_cast<std::size_t>(samples)));
    }
    return samples * static_cast<std::int32_t>(sizeof *block);
}

void DSP_close(std::int32_t) {}

} // namespace velm
