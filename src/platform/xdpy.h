// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// XDPY, the program's one window: 256 by 256 pixels, titled "VELM4030". A finished frame is presented by
// copying it into one client-side image that is sent to the server.
//
//     XDPY* display = XDPY_open();
//     XDPY_present(display, screen);
#pragma once

#include "foundation/identity.h"

#include <cstdint>

namespace velm {

struct IMG;

struct XDPY {
    std::uint32_t width;  ///< of the window in pixels; 256
    std::uint32_t height; ///< of the window in pixels; 256
    std::uint32_t depth;  ///< root depth of the display's first screen
};

/// Every presented frame is also written to "frame-%05d.ppm" in the current folder while `on` is set. Nothing
/// in the program sets it.
struct XDPY_DUMP {
    std::uint8_t on;     ///< cleared by XDPY_open
    std::uint32_t count; ///< frames dumped so far; the first file is frame-00001.ppm
};

extern const IDENTITY XDPY_identity;
extern std::uint8_t XDPY_verbose;
extern XDPY_DUMP XDPY_dump;

/// The record of the open window, nullptr without one. XDPY_open and XDPY_close set it.
extern XDPY* XDPY_current;

/// Frames that the window had shown before this program began to draw into it: 0, but on a machine that
/// changes programs under an open window.
inline std::int32_t XDPY_framesBefore = 0;

/// Connects to the default display and maps the window at (0, 0). Without a display it prints one line that
/// names it and ends the program with status 1; so does a connection that is lost later on. nullptr
/// (reported) on other failures.
XDPY* XDPY_open();

/// True while a window is open.
bool XDPY_isOpen();

/// Selects the window's key, button and motion events. The keyboard and the pointer each ask for it.
void XDPY_selectInput();

/// Resizes the window. Frames must then have the new size, and the client-side image keeps its first one.
void XDPY_resize(XDPY* display, std::int32_t width, std::int32_t height);

/// Shows a frame of the window's size; any other is reported and not shown. A hidden or iconified window is
/// not drawn, but frames are dumped all the same.
void XDPY_present(XDPY* display, const IMG* img);

/// The empty text for the current record, else nullptr (reported).
const char* XDPY_getName(const XDPY* display);

/// 1 when both are the current record, else 0.
std::int32_t XDPY_same(const XDPY* a, const XDPY* b);

/// The record when it is the current one, else nullptr.
XDPY* XDPY_get(XDPY* display);

/// Forgets the window, frees the record and stores nullptr in the handle. The process's end takes the window
/// down.
void XDPY_close(XDPY** handle);

/// Writes a frame as the next "frame-%05d.ppm" while the dump is on; XDPY_present calls it for every frame it
/// accepts.
void XDPY_dumpFrame(const IMG* img);

/// True when `img` can be shown: it has pixels and the size of the open window.
bool XDPY_accepts(const XDPY* display, const IMG* img);

/// What every machine's XDPY_open begins with: a record of 256 by 256 pixels that is the current one, the
/// dump off; nullptr (reported) without memory.
XDPY* XDPY_make(std::uint32_t depth);

/// What a machine's XDPY_resize does with the record: it holds the size, each >= 0; false (reported)
/// otherwise.
bool XDPY_setSize(XDPY* display, std::int32_t width, std::int32_t height);

/// What every machine's XDPY_close does with the record: the current one goes and the handle is nullptr;
/// false (reported) for any other.
bool XDPY_drop(XDPY** handle);

/// Prints "XDPY error" while XDPY_verbose is set.
void XDPY_error();

} // namespace velm
