// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What every implementation of the window shares.
#include "platform/xdpy.h"

#include "foundation/record.h"
#include "foundation/report.h"
#include "image/img.h"

#include <cstdio>

namespace velm {

const IDENTITY XDPY_identity = makeIdentity("XDPY", "20150214", "ZENDORAK", "XWINDOWS", "CODE");
std::uint8_t XDPY_verbose = 0;
XDPY_DUMP XDPY_dump{};
XDPY* XDPY_current = nullptr;

XDPY* XDPY_make(std::uint32_t depth) {
    constexpr std::uint32_t windowSize = 256;
    XDPY_dump.on = 0;
    XDPY_current = newRecord<XDPY>(XDPY_error);
    if (XDPY_current != nullptr) {
        *XDPY_current = {.width = windowSize, .height = windowSize, .depth = depth};
    }
    return XDPY_current;
}

bool XDPY_setSize(XDPY* display, std::int32_t width, std::int32_t height) {
    if (refused(display == nullptr || width < 0 || height < 0, XDPY_error)) {
        return false;
    }
    display->width = static_cast<std::uint32_t>(width);
    display->height = static_cast<std::uint32_t>(height);
    return true;
}

bool XDPY_drop(XDPY** handle) {
    if (refused(handle == nullptr || *handle == nullptr || *handle != XDPY_current, XDPY_error)) {
        return false;
    }
    XDPY_current = nullptr;
    delete *handle;
    *handle = nullptr;
    return true;
}

bool XDPY_accepts(const XDPY* display, const IMG* img) {
    return display != nullptr && hasPixels(img) && static_cast<std::uint32_t>(img->width) == display->width &&
           static_cast<std::uint32_t>(img->height) == display->height && XDPY_isOpen();
}

void XDPY_dumpFrame(const IMG* img) {
    if (XDPY_dump.on == 0) {
        return;
    }
    char path[32];
    ++XDPY_dump.count;
    std::snprintf(path, sizeof path, "frame-%05d.ppm", static_cast<int>(XDPY_dump.count));
    IMG_writePPM(img, path);
}

const char* XDPY_getName(const XDPY* display) {
    return refused(display == nullptr || display != XDPY_current, XDPY_error) ? nullptr : "";
}

std::int32_t XDPY_same(const XDPY* a, const XDPY* b) {
    return !refused(a == nullptr || b == nullptr, XDPY_error) && a == b && a == XDPY_current ? 1 : 0;
}

XDPY* XDPY_get(XDPY* display) {
    return refused(display == nullptr || display != XDPY_current, XDPY_error) ? nullptr : display;
}

void XDPY_error() {
    reportLine(XDPY_verbose, "XDPY error");
}

} // namespace velm
