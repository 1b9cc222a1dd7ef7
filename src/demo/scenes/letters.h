// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The four bobbing letters wherever a scene wants them; and twice their size in a dark outline, so that they
// are read on any ground.
//
//     drawLettersAt(middle - lettersWidth / 2, 200);
//     BigLetters letters;
//     letters.draw(64, 8);
#pragma once

#include "foundation/owned.h"
#include "image/img.h"

#include <cstdint>

namespace velm {

inline constexpr std::int32_t lettersWidth = 64; ///< of all four, pixels

/// Draws the letters, which bounce on a line at `y`, the first at `x`. The layer's own place and the pen stay
/// as they were.
void drawLettersAt(std::int32_t x, std::int32_t y);

class BigLetters {
public:
    static constexpr std::int32_t width = 2 * lettersWidth; ///< pixels
    static constexpr std::int32_t height = 104;             ///< pixels, the way that they bob included

    /// Draws them as they bob in this frame, the top left corner of all that they reach at (left, top).
    void draw(std::int32_t left, std::int32_t top);

private:
    Owned<IMG_delete> letters{IMG_newSized(width / 2, height / 2)}; ///< as the layer draws them
};

} // namespace velm
