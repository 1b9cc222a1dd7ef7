// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The wide picture: a city of lines on a bay at night, an aurora above it, its lights in the water below. Its
// right edge continues at its left one: colours and waves complete whole turns, and no tower stands across.
#include "foundation/sine.h"
#include "image/img.h"
#include "image/rgb888.h"
#include "paint/paint.h"
#include "paint/shading.h"

#include <cstdlib>

namespace velm::paint {

namespace {

constexpr std::int32_t width = 256;
constexpr std::int32_t height = 128;
constexpr std::int32_t shore = 92; ///< the first row of water

/// Curtains of light: each hangs from a wavy line and fades upwards. Factors of x that are multiples of 4
/// make whole turns of the sine over the width.
std::uint32_t aurora(std::uint32_t sky, std::int32_t x, std::int32_t y, std::int32_t curtain) {
    const std::int32_t foot = 46 - curtain * 13 + (SINE_entry(x * 4 + curtain * 341) >> 12) +
                              (SINE_entry(x * 12 - curtain * 200) >> 13);
    const std::int32_t reach = 20 + (SINE_entry(x * 24 + curtain * 91) >> 12);
    const std::int32_t above = foot - y;
    if (above < 0 || above > reach) {
        return sky;
    }
    const std::int32_t strength =
        (reach - above) * 150 / reach * (160 + (SINE_entry(x * 96 + curtain * 50) >> 9)) / 224;
    const std::uint32_t light = blended(0x30FFA0, 0xC040FF, above * whole / reach);
    // The strength goes through the pattern, not the colour: few steps over any sky.
    const auto amount = static_cast<std::int32_t>(dither({0, whole - 1, 6}, strength, x, y));
    return blended(sky, light, amount);
}

void paintSky(IMG& img) {
    for (std::int32_t y = 0; y < shore; ++y) {
        for (std::int32_t x = 0; x < width; ++x) {
            std::uint32_t colour = dither({0x04041A, 0x40106A, 10}, y * whole / shore, x, y);
            if (scattered(x, y * 3) < 420) {
                colour = blended(0x6070C0, 0xFFFFFF, scattered(y, x) >> 8);
            }
            for (std::int32_t curtain = 0; curtain < 3; ++curtain) {
                colour = aurora(colour, x, y, curtain);
            }
            IMG_putPixel(&img, x, y, colour);
        }
    }
}

void paintMoon(IMG& img) {
    constexpr std::int32_t centreX = 196;
    constexpr std::int32_t centreY = 34;
    constexpr std::int32_t radius = 17;
    for (std::int32_t y = -radius; y <= radius; ++y) {
        for (std::int32_t x = -radius; x <= radius; ++x) {
            if (x * x + y * y <= radius * radius + radius / 2) {
                const std::int32_t amount = (x + y + radius) * whole / (3 * radius);
                IMG_putPixel(&img, centreX + x, centreY + y,
                             dither({0xFFF8E0, 0xFF70B0, 7}, amount, x + 64, y + 64));
            }
        }
    }
}

/// A layer of towers, from the far one to the near one.
struct Layer {
    std::int32_t seed;
    std::int32_t narrowest;
    std::int32_t widest;
    std::int32_t lowest;
    std::int32_t highest;
    std::uint32_t wall;
    std::uint32_t windows;
    std::int32_t litWindows; ///< of 65536
};

std::int32_t between(std::int32_t low, std::int32_t high, std::int32_t random) {
    return low + random % (high - low + 1);
}

void paintWindows(IMG& img, const Layer& layer, std::int32_t x, std::int32_t y, std::int32_t w) {
    for (std::int32_t row = y + 3; row < shore - 2; row += 3) {
        for (std::int32_t column = x + 2; column < x + w - 2; column += 2) {
            if (scattered(column + layer.seed, row) < layer.litWindows) {
                IMG_putPixel(&img, column, row, layer.windows);
            }
        }
    }
}

/// Roofs: flat, with a mast, with a step, or with a slope.
void paintRoof(IMG& img, std::int32_t kind, std::int32_t x, std::int32_t y, std::int32_t w,
               std::uint32_t wall, std::uint32_t edge) {
    const std::int32_t centre = x + w / 2;
    switch (kind) {
    case 0:
        IMG_drawVLine(&img, edge, centre, y - 9, y);
        IMG_putPixel(&img, centre, y - 9, 0xFF4060);
        break;
    case 1:
        IMG_fillRect(&img, x + w / 4, y - 4, w / 2, 4, wall);
        IMG_drawHLine(&img, edge, y - 4, x + w / 4, x + w / 4 + w / 2 - 1);
        IMG_drawVLine(&img, edge, x + w / 4, y - 4, y);
        IMG_drawVLine(&img, edge, x + w / 4 + w / 2 - 1, y - 4, y);
        break;
    case 2:
        for (std::int32_t i = 0; i <= w / 2; ++i) {
            IMG_drawVLine(&img, wall, x + i, y - i, y);
            IMG_drawVLine(&img, wall, x + w - 1 - i, y - i, y);
        }
        IMG_drawLine(&img, x, y, centre, y - w / 2, edge);
        IMG_drawLine(&img, x + w - 1, y, centre, y - w / 2, edge);
        break;
    default:
        break;
    }
}

/// The wall that a tower turns to the middle of the picture; the farther out the tower stands, the wider.
void paintSide(IMG& img, std::int32_t x, std::int32_t y, std::int32_t w, std::uint32_t edge) {
    constexpr std::uint32_t wall = 0x0C0626;
    const std::int32_t fromMiddle = x + w / 2 - width / 2;
    const std::int32_t toMiddle = fromMiddle < 0 ? 1 : -1;
    const std::int32_t corner = fromMiddle < 0 ? x + w - 1 : x;
    const std::int32_t depth = std::abs(fromMiddle) / 18;
    for (std::int32_t i = 1; i <= depth; ++i) {
        const std::int32_t top = y + i * (shore - y) / 64;
        IMG_drawVLine(&img, i == depth ? RGB888_dim(edge, 130) : wall, corner + i * toMiddle, top, shore - 1);
        IMG_putPixel(&img, corner + i * toMiddle, top, RGB888_dim(edge, 130));
    }
}

/// From the left edge to the right one; the last tower takes what room is left.
void paintTowers(IMG& img, const Layer& layer, bool outlined) {
    constexpr std::int32_t firstHue = 200;
    constexpr std::int32_t hueStep = RGB888_hueCount / width;
    std::int32_t x = outlined ? 1 : 0;
    for (std::int32_t i = 0; x + layer.narrowest <= width; ++i) {
        const std::int32_t wanted =
            between(layer.narrowest, layer.widest, scattered(i, layer.seed)) / 2 * 2 + 1;
        const std::int32_t w = x + wanted + layer.narrowest > width ? width - x : wanted;
        const std::int32_t tall = between(layer.lowest, layer.highest, scattered(layer.seed, i));
        const std::int32_t y = shore - tall;
        const std::uint32_t edge =
            outlined ? RGB888_dim(RGB888_hue(x * hueStep + firstHue), 230) : layer.windows;
        if (outlined) {
            paintSide(img, x, y, w, edge);
        }
        IMG_fillRect(&img, x, y, w, tall, layer.wall);
        paintRoof(img, scattered(i, layer.seed + 1) % 5, x, y, w, layer.wall, outlined ? edge : layer.wall);
        paintWindows(img, layer, x, y, w);
        if (outlined) {
            IMG_drawHLine(&img, edge, y, x, x + w - 1);
            IMG_drawVLine(&img, edge, x, y, shore - 1);
            IMG_drawVLine(&img, edge, x + w - 1, y, shore - 1);
        }
        x += w + between(outlined ? 1 : 0, outlined ? 6 : 2, scattered(i + 7, layer.seed));
    }
}

/// The water shows the picture upside down, darker and moved sideways by waves that grow towards the viewer.
void paintWater(IMG& img) {
    for (std::int32_t y = shore; y < height; ++y) {
        const std::int32_t depth = y - shore;
        const std::int32_t swing = 1 + depth / 6;
        const std::int32_t shift = SINE_entry(depth * 1600 / (depth + 8) * 7) * swing >> 15;
        for (std::int32_t x = 0; x < width; ++x) {
            const std::uint32_t mirrored =
                IMG_getPixel(&img, (x + shift + width) % width, shore - 1 - depth * 5 / 2);
            const std::int32_t kept = 190 - depth * 3;
            const std::uint32_t water = dither({0x0C0830, 0x020210, 5}, depth * 7, x, y);
            IMG_putPixel(&img, x, y, isLit(kept + 40, x, y) ? blended(water, mirrored, kept) : water);
        }
    }
    IMG_drawHLine(&img, 0x60F0FF, shore, 0, width - 1);
}

} // namespace

Picture paintPictureWide() {
    constexpr Layer far = {11, 7, 15, 14, 50, 0x2A0C58, 0x58309C, 9000};
    constexpr Layer middle = {5, 9, 17, 8, 46, 0x180838, 0xB05CE0, 9000};
    constexpr Layer near = {23, 9, 19, 9, 58, 0x080318, 0xFFD870, 14000};
    Picture picture = makePicture(width, height);
    paintSky(*picture);
    paintMoon(*picture);
    paintTowers(*picture, far, false);
    paintTowers(*picture, middle, false);
    paintTowers(*picture, near, true);
    paintWater(*picture);
    return picture;
}

} // namespace velm::paint
