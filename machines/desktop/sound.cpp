// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The sound device as the demo sees it, and the clock that it leads. A sound server may hang whoever opens or
// closes it, so a thread of its own does, and the pictures never wait.
#include "audio/sample.h"
#include "desktop/desktop.h"
#include "platform/clock.h"
#include "platform/dsp.h"
#include "platform/gain.h"
#include "platform/pace.h"
#include "platform/sound_queue.h"

#include <SDL.h>
#include <chrono>
#include <condition_variable>
#include <cstdlib>
#include <mutex>
#include <thread>

namespace velm {

namespace {

constexpr std::int32_t theDevice = 0;

/// The thread may outlive everything else, so this is never taken down.
SoundQueue& queue = *new SoundQueue;
Pace pace;
bool soundLeads = false; ///< a block went to the device since the last sleep

void SDLCALL fill(void*, Uint8* bytes, int count) {
    auto* const samples = reinterpret_cast<std::int16_t*>(bytes);
    queue.pull({samples, static_cast<std::size_t>(count) / sizeof *samples}, CLOCK_now());
}

/// Opens SDL's default device of a sound; 0 without one.
SDL_AudioDeviceID openSound(std::string_view name) {
    constexpr std::uint16_t biteSamples = 1024;
    if (SDL_AudioInit(name == "oss" ? "dsp" : name.data()) != 0) {
        return 0;
    }
    SDL_AudioSpec wanted{};
    wanted.freq = SAMPLE_rate;
    wanted.format = AUDIO_S16SYS;
    wanted.channels = 1;
    wanted.samples = biteSamples;
    wanted.callback = fill;
    const SDL_AudioDeviceID device = SDL_OpenAudioDevice(nullptr, 0, &wanted, nullptr, 0);
    if (device == 0) {
        SDL_AudioQuit();
    }
    return device;
}

void ignore(const char*, int, const char*, int, const char*, ...) {}

/// ALSA has a word on standard error for everything that it does not find.
void quietAlsa() {
    using SetHandler = int (*)(decltype(&ignore));
    if (void* const library = SDL_LoadObject("libasound.so.2"); library != nullptr) {
        void* const set = SDL_LoadFunction(library, "snd_lib_error_set_handler");
        if (set != nullptr) {
            reinterpret_cast<SetHandler>(set)(ignore);
        }
    }
}

/// Opens the first sound that is wanted and answers.
SDL_AudioDeviceID openAny() {
    for (const char* const name : desktopSounds) {
        const bool isWanted = desktop.sound.empty() || desktop.sound == name;
        if (const SDL_AudioDeviceID device = isWanted ? openSound(name) : 0; device != 0) {
            desktop.onSound(name);
            return device;
        }
    }
    desktop.onSound(noSound);
    return 0;
}

using namespace std::chrono_literals;

/// How the program and the thread of the sound part. The thread may outlive everything else.
struct Parting {
    std::mutex mutex;
    std::condition_variable changed;
    bool isAsked = false; ///< the program ends
    bool isDone = false;  ///< the thread has closed the device
};
Parting& parting = *new Parting;

/// True as soon as the program ends; else waits for so long.
bool endsWithin(std::chrono::milliseconds time) {
    std::unique_lock lock(parting.mutex);
    return parting.changed.wait_for(lock, time, [] { return parting.isAsked; });
}

/// Keeps a device open, and opens it again when it is lost, until the program ends. To ask all that may
/// answer is work, so who hears nothing asks ever less often.
void keepSound() {
    quietAlsa();
    std::chrono::milliseconds patience = 500ms;
    do {
        if (const SDL_AudioDeviceID device = openAny(); device != 0) {
            queue.clear();
            SDL_PauseAudioDevice(device, 0);
            while (SDL_GetAudioDeviceStatus(device) != SDL_AUDIO_STOPPED && !endsWithin(100ms)) {
            }
            SDL_CloseAudioDevice(device);
            SDL_AudioQuit();
            patience = 500ms;
        }
        patience = std::min<std::chrono::milliseconds>(2 * patience, 8s);
    } while (!endsWithin(patience));
    const std::lock_guard lock(parting.mutex);
    parting.isDone = true;
    parting.changed.notify_all();
}

/// The sound libraries must not be taken down under the thread; one whose server hangs is left alone.
void partFromSound() {
    std::unique_lock lock(parting.mutex);
    parting.isAsked = true;
    parting.changed.notify_all();
    parting.changed.wait_for(lock, 500ms, [] { return parting.isDone; });
}

} // namespace

void CLOCK_sleep(std::int32_t micros) {
    const std::int32_t correction = soundLeads ? pace.correction(queue.aheadMicros(CLOCK_now())) : 0;
    soundLeads = false;
    std::this_thread::sleep_for(std::chrono::microseconds(std::max(micros + correction, 0)));
}

std::int32_t DSP_open(const char*) {
    if (desktop.sound == noSound) {
        desktop.onSound(noSound);
        return -1;
    }
    static const bool started = [] {
        SDL_setenv("PIPEWIRE_DEBUG", "0", 0); // it complains on standard error where it does not run
        std::thread(keepSound).detach();
        std::atexit(partFromSound);
        return true;
    }();
    return started ? theDevice : -1;
}

std::int32_t DSP_frameRate(std::int32_t, std::int32_t framesPerSecond) {
    return DSP_blockBytes(framesPerSecond);
}

std::int32_t DSP_request(std::int32_t, DspRequest request, std::int32_t* word) {
    if (request == DspRequest::blockSize) {
        *word = DSP_blockBytes(DSP_usualRate);
    }
    return 0;
}

std::int32_t DSP_write(std::int32_t, const std::int16_t* block, std::int32_t samples) {
    std::vector<std::int16_t> loud(block, block + samples);
    GAIN_apply(loud, GAIN_factor(desktop.gain));
    constexpr double fullVolume = 100;
    GAIN_apply(loud, desktop.volume / fullVolume);
    soundLeads = queue.push(loud);
    return soundLeads ? samples * static_cast<std::int32_t>(sizeof *block) : 0;
}

void DSP_close(std::int32_t) {
    queue.clear();
}

} // namespace velm
