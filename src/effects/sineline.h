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

#include <cstdint>

namespace velm {

struct IMG;

/// One of the two harmonics of the curve.
struct SINELINE_WAVE {
    std::int32_t phaseX = 0, phaseY = 0; ///< 1/1024 turns; random
    std::int32_t speedX = 0, speedY = 0; ///< added to the phase once a frame; random, 1..4 either way
    std::int32_t turnsX = 0, turnsY = 0; ///< whole periods around the curve; random, 1..3
    std::int32_t reach = 0;              ///< pixels, at full breath
};

struct SINELINE {
    std::int32_t x = 128, y = 128; ///< the middle, target pixels
    SINELINE_WAVE wave[2] = {{.reach = 64}, {.reach = 32}};
    SINE breath{.speed = 6, .offsetStep = 0}; ///< `speed` a frame, in 1/1024 turns
    std::int32_t depth = 128;  ///< how far the size sinks when it breathes out: 0 not at all, 256 to nothing
    std::int32_t corners = 96; ///< of the polyline, 3 or more
    std::int32_t echoes = 6;   ///< curves drawn, the newest one included, 1..16
    std::int32_t lag = 2;      ///< frames between one echo and the next
    std::uint32_t colour = 0x2060C0;     ///< 0x00RRGGBB of the newest curve
    std::uint32_t echoColour = 0x6020C0; ///< 0x00RRGGBB of the oldest one before it fades; mixed between
};

extern const IDENTITY SINELINE_identity;
extern std::uint8_t SINELINE_verbose;

/// A random curve (12 draws of chance()), or nullptr (reported).
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
