// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The small marks: the logo, the mask of the wide picture, the colour strip and the pointer.
#include "foundation/owned.h"
#include "image/img.h"
#include "image/rgb888.h"
#include "paint/paint.h"
#include "paint/shading.h"
#include "paint/strokes.h"

#include <array>
#include <vector>

namespace velm::paint {

namespace {

constexpr std::uint32_t white = 0xFFFFFF;

/// The mark's lines: its unit of length and the thickness of a line, in pixels.
struct Lines {
    std::int32_t unit;
    std::int32_t pen;
};

constexpr std::int32_t bands = 3;     ///< parallel lines of a stroke
constexpr std::int32_t bandPitch = 4; ///< from one to the next, in units
constexpr std::int32_t tall = 36;     ///< the letters, in units

/// A polyline, its points in pixels from (x, y).
void drawPath(IMG& img, const std::vector<Point>& points, std::int32_t x, std::int32_t y, std::int32_t pen) {
    Strokes strokes;
    appendPolyline(strokes, points);
    drawStrokes(img, strokes, x, y, pen, pen, white);
}

/// Points on the left half, then the same from right to left on the right half.
std::vector<Point> mirrored(std::vector<Point> left, std::int32_t width) {
    for (std::size_t i = left.size() - 1; i > 0; --i) {
        left.push_back({width - left[i - 1].x, left[i - 1].y});
    }
    return left;
}

/// One of the parallel lines of a letter, `in` pixels inside the outermost. Corners are mitred: a line moves
/// by in * tan 22.5 along a corner of 135 degrees, by in * sqrt 2 along the crest of two slopes.
std::vector<Point> letterLine(char letter, std::int32_t in, std::int32_t width, std::int32_t height) {
    const std::int32_t corner = in * 5 / 12;
    const std::int32_t crest = in * 17 / 12;
    const std::int32_t half = width / 2;
    switch (letter) {
    case 'V':
        return mirrored({{in, 0}, {in, height - half - corner}, {half, height - crest}}, width);
    case 'E':
        return {{width, in}, {in, in}, {in, height - in}, {width, height - in}};
    case 'L':
        return {{in, 0}, {in, height - in}, {width, height - in}};
    default: // M
        return mirrored({{in, height}, {in, in + crest}, {half, half + crest}}, width);
    }
}

/// A letter of the word and its place, in units.
struct MarkLetter {
    char letter;
    std::int32_t left;
    std::int32_t width;
};

constexpr std::array<MarkLetter, 4> word = {{{'V', 3, 24}, {'E', 35, 20}, {'L', 63, 18}, {'M', 89, 34}}};

void drawWord(IMG& img, const Lines& lines) {
    for (const auto& [letter, left, width] : word) {
        for (std::int32_t band = 0; band < bands; ++band) {
            const std::int32_t in = band * bandPitch * lines.unit;
            const std::int32_t x = left * lines.unit;
            drawPath(img, letterLine(letter, in, width * lines.unit, tall * lines.unit), x, 0, lines.pen);
            if (letter == 'E') {
                const std::int32_t y = (tall / 2 - bandPitch) * lines.unit + in;
                drawPath(img, {{bands * bandPitch * lines.unit, y}, {width * lines.unit, y}}, x, 0,
                         lines.pen);
            }
        }
    }
}

/// The number in the line font, twice as large, at the end of three lines.
void drawNumber(IMG& img, const Lines& lines) {
    constexpr std::int32_t top = 41;
    constexpr std::int32_t right = 123;
    constexpr std::int32_t advance = 24;
    constexpr std::int32_t scale = 2;
    constexpr Point corner = {3, 1}; ///< of a digit in its cell
    constexpr std::string_view number = "4030";
    for (std::size_t i = 0; i < number.size(); ++i) {
        const std::int32_t left = right - 16 - advance * static_cast<std::int32_t>(number.size() - 1 - i);
        for (auto [from, to, starts] : parseStrokes(number[i] == '0' ? openZero : skeletonGlyph(number[i]))) {
            const auto place = [&](Point p) {
                return Point{((p.x - corner.x) * scale + left) * lines.unit,
                             ((p.y - corner.y) * scale + top) * lines.unit};
            };
            drawStrokes(img, {{place(from), place(to), starts}}, 0, 0, lines.pen, lines.pen, white);
        }
    }
    for (std::int32_t band = 0; band < bands; ++band) {
        const std::int32_t y = (top + 6 + band * bandPitch) * lines.unit;
        drawPath(img, {{3 * lines.unit, y}, {21 * lines.unit, y}}, 0, 0, lines.pen);
    }
}

void drawMark(IMG& img, const Lines& lines) {
    drawWord(img, lines);
    drawNumber(img, lines);
}

} // namespace

Picture paintLogo() {
    Picture logo = makePicture(128, 64);
    drawMark(*logo, {1, 2});
    return logo;
}

Picture paintPictureMask() {
    Picture mask = makePicture(256, 128);
    drawMark(*mask, {2, 5});
    return mask;
}

Picture paintStrip() {
    constexpr std::array<std::int32_t, 8> roundness = {120, 200, 256, 256, 236, 200, 150, 90};
    Picture strip = makePicture(8, 128);
    for (std::int32_t y = 0; y < strip->height; ++y) {
        const std::uint32_t colour = RGB888_hue(y * RGB888_hueCount / strip->height);
        for (std::int32_t x = 0; x < strip->width; ++x) {
            const std::uint32_t lit = x == 2 ? blended(colour, white, 150) : colour;
            IMG_putPixel(strip, x, y, RGB888_dim(lit, roundness[static_cast<std::size_t>(x)]));
        }
    }
    return strip;
}

Picture paintPointer() {
    constexpr std::uint32_t edge = 0x101018;
    constexpr std::array<std::string_view, 16> shape = {
        "#...............", //
        "##..............", //
        "#o#.............", //
        "#oo#............", //
        "#ooo#...........", //
        "#oooo#..........", //
        "#ooooo#.........", //
        "#oooooo#........", //
        "#ooooooo#.......", //
        "#oooooooo#......", //
        "#ooooo#####.....", //
        "#oo#oo#.........", //
        "#o#.#oo#........", //
        "##..#oo#........", //
        "#....#oo#.......", //
        ".....####.......", //
    };
    Picture pointer = makePicture(16, 16);
    for (std::int32_t y = 0; y < 16; ++y) {
        for (std::int32_t x = 0; x < 16; ++x) {
            const char kind = shape[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
            const std::uint32_t fill = dither({0xFFFFFF, 0x20D0FF, 4}, (x * 2 + y - 4) * 15, x, y);
            IMG_putPixel(pointer, x, y, kind == '#' ? edge : kind == 'o' ? fill : 0);
        }
    }
    return pointer;
}

} // namespace velm::paint
