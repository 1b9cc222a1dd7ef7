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

#include "audio/sample.h"
#include "foundation/identity.h"
#include "foundation/sine.h"
#include "image/img.h"

#include <cstdint>

namespace velm {

struct LRADIAL {
    std::int32_t x, y;     ///< the centre, target pixels; 128, 128
    std::int32_t inner;    ///< pixels from the centre to where rays begin; 32
    std::int32_t reach;    ///< pixels; the longest ray of the wave; 64
    std::int32_t turn;     ///< 1/1024 turns of ray 0; random
    std::int32_t spin;     ///< added to `turn` once a frame; random, 1..4 either way
    SINE wave;             ///< of the lengths; `speed` a frame, `offsetStep` from ray to ray; random
    std::int32_t hue;      ///< index of the colour of ray 0; 0
    std::int32_t hueSpeed; ///< added to `hue` once a frame; 8
    const SAMPLE* colours; ///< borrowed; 0x00RRGGBB words laid around the circle; nullptr for white
    std::int32_t count;    ///< rays; 96
    std::int32_t* lengths; ///< owned; pixels of each ray, 0 or more
};

extern const IDENTITY LRADIAL_identity;
extern std::uint8_t LRADIAL_verbose;

/// 96 rays on a random wave (5 draws of chance()), or nullptr (reported).
LRADIAL* LRADIAL_new();

/// Makes it `count` (>= 0) rays, and sets their lengths by the wave. On failure it reports and leaves the
/// rays as they were.
void LRADIAL_setCount(LRADIAL* rays, std::int32_t count);

/// Draws turn, spin, and the wave's phase, speed and step, in this order, from chance(); the wave closes around
/// the circle. Then sets the lengths by it.
void LRADIAL_randomize(LRADIAL* rays);

/// Makes the lengths those of the wave, 0 to `reach`.
void LRADIAL_setWaveLengths(LRADIAL* rays);

/// Makes the lengths those of a stretch of sound from `begin` on, as many samples as there are rays `step`
/// apart: the magnitude, shifted right by `shift` (0..31), `reach` at the most. What lies outside the sample
/// is 0.
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
