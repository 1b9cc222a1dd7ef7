// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Preloaded into the demo: writes a line to the file that VELM_SPY names for every picture sent to the
// server, the largest of its pixels (of 32 bits) in hexadecimal.
#include <X11/Xlib.h>
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>

namespace {

void note(const XImage* image, unsigned int width, unsigned int height) {
    static std::FILE* const log = std::fopen(std::getenv("VELM_SPY"), "a");
    // Xlib sends the pixel of an invisible cursor this way, too.
    if (width * height <= 1) {
        return;
    }
    std::uint32_t brightest = 0;
    if (image->bits_per_pixel == 32) {
        const auto* const pixels = reinterpret_cast<const std::uint32_t*>(image->data);
        brightest = *std::max_element(pixels, pixels + width * height);
    }
    std::fprintf(log, "%06x\n", brightest);
    std::fflush(log);
}

} // namespace

extern "C" int XPutImage(Display* display, Drawable drawable, GC graphics, XImage* image, int srcX, int srcY,
                         int dstX, int dstY, unsigned int width, unsigned int height) {
    using Put = int (*)(Display*, Drawable, GC, XImage*, int, int, int, int, unsigned int, unsigned int);
    static const auto put = reinterpret_cast<Put>(dlsym(RTLD_NEXT, "XPutImage"));
    note(image, width, height);
    return put(display, drawable, graphics, image, srcX, srcY, dstX, dstY, width, height);
}

extern "C" Bool XShmPutImage(Display* display, Drawable drawable, GC graphics, XImage* image, int srcX,
                             int srcY, int dstX, int dstY, unsigned int width, unsigned int height,
                             Bool sendEvent) {
    using Put =
        Bool (*)(Display*, Drawable, GC, XImage*, int, int, int, int, unsigned int, unsigned int, Bool);
    static const auto put = reinterpret_cast<Put>(dlsym(RTLD_NEXT, "XShmPutImage"));
    note(image, width, height);
    return put(display, drawable, graphics, image, srcX, srcY, dstX, dstY, width, height, sendEvent);
}
