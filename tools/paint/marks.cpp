// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The small marks: the logo, the mask of the wide picture, the colour strip and the pointer.
#include "paint/paint.h"
#include "paint/shading.h"
#include "paint/strokes.h"

#include <array>

namespace velm::paint {

namespace {

constexpr std::uint32_t white = 0xFFFFFF;

/// How the 16 x 16 letters become large ones.
struct Lettering {
    std::int32_t scaleX;
    std::int32_t scaleY;
    std::int32_t penW;
    std::int32_t penH;
    std::int32_t advance; ///< pixels from letter to letter
};

/// Writes capitals and digits; (x, y) is the top left pixel of the first capital.
void letter(IMG& img, std::string_view word, const Lettering& style, std::int32_t x, std::int32_t y) {
    constexpr std::int32_t capitalLeft = 2;
    constexpr std::int32_t capitalTop = 1;
    for (const char character : word) {
        Strokes strokes = parseStrokes(mediumGlyph(character));
        for (Segment& segment : strokes) {
            segment.from = {segment.from.x * style.scaleX, segment.from.y * style.scaleY};
            segment.to = {segment.to.x * style.scaleX, segment.to.y * style.scaleY};
        }
        drawStrokes(img, strokes, x - capitalLeft * style.scaleX, y - capitalTop * style.scaleY, style.penW,
                    style.penH, white);
        x += style.advance;
    }
}

/// Level slits that grow from row to row, as if the letters sank into their mirror image.
void cutSlits(IMG& img, std::int32_t top, std::int32_t pitch, std::int32_t count) {
    for (std::int32_t i = 0; i < count; ++i) {
        const std::int32_t thickness = 1 + i * (pitch - 2) / (count + 1);
        IMG_fillRect(&img, 0, top + i * pitch, img.width, thickness, 0);
    }
}

} // namespace

Picture paintLogo() {
    constexpr Lettering large = {2, 3, 6, 7, 33};
    constexpr Lettering small = {1, 1, 2, 2, 17};
    Picture logo = makePicture(128, 64);
    letter(*logo, "VELM", large, 1, 1);
    cutSlits(*logo, 18, 5, 4);
    letter(*logo, "4030", small, 32, 48);
    for (std::int32_t i = 0; i < 5; ++i) {
        // Speed lines run towards the number from both sides.
        const std::int32_t y = 48 + 3 * i;
        const std::int32_t length = 8 + 4 * i;
        IMG_drawHLine(logo.get(), white, y, 24 - length + 4, 24);
        IMG_drawHLine(logo.get(), white, y, 127 - 24, 127 - 24 + length - 4);
    }
    return logo;
}

Picture paintPictureMask() {
    constexpr Lettering huge = {4, 6, 13, 15, 67};
    constexpr std::int32_t top = 26;
    Picture mask = makePicture(256, 128);
    letter(*mask, "VELM", huge, 1, top);
    for (std::int32_t y = 0; y < mask->height; ++y) {
        const std::int32_t fromEdge = y < 64 ? y : 127 - y;
        if (fromEdge < top - 3 && y % 4 < 1 + fromEdge / 8) {
            IMG_drawHLine(mask.get(), white, y, 0, mask->width - 1);
        }
    }
    return mask;
}

Picture paintStrip() {
    constexpr std::array<std::int32_t, 8> roundness = {120, 200, 256, 256, 236, 200, 150, 90};
    Picture strip = makePicture(8, 128);
    for (std::int32_t y = 0; y < strip->height; ++y) {
        const std::uint32_t colour = hue(y * hueTurn / strip->height);
        for (std::int32_t x = 0; x < strip->width; ++x) {
            const std::uint32_t lit = x == 2 ? blended(colour, white, 150) : colour;
            IMG_putPixel(strip.get(), x, y, dimmed(lit, roundness[static_cast<std::size_t>(x)]));
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
            IMG_putPixel(pointer.get(), x, y, kind == '#' ? edge : kind == 'o' ? fill : 0);
        }
    }
    return pointer;
}

} // namespace velm::paint
