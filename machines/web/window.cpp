// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The canvas as the demo's window. A browser shows a picture only while the program waits, so none is
// presented before the last one could be seen.
#include "image/img.h"
#include "platform/xdpy.h"
#include "web/browser.h"
#include "web/time.h"
#include "web/web.h"

#include <algorithm>
#include <vector>

namespace velm {

Web web;

namespace {

/// A pixel of ours in the order of a canvas, opaque.
constexpr std::uint32_t canvasPixel(std::uint32_t pixel) {
    constexpr std::uint32_t opaque = 0xFF000000;
    constexpr std::uint32_t green = 0x00FF00;
    constexpr std::uint32_t lowByte = 0xFF;
    return opaque | (pixel & lowByte) << 16 | (pixel & green) | (pixel >> 16 & lowByte);
}

} // namespace

XDPY* XDPY_open() {
    constexpr std::uint32_t depth = 24;
    return XDPY_make(depth);
}

bool XDPY_isOpen() {
    return XDPY_current != nullptr;
}

void XDPY_selectInput() {}

void XDPY_resize(XDPY* display, std::int32_t width, std::int32_t height) {
    XDPY_setSize(display, width, height);
}

void XDPY_present(XDPY* display, const IMG* img) {
    if (!XDPY_accepts(display, img)) {
        XDPY_error();
        return;
    }
    static std::vector<std::uint32_t> canvas;
    waitBeforePicture();
    XDPY_dumpFrame(img);
    canvas.resize(static_cast<std::size_t>(img->width) * static_cast<std::size_t>(img->height));
    std::transform(img->pixels, img->pixels + canvas.size(), canvas.begin(), canvasPixel);
    browserShow(canvas.data(), img->width, img->height);
}

void XDPY_close(XDPY** handle) {
    XDPY_drop(handle);
}

} // namespace velm
