// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// SINELINE, a breathing polyline: a closed curve, the sum of two sine waves across and two down (a Lissajous
// figure of two harmonics), whose size swells and sinks. Fainter echoes of where it was follow it like a
// ribbon.
//
//     SINELINE* line = SINELINE_new();
//     line->x = line->y = 128, line->colour = 0x004080;
//     SINELINE_advance(line), SINELINE_draw(line, screen); // each frame
#pragma once

#include "foundation/identity.h"
#include "foundation/sine.h"
#include "image/img.h"

#include <cstdint>

namespace velm {

/// One of the two harmonics of the curve.
struct SINELINE_WAVE {
    std::int32_t phaseX, phaseY; ///< 1/1024 turns; random
    std::int32_t speedX, speedY; ///< added to the phase once a frame; random, 1..4 either way
    std::int32_t turnsX, turnsY; ///< whole periods around the curve; random, 1..3
    std::int32_t reach;          ///< pixels, at full breath
};

struct SINELINE {
    std::int32_t x, y; ///< the middle, target pixels; 128, 128
    SINELINE_WAVE wave[2];
    SINE breath;          ///< `speed` 6 a frame, in 1/1024 turns
    std::int32_t depth;   ///< how far the size sinks when it breathes out, 0..256 for none..to nothing; 128
    std::int32_t corners; ///< of the polyline, 3 or more; 96
    std::int32_t echoes;  ///< curves drawn, the newest one included, 1..16; 6
    std::int32_t lag;     ///< frames between one echo and the next; 2
    std::uint32_t colour; ///< 0x00RRGGBB of the newest curve; a blue
    std::uint32_t echoColour; ///< 0x00RRGGBB of the oldest one, before it fades; a violet. Echoes between
                              ///< them are mixed
};

extern const IDENTITY SINELINE_identity;
extern std::uint8_t SINELINE_verbose;

/// A random curve (12 draws of chance()) with the defaults above, reaching 64 and 32 pixels, or nullptr
/// (reported).
SINELINE* SINELINE_new();

/// Draws new phases, speeds and turns, 12 numbers from chance(): wave by wave x before y, phases, speeds,
/// turns.
void SINELINE_randomize(SINELINE* line);

/// Moves the waves and the breath by their speeds.
void SINELINE_advance(SINELINE* line);

/// Adds the curve and its echoes to the target, the oldest and faintest first.
void SINELINE_draw(const SINELINE* line, IMG* target);

/// Frees the record and stores nullptr in the handle.
void SINELINE_delete(SINELINE** handle);

/// Prints "SINELINE error" while SINELINE_verbose is set.
void SINELINE_error();

} // namespace velm
