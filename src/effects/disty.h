// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// DISTY bends a strip up and down: every column of a picture is copied into the target shifted by a sine of
// the column. It is DISTX turned by a quarter.
//
//     DISTY* wave = DISTY_new();
//     wave->source = strip, wave->y = 160;
//     DISTY_draw(wave, screen), DISTY_advance(wave); // each frame
#pragma once

#include "foundation/identity.h"
#include "foundation/sine.h"

#include <cstdint>

namespace velm {

struct IMG;

struct DISTY {
    std::int32_t x = 0; ///< column of the target that takes column 0
    std::int32_t y = 0; ///< row of the target where an unshifted column begins
    std::int32_t reserved = 0;
    SINE wave{.offsetStep = 16}; ///< `speed` a frame, `offsetStep` from column to column, in 1/1024 turns
    std::int32_t amplitude = 16; ///< twice the reach of the shift in pixels
    IMG* source = nullptr;       ///< borrowed; the strip, set by the user
};

extern const IDENTITY DISTY_identity;
extern std::uint8_t DISTY_verbose;

/// A wave without a source, or nullptr.
DISTY* DISTY_new();

/// Copies the columns of `source`, wrapped around the target's height; 0 pixels are transparent. Columns that
/// fall outside the target are left out; without a source nothing is drawn.
void DISTY_draw(DISTY* dist, IMG* target);

/// Moves the wave by its speed.
void DISTY_advance(DISTY* dist);

/// Frees the record and stores nullptr in the handle; the source is untouched.
void DISTY_delete(DISTY** handle);

/// The error reporter: silent on purpose.
void DISTY_error();

} // namespace velm
