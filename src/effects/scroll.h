// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// SCROLL, the endless scroller: a text that moves sideways pixel by pixel and begins again after its last
// character, drawn with a bitmap font.
//
//     SCROLL* scroll = SCROLL_new();
//     SCROLL_setup(scroll, "HELLO, WORLD. ", font, strip), scroll->speed = 3;
//     SCROLL_step(scroll), SCROLL_draw(scroll); // each frame, onto a cleared strip
#pragma once

#include "foundation/identity.h"

#include <cstdint>

namespace velm {

struct CURSOR;
struct FONT;
struct IMG;

struct SCROLL {
    std::int32_t x = 0;          ///< column of the target where the first character begins, before `offset`
    std::int32_t y = 0;          ///< row of the target where the text begins
    std::int32_t z = 0;          ///< not used
    std::int32_t viewWidth = 0;  ///< width of the target, pixels
    std::int32_t charHeight = 0; ///< glyph height, pixels; not used by the drawing
    std::int32_t fontField = 0;  ///< the font's `character` at the set-up; not used by the drawing
    std::int32_t speed = 1;      ///< pixels a step, to the left when positive
    std::int32_t offset = 0;     ///< pixels into the first character
    const char* text = nullptr;  ///< borrowed
    CURSOR* cursor;              ///< owned; the first visible character
    FONT* font = nullptr;        ///< borrowed; its cell width is the pitch of the characters
    IMG* target = nullptr;       ///< borrowed; the image drawn into
};

extern const IDENTITY SCROLL_identity;
extern std::uint8_t SCROLL_verbose;

/// A scroller that needs a SCROLL_setup before it moves, or nullptr (not reported: see docs/quirks.md).
SCROLL* SCROLL_new();

/// Binds the scroller to a text, a font and an image, which must stay until it is deleted, and goes to the
/// text's beginning at (0, 0). `speed` and `offset` stay. On failure it reports and changes nothing. What
/// then moves and draws needs a text that is not empty and a cell width above 0; others are reported.
void SCROLL_setup(SCROLL* scroll, const char* text, FONT* font, IMG* target);

/// Moves the text by `speed` pixels.
void SCROLL_step(SCROLL* scroll);

/// Draws the visible characters with the font, whose pen moves; 0 pixels are transparent. The cursor's step
/// is 1 afterwards, its index as before.
void SCROLL_draw(SCROLL* scroll);

/// The same, copying whole cells, black included.
void SCROLL_drawOpaque(SCROLL* scroll);

/// Frees the cursor and the record and stores nullptr in the handle; text, font and target are untouched.
void SCROLL_delete(SCROLL** handle);

/// Prints "SCROLL error" while SCROLL_verbose is set.
void SCROLL_error();

} // namespace velm
