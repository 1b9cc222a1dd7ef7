// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "image/img.h"
#include "live/live.h"
#include "platform/xdpy.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <sys/mman.h>

namespace velm {

namespace {

std::int32_t shown = 0;       ///< frames presented
std::uint32_t heardAsked = 0; ///< of the bell

Channel* openChannel() {
    const char* const descriptor = std::getenv(channelVariable);
    if (descriptor == nullptr) {
        return nullptr;
    }
    void* const memory =
        mmap(nullptr, sizeof(Channel), PROT_READ | PROT_WRITE, MAP_SHARED, std::atoi(descriptor), 0);
    return memory == MAP_FAILED ? nullptr : static_cast<Channel*>(memory);
}

} // namespace

Channel* liveChannel() {
    static Channel* const channel = openChannel();
    return channel;
}

XDPY* XDPY_open() {
    constexpr std::uint32_t depth = 24;
    if (liveChannel() == nullptr) {
        std::fputs("this program plays in the window of velm4030-live\n", stderr);
        std::exit(EXIT_FAILURE);
    }
    XDPY_framesBefore = liveChannel()->frame - shown;
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
    Channel& channel = *liveChannel();
    XDPY_dumpFrame(img);
    std::copy_n(img->pixels, Channel::size * Channel::size, channel.picture);
    channel.drawn.ring();
    constexpr std::int64_t second = 1000000;
    while (!channel.asked.hasRung(heardAsked, second)) {
    }
    XDPY_framesBefore = channel.frame - ++shown;
}

void XDPY_close(XDPY** handle) {
    XDPY_drop(handle);
}

} // namespace velm
