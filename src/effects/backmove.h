// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// BACKMOVE, a background without edges: a picture repeats in both directions and travels at a steady speed,
// swings along a Lissajous path about it, and may ripple row by row. Cut into depths, its upper bands lag
// behind the lower ones.
//
//     BACKMOVE* ground = BACKMOVE_new();
//     BACKMOVE_setPicture(ground, picture), ground->brightness = 128;
//     BACKMOVE_draw(ground, screen), BACKMOVE_advance(ground); // each frame
#pragma once

#include "foundation/identity.h"
#include "foundation/sine.h"

#include <cstdint>

namespace velm {

struct IMG;

inline constexpr std::int32_t BACKMOVE_mostDepths = 16;

struct BACKMOVE {
    std::int64_t x = 0, y = 0;   ///< 16.16 pixels travelled, 0 to just below `depths` pictures
    std::int32_t speedX, speedY; ///< 16.16 pixels a frame; random, 0.5 to just under 2.5 either way
    SINE pathX{.speed = 0, .offsetStep = 0};  ///< the swing: `speed` in 1/1024 turns a frame; random, 1..4
    SINE pathY{.speed = 0, .offsetStep = 0};  ///< the same up and down; the phases are random, too
    std::int32_t reachX, reachY;              ///< of the swing to either side, pixels; random, 16..47
    SINE ripple{.speed = 6, .offsetStep = 8}; ///< a frame and from row to row, in 1/1024 turns
    std::int32_t rippleReach = 0;             ///< of the ripple to either side, pixels
    std::int32_t depths = 1;       ///< bands of the picture; band k moves across (k + 1) / depths as fast
    std::int32_t brightness = 256; ///< of what is drawn, 0 black .. 256 as it is
    const IMG* picture = nullptr;  ///< borrowed
};

extern const IDENTITY BACKMOVE_identity;
extern std::uint8_t BACKMOVE_verbose;

/// A background without a picture, in random motion (8 draws of chance()), or nullptr (reported).
BACKMOVE* BACKMOVE_new();

/// Shows another picture of at least one pixel; the motion goes on.
void BACKMOVE_setPicture(BACKMOVE* back, const IMG* picture);

/// Cuts the picture into 1..BACKMOVE_mostDepths bands and begins at the place (0, 0).
void BACKMOVE_setDepths(BACKMOVE* back, std::int32_t depths);

/// Draws new motion, 8 numbers from chance(), x before y: the speeds, then the swing's phases, speeds and
/// reaches. Ripple, depths and place stay.
void BACKMOVE_randomize(BACKMOVE* back);

/// Moves the picture, its swing and its ripple by one frame.
void BACKMOVE_advance(BACKMOVE* back);

// All that draws covers the whole target and reports a missing, empty or identical picture.

/// Copies the picture, black included.
void BACKMOVE_draw(const BACKMOVE* back, IMG* target);

/// The same, 0 pixels being transparent: for several backgrounds over each other.
void BACKMOVE_drawOver(const BACKMOVE* back, IMG* target);

/// Adds the picture to the target, each channel stopping at 255.
void BACKMOVE_drawAdd(const BACKMOVE* back, IMG* target);

/// Frees the record and stores nullptr in the handle; the picture is untouched.
void BACKMOVE_delete(BACKMOVE** handle);

/// Prints "BACKMOVE error" while BACKMOVE_verbose is set.
void BACKMOVE_error();

} // namespace velm
