// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A machine inside another program's window, which is how velm4030-live plays a source file: whatever becomes
// of this process, the window stays.
#include "foundation/dir.h"
#include "image/img.h"
#include "platform/channel.h"
#include "platform/clock.h"
#include "platform/dsp.h"
#include "platform/folder.h"
#include "platform/xdpy.h"
#include "platform/xkbd.h"
#include "platform/xptr.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sys/mman.h>
#include <unistd.h>

namespace velm {

namespace {

Channel* channel = nullptr; ///< nullptr before the window is open
std::int32_t shown = 0;     ///< frames presented

Channel* openChannel() {
    const char* const descriptor = std::getenv(channelVariable);
    void* const memory = descriptor == nullptr ? MAP_FAILED
                                               : mmap(nullptr, sizeof(Channel), PROT_READ | PROT_WRITE,
                                                      MAP_SHARED, std::atoi(descriptor), 0);
    if (memory == MAP_FAILED) {
        std::fputs("this program plays in the window of velm4030-live\n", stderr);
        std::exit(EXIT_FAILURE);
    }
    return static_cast<Channel*>(memory);
}

} // namespace

std::int64_t CLOCK_now() {
    return CLOCK_steady();
}

void CLOCK_sleep(std::int32_t) {
    // Presentations wait for the window, which paces the frames.
}

void CLOCK_alarm(std::uint32_t delay, std::uint32_t interval) {
    ualarm(delay, interval);
}

std::int32_t FOLDER_read(DIR* dir) {
    return DIR_read(dir, ".");
}

XDPY* XDPY_open() {
    constexpr std::uint32_t depth = 24;
    if (channel == nullptr) {
        channel = openChannel();
    }
    XDPY_framesBefore = channel->frame - shown;
    return XDPY_make(depth);
}

bool XDPY_isOpen() {
    return XDPY_current != nullptr;
}

void XDPY_selectInput() {}

void XDPY_resize(XDPY*, std::int32_t, std::int32_t) {
    XDPY_error(); // the window is another program's
}

void XDPY_present(XDPY* display, const IMG* img) {
    if (!XDPY_accepts(display, img)) {
        XDPY_error();
        return;
    }
    XDPY_dumpFrame(img);
    std::copy_n(img->pixels, Channel::size * Channel::size, channel->picture);
    sem_post(&channel->drawn);
    while (sem_wait(&channel->asked) != 0 && errno == EINTR) {
    }
    XDPY_framesBefore = channel->frame - ++shown;
}

void XDPY_close(XDPY** handle) {
    XDPY_drop(handle);
}

void XKBD_poll(XKBD* keyboard) {
    if (!XKBD_isUsable(keyboard) || (channel->text[0] == '\0' && channel->keycode == 0)) {
        return;
    }
    std::copy_n(channel->text, Channel::textBytes, keyboard->text);
    keyboard->keycode = channel->keycode;
    channel->text[0] = '\0';
    channel->keycode = 0;
}

void XKBD_rest(XKBD*) {
    usleep(XKBD_longestRest);
}

XPTR* XPTR_new() {
    return XPTR_make();
}

void XPTR_poll(XPTR* pointer) {
    XPTR_query(pointer);
}

void XPTR_query(XPTR* pointer) {
    if (XPTR_isUsable(pointer)) {
        pointer->x = channel->x;
        pointer->y = channel->y;
        pointer->buttons = channel->buttons;
    }
}

std::int32_t XPTR_flush(XPTR* pointer) {
    static_cast<void>(XPTR_isUsable(pointer));
    return 0;
}

std::int32_t DSP_open(const char*) {
    constexpr std::int32_t theDevice = 0;
    return theDevice;
}

std::int32_t DSP_request(std::int32_t, DspRequest request, std::int32_t* word) {
    if (request == DspRequest::blockSize) {
        *word = DSP_blockBytes(DSP_usualRate);
    }
    return 0;
}

std::int32_t DSP_frameRate(std::int32_t, std::int32_t framesPerSecond) {
    return DSP_blockBytes(framesPerSecond);
}

std::int32_t DSP_write(std::int32_t, const std::int16_t* block, std::int32_t samples) {
    if (channel == nullptr) {
        return 0;
    }
    const std::int32_t taken = std::min(samples, Channel::mostSamples - channel->samples);
    std::copy_n(block, taken, channel->sound + channel->samples);
    channel->samples += taken;
    return samples * static_cast<std::int32_t>(sizeof *block);
}

void DSP_close(std::int32_t) {}

} // namespace velm
