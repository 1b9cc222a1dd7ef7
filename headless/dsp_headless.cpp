// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "headless.h"
#include "platform/dsp.h"

namespace velm {

namespace {

constexpr std::int32_t theDevice = 0;

} // namespace

std::int32_t DSP_open(const char*) {
    return headless.blockBytes > 0 ? theDevice : -1;
}

std::int32_t DSP_request(std::int32_t, DspRequest request, std::int32_t* word) {
    if (request == DspRequest::blockSize) {
        *word = headless.blockBytes;
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
