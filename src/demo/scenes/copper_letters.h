// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The shaded letters in copper: pale at the top, violet at the foot, with a dark edge that lifts them off any
// ground.
//
//     CopperLetters letters;
//     letters.draw('A', 100, 14);
#pragma once

#include "foundation/owned.h"
#include "vector/font.h"

#include <cstdint>

namespace velm {

struct CopperLetters {
    Owned<FONT_delete> face;
    Owned<FONT_delete> shade; ///< the same shapes, almost black

    CopperLetters();
    /// Draws a letter onto the screen, its upper left corner at (x, y).
    void draw(char letter, std::int32_t x, std::int32_t y) const;
};

} // namespace velm
