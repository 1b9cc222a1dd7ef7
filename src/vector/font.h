// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// FONT, a pen that writes with a sheet of equally sized glyph cells. Cell n is character code n; the cells
// run from left to right and wrap at the sheet's width. Every character moves the pen right by one cell.
//
//     FONT* pen = FONT_new();
//     pen->image = IMG_fromPNM(sheet, count), pen->target = screen;
//     FONT_drawString(pen, "HELLO");
#pragma once

#include "foundation/identity.h"

#include <cstdint>

namespace velm {

struct IMG;

struct FONT {
    std::int32_t x = 0;         ///< left edge of the next glyph in the target, pixels
    std::int32_t y = 0;         ///< top edge of the next glyph in the target, pixels
    std::int32_t width = 6;     ///< cell width, pixels
    std::int32_t height = 6;    ///< cell height, pixels
    std::int32_t character = 0; ///< code that FONT_drawChar draws
    IMG* image = nullptr;       ///< owned; the sheet, set by the user
    IMG* target = nullptr;      ///< borrowed; the image drawn into, set by the user
};

extern const IDENTITY FONT_identity;
extern std::uint8_t FONT_verbose;

/// A pen with the defaults above, or nullptr (reported). All that draws needs a sheet at least one pixel
/// wide; a pen without one is reported and stays as it is.
FONT* FONT_new();

/// Draws `character` at (x, y), 0 pixels being transparent, then moves the pen right by `width`. A code past
/// the end of the sheet draws nothing and moves the pen; so does a missing target, which the copy reports.
void FONT_drawChar(FONT* font);

/// The same, copying every pixel of the cell, black included.
void FONT_drawCharVariant1(FONT* font);

/// The same, adding the cell's pixels to the target's, each channel stopping at 255.
void FONT_drawCharVariant2(FONT* font);

/// Two upper-case hexadecimal digits.
void FONT_drawHexByte(FONT* font, std::uint8_t value);

/// Four upper-case hexadecimal digits.
void FONT_drawHexWord(FONT* font, std::uint16_t value);

/// Eight upper-case hexadecimal digits.
void FONT_drawHexLong(FONT* font, std::uint32_t value);

/// Ten decimal digits, leading zeros included.
void FONT_drawDecimal(FONT* font, std::uint32_t value);

/// Draws a text (bytes 0..255) up to its first line feed or its end.
void FONT_drawString(FONT* font, const char* text);

/// Draws a text of several lines opaquely (FONT_drawCharVariant1). A line feed puts x back to where the call
/// began and moves y down by `height`.
void FONT_drawText(FONT* font, const char* text);

/// Draws the glyph of `big` as a mosaic: the glyph of `small` for each of its pixels that is not 0. `small`
/// draws into the target of `big` from then on; `big` moves right by as many small cells as it is wide.
void FONT_drawBig(FONT* big, FONT* small);

/// Deletes the sheet and the pen and stores nullptr in the handle.
void FONT_delete(FONT** handle);

/// Prints "FONT Error." while FONT_verbose is set.
void FONT_error();

} // namespace velm
