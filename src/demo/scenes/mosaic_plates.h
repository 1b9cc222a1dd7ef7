// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The plates of the mosaic: the outlines of each, and when and in which hue colour springs up in the panes
// between them.
//
//     const Plate& plate = plateAt(0);
//     plate.draw(canvas, curveRise(frame, 0, 30)); // stroke by stroke
#pragma once

#include <cstdint>
#include <string_view>

namespace velm {

struct IMG;

/// A connected space between outlines.
struct Pane {
    std::int32_t x, y; ///< the pixel where its colour springs up, about its middle
    std::int32_t area; ///< pixels
};

struct Plate {
    static constexpr std::int32_t colourCount = 4;

    std::string_view title;
    void (*draw)(IMG* canvas, std::int32_t weight); ///< the strokes that a weight of 0..256 tells
    std::int32_t (*delay)(const Pane& pane);        ///< frames from the last stroke on; below 0: never
    std::int32_t (*hue)(const Pane& pane);     ///< entry of the plate's ring of hueCount colours, 0 or more
    std::uint32_t colours[colourCount];        ///< which lead into each other round that ring
    std::int32_t flow, stretch, speed, ripple; ///< as in FILL
};

inline constexpr std::int32_t plateCount = 5;

/// Plate 0 to plateCount - 1, in the order in which they are shown.
const Plate& plateAt(std::int32_t number);

} // namespace velm
