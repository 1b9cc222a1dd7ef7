// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// LSTAR, a flight through stars made of lines: each is a streak from where it was to where it is, in the hue
// of its depth and the brighter the nearer; the whole sky rolls, so that the streaks are parts of a spiral.
// The same stars can be drawn as star polygons that turn.
//
//     LSTAR* sky = LSTAR_new();
//     sky->colours = hueRamp;
//     LSTAR_draw(sky, screen), LSTAR_advance(sky); // each frame
#pragma once

#include "foundation/identity.h"

#include <cstdint>

namespace velm {

struct IMG;
struct SAMPLE;

inline constexpr std::int32_t LSTAR_near = 2048; ///< where a star has passed the viewer
inline constexpr std::int32_t LSTAR_far = 65536; ///< where it appears, still black

/// One star; a unit is 1/256 pixel at a depth of 65536, and 1/8 pixel at 2048.
struct LSTAR_STAR {
    std::int32_t x, y; ///< from the line of sight; random, -32768..32767
    std::int32_t z;    ///< depth; random, LSTAR_near to just under LSTAR_far
};

struct LSTAR {
    std::int32_t x = 128, y = 128;   ///< the vanishing point, target pixels
    std::int32_t speed = 512;        ///< depth a frame, towards the viewer when positive
    std::int32_t trail = 4;          ///< frames of motion that a streak shows
    std::int32_t angle = 0;          ///< of the sky, 1/1024 turns
    std::int32_t turn = 1;           ///< added to `angle` a frame
    std::int32_t corners = 5;        ///< of a polygon, 3..16
    std::int32_t skip = 2;           ///< a polygon's lines lead from corner k to corner k + skip
    std::int32_t size = 2048;        ///< radius of a polygon, units
    std::int32_t hue = 0;            ///< index of the colour of the nearest stars
    std::int32_t hueSpan = 512;      ///< indices from the nearest to the farthest
    const SAMPLE* colours = nullptr; ///< borrowed; 0x00RRGGBB, a ring; nullptr is white
    std::int32_t count = 256;        ///< stars
    LSTAR_STAR* stars = nullptr;     ///< owned, `count` of them
};

extern const IDENTITY LSTAR_identity;
extern std::uint8_t LSTAR_verbose;

/// Random stars (3 draws of chance() each), or nullptr (reported).
LSTAR* LSTAR_new();

/// Replaces the stars by `count` (>= 0) random ones. On failure it reports and the old ones stay.
void LSTAR_setCount(LSTAR* sky, std::int32_t count);

/// Draws all stars anew: x, y and z of the first, then of the next.
void LSTAR_randomize(LSTAR* sky);

/// Flies and rolls by one frame. A star that passes the viewer appears again in the distance.
void LSTAR_advance(LSTAR* sky);

/// Adds a streak for every star, each channel stopping at 255: its older half dim, its newer half bright, and
/// twice as wide in the nearest quarter.
void LSTAR_draw(const LSTAR* sky, IMG* target);

/// Adds a star polygon for every star instead, which turns with the sky, every other one against it.
void LSTAR_drawPolygons(const LSTAR* sky, IMG* target);

/// Frees the stars and the record and stores nullptr in the handle.
void LSTAR_delete(LSTAR** handle);

/// Prints "LSTAR error" while LSTAR_verbose is set.
void LSTAR_error();

} // namespace velm
