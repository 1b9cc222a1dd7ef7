// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "foundation/report.h"
#include "headless/environment.h"
#include "headless/headless.h"
#include "image/img.h"
#include "platform/clock.h"
#include "platform/xdpy.h"
#include "platform/xkbd.h"
#include "platform/xptr.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <iterator>

namespace velm {

Headless headless;

namespace {

constexpr std::uint32_t windowDepth = 24;

/// The next entry that is due, or nullptr; entries are due once their presentation has been made.
template <typename Entry>
const Entry* takeDue(const std::vector<Entry>& entries, std::size_t& next) {
    if (next < entries.size() && entries[next].frame <= headless.frames) {
        return &entries[next++];
    }
    return nullptr;
}

void place(XPTR* pointer, const HeadlessPointer& entry) {
    constexpr std::int32_t known = 7;
    pointer->x = entry.x;
    pointer->y = entry.y;
    pointer->buttons = (pointer->buttons & ~known) | (entry.buttons & known);
}

} // namespace

std::int64_t CLOCK_now() {
    return headless.micros;
}

void CLOCK_sleep(std::int32_t micros) {
    const std::int64_t end = headless.micros + micros;
    while (headless.alarmAt != 0 && headless.alarmAt <= end) {
        headless.micros = headless.alarmAt;
        headless.alarmAt = headless.alarmInterval == 0 ? 0 : headless.alarmAt + headless.alarmInterval;
        std::raise(SIGALRM);
    }
    headless.micros = end;
}

void CLOCK_alarm(std::uint32_t delay, std::uint32_t interval) {
    if (delay <= CLOCK_longestAlarm && interval <= CLOCK_longestAlarm) {
        headless.alarmAt = delay == 0 ? 0 : headless.micros + delay;
        headless.alarmInterval = interval;
    }
}

XDPY* XDPY_open() {
    takeEnvironment();
    return XDPY_make(windowDepth);
}

bool XDPY_isOpen() {
    return XDPY_current != nullptr;
}

void XDPY_selectInput() {}

void XDPY_resize(XDPY* display, std::int32_t width, std::int32_t height) {
    XDPY_setSize(display, width, height);
}

void XDPY_present(XDPY* display, const IMG* img) {
    if (refused(!XDPY_accepts(display, img), XDPY_error)) {
        return;
    }
    if (headless.frameLimit != 0 && headless.frames >= headless.frameLimit && headless.onLimit) {
        headless.onLimit();
    }
    ++headless.frames;
    XDPY_dumpFrame(img);
    if (headless.onFrame) {
        headless.onFrame(*img);
    }
}

void XDPY_close(XDPY** handle) {
    XDPY_drop(handle);
}

void XKBD_poll(XKBD* keyboard) {
    if (keyboard == nullptr) {
        XKBD_error();
        std::exit(0);
    }
    const HeadlessKey* const key = takeDue(headless.keys, headless.nextKey);
    if (key == nullptr) {
        return;
    }
    keyboard->keycode = key->keycode;
    if (key->text != '\0') {
        keyboard->text[0] = key->text;
    }
}

void XKBD_rest(XKBD*) {
    // Time stands still in a pause, and so does the count of frames: only a key that is due already can end
    // it.
    const bool hasKey =
        headless.nextKey < headless.keys.size() && headless.keys[headless.nextKey].frame <= headless.frames;
    if (!hasKey && headless.onEndlessPause) {
        headless.onEndlessPause();
    }
}

XPTR* XPTR_new() {
    return XPTR_make();
}

void XPTR_poll(XPTR* pointer) {
    if (refused(pointer == nullptr, XPTR_error)) {
        return;
    }
    if (const HeadlessPointer* const due = takeDue(headless.pointers, headless.nextPointer); due != nullptr) {
        place(pointer, *due);
    }
}

void XPTR_query(XPTR* pointer) {
    if (refused(pointer == nullptr, XPTR_error)) {
        return;
    }
    const auto later =
        std::find_if(headless.pointers.begin(), headless.pointers.end(),
                     [](const HeadlessPointer& entry) { return entry.frame > headless.frames; });
    if (later != headless.pointers.begin()) {
        place(pointer, *std::prev(later));
    }
}

std::int32_t XPTR_flush(XPTR* pointer) {
    if (pointer == nullptr) {
        XPTR_error();
    }
    while (takeDue(headless.pointers, headless.nextPointer) != nullptr) {
    }
    return 0;
}

} // namespace velm
