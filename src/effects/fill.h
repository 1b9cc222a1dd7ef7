// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// FILL pours colour into a drawing. Everything that is black takes colour, everything else is a wall; from
// the seeds on, the colour spreads span by span, so many a frame, keeps to the walls, and goes on flowing
// where it has come to stand.
//
//     FILL* fill = FILL_new();
//     fill->palette = hues, FILL_begin(fill, outlines), FILL_pour(fill, 128, 128, 0);
//     FILL_advance(fill), FILL_draw(fill, screen); // each frame
#pragma once

#include "foundation/identity.h"

#include <cstdint>

namespace velm {

struct IMG;
struct SAMPLE;

/// Pixels left..right of a row. `age` counts the steps from the seed.
struct FILL_SPAN {
    std::int32_t left, right, row, age, hue;
};

struct FILL {
    std::int32_t width = 256, height = 256; ///< pixels; the largest picture that it fills
    std::uint32_t* map = nullptr;    ///< owned, width * height: what is filled and how; 0 where nothing is
    FILL_SPAN* spans = nullptr;      ///< owned, width * height: every span once, so that there is always room
    std::int32_t first = 0;          ///< the span that spreads next
    std::int32_t count = 0;          ///< spans so far; all have spread when `first` has come here
    const IMG* drawing = nullptr;    ///< borrowed; the walls; nullptr before FILL_begin
    const SAMPLE* palette = nullptr; ///< borrowed; the colours of the flow, a ring; nullptr is white
    std::int32_t flow = 96;          ///< spans that spread a frame
    std::int32_t seeds = 3;          ///< seeds that FILL_randomize pours
    std::int32_t phase = 0;          ///< palette entries that the colours have flowed on
    std::int32_t speed = 12;         ///< added to `phase` a frame
    std::int32_t stretch = 6;        ///< palette entries from step to step
    std::int32_t ripple = 144;       ///< how much darker the flow is between its waves, 0..255
    std::int32_t drained = 0;        ///< steps from the seeds that have run dry again
};

extern const IDENTITY FILL_identity;
extern std::uint8_t FILL_verbose;

/// A dry record, or nullptr (reported).
FILL* FILL_new();

/// Makes room for pictures of up to `width` by `height` pixels (each 1..16384) and forgets what was
/// filled. On failure it reports and leaves the record as it was.
void FILL_setSize(FILL* fill, std::int32_t width, std::int32_t height);

/// Takes a drawing, which must stay, and begins dry. A drawing that is too large is reported.
void FILL_begin(FILL* fill, const IMG* drawing);

/// Lets colour spring from (x, y), beginning with a palette entry 0..32767. False outside the drawing, on a
/// wall and where it is filled.
bool FILL_pour(FILL* fill, std::int32_t x, std::int32_t y, std::int32_t hue);

/// Pours `seeds` seeds: x, y and hue from three draws of chance() each, the next free pixel taken.
void FILL_randomize(FILL* fill);

/// One frame: `flow` spans spread, and the colours move on.
void FILL_advance(FILL* fill);

/// Paints what is filled and not drained; the rest of the target stays.
void FILL_draw(const FILL* fill, IMG* target);

/// Frees map, spans and record and stores nullptr in the handle.
void FILL_delete(FILL** handle);

/// Prints "FILL error" while FILL_verbose is set.
void FILL_error();

} // namespace velm
