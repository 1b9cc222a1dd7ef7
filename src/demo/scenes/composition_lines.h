// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The lines of the composition, three upright and three level ones, which divide the window into fields. They
// grow, breathe, slide into another order on the bars of the music, and leave.
//
//     lines.place(frame);                     // first in every frame
//     const View field = lines.view(1, 1);    // the field right of the first upright, below the first level
//     lines.draw(frame);
#pragma once

#include "demo/scenes/beat.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace velm {

/// What lies between two upright and two level lines.
struct View {
    std::int32_t left, top, right, bottom; ///< pixels; right and bottom belong to the lines
};

class Lines {
public:
    static constexpr std::size_t count = 5;      ///< each way, with the window's edges, which nobody sees
    static constexpr std::int32_t thickness = 5; ///< pixels
    static constexpr std::int32_t ordersBegin = 3 * barFrames; ///< the first order ends
    static constexpr std::int32_t secondOrder = 4 * barFrames; ///< up to it the drawing's field is large
    static constexpr std::int32_t wholeBegins = 6 * barFrames; ///< the first order is back
    static constexpr std::int32_t leaves = 618;                ///< panes and lines begin to leave

    /// Finds where the lines stand in this frame.
    void place(std::int32_t frame);

    /// The field right of an upright and below a level, 0..3 each; number 0 is the window's edge.
    [[nodiscard]] View view(std::size_t column, std::size_t row) const {
        return view(column, row, column + 1);
    }
    /// The same, up to a further upright `last`; number 4 is the window's edge.
    [[nodiscard]] View view(std::size_t column, std::size_t row, std::size_t last) const {
        return {x[column] + thickness, y[row] + thickness, x[last], y[row + 1]};
    }
    /// The row below the lowest level, pixels.
    [[nodiscard]] std::int32_t foot() const { return y[count - 2] + thickness; }

    /// Draws as much of them as there is in this frame, in the ink.
    void draw(std::int32_t frame) const;

    /// The complement of the background, 0x00RRGGBB.
    static std::uint32_t ink();

private:
    std::array<std::int32_t, count> x{}, y{}; ///< of the uprights and of the levels, pixels
};

} // namespace velm
