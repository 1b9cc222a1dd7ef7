// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// CIRCLE, a fleet of circles that drift, bounce at the edges of their field and grow like rings on water,
// each one ring or a nest of several; and the single rings and discs that it is made of.
//
//     CIRCLE* rings = CIRCLE_new();
//     CIRCLE_drawAdd(rings, screen), CIRCLE_advance(rings); // each frame
//     CIRCLE_addRing(screen, 128, 128, 100, 0x00FF80);      // one ring by itself
#pragma once

#include "foundation/identity.h"

#include <cstdint>

namespace velm {

struct IMG;

inline constexpr std::int32_t CIRCLE_largestRadius = 16383;

/// One circle of the fleet; places, speeds and sizes are 16.16 pixels.
struct CIRCLE_BODY {
    std::int32_t x, y;           ///< the centre; random, inside the field
    std::int32_t speedX, speedY; ///< added to the centre a frame; random, -2.0 to just under 2.0
    std::int32_t radius;         ///< random, 0 to just under `largest`
    std::int32_t growth;         ///< added to the radius a frame; random, 0.5 to just under 2.5
    std::uint32_t colour;        ///< 0x00RRGGBB; random, each channel 128..255
};

struct CIRCLE {
    std::int32_t width = 256, height = 256; ///< of the field, pixels, 1..16383
    std::int32_t largest = 128;             ///< radius at which a circle begins again at 0, pixels, 1..16383
    std::int32_t rings = 1;                 ///< nested in each circle
    std::int32_t spacing = 8;               ///< from ring to nested ring, pixels
    std::int32_t count = 16;                ///< circles
    CIRCLE_BODY* bodies = nullptr;          ///< owned, `count` of them
};

extern const IDENTITY CIRCLE_identity;
extern std::uint8_t CIRCLE_verbose;

/// Random circles (7 draws of chance() each), or nullptr (reported).
CIRCLE* CIRCLE_new();

/// Replaces the fleet by `count` (>= 0) random circles. On failure it reports and the old fleet stays.
void CIRCLE_setCount(CIRCLE* circle, std::int32_t count);

/// Draws all circles anew: x, y, both speeds, radius, growth and colour of the first, then of the next.
void CIRCLE_randomize(CIRCLE* circle);

/// Moves and grows every circle by one frame. Centres bounce inside the field; a radius that leaves
/// 0..largest comes in again at the other end.
void CIRCLE_advance(CIRCLE* circle);

/// Draws the rings of every circle.
void CIRCLE_draw(const CIRCLE* circle, IMG* target);

/// Adds the rings, which dim as they grow and are gone at `largest`.
void CIRCLE_drawAdd(const CIRCLE* circle, IMG* target);

/// Exclusive-ors the nested rings as discs: they become bands, and the bands of two circles interfere.
void CIRCLE_drawXor(const CIRCLE* circle, IMG* target);

/// Frees the circles and the record and stores nullptr in the handle.
void CIRCLE_delete(CIRCLE** handle);

// The shapes: the midpoint circle about (x, y), no pixel touched twice, clipped silently. A radius of 0 is
// one pixel; one outside 0..CIRCLE_largestRadius draws nothing.

/// Sets the pixels of the ring.
void CIRCLE_drawRing(IMG* img, std::int32_t x, std::int32_t y, std::int32_t radius, std::uint32_t colour);

/// Adds the colour to the ring, each channel stopping at 255.
void CIRCLE_addRing(IMG* img, std::int32_t x, std::int32_t y, std::int32_t radius, std::uint32_t colour);

/// Sets the pixels of the ring and all that it encloses.
void CIRCLE_drawDisc(IMG* img, std::int32_t x, std::int32_t y, std::int32_t radius, std::uint32_t colour);

/// Adds the colour to the disc, each channel stopping at 255.
void CIRCLE_addDisc(IMG* img, std::int32_t x, std::int32_t y, std::int32_t radius, std::uint32_t colour);

/// Exclusive-ors the colour into the disc; twice leaves things as they were.
void CIRCLE_xorDisc(IMG* img, std::int32_t x, std::int32_t y, std::int32_t radius, std::uint32_t colour);

/// Prints "CIRCLE error" while CIRCLE_verbose is set.
void CIRCLE_error();

} // namespace velm
