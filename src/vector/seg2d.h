// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// SEG2D, a line between two points. It is drawn in the colour of its first point. A segment that lacks a
// point is reported like a missing segment.
//
//     SEG2D* segment = SEG2D_new();
//     SEG2D_translate(segment, position);
//     SEG2D_draw(segment, screen);
#pragma once

#include "foundation/identity.h"

#include <cstdint>

namespace velm {

struct IMG;
struct VEC2D;

struct SEG2D {
    VEC2D* a; ///< owned; first end, white and at (0, 0) in a new segment
    VEC2D* b; ///< owned; second end, white and at (1, 1) in a new segment
};

extern const IDENTITY SEG2D_identity;
extern std::uint8_t SEG2D_verbose;

/// A new segment, or nullptr (reported).
SEG2D* SEG2D_new();

/// Adds `offset` to both points.
void SEG2D_translate(SEG2D* segment, const VEC2D* offset);

/// Multiplies both points by `factor`, axis by axis.
void SEG2D_scale(SEG2D* segment, const VEC2D* factor);

/// Turns both points about the origin by `angle` 1/1024 turns (VEC2D_rotate).
void SEG2D_rotate(SEG2D* segment, std::int32_t angle);

/// Draws the line in the colour of `a`, both ends included, clipped to the image.
void SEG2D_draw(const SEG2D* segment, IMG* img);

/// Copies the values of both points.
void SEG2D_copy(const SEG2D* src, SEG2D* dst);

/// Frees both points and the record and stores nullptr in the handle.
void SEG2D_delete(SEG2D** handle);

/// Prints "SEG2D error" while SEG2D_verbose is set.
void SEG2D_error();

} // namespace velm
