// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The sound device as the demo sees it, and the clock that it leads.
#include "pace.h"
#include "platform/clock.h"
#include "platform/dsp.h"
#include "player.h"
#include "sound_process.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <string>
#include <thread>

namespace velm {

namespace {

constexpr std::int32_t theDevice = 0;
constexpr std::int32_t fullVolume = 100;
constexpr std::int32_t blockBytes = DSP_blockBytes(30);

SoundProcess sound;
Pace pace;
bool soundLeads = false; ///< a block went to the device since the last sleep

/// The first driver that is wanted and answers, or the silent one.
const char* startDriver() {
    for (const SoundDriver& driver : soundDrivers()) {
        const bool wanted = player.soundDriver.empty() || player.soundDriver == driver.name;
        if (wanted && sound.start(driver) && sound.waitUntilOpen()) {
            return driver.name;
        }
    }
    sound.end();
    return silentDriver;
}

} // namespace

std::int64_t CLOCK_now() {
    using namespace std::chrono;
    return duration_cast<microseconds>(steady_clock::now().time_since_epoch()).count();
}

void CLOCK_sleep(std::int32_t micros) {
    const std::int32_t correction = soundLeads ? pace.correction(sound.aheadMicros()) : 0;
    soundLeads = false;
    std::this_thread::sleep_for(std::chrono::microseconds(std::max(micros + correction, 0)));
}

std::int32_t DSP_open(const char*) {
    const std::string_view name = startDriver();
    const std::string missed = player.soundDriver.empty() || name == player.soundDriver
                                   ? ""
                                   : " (no " + std::string(player.soundDriver) + " device)";
    std::printf("sound: %s%s\n", name.data(), missed.c_str());
    std::fflush(stdout);
    return name == silentDriver ? -1 : theDevice;
}

std::int32_t DSP_frameRate(std::int32_t, std::int32_t framesPerSecond) {
    return DSP_blockBytes(framesPerSecond);
}

std::int32_t DSP_request(std::int32_t, DspRequest request, std::int32_t* word) {
    if (request == DspRequest::blockSize) {
        *word = blockBytes;
    }
    return 0;
}

std::int32_t DSP_write(std::int32_t, const std::int16_t* block, std::int32_t samples) {
    std::array<std::int16_t, blockBytes / 2> loud{};
    const auto count = std::min(static_cast<std::size_t>(samples), loud.size());
    std::transform(block, block + count, loud.begin(), [](std::int16_t value) {
        return static_cast<std::int16_t>(value * player.volume / fullVolume);
    });
    soundLeads = sound.send({loud.data(), count});
    return soundLeads ? static_cast<std::int32_t>(count * sizeof *block) : 0;
}

void DSP_close(std::int32_t) {
    sound.end();
}

} // namespace velm
