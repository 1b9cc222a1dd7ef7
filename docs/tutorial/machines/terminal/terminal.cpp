// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A machine in a terminal: pictures of 64 x 32 coloured blanks on standard output, keys from standard input,
// no pointer and no sound.
#include "image/img.h"
#include "platform/clock.h"
#include "platform/dsp.h"
#include "platform/folder.h"
#include "platform/xdpy.h"
#include "platform/xkbd.h"
#include "platform/xptr.h"

#include <chrono>
#include <cstdio>
#include <poll.h>
#include <thread>
#include <unistd.h>

namespace velm {

std::int64_t CLOCK_now() {
    using namespace std::chrono;
    return duration_cast<microseconds>(steady_clock::now().time_since_epoch()).count();
}

void CLOCK_sleep(std::int32_t micros) {
    std::this_thread::sleep_for(std::chrono::microseconds(micros));
}

void CLOCK_alarm(std::uint32_t delay, std::uint32_t interval) {
    ualarm(delay, interval);
}

XDPY* XDPY_open() {
    constexpr std::uint32_t depth = 24;
    return XDPY_make(depth);
}

bool XDPY_isOpen() {
    return XDPY_current != nullptr;
}

void XDPY_present(XDPY* display, const IMG* img) {
    if (!XDPY_accepts(display, img)) {
        XDPY_error();
        return;
    }
    XDPY_dumpFrame(img);
    std::printf("\x1B[H");
    for (std::int32_t y = 0; y < img->height; y += 8) {
        for (std::int32_t x = 0; x < img->width; x += 4) {
            const std::uint32_t pixel = IMG_getPixel(img, x, y);
            std::printf("\x1B[48;2;%u;%u;%um ", pixel >> 16 & 255, pixel >> 8 & 255, pixel & 255);
        }
        std::printf("\x1B[0m\n");
    }
    std::fflush(stdout);
}

void XDPY_selectInput() {}

void XDPY_resize(XDPY* display, std::int32_t width, std::int32_t height) {
    XDPY_setSize(display, width, height);
}

void XDPY_close(XDPY** handle) {
    XDPY_drop(handle);
}

void XKBD_poll(XKBD* keyboard) {
    if (!XKBD_isUsable(keyboard)) {
        return;
    }
    pollfd input{STDIN_FILENO, POLLIN, 0};
    constexpr std::int32_t anyKeycode = 1;
    if (poll(&input, 1, 0) > 0 && read(STDIN_FILENO, keyboard->text, 1) == 1) {
        keyboard->keycode = anyKeycode;
    }
}

void XKBD_rest(XKBD*) {
    pollfd input{STDIN_FILENO, POLLIN, 0};
    poll(&input, 1, XKBD_longestRest / 1000);
}

XPTR* XPTR_new() {
    return XPTR_make();
}

void XPTR_poll(XPTR*) {}

void XPTR_query(XPTR*) {}

std::int32_t XPTR_flush(XPTR*) {
    return 0;
}

std::int32_t DSP_open(const char*) {
    return -1;
}

std::int32_t DSP_frameRate(std::int32_t, std::int32_t) {
    return 0;
}

std::int32_t DSP_request(std::int32_t, DspRequest, std::int32_t*) {
    return -1;
}

std::int32_t DSP_write(std::int32_t, const std::int16_t*, std::int32_t) {
    return -1;
}

void DSP_close(std::int32_t) {}

std::int32_t FOLDER_read(DIR* dir) {
    return DIR_read(dir, ".");
}

} // namespace velm
