// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// RASTER, raster bars: every row of a picture takes one colour from a list, and the list rolls through the
// rows at a fixed-point speed.
//
//     RASTER* bars = RASTER_new();
//     RASTER_setCount(bars, 1536); // then fill bars->colours
//     RASTER_advance(bars), RASTER_draw(bars, screen); // each frame
#pragma once

#include "foundation/identity.h"

#include <cstdint>

namespace velm {

struct IMG;

struct RASTER {
    std::int32_t position = 0; ///< 16.16; index of the colour on row 0
    std::int32_t speed;        ///< 16.16; added to `position` a frame; random, 1.0 to just under 17.0
    std::int32_t count = 256;  ///< colours
    std::uint32_t* colours;    ///< owned; `count` words 0x00RRGGBB and a spare one; black at first
    std::int32_t reserved = 0;
};

extern const IDENTITY RASTER_identity;
extern std::uint8_t RASTER_verbose;

/// Black colours and a random speed (one draw of chance()), or nullptr (reported).
RASTER* RASTER_new();

/// Only opens the file and closes it again (a failure is reported); always returns nullptr.
RASTER* RASTER_load(const char* path);

/// Replaces the list by `count` (>= 0) black colours and goes to position 0. On failure it reports and leaves
/// the raster as it was. An empty list is reported by all that advances or draws.
void RASTER_setCount(RASTER* raster, std::int32_t count);

/// Blackens the list, the spare colour included.
void RASTER_clear(RASTER* raster);

/// Blurs the list in place over `radius` (> 0) neighbours on either side, as a ring. See docs/quirks.md for
/// its ends.
void RASTER_smooth(RASTER* raster, std::int32_t radius);

/// Moves the position by the speed, around the list. The 16.16 arithmetic is 32-bit, so lists up to 32767
/// colours roll cleanly.
void RASTER_advance(RASTER* raster);

/// Fills every row of the target with its colour; a short list repeats.
void RASTER_draw(const RASTER* raster, IMG* target);

/// The same, each channel becoming (colour * alpha + old * (256 - alpha)) >> 8, alpha 0..256.
void RASTER_drawBlend(const RASTER* raster, IMG* target, std::uint32_t alpha);

/// Fills every column instead.
void RASTER_drawVertical(const RASTER* raster, IMG* target);

/// 1 when list, position and speed are equal, else 0. Equal rasters are reported, too: see docs/quirks.md.
std::int32_t RASTER_equals(const RASTER* a, const RASTER* b);

/// Copies list, position and speed. Different counts are reported; then as many colours are copied as both
/// have, and the counts stay.
void RASTER_copy(const RASTER* src, RASTER* dst);

/// A new raster (one draw of chance()) with the list, position and speed of `src`, or nullptr (reported).
RASTER* RASTER_clone(const RASTER* src);

/// Only makes the file, or makes it empty, and closes it (a failure is reported).
void RASTER_save(const RASTER* raster, const char* path);

/// Frees the list and the record and stores nullptr in the handle.
void RASTER_delete(RASTER** handle);

/// Prints "RASTER error" while RASTER_verbose is set.
void RASTER_error();

} // namespace velm
