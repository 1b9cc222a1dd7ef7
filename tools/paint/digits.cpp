// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Two columns of sixteen cells with the hexadecimal digits. The first two cells are the last digits, E and F,
// so that the decimal ones start where the rolling strip looks for them.
#include "image/img.h"
#include "image/rgb888.h"
#include "paint/paint.h"
#include "paint/shading.h"
#include "paint/strokes.h"

#include <array>

namespace velm::paint {

namespace {

constexpr std::int32_t cell = 16;
constexpr std::int32_t digits = 16;
constexpr std::int32_t decimalDigits = 10;
constexpr std::int32_t firstDigitCell = 2;

std::int32_t topOf(std::int32_t digit) {
    return (digit + firstDigitCell) % digits * cell;
}

/// Bold digits; the skeleton's lower half stands a row lower, so that they fill the cell's height.
Picture boldDigit(std::int32_t digit) {
    constexpr std::string_view names = "0123456789ABCDEF";
    constexpr std::int32_t middle = 6;
    Strokes strokes =
        parseStrokes(digit == 0 ? openZero : skeletonGlyph(names[static_cast<std::size_t>(digit)]));
    for (Segment& segment : strokes) {
        segment.from.y += segment.from.y > middle ? 1 : 0;
        segment.to.y += segment.to.y > middle ? 1 : 0;
    }
    Picture bold = makePicture(cell, cell);
    drawStrokes(*bold, strokes, digit < decimalDigits ? 0 : -1, 0, 3, 3, 1);
    return bold;
}

bool touches(const IMG& shape, std::int32_t x, std::int32_t y) {
    for (std::int32_t i = 0; i < 9; ++i) {
        if (IMG_getPixel(&shape, x + i % 3 - 1, y + i / 3 - 1) != 0) {
            return true;
        }
    }
    return false;
}

/// Nearly white at the top, the pure colour in the middle, dark at the bottom.
std::uint32_t enamel(std::uint32_t colour, std::int32_t x, std::int32_t y) {
    constexpr std::int32_t middle = 8;
    if (y < middle) {
        return dither({blended(colour, 0xFFFFFF, 200), colour, 4}, (y - 1) * whole / (middle - 1), x, y);
    }
    return dither({colour, RGB888_dim(colour, 110), 4}, (y - middle) * whole / (cell - 1 - middle), x, y);
}

/// The bars of a seven-segment digit: its corner, its size, its bit.
struct Bar {
    std::int32_t x;
    std::int32_t y;
    std::int32_t w;
    std::int32_t h;
};

constexpr std::array<Bar, 7> bars = {{
    {5, 1, 6, 2},  // a: top
    {11, 2, 2, 6}, // b: upper right
    {11, 8, 2, 6}, // c: lower right
    {5, 13, 6, 2}, // d: bottom
    {3, 8, 2, 6},  // e: lower left
    {3, 2, 2, 6},  // f: upper left
    {5, 7, 6, 2},  // g: middle
}};

void drawBars(IMG& img, std::int32_t top, std::uint32_t lit) {
    constexpr std::uint32_t glow = 0x40FFC8;
    constexpr std::uint32_t core = 0xD8FFF4;
    constexpr std::uint32_t ghost = 0x0C3A30;
    for (std::size_t i = 0; i < bars.size(); ++i) {
        const auto& [x, y, w, h] = bars[i];
        const bool isLitBar = ((lit >> i) & 1U) != 0;
        IMG_fillRect(&img, x, top + y, w, h, isLitBar ? glow : ghost);
        if (isLitBar) {
            // A bright line runs along the upper or left half of the bar.
            IMG_fillRect(&img, w > h ? x + 1 : x, top + (w > h ? y : y + 1), w > h ? w - 2 : 1,
                         w > h ? 1 : h - 2, core);
        }
    }
}

} // namespace

Picture paintDigitsA() {
    constexpr std::int32_t hueStep = RGB888_hueCount / decimalDigits;
    Picture column = makePicture(cell, cell * digits);
    for (std::int32_t digit = 0; digit < digits; ++digit) {
        const Picture shape = boldDigit(digit);
        // A little white brings the dark blues up to the light of the other hues.
        const std::uint32_t colour = blended(RGB888_hue(digit * hueStep + RGB888_hueCount / 3), 0xFFFFFF, 60);
        for (std::int32_t i = 0; i < cell * cell; ++i) {
            const std::int32_t x = i % cell;
            const std::int32_t y = i / cell;
            if (IMG_getPixel(shape, x, y) != 0) {
                IMG_putPixel(column, x, topOf(digit) + y, enamel(colour, x, y));
            } else if (touches(*shape, x, y)) {
                IMG_putPixel(column, x, topOf(digit) + y, RGB888_dim(colour, 48));
            }
        }
    }
    return column;
}

Picture paintDigitsB() {
    constexpr std::array<std::uint32_t, digits> lit = {0x3F, 0x06, 0x5B, 0x4F, 0x66, 0x6D, 0x7D, 0x07,
                                                       0x7F, 0x6F, 0x77, 0x7C, 0x39, 0x5E, 0x79, 0x71};
    Picture column = makePicture(cell, cell * digits);
    for (std::int32_t digit = 0; digit < digits; ++digit) {
        drawBars(*column, topOf(digit), lit[static_cast<std::size_t>(digit)]);
    }
    return column;
}

} // namespace velm::paint
