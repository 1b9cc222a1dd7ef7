// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// VEC2D, an integer point with a colour, and the integer transforms that line drawings are posed with.
// Coordinates wrap modulo 2^32.
//
//     VEC2D* point = VEC2D_new();
//     VEC2D_add(position, point);
//     VEC2D_rotate(point, 256); // a quarter turn about the origin
#pragma once

#include "foundation/identity.h"
#include "foundation/report.h"

#include <cstdint>

namespace velm {

struct VEC2D {
    std::int32_t x = 0;              ///< pixels once transformed, to the right
    std::int32_t y = 0;              ///< pixels once transformed, downwards
    std::uint32_t colour = 0xFFFFFF; ///< 0x00RRGGBB
};

extern const IDENTITY VEC2D_identity;
extern std::uint8_t VEC2D_verbose; ///< set at first: missing points are reported by default

/// A white point at (0, 0), or nullptr (reported).
VEC2D* VEC2D_new();

/// point += offset; the colour stays.
void VEC2D_add(const VEC2D* offset, VEC2D* point);

/// point.x *= factor.x, point.y *= factor.y; the colour stays.
void VEC2D_scale(VEC2D* point, const VEC2D* factor);

/// Turns the point about the origin by `angle` 1/1024 turns. Angle 0 is exact, every other loses a little:
/// see docs/quirks.md.
void VEC2D_rotate(VEC2D* point, std::int32_t angle);

/// x * x + y * y; -1 (reported) without a point.
std::int32_t VEC2D_lengthSquared(const VEC2D* point);

/// Frees the point and stores nullptr in the handle.
void VEC2D_delete(VEC2D** handle);

/// Prints "VEC2D error" while VEC2D_verbose is set.
void VEC2D_error();

/// Copies the coordinates and the colour.
inline void VEC2D_copy(const VEC2D* src, VEC2D* dst) {
    if (!refused(src == nullptr || dst == nullptr, VEC2D_error)) {
        *dst = *src;
    }
}

} // namespace velm
