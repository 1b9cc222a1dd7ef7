// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The display face: the 16 x 16 letters twice as wide and four times as high, cut like roofs that fall off on
// both sides of their strokes. The light comes from the upper left. Each pixel is the mean of 4 by 4 samples,
// measured in eighths of a pixel.
#include "foundation/root.h"
#include "image/img.h"
#include "paint/drawings.h"
#include "paint/paint.h"
#include "paint/shading.h"
#include "paint/strokes.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <string_view>

namespace velm::paint {

namespace {

constexpr std::int32_t cellWidth = 32;
constexpr std::int32_t cellHeight = 64;
constexpr std::int32_t cellsPerRow = 8;
constexpr std::int32_t codes = 128;
constexpr std::int32_t unit = 8;    ///< lengths are in eighths of a pixel
constexpr std::int32_t samples = 4; ///< along each side of a pixel
constexpr std::int32_t ridge = 5;   ///< half the width of the bright line along the middle of a stroke
constexpr std::int32_t middleGrey = 150;
constexpr std::int32_t slopeGrey = 100; ///< what a slope that faces the light or turns away adds or takes
constexpr std::int32_t ridgeGrey = 255;

/// How far the drawing grid is stretched into the cell, and how thick its strokes are; all in eighths.
struct Cut {
    std::int32_t scaleX;
    std::int32_t scaleY;
    std::int32_t left;
    std::int32_t top;
    std::int32_t halfWidth;
};

constexpr Cut letterCut = {16, 32, 20, 28, 30};
constexpr Cut crowdedCut = {16, 32, 20, 28, 21};
constexpr Cut figureCut = {14, 14, 16, 144, 10};

constexpr std::int32_t longSlant = 128; ///< the least height of strokes like those of X, in eighths

/// A stroke's axis. An end is square where nothing or a stroke at a right angle meets it, otherwise round. A
/// long slanted stroke's square end is cut level, so that all letters stand on one line.
struct Axis {
    Point from;
    Point along;
    std::int32_t length;
    bool squareFrom;
    bool squareTo;

    bool isSlanted() const { return along.x != 0 && std::abs(along.y) >= longSlant; }
};

/// What a sample sees of one axis: its distance, and how far the slope there faces the light, -256 to 256.
struct Slope {
    std::int32_t distance;
    std::int32_t light;
};

constexpr std::int64_t cross(Point a, Point b) {
    return std::int64_t{a.x} * b.y - std::int64_t{a.y} * b.x;
}

constexpr std::int64_t dot(Point a, Point b) {
    return std::int64_t{a.x} * b.x + std::int64_t{a.y} * b.y;
}

constexpr Point minus(Point a, Point b) {
    return {a.x - b.x, a.y - b.y};
}

/// The light falls in the direction (3, 4) / 5.
std::int32_t lightOn(std::int64_t normalX, std::int64_t normalY, std::int64_t length) {
    return length == 0 ? 0 : static_cast<std::int32_t>(-(3 * normalX + 4 * normalY) * whole / (5 * length));
}

bool isSquareEnd(const Strokes& strokes, const Segment& segment, Point end) {
    const Point along = minus(segment.to, segment.from);
    return std::none_of(strokes.begin(), strokes.end(), [&](const Segment& other) {
        const bool meets = other.from == end || other.to == end;
        const Point otherAlong = minus(other.to, other.from);
        return meets && &other != &segment && dot(along, otherAlong) != 0;
    });
}

/// The strokes in the cell, in eighths of a pixel.
Strokes placed(Strokes strokes, const Cut& cut) {
    const auto place = [&cut](Point p) {
        return Point{p.x * cut.scaleX + cut.left, p.y * cut.scaleY + cut.top};
    };
    for (Segment& segment : strokes) {
        segment.from = place(segment.from);
        segment.to = place(segment.to);
    }
    return strokes;
}

std::vector<Axis> makeAxes(const Strokes& strokes) {
    std::vector<Axis> axes;
    for (const Segment& segment : strokes) {
        const Point along = minus(segment.to, segment.from);
        axes.push_back({segment.from, along, rootOf(dot(along, along)),
                        isSquareEnd(strokes, segment, segment.from),
                        isSquareEnd(strokes, segment, segment.to)});
    }
    return axes;
}

Slope aroundEnd(Point offset) {
    const std::int32_t distance = rootOf(dot(offset, offset));
    return {distance, lightOn(offset.x, offset.y, distance)};
}

/// How far a sample lies beyond the start; `offset` from there.
std::int64_t pastStart(const Axis& axis, Point offset) {
    if (axis.isSlanted() && axis.squareFrom) {
        return axis.along.y > 0 ? -offset.y : offset.y;
    }
    return -dot(axis.along, offset) / axis.length;
}

/// How far it lies beyond the finish; `offset` from there.
std::int64_t pastFinish(const Axis& axis, Point offset) {
    if (axis.isSlanted() && axis.squareTo) {
        return axis.along.y > 0 ? offset.y : -offset.y;
    }
    return dot(axis.along, offset) / axis.length;
}

/// Beyond a square end the roof falls off like a hip: the steeper of the side and the end counts.
Slope beyondSquareEnd(const Axis& axis, std::int64_t side, std::int64_t beyond, std::int32_t sign) {
    if (std::max(side, -side) > beyond) {
        const std::int64_t turn = side > 0 ? 1 : -1;
        return {static_cast<std::int32_t>(side * turn),
                lightOn(-turn * axis.along.y, turn * axis.along.x, axis.length)};
    }
    const std::int64_t x = axis.isSlanted() ? 0 : axis.along.x;
    return {static_cast<std::int32_t>(beyond),
            lightOn(sign * x, std::int64_t{sign} * axis.along.y,
                    rootOf(x * x + std::int64_t{axis.along.y} * axis.along.y))};
}

Slope slopeAt(const Axis& axis, Point sample) {
    const Point offset = minus(sample, axis.from);
    if (axis.length == 0) {
        // A dot is a small pyramid.
        const std::int32_t distance = std::max(std::abs(offset.x), std::abs(offset.y));
        const bool level = std::abs(offset.x) > std::abs(offset.y);
        return {distance, lightOn(level ? offset.x : 0, level ? 0 : offset.y, distance)};
    }
    const std::int64_t side = cross(axis.along, offset) / axis.length;
    const Point offsetTo = minus(offset, axis.along);
    const std::int64_t before = pastStart(axis, offset);
    const std::int64_t after = pastFinish(axis, offsetTo);
    if (before > 0) {
        return axis.squareFrom ? beyondSquareEnd(axis, side, before, -1) : aroundEnd(offset);
    }
    if (after > 0) {
        return axis.squareTo ? beyondSquareEnd(axis, side, after, 1) : aroundEnd(offsetTo);
    }
    return beyondSquareEnd(axis, side, 0, 1);
}

/// The grey of a sample: 0 outside all strokes.
std::int32_t greyAt(const std::vector<Axis>& axes, Point sample, std::int32_t halfWidth) {
    Slope nearest = {halfWidth + 1, 0};
    for (const Axis& axis : axes) {
        const Slope slope = slopeAt(axis, sample);
        if (slope.distance < nearest.distance) {
            nearest = slope;
        }
    }
    if (nearest.distance > halfWidth) {
        return 0;
    }
    if (nearest.distance <= ridge * halfWidth / letterCut.halfWidth) {
        return ridgeGrey;
    }
    return middleGrey + slopeGrey * nearest.light / whole;
}

/// Whether a stroke can reach the pixel whose top left corner is given.
bool isNear(const Axis& axis, Point corner, std::int32_t halfWidth) {
    const std::int32_t reach = 3 * halfWidth / 2 + unit; // square ends stick out at slants
    const Point from = minus(axis.from, corner);
    const Point to = {from.x + axis.along.x, from.y + axis.along.y};
    return std::min(from.x, to.x) <= reach && std::max(from.x, to.x) >= -reach &&
           std::min(from.y, to.y) <= reach && std::max(from.y, to.y) >= -reach;
}

std::int32_t pixelGrey(const std::vector<Axis>& axes, Point corner, std::int32_t halfWidth) {
    std::vector<Axis> near;
    std::copy_if(axes.begin(), axes.end(), std::back_inserter(near),
                 [=](const Axis& axis) { return isNear(axis, corner, halfWidth); });
    if (near.empty()) {
        return 0;
    }
    std::int32_t sum = 0;
    for (std::int32_t i = 0; i < samples * samples; ++i) {
        sum += greyAt(near, {corner.x + i % samples * 2 + 1, corner.y + i / samples * 2 + 1}, halfWidth);
    }
    return sum / (samples * samples);
}

void cutGlyph(IMG& sheet, std::int32_t code, const Strokes& strokes, const Cut& cut) {
    const std::vector<Axis> axes = makeAxes(placed(strokes, cut));
    for (std::int32_t y = 0; y < cellHeight; ++y) {
        for (std::int32_t x = 0; x < cellWidth; ++x) {
            const std::int32_t grey = pixelGrey(axes, {x * unit, y * unit}, cut.halfWidth);
            IMG_putPixel(&sheet, code % cellsPerRow * cellWidth + x, code / cellsPerRow * cellHeight + y,
                         static_cast<std::uint32_t>(grey) * 0x010101U);
        }
    }
}

/// The figures of the control codes, by name, and last that of code 127.
constexpr std::string_view figures[33] = {"cube",
                                          "dodecahedron",
                                          "two tetrahedra",
                                          "tesseract",
                                          "eight cubes",
                                          "prism",
                                          "impossible triangle",
                                          "globe",
                                          "double pyramid",
                                          "pentagram",
                                          "hexagram",
                                          "sharp heptagram",
                                          "enneagram",
                                          "three squares",
                                          "complete seven",
                                          "north star",
                                          "compass rose",
                                          "sun",
                                          "iris",
                                          "snowflake",
                                          "strung diamond",
                                          "trefoil",
                                          "woven square",
                                          "three triangles",
                                          "four leaves",
                                          "six-sided spiral",
                                          "two-armed spiral",
                                          "turning squares",
                                          "turning pentagons",
                                          "triangles in triangles",
                                          "branching tree",
                                          "heart",
                                          "cuboctahedron"};

std::string_view figureOf(std::int32_t code) {
    const std::string_view name = figures[std::min(static_cast<std::size_t>(code), std::size(figures) - 1)];
    for (const auto list : {drawings(), ornaments()}) {
        const auto found =
            std::find_if(list.begin(), list.end(), [=](const Drawing& d) { return d.name == name; });
        if (found != list.end()) {
            return found->shorthand;
        }
    }
    return "";
}

} // namespace

Picture paintFontShaded() {
    Picture sheet = makePicture(cellWidth * cellsPerRow, cellHeight * (codes / cellsPerRow));
    for (std::int32_t code = 0; code < codes; ++code) {
        const auto character = static_cast<char>(code);
        if (code < 32 || code == 127) {
            cutGlyph(*sheet, code, parseStrokes(figureOf(code)), figureCut);
        } else {
            cutGlyph(*sheet, code, parseStrokes(skeletonGlyph(character)),
                     isCrowded(character) ? crowdedCut : letterCut);
        }
    }
    return sheet;
}

} // namespace velm::paint
