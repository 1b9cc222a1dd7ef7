// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// LRADIAL, radial lines: rays around a centre that turns, each with a length of its own. The lengths are a
// wave that runs around the circle, or whatever the user sets: a sound's samples make it a round spectrum.
//
//     LRADIAL* rays = LRADIAL_new();
//     rays->inner = 24, rays->colours = demo.hueRamp;
//     LRADIAL_advance(rays), LRADIAL_draw(rays, screen); // each frame
#pragma once

#include "foundation/identity.h"
#include "foundation/sine.h"

#include <cstdint>

namespace velm {

struct IMG;
struct SAMPLE;

struct LRADIAL {
    std::int32_t x = 128, y = 128; ///< the centre, target pixels
    std::int32_t inner = 32;       ///< pixels from the centre to where rays begin
    std::int32_t reach = 64;       ///< pixels; the longest ray of the wave
    std::int32_t turn;             ///< 1/1024 turns of ray 0; random
    std::int32_t spin;             ///< added to `turn` once a frame; random, 1..4 either way
    SINE wave;                     ///< of the lengths; `speed` a frame, `offsetStep` from ray to ray; random
    std::int32_t hue = 0;          ///< index of the colour of ray 0
    std::int32_t hueSpeed = 8;     ///< added to `hue` once a frame
    const SAMPLE* colours = nullptr; ///< borrowed; 0x00RRGGBB, a ring around the circle; nullptr is white
    std::int32_t count = 96;         ///< rays
    std::int32_t* lengths;           ///< owned; pixels of each ray, 0 or more
};

extern const IDENTITY LRADIAL_identity;
extern std::uint8_t LRADIAL_verbose;

/// Rays on a random wave (5 draws of chance()), or nullptr (reported).
LRADIAL* LRADIAL_new();

/// Replaces the rays by `count` (>= 0) others, their lengths set by the wave. On failure it reports and the
/// old ones stay.
void LRADIAL_setCount(LRADIAL* rays, std::int32_t count);

/// Draws turn, spin, and the wave's phase, speed and step, in this order, from chance(); the wave closes
/// around the circle. Then sets the lengths by it.
void LRADIAL_randomize(LRADIAL* rays);

/// Sets the lengths by the wave, 0 to `reach`.
void LRADIAL_setWaveLengths(LRADIAL* rays);

/// Sets the lengths by a sound, one value a ray, from `begin` on and `step` apart: its magnitude, shifted
/// right by `shift` (0..31), `reach` at most. What lies outside the sample is 0.
void LRADIAL_setSoundLengths(LRADIAL* rays, const SAMPLE* sound, std::int32_t begin, std::int32_t step,
                             std::int32_t shift);

/// Turns the rays, their hues and the wave by their speeds. Does not touch the lengths.
void LRADIAL_advance(LRADIAL* rays);

/// Adds the rays to the target: the outer half at half the colour, the inner one at the full colour.
void LRADIAL_draw(const LRADIAL* rays, IMG* target);

/// Frees the lengths and the record and stores nullptr in the handle; the colours are untouched.
void LRADIAL_delete(LRADIAL** handle);

/// Prints "LRADIAL error" while LRADIAL_verbose is set.
void LRADIAL_error();

} // namespace velm
