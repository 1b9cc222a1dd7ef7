// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Strokes: line drawings in a shorthand that fits in one line. A point is two characters, x and y, each 0 to
// 9 and then A to Z for 10 to 35; points joined by spaces are a polyline, commas part the polylines.
//
//     "2B 24 51 91 C4 CB, 27 C7" // a capital A: its outline, then its bar
#pragma once

#include "image/img.h"

#include <array>
#include <string_view>
#include <vector>

namespace velm::paint {

struct Point {
    std::int32_t x;
    std::int32_t y;
    bool operator==(const Point&) const = default;
};

struct Segment {
    Point from;
    Point to;
    bool startsStroke; ///< true for the first segment of a polyline
};

using Strokes = std::vector<Segment>;

/// Appends the segments of a polyline. One point alone is a dot: a segment of length 0.
void appendPolyline(Strokes& strokes, const std::vector<Point>& points);

/// The segments of a shorthand, in writing order.
Strokes parseStrokes(std::string_view shorthand);

/// Draws with a rectangular pen: the w by h pixels whose top left corner is each point of the line, all moved
/// by (x, y).
void drawStrokes(IMG& img, const Strokes& strokes, std::int32_t x, std::int32_t y, std::int32_t w,
                 std::int32_t h, std::uint32_t colour);

/// The shorthands of the printable characters, the space first.
using Glyphs = std::array<std::string_view, 95>;

constexpr std::string_view glyphOf(const Glyphs& glyphs, char character) {
    return glyphs[static_cast<std::size_t>(character - ' ')];
}

/// The shorthand of a printable character on the 16 x 16 grid, one line a stroke: "" for the space.
std::string_view skeletonGlyph(char character);

/// The same character for the line font: the outline of its strokes, which are one unit wide.
std::string_view mediumGlyph(char character);

/// The zero without its dot, for places where no letter O can stand.
constexpr std::string_view openZero = "51 91 B3 B9 9B 5B 39 33 51";

/// Whether a character has so many strokes that thick ones would fill it.
bool isCrowded(char character);

/// The shorthand of a printable character on the 8 x 8 grid.
std::string_view smallGlyph(char character);

} // namespace velm::paint
