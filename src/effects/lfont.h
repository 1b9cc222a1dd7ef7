// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// LFONT, a pen that writes with a line font: it poses the drawing of a character at its position, at its
// scale and angle, and lets the drawing draw itself.
//
//     LFONT* pen = LFONT_new();
//     pen->glyphs = OBJ2D_parse(fontText), pen->target = screen;
//     LFONT_drawText(pen, "HELLO\nWORLD");
#pragma once

#include "foundation/identity.h"

#include <cstdint>

namespace velm {

struct IMG;
struct LIST;
struct VEC2D;

struct LFONT {
    VEC2D* position; ///< owned; where a glyph's origin goes, target pixels; (0, 0) in a new pen
    VEC2D* spacing;  ///< owned; advance and line height before scaling, pixels; (16, 16) in a new pen
    std::int32_t character = 0; ///< code to draw next, the index into `glyphs`
    VEC2D* scale;           ///< owned; whole factors of glyph and advance, of any sign; (1, 1) in a new pen
    std::int32_t angle = 0; ///< of each glyph, 1/1024 turns
    LIST* glyphs = nullptr; ///< OBJ2D, element n for code n, or nullptr; set by the user; see LFONT_delete
    IMG* target = nullptr;  ///< borrowed; the image drawn into, set by the user
};

extern const IDENTITY LFONT_identity;
extern std::uint8_t LFONT_verbose;

/// A pen without glyphs, or nullptr (reported). To draw it needs them: a pen without glyphs, and a code
/// without one, is reported and the pen stays where it is.
LFONT* LFONT_new();

/// Makes the pen write upright from (x, y) on, magnified `scale` times.
void LFONT_place(LFONT* pen, std::int32_t x, std::int32_t y, std::int32_t scale);

/// Gives every glyph the colour 0x00RRGGBB.
void LFONT_setColour(LFONT* pen, std::uint32_t colour);

/// Gives every glyph a light colour of its own, each channel 128..255: one draw of chance() a glyph, the last
/// one first.
void LFONT_randomColours(LFONT* pen);

/// Draws glyph `character` at `position` and moves the pen right by scale.x * spacing.x. Without a target
/// OBJ2D reports and only the pen moves.
void LFONT_drawChar(LFONT* pen);

/// The same, after giving this glyph a random light colour, which it keeps. Draws from chance() once, and
/// only when there is a glyph.
void LFONT_drawCharRandomColour(LFONT* pen);

/// Draws a text (bytes 0..255) up to its first line feed or its end.
void LFONT_drawLine(LFONT* pen, const char* text);

/// Draws a text of several lines. A line feed moves the pen down by scale.y * spacing.y, back to the x where
/// the call began.
void LFONT_drawText(LFONT* pen, const char* text);

/// Two upper-case hexadecimal digits.
void LFONT_drawHexByte(LFONT* pen, std::uint8_t value);

/// Four upper-case hexadecimal digits.
void LFONT_drawHexWord(LFONT* pen, std::uint16_t value);

/// Eight upper-case hexadecimal digits.
void LFONT_drawHexLong(LFONT* pen, std::uint32_t value);

/// Ten decimal digits, leading zeros included.
void LFONT_drawDecimal(LFONT* pen, std::uint32_t value);

/// Reports when one of the two is nullptr.
void LFONT_checkArgs(const void* a, const void* b);

/// Deletes the pen and its glyphs and stores nullptr in the handle. The list of the glyphs stays allocated
/// and must no longer be used, except to delete it.
void LFONT_delete(LFONT** handle);

/// Prints "LFONT Error." while LFONT_verbose is set.
void LFONT_error();

} // namespace velm
