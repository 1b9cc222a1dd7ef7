// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Blossoms of dots: up to three curves whose hues go together, each trailed by its own past, seen in mirrors.
//
//     plantBlossom(random, blossom, 200);
//     advanceBlossom(blossom), drawBlossom(blossom, petals, 3, hue, 256), addMirrored(petals, screen, true);
#pragma once

#include "demo/scenes/acts.h"
#include "foundation/sine.h"

#include <cstdint>

namespace velm {

inline constexpr std::int32_t petalCount = 3;

struct Petal {
    Owned<SINEDOTS_delete> dots = makeDots(SINE_tableLength);
    std::int32_t hue = 0; ///< index of the hue ramp
};

struct Blossom {
    Petal petals[petalCount];
};

/// New curves, and hues so many steps of the ramp apart.
void plantBlossom(RANDOM* random, Blossom& blossom, std::int32_t apart);

void advanceBlossom(Blossom& blossom);

/// Adds the first petals, their hues turned by `hue`, at a weight of 0..256 to a picture.
void drawBlossom(const Blossom& blossom, IMG* target, std::int32_t petals, std::int32_t hue,
                 std::int32_t weight);

/// Adds a picture of the target's size to it, and its images in an upright, a lying and both mirrors; as a
/// star also those in the diagonal, for which both have to be square.
void addMirrored(const IMG* picture, IMG* target, bool isStar);

} // namespace velm
