// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The dust of a tunnel of RECT: specks that hang in it, densest about its frames, in their colours. They
// wind, twist and pass the viewer as the frames do, whether these are drawn or not.
//
//     TunnelDust dust{tunnel};
//     RECT_advance(tunnel), dust.draw(*tunnel, screen, 256); // each frame
#pragma once

#include "effects/rect.h"

#include <array>
#include <cstdint>

namespace velm {

class TunnelDust {
public:
    /// Specks about the frames of a tunnel, which keeps its count and the size of its panes; many draws of
    /// chance(). nullptr makes none.
    explicit TunnelDust(const RECT* tunnel);

    /// Adds all specks to the target, at a weight of 0..256.
    void draw(const RECT& tunnel, IMG* target, std::int32_t weight) const;

private:
    struct Mote {
        std::int32_t x, y;  ///< pixels from the axis, as seen where a frame has its size
        std::int32_t along; ///< 1/256 steps of the way, which is a ring of all frames
    };
    static void drawMote(const RECT& tunnel, const Mote& mote, IMG* target, std::int32_t weight);

    std::array<Mote, 6000> motes{};
};

} // namespace velm
