// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// BALL3D, a lit sphere: the front half of its surface as 512 rings of 512 points, drawn straight on without
// depth or perspective, each point shaded by how it faces a light.
//
//     BALL3D* ball = BALL3D_new();
//     ball->target = screen, ball->light = {10, 10, 10};
//     BALL3D_draw(ball);
#pragma once

#include "foundation/identity.h"

#include <cstdint>

namespace velm {

struct IMG;

/// Where the light comes from, and how strong it is. A length of about 10 lights a ball of radius 200 fully.
struct BALL3D_LIGHT {
    std::int32_t x = 0, y = 0, z = 0; ///< right, down, towards the viewer; within about +-10
};

struct BALL3D {
    std::int32_t x, y;                                   ///< centre in target pixels; random, 0..255
    std::int32_t z;                                      ///< random, 0..255; not used by the drawing
    std::int32_t width = 256, height = 256, depth = 256; ///< not used by the drawing
    std::int32_t radius;                                 ///< pixels; random, 0..255
    std::uint32_t colour;  ///< 0x00RRGGBB where the shade is 0, the top byte is ignored; random
    std::uint32_t colour2; ///< random; not used by the drawing
    IMG* target = nullptr; ///< borrowed; the image drawn into, set by the user
    std::int32_t reserved = 0;
    BALL3D_LIGHT light{}; ///< without one the ball is a flat disc
};

extern const IDENTITY BALL3D_identity;
extern std::uint8_t BALL3D_verbose;

/// A ball of random place, size and colours (six draws of chance(): x, y, z, radius, colour, colour2), or
/// nullptr (reported).
BALL3D* BALL3D_new();

/// Draws the ball, clipped to its target. Prints "min=%d max=%d", the range of the shades, when the light is
/// so strong that the last point's shade leaves -255..255. A missing target is reported.
void BALL3D_draw(const BALL3D* ball);

/// Frees the record and stores nullptr in the handle; the target is untouched.
void BALL3D_delete(BALL3D** handle);

/// Prints "BALL3D error" while BALL3D_verbose is set.
void BALL3D_error();

} // namespace velm
