// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Every colour is a function of a place on a canvas of 4096 by 4096 units; a pixel is the mean of a few
// places inside it.
#include "paint/icon.h"

#include "foundation/owned.h"
#include "foundation/root.h"
#include "image/img.h"
#include "image/rgb888.h"
#include "paint/files.h"
#include "paint/shading.h"
#include "paint/strokes.h"

#include <algorithm>
#include <cstdlib>

namespace velm::paint {

namespace {

constexpr std::int32_t canvas = 4096;
constexpr std::int32_t cell = canvas / 32; ///< the shapes are written on a grid of 32 cells

/// What an icon of a size shows. Lengths in units of the canvas.
struct Style {
    std::string_view letter;     ///< the V
    std::int32_t from;           ///< the smallest size in pixels
    std::int32_t tube;           ///< half the width of its tubes
    std::int32_t glow;           ///< how far their light reaches
    std::int32_t margin, corner; ///< of the tile
    std::int32_t edge;           ///< half the width of the tile's edge line
    std::int32_t samples;        ///< places looked at across a pixel
    bool hasScene;               ///< whether the letter stands above a floor under stars
};

constexpr std::string_view oneTube = "66 6F GP QF Q6";
constexpr std::string_view twoTubes = "66 6G GQ QG Q6, B6 BE GJ LE L6";
constexpr std::string_view threeTubes = "64 6E GO QE Q4, 94 9D GK ND N4, C4 CC GG KC K4";

constexpr Style styles[] = {
    {threeTubes, 128, 76, 520, 64, 640, 18, 3, true}, {threeTubes, 64, 100, 520, 64, 640, 30, 4, true},
    {twoTubes, 48, 150, 500, 64, 640, 30, 4, true},   {twoTubes, 32, 150, 400, 64, 640, 40, 4, false},
    {oneTube, 16, 290, 380, 0, 640, 0, 4, false},
};

const Style& styleOf(std::int32_t size) {
    return *std::find_if(std::begin(styles), std::end(styles) - 1,
                         [size](const Style& style) { return size >= style.from; });
}

std::int32_t distance(std::int32_t dx, std::int32_t dy) {
    return rootOf(std::int64_t{dx} * dx + std::int64_t{dy} * dy);
}

/// From a place to the nearest of the strokes, which are in cells.
std::int32_t distanceTo(const Strokes& strokes, std::int32_t x, std::int32_t y) {
    std::int32_t nearest = 2 * canvas;
    for (const Segment& segment : strokes) {
        const std::int32_t fromX = segment.from.x * cell;
        const std::int32_t fromY = segment.from.y * cell;
        const std::int64_t alongX = segment.to.x * cell - fromX;
        const std::int64_t alongY = segment.to.y * cell - fromY;
        const std::int64_t length = std::max<std::int64_t>(alongX * alongX + alongY * alongY, 1);
        const std::int64_t foot =
            std::clamp<std::int64_t>((x - fromX) * alongX + (y - fromY) * alongY, 0, length);
        nearest = std::min(nearest, distance(x - fromX - static_cast<std::int32_t>(alongX * foot / length),
                                             y - fromY - static_cast<std::int32_t>(alongY * foot / length)));
    }
    return nearest;
}

/// From a place to the outline of the tile, negative inside.
std::int32_t distanceToTile(const Style& style, std::int32_t x, std::int32_t y) {
    const std::int32_t straight = canvas / 2 - style.margin - style.corner;
    const std::int32_t dx = std::abs(x - canvas / 2) - straight;
    const std::int32_t dy = std::abs(y - canvas / 2) - straight;
    const std::int32_t corner = distance(std::max(dx, 0), std::max(dy, 0));
    return corner + std::min(std::max(dx, dy), 0) - style.corner;
}

/// 256 on the line, falling to 0 at `reach`, faster at first.
std::int32_t lightAt(std::int32_t away, std::int32_t reach) {
    const std::int32_t rest = std::max(reach - away, 0) * whole / std::max(reach, 1);
    return rest * rest / whole;
}

std::uint32_t lit(std::uint32_t below, std::uint32_t colour, std::int32_t amount) {
    return RGB888_add(below, RGB888_dim(colour, amount));
}

/// Cyan at the top of the sign, magenta at its foot.
std::uint32_t neonAt(std::int32_t y) {
    return blended(0x18E8FF, 0xFF2890, (y - 6 * cell) * whole / (15 * cell));
}

/// Night, stars, and a floor of lines that run away to the horizon.
std::uint32_t sceneAt(std::int32_t x, std::int32_t y) {
    constexpr std::int32_t horizon = 21 * cell;
    constexpr std::int32_t starRoom = 160;
    if (y < horizon) {
        const std::uint32_t sky = blended(0x04000A, 0x2A0440, (y - 8 * cell) * whole / (13 * cell));
        const std::int32_t column = x / starRoom;
        const std::int32_t row = y / starRoom;
        const bool hasStar = scattered(column, row) < 4000;
        const std::int32_t away = distance(x % starRoom - starRoom / 2, y % starRoom - starRoom / 2);
        return hasStar ? lit(sky, 0xB0C0FF, lightAt(away, 44)) : sky;
    }
    const std::int32_t depth = y - horizon + 1;
    // Rows are evenly spaced in 1 / depth, columns in x / depth.
    const std::int32_t row = 7 * cell * 512 / (depth + cell) % 512;
    const std::int32_t column = ((x - canvas / 2) * 640 / (depth + 2 * cell) + 64 * 512 + 256) % 512;
    const std::int32_t rowAway = std::min(row, 512 - row) * (depth + cell) / 512;
    const std::int32_t columnAway = std::min(column, 512 - column) * (depth + 2 * cell) / 640;
    const std::int32_t light = std::max(lightAt(rowAway, 70), lightAt(columnAway, 60));
    const std::uint32_t floor = lit(0x08000F, 0xC020E0, light * 200 / whole);
    return lit(floor, 0x40E0FF, lightAt(depth, 90));
}

std::uint32_t colourAt(const Style& style, const Strokes& letter, std::int32_t x, std::int32_t y) {
    constexpr std::uint32_t night = 0x06000C;
    std::uint32_t colour = style.hasScene ? sceneAt(x, y) : night;
    const std::int32_t fromEdge = std::abs(distanceToTile(style, x, y) + 2 * style.edge);
    colour = lit(colour, 0x7030E0, style.edge > 0 ? lightAt(fromEdge, 2 * style.edge) : 0);
    const std::int32_t away = distanceTo(letter, x, y);
    const std::uint32_t neon = neonAt(y);
    colour = lit(colour, neon, lightAt(away, style.glow) / 2);
    return away < style.tube ? blended(neon, 0xFFFFFF, lightAt(away, style.tube) * 3 / 4) : colour;
}

} // namespace

Icon paintIcon(std::int32_t size) {
    const Style& style = styleOf(size);
    const Strokes letter = parseStrokes(style.letter);
    Icon icon = {makePicture(size, size), makePicture(size, size)};
    const std::int32_t places = size * style.samples;
    const std::uint32_t most = static_cast<std::uint32_t>(style.samples * style.samples);
    const auto middle = [places](std::int32_t place) { return (2 * place + 1) * canvas / (2 * places); };
    for (std::int32_t i = 0; i < size * size; ++i) {
        std::uint32_t red = 0;
        std::uint32_t green = 0;
        std::uint32_t blue = 0;
        std::uint32_t inside = 0;
        for (std::int32_t sample = 0; sample < style.samples * style.samples; ++sample) {
            const std::int32_t x = middle(i % size * style.samples + sample % style.samples);
            const std::int32_t y = middle(i / size * style.samples + sample / style.samples);
            if (distanceToTile(style, x, y) <= 0) {
                const std::uint32_t colour = colourAt(style, letter, x, y);
                red += colour >> 16;
                green += colour >> 8 & 0xFF;
                blue += colour & 0xFF;
                ++inside;
            }
        }
        const std::uint32_t count = std::max(inside, 1U);
        icon.colours->pixels[i] = red / count << 16 | green / count << 8 | blue / count;
        icon.coverage->pixels[i] = inside * 255 / most;
    }
    return icon;
}

bool writeIconOfWindows(const std::string& path) {
    constexpr std::int32_t size = 48;
    const Icon icon = paintIcon(size);
    std::string bytes = "P7\nWIDTH 48\nHEIGHT 48\nDEPTH 4\nMAXVAL 255\nTUPLTYPE RGB_ALPHA\nENDHDR\n";
    for (std::int32_t i = 0; i < size * size; ++i) {
        const std::uint32_t colour = icon.colours->pixels[i];
        for (const std::uint32_t channel : {colour >> 16, colour >> 8, colour, icon.coverage->pixels[i]}) {
            bytes += static_cast<char>(static_cast<unsigned char>(channel));
        }
    }
    return writeFile(path, bytes);
}

bool writeIcons(const std::string& directory) {
    constexpr std::int32_t sizes[] = {16, 24, 32, 48, 64, 128, 256};
    return std::all_of(std::begin(sizes), std::end(sizes), [&directory](std::int32_t size) {
        const Icon icon = paintIcon(size);
        return writePng(directory + "/" + std::to_string(size) + ".png", *icon.colours, icon.coverage);
    });
}

} // namespace velm::paint
