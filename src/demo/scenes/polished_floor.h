// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A polished floor, which mirrors all that stands on it, with a ripple: dark enough for the hues of the
// scroll text, whatever the background is.
//
//     PolishedFloor floor;       // in a scene's cast
//     floor.draw(171);           // last in each frame, from row 171 of the window down
#pragma once

#include "demo/scenes/acts.h"

#include <cstdint>

namespace velm {

class PolishedFloor {
public:
    /// Fills the window from row `top` (> 0) down with the mirror of the rows above, half as high.
    void draw(std::int32_t top);

private:
    static constexpr std::int32_t mostRows = 96;
    Picture mirrored{IMG_newSized(settings.windowWidth, mostRows)};                       ///< straight
    Owned<DISTX_delete> ripple = makeBend<DISTX_new, DISTX_delete>(mirrored, 5, -20, 44); ///< bends it
};

} // namespace velm
