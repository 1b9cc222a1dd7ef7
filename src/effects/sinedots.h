// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// SINEDOTS, a cloud of dots along a curve that is the sum of three sine waves across and three down (a
// Lissajous figure of three harmonics). Every frame moves the waves a little.
//
//     SINEDOTS* dots = SINEDOTS_new();
//     SINEDOTS_setCount(dots, 16384);
//     SINEDOTS_advance(dots), SINEDOTS_drawAdd(dots, screen); // each frame
#pragma once

#include "foundation/identity.h"

#include <cstdint>

namespace velm {

struct IMG;

inline constexpr std::int32_t SINEDOTS_waveCount = 3;

/// One value for each axis; z is carried along, nothing uses it.
struct SINEDOTS_AXES {
    std::int32_t x, y, z;
};

struct SINEDOTS {
    std::int32_t x = 0, y = 0, z = 0;                    ///< not used by the drawing
    std::int32_t width = 256, height = 256, depth = 256; ///< every draw sets them to the target's
    SINEDOTS_AXES phase[SINEDOTS_waveCount]; ///< of the first dot, 0..1023 in 1/1024 turns; random
    SINEDOTS_AXES speed[SINEDOTS_waveCount]; ///< added to the phase once a frame; random
    SINEDOTS_AXES step[SINEDOTS_waveCount];  ///< added to the phase from dot to dot; random
    /// Twice the reach in pixels, 128, 64 and 32 after SINEDOTS_randomize; every draw makes them a half, a
    /// quarter and an eighth of the target's size.
    SINEDOTS_AXES amplitude[SINEDOTS_waveCount];
    std::uint32_t colour = 0xFF0000; ///< 0x00RRGGBB of every dot
    std::int32_t count = 16;         ///< dots, 1 or more
    std::int32_t* dots = nullptr;    ///< owned, 4 words for each dot; sized but not read
};

extern const IDENTITY SINEDOTS_identity;
extern std::uint8_t SINEDOTS_verbose;

/// Dots on random waves (18 draws of chance()), or nullptr.
SINEDOTS* SINEDOTS_new();

/// Sets the number of dots (>= 1) and clears their storage. On failure the record stays as it was.
void SINEDOTS_setCount(SINEDOTS* dots, std::int32_t count);

/// Draws new phases, speeds and steps, 18 numbers from chance(): wave by wave x before y, phases, speeds,
/// steps.
void SINEDOTS_randomize(SINEDOTS* dots);

/// Moves the three waves of x and of y by their speeds.
void SINEDOTS_advance(SINEDOTS* dots);

/// Sets the pixel of every dot; those outside the target are left out. The phases stay.
void SINEDOTS_draw(SINEDOTS* dots, IMG* target);

/// The same, adding the colour at every dot, each channel stopping at 255: where dots are dense the curve
/// glows.
void SINEDOTS_drawAdd(SINEDOTS* dots, IMG* target);

/// Frees the dots and the record and stores nullptr in the handle.
void SINEDOTS_delete(SINEDOTS** handle);

/// The error reporter: silent on purpose.
void SINEDOTS_error();

} // namespace velm
