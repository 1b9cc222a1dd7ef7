// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// PARTIXEL, particles that are nothing but pixels of an image. A rule scans the image once a frame and moves
// every pixel of its kind by one step: water flows down, then sideways; sparks rise, flicker, fade, and turn
// water to grey. Several records may share one image.
//
//     PARTIXEL* water = PARTIXEL_new();
//     water->image = screen, water->colour = 0x0000FF;
//     water->update(water); // each frame
#pragma once

#include "foundation/identity.h"

#include <cstdint>

namespace velm {

struct IMG;
struct RANDOM;

struct PARTIXEL;

// The rules. Each needs a record with an image, which it does not check, and returns how many particles it
// met; one that moves along with the scan is met again, and counted again (see docs/quirks.md). What leaves
// the image is lost.

/// Water, row by row from the bottom, left to right: it falls, else it goes right, else left, else it stays.
std::int32_t PARTIXEL_waterRight(PARTIXEL* water);
/// The same from right to left: it falls, else it goes left, else right, else it stays.
std::int32_t PARTIXEL_waterLeft(PARTIXEL* water);
/// Sparks, which are all pixels of red alone, row by row from the top, left to right: each jumps up by 0 to 4
/// rows and aside by at most one column, losing 7 of its red. Two draws of PARTIXEL_random a spark. Where it
/// meets a spark, it adds its light; pure blue turns grey and leaves it where it is; on all else it dies.
std::int32_t PARTIXEL_sparks(PARTIXEL* sparks);

struct PARTIXEL {
    std::int32_t x = 0, y = 0, z = 0;                        ///< not used by the rules
    std::int32_t width = 0, height = 0, depth = 0;           ///< not used by the rules
    std::int32_t (*update)(PARTIXEL*) = PARTIXEL_waterRight; ///< the rule, called by the user once a frame
    std::uint32_t colour = 0x0040E0; ///< the pixel value that is water, not used by sparks
    IMG* image = nullptr;            ///< borrowed; what the particles live in
    const char* name = "WATER";      ///< of the kind, "WATER" or "SPARKS", not owned
    std::int32_t particles = 0;      ///< what the last update returned
};

extern const IDENTITY PARTIXEL_identity;
extern std::uint8_t PARTIXEL_verbose;

/// The generator that all sparks draw from. A program that has one of its own stores it here, as the demo
/// does at start-up, so that the sparks are part of its one sequence. If none is stored, the first
/// PARTIXEL_new makes one, which is never freed.
extern RANDOM* PARTIXEL_random;

/// Water without an image, or nullptr (reported).
PARTIXEL* PARTIXEL_new();

/// Frees the record and stores nullptr in the handle; image and name are untouched.
void PARTIXEL_delete(PARTIXEL** handle);

/// Prints "PARTIXEL error" while PARTIXEL_verbose is set.
void PARTIXEL_error();

} // namespace velm
