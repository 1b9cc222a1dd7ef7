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

#include "audio/sample.h"
#include "foundation/identity.h"
#include "image/img.h"

#include <cstdint>

namespace velm {

inline constexpr std::int32_t LSTAR_near = 2048; ///< where a star has passed the viewer
inline constexpr std::int32_t LSTAR_far = 65536; ///< where it appears, still black

/// One star; a unit is 1/256 pixel at a depth of 65536, and 1/8 pixel at 2048.
struct LSTAR_STAR {
    std::int32_t x, y; ///< from the line of sight; random, -32768..32767
    std::int32_t z;    ///< depth; random, LSTAR_near to just under LSTAR_far
};

struct LSTAR {
    std::int32_t x, y;     ///< the vanishing point, target pixels; 128, 128
    std::int32_t speed;    ///< depth a frame, towards the viewer when positive; 512
    std::int32_t trail;    ///< frames of motion that a streak shows; 4
    std::int32_t angle;    ///< of the sky, 1/1024 turns; 0
    std::int32_t turn;     ///< added to `angle` a frame; 1
    std::int32_t corners;  ///< of a polygon, 3..16; 5
    std::int32_t skip;     ///< a polygon's lines lead from corner to corner k + skip; 2
    std::int32_t size;     ///< radius of a polygon, units; 2048
    std::int32_t hue;      ///< index of the colour of the nearest stars; 0
    std::int32_t hueSpan;  ///< indices from the nearest to the farthest; 512
    const SAMPLE* colours; ///< borrowed; 0x00RRGGBB words, used as a ring; nullptr for white
    std::int32_t count;    ///< stars; 256
    LSTAR_STAR* stars;     ///< owned, `count` of them
};

extern const IDENTITY LSTAR_identity;
extern std::uint8_t LSTAR_verbose;

/// 256 random stars (3 draws of chance() each), or nullptr (reported).
LSTAR* LSTAR_new();

/// Replaces the stars by `count` (>= 1) random ones. On failure it reports and the old ones stay.
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
