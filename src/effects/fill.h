// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// FILL pours colour into a drawing. Everything that is black takes colour, everything else is a wall; from
// the seeds on, the colour spreads span by span, so many a frame, keeps to the walls, and goes on flowing
// where it has come to stand. The same record also fills an area of a picture at once.
//
//     FILL* fill = FILL_new();
//     fill->palette = hues, FILL_begin(fill, outlines), FILL_pour(fill, 128, 128, 0);
//     FILL_advance(fill), FILL_draw(fill, screen); // each frame
#pragma once

#include "audio/sample.h"
#include "foundation/identity.h"
#include "image/img.h"

#include <cstdint>

namespace velm {

/// Pixels left..right of a row. `age` counts the steps from the seed.
struct FILL_SPAN {
    std::int32_t left, right, row, age, hue;
};

struct FILL {
    std::int32_t width, height; ///< pixels; the largest picture that it fills; 256, 256
    std::uint32_t* map;         ///< owned, width * height: what is filled and how; 0 where nothing is
    FILL_SPAN* spans;           ///< owned, width * height: every span once, so that there is always room
    std::int32_t first;         ///< the span that spreads next
    std::int32_t count;         ///< spans so far; all have spread when `first` has come here
    const IMG* drawing;         ///< borrowed; the walls; nullptr before FILL_begin
    const SAMPLE* palette;      ///< borrowed; the colours of the flow, going round; nullptr is white
    std::int32_t flow;          ///< spans that spread a frame; 96
    std::int32_t seeds;         ///< seeds that FILL_randomize pours; 3
    std::int32_t phase;         ///< palette entries that the colours have flowed on; 0
    std::int32_t speed;         ///< added to `phase` a frame; 12
    std::int32_t stretch;       ///< palette entries from step to step; 6
    std::int32_t ripple;        ///< how much darker the flow is between its waves, 0..255; 144
    std::int32_t drained;       ///< steps from the seeds that have run dry again; 0
};

extern const IDENTITY FILL_identity;
extern std::uint8_t FILL_verbose;

/// A dry record with the defaults above, or nullptr (reported).
FILL* FILL_new();

/// Makes room for pictures of up to `width` by `height` pixels (each 1..16384) and forgets what was
/// filled. On failure it reports and leaves the record as it was.
void FILL_setSize(FILL* fill, std::int32_t width, std::int32_t height);

/// Fills at once: all pixels that have the colour of (x, y) and hang together with it, up, down, left or
/// right, become `colour`. Gives the number of pixels; 0 outside the image or where it has that colour.
/// Forgets what was poured; a picture that is too large is reported.
std::int32_t FILL_flood(FILL* fill, IMG* target, std::int32_t x, std::int32_t y, std::uint32_t colour);

/// Takes a drawing, which must stay, and is dry. A drawing that is too large is reported.
void FILL_begin(FILL* fill, const IMG* drawing);

/// Lets colour spring from (x, y), beginning with a palette entry 0..32767. 1, or 0 outside the drawing, on a
/// wall, and where it is filled.
std::int32_t FILL_pour(FILL* fill, std::int32_t x, std::int32_t y, std::int32_t hue);

/// Pours `seeds` seeds: x, y and hue from three draws of chance() each, the next free pixel taken.
void FILL_randomize(FILL* fill);

/// One frame: `flow` spans spread, and the colours move on.
void FILL_advance(FILL* fill);

/// 1 when there is nothing left that could spread.
std::int32_t FILL_isDone(const FILL* fill);

/// Paints what is filled and not drained; the rest of the target stays.
void FILL_draw(const FILL* fill, IMG* target);

/// Frees map, spans and record and stores nullptr in the handle.
void FILL_delete(FILL** handle);

/// Prints "FILL error" while FILL_verbose is set.
void FILL_error();

} // namespace velm
