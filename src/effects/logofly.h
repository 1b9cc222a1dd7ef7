// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// LOGOFLY makes a short word hop: each letter is lifted above a base line by a sine of its own, and as only
// the upper half of the wave is used, the letters bounce like balls on a floor.
//
//     LOGOFLY* logo = LOGOFLY_new();
//     logo->pen = textMedium, logo->target = screen, logo->x = 96, logo->y = 224;
//     LOGOFLY_draw(logo), LOGOFLY_advance(logo); // each frame
#pragma once

#include "foundation/identity.h"

#include <cstdint>

namespace velm {

struct IMG;
struct LFONT;

struct LOGOFLY {
    std::int32_t x = 0;                                  ///< left edge of the word, pixels
    std::int32_t y = 0;                                  ///< base line of the letters, pixels
    std::int32_t z = 0;                                  ///< not used by the drawing
    std::int32_t width = 256, height = 256, depth = 256; ///< not used by the drawing
    std::int32_t phase = 0;                              ///< of the first letter, 0..511 in 1/1024 turns
    std::int32_t speed;                                  ///< added to `phase` a frame; random, 8..31
    std::int32_t letterStep;                             ///< phase from letter to letter; random, 1..8
    std::int32_t amplitude;                              ///< height of the hop, pixels; random, 16..115
    const char* text = "VELM";                           ///< borrowed
    std::uint32_t colour = 0xFFFFFF;                     ///< 0x00RRGGBB of all the pen's glyphs
    LFONT* pen = nullptr;   ///< borrowed; draws the letters into its own target; set by the user
    std::int32_t spare = 0; ///< copied, not used
    std::int32_t reserved = 0;
    IMG* target = nullptr; ///< borrowed; must be set, the pen's own target takes the pixels
};

extern const IDENTITY LOGOFLY_identity;
extern std::uint8_t LOGOFLY_verbose;

/// A logo at (0, 0) with random motion (three draws of chance()), or nullptr (reported).
LOGOFLY* LOGOFLY_new();

/// Back to the defaults of phase, colour and text, with new motion: three draws of chance() for speed,
/// letterStep and amplitude.
void LOGOFLY_randomize(LOGOFLY* logo);

/// Moves the wave by its speed within the upper half of the sine.
void LOGOFLY_advance(LOGOFLY* logo);

/// The same within the whole sine: the first letter swings below the base line, too.
void LOGOFLY_advanceFull(LOGOFLY* logo);

/// Draws the first 40 letters of the word at most. The pen keeps its colour, scale 1 and angle 0 afterwards.
/// A missing pen, target or text is reported.
void LOGOFLY_draw(const LOGOFLY* logo);

/// 1 when phase, speed, letterStep and amplitude are equal, else 0.
std::int32_t LOGOFLY_equals(const LOGOFLY* a, const LOGOFLY* b);

/// Copies the motion, spare, pen, target, colour and place; the text stays.
void LOGOFLY_copy(const LOGOFLY* src, LOGOFLY* dst);

/// A new logo (three draws of chance()) with the motion, spare, pen, target and colour of `src`, but with the
/// place and the text of a new one; nullptr (reported) on failure.
LOGOFLY* LOGOFLY_clone(const LOGOFLY* src);

/// Frees the record and stores nullptr in the handle; text, pen and target are untouched.
void LOGOFLY_delete(LOGOFLY** handle);

/// Prints "LOGOFLY error" while LOGOFLY_verbose is set.
void LOGOFLY_error();

} // namespace velm
