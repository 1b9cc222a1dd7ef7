// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// PLASMA, a sea of colour: three waves roll over the picture, each bent by the one before it, and their sum
// picks a colour from a ring of 256.
//
//     PLASMA* sea = PLASMA_new();
//     PLASMA_advance(sea), PLASMA_draw(sea, screen); // each frame
//     PLASMA_delete(&sea);
#pragma once

#include "foundation/identity.h"

#include <cstdint>

namespace velm {

struct IMG;

inline constexpr std::int32_t PLASMA_waveCount = 3;
inline constexpr std::int32_t PLASMA_colourCount = 256;

/// Angles in 1/1024 turns.
struct PLASMA_WAVE {
    std::int32_t phase;  ///< at pixel (0, 0), 0..1023; random
    std::int32_t speed;  ///< added to `phase` a frame; random, -2, -1, 1 or 2
    std::int32_t across; ///< added from pixel to pixel; random, -4..-1 and 1..4
    std::int32_t down;   ///< added from row to row; random, -4..-1 and 1..4
};

struct PLASMA {
    PLASMA_WAVE waves[PLASMA_waveCount];
    std::uint32_t colours[PLASMA_colourCount]; ///< 0x00RRGGBB, a ring; random
};

extern const IDENTITY PLASMA_identity;
extern std::uint8_t PLASMA_verbose;

/// A random sea (see PLASMA_randomize), or nullptr (reported).
PLASMA* PLASMA_new();

/// Draws new waves and a new ring of colours, 24 numbers from chance(): wave by wave the phase, then size and
/// sign of speed, across and down; then the phases of red, green and blue.
void PLASMA_randomize(PLASMA* plasma);

/// Moves every wave by its speed.
void PLASMA_advance(PLASMA* plasma);

/// Fills the target.
void PLASMA_draw(const PLASMA* plasma, IMG* target);

/// Frees the record and stores nullptr in the handle.
void PLASMA_delete(PLASMA** handle);

/// Prints "PLASMA error" while PLASMA_verbose is set.
void PLASMA_error();

} // namespace velm
