// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// DISTX bends a strip sideways: every row of a picture is copied into the target shifted by a sine of the
// row, so that a line of text becomes a wave.
//
//     DISTX* wave = DISTX_new();
//     wave->source = strip, wave->amplitude = 48;
//     DISTX_draw(wave, target), DISTX_advance(wave); // each frame, onto a cleared target
#pragma once

#include "foundation/identity.h"
#include "foundation/sine.h"

#include <cstdint>

namespace velm {

struct IMG;

struct DISTX {
    std::int32_t x = 0; ///< column of the target where an unshifted row begins
    std::int32_t y = 0; ///< row of the target that takes row 0
    std::int32_t reserved = 0;
    SINE wave{.offsetStep = 16}; ///< `speed` a frame, `offsetStep` from row to row, in 1/1024 turns
    std::int32_t amplitude = 16; ///< twice the reach of the shift in pixels
    IMG* source = nullptr;       ///< borrowed; the strip, set by the user
};

extern const IDENTITY DISTX_identity;
extern std::uint8_t DISTX_verbose;

/// A wave without a source, or nullptr.
DISTX* DISTX_new();

/// Copies the rows of `source`, wrapped around the target's width; 0 pixels are transparent. Rows that fall
/// outside the target are left out; without a source nothing is drawn.
void DISTX_draw(DISTX* dist, IMG* target);

/// Moves the wave by its speed.
void DISTX_advance(DISTX* dist);

/// Frees the record and stores nullptr in the handle; the source is untouched.
void DISTX_delete(DISTX** handle);

/// The error reporter: silent on purpose.
void DISTX_error();

} // namespace velm
