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

#include "foundation/fixed.h"
#include "foundation/identity.h"
#include "foundation/sine.h"

#include <cstdint>

namespace velm {

struct IMG;
struct RANDOM;

struct LRAIN_DROP {
    std::int32_t x, y; ///< 16.16; the lower end of the stroke
    std::int32_t near; ///< 0 far away .. 255 right in front of the viewer; decides all the rest
};

struct LRAIN_RING {
    std::int32_t x, y; ///< pixels; its middle
    std::int32_t near; ///< of the drop that made it
    std::int32_t age;  ///< frames; LRAIN_ringFrames and more: not there
};

inline constexpr std::int32_t LRAIN_ringFrames = 16; ///< how long a ring lives
inline constexpr std::int32_t LRAIN_ringCount = 48;  ///< the oldest ring makes room for a new one

struct LRAIN {
    std::int32_t width = 256, height = 256; ///< the field that it rains on, pixels
    std::int32_t horizon = 192;             ///< row where the farthest drops land
    std::uint32_t nearColour = 0xB0E0FF;    ///< 0x00RRGGBB of the nearest drops
    std::uint32_t farColour = 0x201040;     ///< 0x00RRGGBB of the farthest ones
    SINE wind{.speed = 3, .offsetStep = 0}; ///< `speed` a frame, in 1/1024 turns; the rain leans with it
    std::int32_t gust = 2 * fixedOne;       ///< the most that the nearest drops drift, 16.16 pixels a frame
    std::int32_t count = 96;                ///< drops
    LRAIN_DROP* drops;                      ///< owned
    LRAIN_RING rings[LRAIN_ringCount];
    std::int32_t nextRing = 0; ///< the ring that is made next
    RANDOM* random;            ///< owned; decides where drops begin
};

extern const IDENTITY LRAIN_identity;
extern std::uint8_t LRAIN_verbose;

/// Rain that is already falling (one draw of chance()), or nullptr (reported).
LRAIN* LRAIN_new();

/// Replaces the drops by `count` (>= 0) random ones. On failure it reports and the old ones stay.
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
