// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "sound_driver.h"

#include "audio/sample.h"
#include "x11/oss.h"

#include <algorithm>
#include <vector>

namespace velm {

namespace {

constexpr SoundDriver drivers[] = {{"oss", ossOpen, ossWrite, ossIdle},
                                   {"alsa", alsaOpen, alsaWrite, alsaIdle}};

std::int32_t ossDevice = -1;
constexpr std::int32_t ossFull = SAMPLE_rate / 5;

/// Writes all of it, waiting; false when the device is lost.
bool ossWriteAll(std::span<const std::int16_t> samples) {
    while (!samples.empty()) {
        const std::int32_t bytes =
            OSS_write(ossDevice, samples.data(), static_cast<std::int32_t>(samples.size()));
        if (bytes <= 0) {
            return false;
        }
        samples = samples.subspan(static_cast<std::size_t>(bytes) / sizeof samples[0]);
    }
    return true;
}

/// How many samples the device lacks; none when it does not tell.
std::int32_t ossLack() {
    std::int32_t bytes = 0;
    const bool tells = OSS_request(ossDevice, DspRequest::toPlay, &bytes) >= 0;
    return tells ? ossFull - bytes / static_cast<std::int32_t>(sizeof(std::int16_t)) : 0;
}

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
    constexpr std::int32_t nearlyDry = ossFull - ossFull / 8;
    const std::int32_t lack = ossLack();
    const auto silence = static_cast<std::size_t>(lack > nearlyDry ? std::min(lack, ossFull) : 0);
    if (!ossWriteAll(std::vector<std::int16_t>(silence)) || !ossWriteAll(samples)) {
        return std::nullopt;
    }
    return ossLack();
}

bool ossIdle() {
    return true; // it waits in silence by itself
}

} // namespace velm
