// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// MOUSE draws the program's own pointer, a small picture copied into the frame where the hidden system
// pointer is. Its hot spot is the picture's top-left pixel.
//
//     MOUSE* mouse = MOUSE_new();
//     mouse->pointer = pointer, mouse->image = picture, mouse->target = screen;
//     MOUSE_update(mouse), MOUSE_draw(mouse); // each frame
#pragma once

#include "foundation/identity.h"

#include <cstdint>

namespace velm {

struct IMG;
struct XPTR;

struct MOUSE {
    std::int32_t x = 0;            ///< window pixels; the seven fields of the pointer begin here
    std::int32_t y = 0;            ///< window pixels
    std::int32_t reserved[4] = {}; ///< as the pointer's
    std::int32_t buttons = 0;      ///< bits 0, 1, 2: button 1, 2, 3 is held
    XPTR* pointer = nullptr;       ///< borrowed; what MOUSE_update follows, set by the user
    IMG* image = nullptr;          ///< borrowed; the picture, 0 pixels are transparent
    IMG* target = nullptr;         ///< borrowed; the image drawn into, set by the user
};

extern const IDENTITY MOUSE_identity;
extern std::uint8_t MOUSE_verbose;

/// A pointer at (0, 0), or nullptr (reported) when memory runs out or no window is open.
MOUSE* MOUSE_new();

/// Copies the seven fields of `pointer`.
void MOUSE_update(MOUSE* mouse);

/// Copies the picture to (x, y), clipped. A missing target is reported by IMG, too.
void MOUSE_draw(const MOUSE* mouse);

/// 1 when the seven fields, `image` and `target` are equal, else 0.
std::int32_t MOUSE_equals(const MOUSE* a, const MOUSE* b);

/// Copies the seven fields, `image` and `target`.
void MOUSE_copy(const MOUSE* src, MOUSE* dst);

/// Always returns nullptr (see docs/quirks.md).
MOUSE* MOUSE_clone(const MOUSE* src);

/// Frees the record and stores nullptr in the handle; pointer, picture and target are untouched.
void MOUSE_delete(MOUSE** handle);

/// Prints "MOUSE error" while MOUSE_verbose is set.
void MOUSE_error();

} // namespace velm
