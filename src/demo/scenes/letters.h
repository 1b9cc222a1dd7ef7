// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The four bobbing letters twice their size and in a dark outline, so that they are read on any ground.
//
//     BigLetters letters;
//     letters.draw(64, 8);
#pragma once

#include "foundation/owned.h"
#include "image/img.h"

#include <cstdint>

namespace velm {

class BigLetters {
public:
    static constexpr std::int32_t width = 128;  ///< pixels
    static constexpr std::int32_t height = 104; ///< pixels, the way that they bob included

    /// Draws them as they bob in this frame, the top left corner of all that they reach at (left, top).
    void draw(std::int32_t left, std::int32_t top);

private:
    Owned<IMG_delete> letters{IMG_newSized(width / 2, height / 2)}; ///< as the layer draws them
};

} // namespace velm
