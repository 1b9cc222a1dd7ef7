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

#include "audio/sample.h"
#include "foundation/identity.h"
#include "foundation/random.h"
#include "image/img.h"

#include <cstdint>

namespace velm {

struct FLASHPIX_SPARK {
    std::int32_t x, y;    ///< pixels from the field's corner
    std::int32_t age;     ///< frames since it began; negative: it waits
    std::int32_t life;    ///< frames that it shines
    std::uint32_t colour; ///< 0x00RRGGBB at its brightest
    bool glints;          ///< its brightest moments throw a small cross
};

struct FLASHPIX {
    std::int32_t x, y;          ///< the top left corner of field and shape, target pixels; 0, 0
    std::int32_t width, height; ///< the field of the sparks outside the shape, pixels; 256, 256
    std::int32_t hue;           ///< index into `hues` where sparks at the corner begin; 0
    std::int32_t hueSpeed;      ///< added to `hue` a frame; 4
    std::int32_t hueSlope;      ///< hues farther on per pixel to the right and down; 2
    std::int32_t hueSpread;     ///< up to that many hues farther on, by chance; 96
    std::int32_t shortest;      ///< the least life of a spark, frames, above 0; 12
    std::int32_t longest;       ///< the most, frames up to 2^20; 40
    std::int32_t inShape;       ///< 0..256: the share of new sparks that keep to the shape; 256
    std::int32_t lit;           ///< 0..256: the share of sparks that begin again when they have faded; 256
    std::int32_t brightness;    ///< of all colours, 0..256; 256
    std::int32_t glintShare;    ///< 0..256: the share of sparks that glint; 16
    const SAMPLE* hues;         ///< borrowed; colours 0x00RRGGBB; nullptr: all sparks are white
    std::int32_t count;         ///< sparks; 1024
    FLASHPIX_SPARK* sparks;     ///< owned
    std::int32_t placeCount;    ///< pixels of the shape; 0: none, every spark is anywhere in the field
    std::int32_t* places;       ///< owned; x and y of each, pixels from the field's corner
    RANDOM* random;             ///< owned; where, when and how sparks begin
};

extern const IDENTITY FLASHPIX_identity;
extern std::uint8_t FLASHPIX_verbose;

/// Sparks with the defaults above, at all their ages (one draw of chance()), or nullptr (reported).
FLASHPIX* FLASHPIX_new();

/// Makes it `count` (>= 0) sparks and randomizes. On failure it reports and leaves the record as it was.
void FLASHPIX_setCount(FLASHPIX* flash, std::int32_t count);

/// Takes the pixels of a picture that are not 0 as the shape, its corner at the field's; sparks that shine
/// already go on where they are. nullptr removes the shape. On failure it reports and changes nothing.
void FLASHPIX_setShape(FLASHPIX* flash, const IMG* shape);

/// Seeds the sparks' own generator with one draw of chance() and begins all sparks anew, at random ages.
void FLASHPIX_randomize(FLASHPIX* flash);

/// One frame: sparks grow older; those that have faded begin again elsewhere, or wait their life long.
void FLASHPIX_advance(FLASHPIX* flash);

/// Adds the sparks to the target, clipped.
void FLASHPIX_draw(const FLASHPIX* flash, IMG* target);

/// Frees sparks, places, generator and record and stores nullptr in the handle.
void FLASHPIX_delete(FLASHPIX** handle);

/// Prints "FLASHPIX error" while FLASHPIX_verbose is set.
void FLASHPIX_error();

} // namespace velm
