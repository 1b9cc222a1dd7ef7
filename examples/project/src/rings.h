// RINGS, two stones in the water: rings run out from two places that wander, and where they meet, they make a
// pattern.
//
//     RINGS* rings = RINGS_new();
//     RINGS_advance(rings), RINGS_draw(rings, screen); // each frame
//     RINGS_delete(&rings);
#pragma once

#include "foundation/sine.h"
#include "image/img.h"

struct RINGS {
    static constexpr std::int32_t size = 512; ///< width and height of `distance`

    std::int32_t phase = 0;           ///< of the rings, 1/1024 turns
    std::int32_t speed = 24;          ///< added to `phase` a frame
    std::int32_t density = 40;        ///< 1/1024 turns a pixel away from the stone: how narrow the rings are
    std::int32_t wander = 0;          ///< where the stones are on their ways, 1/1024 turns
    std::int32_t hue = 0;             ///< of the rings, an index of RGB888_hue
    std::uint16_t* distance{nullptr}; ///< owned, size * size: pixels from the middle
};

/// New rings, or nullptr without memory.
RINGS* RINGS_new();

/// Moves rings, stones and hue by one frame.
void RINGS_advance(RINGS* rings);

/// Fills the target, of 256 by 256 pixels.
void RINGS_draw(const RINGS* rings, velm::IMG* target);

/// Frees the record and stores nullptr in the handle.
void RINGS_delete(RINGS** handle);
