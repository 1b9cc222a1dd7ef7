// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Plasma: a sea of colour, and nothing else.
#include "demo/scenes/acts.h"
#include "effects/plasma.h"

namespace velm {

namespace {

constexpr std::int32_t frames = 600;

struct Sea {
    Owned<PLASMA_delete> plasma{PLASMA_new()};
};

void drawSea(Sea& sea, std::int32_t) {
    PLASMA_advance(sea.plasma);
    PLASMA_draw(sea.plasma, demo.screen);
}

constexpr Act<Sea> acts[] = {{0, frames, drawSea}};

} // namespace

void VELM4030_scenePlasma() {
    play({}, frames, acts);
}

} // namespace velm
