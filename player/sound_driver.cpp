// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "sound_driver.h"

#include "audio/sample.h"
#include "platform/oss.h"

namespace velm {

namespace {

constexpr SoundDriver drivers[] = {{"oss", ossOpen, ossWrite, ossIdle},
                                   {"alsa", alsaOpen, alsaWrite, alsaIdle}};

std::int32_t ossDevice = -1;

} // namespace

std::span<const SoundDriver> soundDrivers() {
    return drivers;
}

bool ossOpen() {
    std::int32_t format = 16;
    std::int32_t stereo = 0;
    std::int32_t rate = SAMPLE_rate;
    ossDevice = OSS_open("/dev/dsp");
    return ossDevice >= 0 && OSS_request(ossDevice, DspRequest::reset, nullptr) >= 0 &&
           OSS_request(ossDevice, DspRequest::format, &format) >= 0 &&
           OSS_request(ossDevice, DspRequest::stereo, &stereo) >= 0 &&
           OSS_request(ossDevice, DspRequest::speed, &rate) >= 0;
}

std::optional<std::int32_t> ossWrite(std::span<const std::int16_t> samples) {
    while (!samples.empty()) {
        const std::int32_t bytes =
            OSS_write(ossDevice, samples.data(), static_cast<std::int32_t>(samples.size()));
        if (bytes <= 0) {
            return std::nullopt;
        }
        samples = samples.subspan(static_cast<std::size_t>(bytes) / sizeof samples[0]);
    }
    return 0;
}

bool ossIdle() {
    return true; // it waits in silence by itself
}

} // namespace velm
