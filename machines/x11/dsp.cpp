// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "x11/oss.h"

namespace velm {

std::int32_t DSP_open(const char* path) {
    return OSS_open(path);
}

std::int32_t DSP_frameRate(std::int32_t, std::int32_t) {
    return 0; // the driver alone knows its blocks
}

std::int32_t DSP_request(std::int32_t device, DspRequest request, std::int32_t* word) {
    return OSS_request(device, request, word);
}

std::int32_t DSP_write(std::int32_t device, const std::int16_t* block, std::int32_t samples) {
    return OSS_write(device, block, samples);
}

void DSP_close(std::int32_t device) {
    OSS_close(device);
}

} // namespace velm
