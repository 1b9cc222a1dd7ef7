// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// FLASHPIX, flashing pixels: sparks light up at random places in hues of a colour list and fade, like dust in
// the sun. A share of them can keep to the shape of a picture, so that a word comes out of the sparkling.
//
//     FLASHPIX* dust = FLASHPIX_new();
//     dust->hues = hueRamp;
//     FLASHPIX_setShape(dust, wordMask), dust->inShape = 256;
//     FLASHPIX_advance(dust), FLASHPIX_draw(dust, screen); // each frame
#pragma once

#include "foundation/identity.h"

#include <cstdint>

namespace velm {

struct IMG;
struct RANDOM;
struct SAMPLE;

struct FLASHPIX_SPARK {
    std::int32_t x, y;    ///< pixels from the field's corner
    std::int32_t age;     ///< frames since it began; negative: it waits
    std::int32_t life;    ///< frames that it shines
    std::uint32_t colour; ///< 0x00RRGGBB at its brightest
    bool glints;          ///< its brightest moments throw a small cross
};

struct FLASHPIX {
    std::int32_t x = 0, y = 0;              ///< the top left corner of field and shape, target pixels
    std::int32_t width = 256, height = 256; ///< the field of the sparks outside the shape, pixels
    std::int32_t hue = 0;                   ///< index into `hues` where sparks at the corner begin
    std::int32_t hueSpeed = 4;              ///< added to `hue` a frame
    std::int32_t hueSlope = 2;              ///< hues farther on per pixel to the right and down
    std::int32_t hueSpread = 96;            ///< up to that many hues farther on, by chance
    std::int32_t shortest = 12;             ///< the shortest life of a spark, frames, above 0
    std::int32_t longest = 40;              ///< the longest, frames up to 2^20
    std::int32_t inShape = 256;             ///< 0..256: the share of new sparks that keep to the shape
    std::int32_t lit = 256;                 ///< 0..256: the share of faded sparks that begin again at once
    std::int32_t brightness = 256;          ///< of all colours, 0..256
    std::int32_t glintShare = 16;           ///< 0..256: the share of sparks that glint
    const SAMPLE* hues = nullptr;           ///< borrowed; colours 0x00RRGGBB, a ring; nullptr is white
    std::int32_t count = 1024;              ///< sparks
    FLASHPIX_SPARK* sparks;                 ///< owned
    std::int32_t placeCount = 0;    ///< pixels of the shape; 0: none, every spark is anywhere in the field
    std::int32_t* places = nullptr; ///< owned; x and y of each, pixels from the field's corner
    RANDOM* random;                 ///< owned; decides where, when and how sparks begin
};

extern const IDENTITY FLASHPIX_identity;
extern std::uint8_t FLASHPIX_verbose;

/// Sparks of all ages (one draw of chance()), or nullptr (reported).
FLASHPIX* FLASHPIX_new();

/// Replaces the sparks by `count` (>= 0) random ones. On failure it reports and the old ones stay.
void FLASHPIX_setCount(FLASHPIX* flash, std::int32_t count);

/// Takes the pixels of a picture that are not 0 as the shape, its corner at the field's; sparks that shine
/// already go on where they are. nullptr removes the shape. On failure it reports and changes nothing.
void FLASHPIX_setShape(FLASHPIX* flash, const IMG* shape);

/// Seeds the sparks' own generator with one draw of chance() and begins all sparks anew, at random ages.
void FLASHPIX_randomize(FLASHPIX* flash);

/// One frame: sparks age; those that have faded begin again elsewhere, or wait as long as they would live.
void FLASHPIX_advance(FLASHPIX* flash);

/// Adds the sparks to the target, clipped.
void FLASHPIX_draw(const FLASHPIX* flash, IMG* target);

/// Frees sparks, places, generator and record and stores nullptr in the handle.
void FLASHPIX_delete(FLASHPIX** handle);

/// Prints "FLASHPIX error" while FLASHPIX_verbose is set.
void FLASHPIX_error();

} // namespace velm
