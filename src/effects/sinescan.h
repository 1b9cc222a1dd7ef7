// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// SINESCAN bends a picture by scanning it: every row or column of the target takes a line of the source from
// a place, and at a length, that sine waves decide. It makes flags, rubber pictures and a twisting column.
//
//     SINESCAN* scan = SINESCAN_new();
//     scan->source = picture, scan->way = SINESCAN_WAY::twister;
//     SINESCAN_advance(scan), SINESCAN_draw(scan, screen); // each frame
#pragma once

#include "foundation/identity.h"
#include "foundation/sine.h"

#include <cstdint>

namespace velm {

struct IMG;

/// What a line is: a row, a column, or a row of a four-sided column that is seen from outside and shows the
/// picture on each of its sides.
enum class SINESCAN_WAY : std::uint8_t { rows, columns, twister };

/// A wave over the lines. All angles are in 1/1024 turns.
struct SINESCAN_WAVE {
    std::int32_t reach; ///< how much it does at its peak
    SINE wave{};        ///< `speed` a frame, `offsetStep` from line to line; random
};

struct SINESCAN {
    std::int32_t x = 128, y = 128;         ///< the middle of the picture, target pixels
    std::int32_t width = 128, height = 64; ///< its size unbent, pixels, 0..4096; a negative one draws nothing
    SINESCAN_WAY way = SINESCAN_WAY::rows;
    SINESCAN_WAVE shift{12};       ///< moves a line along itself, pixels
    SINESCAN_WAVE stretch{32};     ///< lengthens it, 1/256 of its length; from -256 on it turns over
    SINESCAN_WAVE scan{4};         ///< takes it from that many source lines farther on, wrapped
    SINESCAN_WAVE twist{256};      ///< turns a twister's line, 1/1024 turns
    std::int32_t turn = 0;         ///< further turn of a whole twister
    std::int32_t turnSpeed = 6;    ///< added to `turn` a frame
    std::int32_t pinned = 0;       ///< 1: shift and stretch grow from nothing at the first line
    std::int32_t shade = 128;      ///< 0..256: how dark the folds are, and a twister's sides that turn away
    std::int32_t brightness = 256; ///< of all colours, 0..256
    const IMG* source = nullptr;   ///< borrowed; 0 pixels are transparent; set by the user
};

extern const IDENTITY SINESCAN_identity;
extern std::uint8_t SINESCAN_verbose;

/// A scan with random waves (12 draws of chance()), or nullptr (reported).
SINESCAN* SINESCAN_new();

/// Draws phase, speed and step from line to line of shift, stretch, scan and twist: 12 numbers from chance().
void SINESCAN_randomize(SINESCAN* scan);

/// Moves the four waves and the turn by their speeds.
void SINESCAN_advance(SINESCAN* scan);

/// Draws the picture, clipped. Without a source, or with one that has no pixels, nothing is drawn and it is
/// reported.
void SINESCAN_draw(const SINESCAN* scan, IMG* target);

/// Frees the record and stores nullptr in the handle; the source is untouched.
void SINESCAN_delete(SINESCAN** handle);

/// Prints "SINESCAN error" while SINESCAN_verbose is set.
void SINESCAN_error();

} // namespace velm
