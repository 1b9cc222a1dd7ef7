// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/panorama.h"

#include "demo/state.h"
#include "foundation/owned.h"
#include "foundation/wrap.h"

#include <algorithm>
#include <cstdint>

namespace velm {

namespace {

constexpr std::int32_t highestRoof = 24; // row; only sky is above it
constexpr std::uint32_t nearWall = 0x080318;
constexpr std::uint32_t nearSide = 0x0C0626;
constexpr std::uint32_t farWall = 0x2A0C58;
constexpr std::uint32_t darkWall = 0x180838;

/// Walls of the near houses, or their outlines: pure hues, lit or in the shade.
bool isNear(std::uint32_t colour) {
    constexpr std::uint32_t leastLight = 0x70;
    std::uint8_t channels[3];
    RGB888_toBytes(colour, channels);
    const auto [least, most] = std::minmax_element(channels, channels + 3);
    return colour == nearWall || colour == nearSide || (*least == 0 && *most >= leastLight);
}

bool isFar(std::uint32_t colour) {
    return colour == farWall || colour == darkWall;
}

/// The row of a column's first pixel that is one of those, or the shore.
template <typename Is>
std::int32_t roofOf(std::int32_t x, Is isHouse) {
    std::int32_t y = highestRoof;
    while (y < panoramaShore && !isHouse(IMG_getPixel(demo.pictureWide, x, y))) {
        ++y;
    }
    return y;
}

bool isMoon(std::uint32_t colour) {
    return (colour >> 16) == 0xFF;
}

/// The sky at a place: where a house or the moon hides it, the nearest sky above or half the panorama away.
std::uint32_t skyAt(std::int32_t x, std::int32_t y) {
    const IMG& picture = *demo.pictureWide;
    x = positiveModulo(x, picture.width);
    const std::int32_t roof = std::min(roofOf(x, isNear), roofOf(x, isFar));
    const std::uint32_t colour = IMG_getPixel(&picture, x, std::min(y, roof - 1));
    return isMoon(colour) ? IMG_getPixel(&picture, (x + picture.width / 2) % picture.width, y) : colour;
}

/// The mean of a sky about a place, which turns its dots into glow.
std::uint32_t softened(const IMG* sky, std::int32_t x, std::int32_t y) {
    constexpr std::int32_t reach = 3;
    std::uint32_t sum[3] = {};
    std::uint32_t count = 0;
    for (std::int32_t dy = -1; dy <= 1; ++dy) {
        for (std::int32_t dx = -reach; dx <= reach; ++dx) {
            std::uint8_t channels[3];
            RGB888_toBytes(
                IMG_getPixel(sky, positiveModulo(x + dx, sky->width), std::clamp(y + dy, 0, sky->height - 1)),
                channels);
            for (int i = 0; i < 3; ++i) {
                sum[i] += channels[i];
            }
            ++count;
        }
    }
    return RGB888_fromBytes(static_cast<std::uint8_t>(sum[0] / count),
                            static_cast<std::uint8_t>(sum[1] / count),
                            static_cast<std::uint8_t>(sum[2] / count));
}

/// Gives every pixel of a picture, where there is one, the colour colourAt(x, y).
template <typename ColourAt>
IMG* painted(IMG* picture, ColourAt colourAt) {
    for (std::int32_t y = 0; picture != nullptr && y < picture->height; ++y) {
        for (std::int32_t x = 0; x < picture->width; ++x) {
            picture->pixels[y * picture->width + x] = colourAt(x, y);
        }
    }
    return picture;
}

IMG* newLayer() {
    return IMG_newSized(demo.pictureWide->width, demo.pictureWide->height);
}

} // namespace

IMG* newNearHouses() {
    return painted(newLayer(), [](std::int32_t x, std::int32_t y) {
        const bool isHouse = y >= roofOf(x, isNear) && y < panoramaShore;
        return isHouse ? IMG_getPixel(demo.pictureWide, x, y) : 0;
    });
}

IMG* newFarHouses() {
    std::int32_t roofs[256];
    std::int32_t roof = panoramaShore / 2;
    for (std::int32_t x = 0; x < std::min(demo.pictureWide->width, 256); ++x) {
        const std::int32_t seen = roofOf(x, isFar);
        roof = seen < roofOf(x, isNear) ? seen : roof;
        roofs[x] = roof;
    }
    return painted(newLayer(), [&roofs](std::int32_t x, std::int32_t y) {
        if (y < roofs[x & 255] || y >= panoramaShore) {
            return std::uint32_t{0};
        }
        const bool isSeen = y < roofOf(x, isNear);
        return isSeen ? IMG_getPixel(demo.pictureWide, x, y) : darkWall;
    });
}

IMG* newNorthernLights(std::int32_t height) {
    constexpr std::int32_t skyRows = 52;
    const Owned<IMG_delete> sky(painted(IMG_newSized(demo.pictureWide->width, skyRows), skyAt));
    if (sky == nullptr) {
        return nullptr;
    }
    return painted(IMG_newSized(sky->width, height), [&](std::int32_t x, std::int32_t y) {
        const std::int32_t row = y * skyRows * 256 / height;
        return RGB888_mix(softened(sky, x, row / 256), softened(sky, x, row / 256 + 1),
                          static_cast<std::uint32_t>(row % 256));
    });
}

} // namespace velm
