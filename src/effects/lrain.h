// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// LRAIN, line rain with depth: drops fall as slanted strokes of light, near ones long, fast and bright, far
// ones short, slow and dim. A drop ends on the ground, the farther away the nearer to the horizon, in a ring
// that spreads.
//
//     LRAIN* rain = LRAIN_new();
//     LRAIN_setCount(rain, 200), rain->horizon = 180;
//     LRAIN_advance(rain), LRAIN_draw(rain, screen); // each frame
#pragma once

#include "foundation/identity.h"
#include "foundation/random.h"
#include "foundation/sine.h"
#include "image/img.h"

#include <cstdint>

namespace velm {

struct LRAIN_DROP {
    std::int32_t x, y; ///< 16.16; the lower end of the stroke
    std::int32_t near; ///< 0 far away .. 255 right before the viewer; decides all the rest
};

struct LRAIN_RING {
    std::int32_t x, y; ///< pixels; its middle
    std::int32_t near; ///< of the drop that made it
    std::int32_t age;  ///< frames; LRAIN_ringFrames and more: not there
};

inline constexpr std::int32_t LRAIN_ringFrames = 16; ///< a ring lives that long
inline constexpr std::int32_t LRAIN_ringCount = 48;  ///< the oldest ring makes room for a new one

struct LRAIN {
    std::int32_t width, height; ///< the field that it rains on, pixels; 256, 256
    std::int32_t horizon;       ///< row where the farthest drops land; 192
    std::uint32_t nearColour;   ///< 0x00RRGGBB of the nearest drops; a light blue
    std::uint32_t farColour;    ///< 0x00RRGGBB of the farthest ones; a dark violet
    SINE wind;                  ///< `speed` 3 a frame, in 1/1024 turns; the rain leans with it
    std::int32_t gust;          ///< the most that the nearest drops drift, 16.16 pixels a frame; 2.0
    std::int32_t count;         ///< drops; 96
    LRAIN_DROP* drops;          ///< owned
    LRAIN_RING rings[LRAIN_ringCount];
    std::int32_t nextRing; ///< the ring that is made next
    RANDOM* random;        ///< owned; where drops begin
};

extern const IDENTITY LRAIN_identity;
extern std::uint8_t LRAIN_verbose;

/// Rain that falls already, with the defaults above (one draw of chance()), or nullptr (reported).
LRAIN* LRAIN_new();

/// Makes it `count` (>= 0) drops and randomizes. On failure it reports and leaves the rain as it was.
void LRAIN_setCount(LRAIN* rain, std::int32_t count);

/// Seeds the rain's own generator with one draw of chance(), spreads the drops over the field and removes the
/// rings.
void LRAIN_randomize(LRAIN* rain);

/// One frame: the wind turns, drops fall, those that reach the ground become rings and begin anew.
void LRAIN_advance(LRAIN* rain);

/// Adds drops and rings to the target.
void LRAIN_draw(const LRAIN* rain, IMG* target);

/// Frees drops, generator and record and stores nullptr in the handle.
void LRAIN_delete(LRAIN** handle);

/// Prints "LRAIN error" while LRAIN_verbose is set.
void LRAIN_error();

} // namespace velm
