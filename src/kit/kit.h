// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// KIT, a program of one's own in a loop of frames: a window, fonts, keys, a pointer, sound, and the pace of
// it all, on whatever machine the program is linked with.
//
//     int main() {
//         KIT* kit = KIT_new();
//         while (KIT_nextFrame(kit)) {
//             IMG_putPixel(kit->screen, 128, 128, 0xFFFFFF);
//         }
//         KIT_delete(&kit);
//     }
#pragma once

// IWYU pragma: begin_exports
#include "audio/music.h"
#include "audio/sample.h"
#include "effects/lfont.h"
#include "foundation/chance.h"
#include "foundation/identity.h"
#include "foundation/list.h"
#include "foundation/owned.h"
#include "foundation/sine.h"
#include "image/img.h"
#include "image/rgb888.h"
#include "platform/xdpy.h"
#include "platform/xkbd.h"
#include "platform/xptr.h"
#include "platform/xsnd.h"
#include "vector/font.h"
// IWYU pragma: end_exports

#include <cstdint>

namespace velm {

struct KIT {
    IMG* screen = nullptr;        ///< owned; 256 by 256 pixels: draw here
    std::uint32_t background = 0; ///< 0x00RRGGBB, what every frame begins with
    bool keeps = false;           ///< true: a frame begins with the picture of the one before
    std::int32_t frame = 0;       ///< number of the frame to be drawn, from 0
    std::int32_t rate = 30;       ///< frames a second; KIT_setRate sets it

    char key = 0;              ///< what the key that was pressed since the last frame writes; 0 for none
    std::int32_t keycode = 0;  ///< its X keycode, which arrows have, too (see xkbd.h); 0 for none
    XPTR* pointer = nullptr;   ///< owned; where it is at the frame's beginning, and its buttons
    LFONT* pen = nullptr;      ///< owned; writes lines of light, 16 by 16, into the screen
    LFONT* smallPen = nullptr; ///< owned; the same, 8 by 8
    FONT* font = nullptr;      ///< owned; writes pixels, 16 by 16, into the screen
    SAMPLE* hues = nullptr;    ///< owned; RGB888_hueCount colours around the hue circle, a palette
    XSND* sound = nullptr;     ///< owned; append SAMPLEs to `sound->queue`, they play one after the other
    MUSIC* music = nullptr;    ///< borrowed; while it is set, it is composed on and played

    XDPY* display = nullptr;  ///< owned; the window
    XKBD* keyboard = nullptr; ///< owned; KIT_nextFrame takes its keys
    std::int32_t shown = -1;  ///< frames shown so far; -1 before the first call of KIT_nextFrame
    std::int64_t begin = 0;   ///< CLOCK_now() at the frame's beginning
};

extern const IDENTITY KIT_identity;
extern std::uint8_t KIT_verbose;

/// Opens the window, which has the program's name (see program.h), and makes all that the record names, and
/// begins chance() anew, so that every run is the same. Without a display the program ends with one line and
/// status 1; nullptr (reported) without memory. Without a sound device everything works and nothing is heard.
KIT* KIT_new();

/// Shows what has been drawn, plays, waits for the next frame's time, takes a key, and clears the screen.
/// False when the program is to end: Escape, the close button, or no record (reported).
bool KIT_nextFrame(KIT* kit);

/// Frames a second from now on, 1..100; others are reported. The sound follows.
void KIT_setRate(KIT* kit, std::int32_t framesPerSecond);

/// Frees all that the record owns and the record, closes the window and stores nullptr in the handle.
void KIT_delete(KIT** handle);

/// Prints "KIT error" while KIT_verbose is set.
void KIT_error();

} // namespace velm
