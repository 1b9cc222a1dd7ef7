// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// ARCHPATH, a figure on arched paths: a line drawing leaps in half waves from one random place on its ground
// to the next, turning in the air, and fainter echoes follow it.
//
//     ARCHPATH* leap = ARCHPATH_new();
//     leap->figure = drawing;
//     ARCHPATH_advance(leap), ARCHPATH_draw(leap, screen); // each frame
#pragma once

#include "foundation/identity.h"

#include <cstdint>

namespace velm {

struct IMG;
struct OBJ2D;
struct RANDOM;

/// Where the figure is, or was.
struct ARCHPATH_POSE {
    std::int32_t x, y;  ///< target pixels
    std::int32_t angle; ///< 1/1024 turns
};

inline constexpr std::int32_t ARCHPATH_trailLength = 16; ///< frames that are remembered

struct ARCHPATH {
    std::int32_t left = 32, right = 224; ///< the ends of the ground, pixels
    std::int32_t ground = 208;           ///< row of the ground
    std::int32_t from, to;               ///< columns where the arch begins and ends; random
    std::int32_t height;             ///< pixels of the arch above the ground; random, half to all of `rise`
    std::int32_t rise = 160;         ///< pixels; the highest arch
    std::int32_t step;               ///< of the arch, 0 to `frames`
    std::int32_t frames = 45;        ///< that an arch takes, 1 or more
    std::int32_t spin;               ///< added to the angle once a frame; random, 4..19 either way
    std::int32_t scale = 3;          ///< whole magnification of the figure
    std::int32_t echoes = 4;         ///< figures that follow the first one, 0..7, two frames apart
    std::uint32_t colour = 0xFFFFFF; ///< 0x00RRGGBB of the figure; echoes are darker
    OBJ2D* figure = nullptr;         ///< borrowed; nullptr draws nothing. Drawing poses and colours it
    ARCHPATH_POSE trail[ARCHPATH_trailLength]; ///< the last poses, the newest first
    RANDOM* random;                            ///< owned; decides where arches lead
};

extern const IDENTITY ARCHPATH_identity;
extern std::uint8_t ARCHPATH_verbose;

/// A path at its first arch (one draw of chance()), or nullptr (reported).
ARCHPATH* ARCHPATH_new();

/// Seeds the path's own generator with one draw of chance() and stands at the beginning of a new arch.
void ARCHPATH_randomize(ARCHPATH* path);

/// One frame along the arch; the next one begins where this one ends. True in the frame of a landing.
bool ARCHPATH_advance(ARCHPATH* path);

/// Draws the echoes, the oldest first, then the figure.
void ARCHPATH_draw(const ARCHPATH* path, IMG* target);

/// Frees generator and record and stores nullptr in the handle; the figure is untouched.
void ARCHPATH_delete(ARCHPATH** handle);

/// Prints "ARCHPATH error" while ARCHPATH_verbose is set.
void ARCHPATH_error();

} // namespace velm
