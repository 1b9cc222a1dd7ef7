// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "canvas.h"

#include "enlarge.h"
#include "x11/pixels.h"

#include <sys/ipc.h>
#include <sys/shm.h>

namespace velm {

namespace {

constexpr std::int32_t bitsPerByte = 8;

Rows<char> rowsOf(const XImage& image) {
    return {image.data, image.bytes_per_line, image.bits_per_pixel / bitsPerByte};
}

Rows<const char> rowsOf(const IMG& img) {
    return {reinterpret_cast<const char*>(img.pixels),
            std::ptrdiff_t{img.width} * static_cast<std::ptrdiff_t>(sizeof *img.pixels), sizeof *img.pixels};
}

Rows<const char> readOnly(const Rows<char>& rows) {
    return {rows.bytes, rows.stride, rows.pixelBytes};
}

} // namespace

bool Canvas::draw(const IMG& frame, std::int32_t scale) {
    if (!fit(frame.width * scale, frame.height * scale)) {
        return false;
    }
    if (x11CopiesWords(*image)) {
        enlarge(rowsOf(frame), frame.width, frame.height, scale, rowsOf(*image));
        return true;
    }
    if (!convert(frame)) {
        return false;
    }
    enlarge(readOnly(rowsOf(*converted)), frame.width, frame.height, scale, rowsOf(*image));
    return true;
}

void Canvas::send(std::int32_t left, std::int32_t top) {
    const auto width = static_cast<unsigned int>(image->width);
    const auto height = static_cast<unsigned int>(image->height);
    if (segment.shmaddr != nullptr) {
        XShmPutImage(x11Display.connection, x11Display.window, x11Display.graphics, image, 0, 0, left, top,
                     width, height, False);
    } else {
        XPutImage(x11Display.connection, x11Display.window, x11Display.graphics, image, 0, 0, left, top,
                  width, height);
    }
    XFlush(x11Display.connection);
}

/// Makes the image anew when the size changes, and only then.
bool Canvas::fit(std::int32_t width, std::int32_t height) {
    if (image != nullptr && image->width == width && image->height == height) {
        return true;
    }
    release();
    if (!share(width, height)) {
        mayShare = false;
        image = x11NewImage(width, height);
    }
    return image != nullptr;
}

bool Canvas::share(std::int32_t width, std::int32_t height) {
    if (!mayShare || XShmQueryExtension(x11Display.connection) == 0) {
        return false;
    }
    image = XShmCreateImage(x11Display.connection, DefaultVisual(x11Display.connection, x11Display.screen),
                            static_cast<unsigned int>(DefaultDepth(x11Display.connection, x11Display.screen)),
                            ZPixmap, nullptr, &segment, static_cast<unsigned int>(width),
                            static_cast<unsigned int>(height));
    if (image == nullptr) {
        return false;
    }
    constexpr int ownerOnly = 0600;
    segment.shmid = shmget(IPC_PRIVATE,
                           static_cast<std::size_t>(image->bytes_per_line) * static_cast<std::size_t>(height),
                           IPC_CREAT | ownerOnly);
    void* const memory = segment.shmid < 0 ? nullptr : shmat(segment.shmid, nullptr, 0);
    bool shared = memory != nullptr && memory != reinterpret_cast<void*>(-1);
    if (shared) {
        segment.shmaddr = static_cast<char*>(memory);
        image->data = segment.shmaddr;
        const X11ErrorTrap trap;
        shared = XShmAttach(x11Display.connection, &segment) != 0 && !trap.caught();
    }
    // The segment goes with the last of us who is attached, however the program ends.
    if (segment.shmid >= 0) {
        shmctl(segment.shmid, IPC_RMID, nullptr);
    }
    if (!shared) {
        release();
    }
    return shared;
}

void Canvas::release() {
    if (segment.shmaddr != nullptr) {
        const X11ErrorTrap trap; // a segment that was refused cannot be given back, either
        XShmDetach(x11Display.connection, &segment);
        shmdt(segment.shmaddr);
        image->data = nullptr; // Xlib would free it
        segment.shmaddr = nullptr;
    }
    if (image != nullptr) {
        XDestroyImage(image);
        image = nullptr;
    }
}

bool Canvas::convert(const IMG& frame) {
    if (converted != nullptr && (converted->width != frame.width || converted->height != frame.height)) {
        XDestroyImage(converted);
        converted = nullptr;
    }
    if (converted == nullptr) {
        converted = x11NewImage(frame.width, frame.height);
    }
    if (converted == nullptr) {
        return false;
    }
    x11CopyPixels(frame, *converted);
    return true;
}

} // namespace velm
