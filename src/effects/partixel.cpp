// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/partixel.h"

#include "foundation/memory.h"
#include "foundation/random.h"
#include "foundation/record.h"
#include "foundation/report.h"
#include "image/img.h"
#include "image/imgfx.h"
#include "image/rgb888.h"

namespace velm {

const IDENTITY PARTIXEL_identity = makeIdentity("PARTIXEL", "20150624", "ZENDORAK", "CODE", "C");
std::uint8_t PARTIXEL_verbose = 0;
RANDOM* PARTIXEL_random = nullptr;

namespace {

constexpr std::uint32_t red = 0xFF0000;
constexpr std::uint32_t green = 0x00FF00;
constexpr std::uint32_t blue = 0x0000FF;
constexpr std::uint32_t fading = 0x070000;
constexpr std::uint32_t merging = 0xF00000;
constexpr std::uint32_t steam = 0x808080;
constexpr std::int32_t sparkRises = 5; ///< 0 to 4 rows
constexpr std::int32_t sparkSides = 3; ///< one column to the left, none, one to the right

bool isSpark(std::uint32_t pixel) {
    return (pixel & (green | blue)) == 0 && (pixel & red) != 0;
}

bool isPureBlue(std::uint32_t pixel) {
    return (pixel & (red | green)) == 0 && (pixel & blue) != 0;
}

void moveWater(IMG* image, std::int32_t x, std::int32_t y, std::int32_t step, std::uint32_t colour) {
    const struct { std::int32_t x, y; } places[] = {{x, y + 1}, {x + step, y}, {x - step, y}};
    for (const auto& to : places) {
        if (IMG_getPixel(image, to.x, to.y) == 0) {
            IMG_putPixel(image, to.x, to.y, colour);
            IMG_putPixel(image, x, y, 0);
            return;
        }
    }
}

/// Water that runs, and is scanned, in steps of 1 or -1 columns.
std::int32_t flow(PARTIXEL* water, std::int32_t step) {
    IMG* const image = water->image;
    const std::int32_t first = step > 0 ? 0 : image->width - 1;
    std::int32_t met = 0;
    for (std::int32_t y = image->height - 1; y >= 0; --y) {
        const std::uint32_t* const row = rowOf(*image, y);
        // PARTIXEL_scanMeetsAgain: one expects one step and one count a particle; what moved with the scan
        // stands before it again, so that water runs along a floor in one frame. That is how it flows.
        for (std::int32_t x = first; x >= 0 && x < image->width; x += step) {
            if (row[x] == water->colour) {
                ++met;
                moveWater(image, x, y, step, water->colour);
            }
        }
    }
    water->particles = met;
    return met;
}

void moveSpark(IMG* image, std::int32_t x, std::int32_t y, std::uint32_t spark) {
    const std::int32_t rise = RANDOM_next(PARTIXEL_random) % sparkRises;
    const std::int32_t side = RANDOM_next(PARTIXEL_random) % sparkSides - 1;
    const std::int32_t toX = x + side;
    const std::int32_t toY = y - rise;
    const std::uint32_t there = IMG_getPixel(image, toX, toY);
    if (there == 0) {
        IMG_putPixel(image, toX, toY, RGB888_sub(spark, fading));
    } else if (isSpark(there)) {
        // PARTIXEL_sparkMergesWithItself: one expects a spark that stays to stay; it meets itself, adds its
        // light and is wiped. One draw in fifteen ends a spark so, which keeps fountains short.
        IMGFX_addPixel(image, toX, toY, merging);
    } else if (isPureBlue(there)) {
        // PARTIXEL_newWaterIsNotBlue: one expects any water to turn grey; only pure blue does, and new water,
        // with its green, puts sparks out like a wall. For grey, set another colour.
        IMG_putPixel(image, toX, toY, steam);
        return;
    }
    IMG_putPixel(image, x, y, 0);
}

} // namespace

PARTIXEL* PARTIXEL_new() {
    if (PARTIXEL_random == nullptr) {
        PARTIXEL_random = RANDOM_new();
    }
    PARTIXEL* const particles = PARTIXEL_random == nullptr ? nullptr : allocateRecord<PARTIXEL>();
    if (particles == nullptr) {
        PARTIXEL_error();
    }
    return particles;
}

std::int32_t PARTIXEL_waterRight(PARTIXEL* water) {
    return flow(water, 1);
}

std::int32_t PARTIXEL_waterLeft(PARTIXEL* water) {
    return flow(water, -1);
}

std::int32_t PARTIXEL_sparks(PARTIXEL* sparks) {
    IMG* const image = sparks->image;
    std::int32_t met = 0;
    for (std::int32_t y = 0; y < image->height; ++y) {
        const std::uint32_t* const row = rowOf(*image, y);
        for (std::int32_t x = 0; x < image->width; ++x) {
            if (isSpark(row[x])) {
                ++met;
                moveSpark(image, x, y, row[x]);
            }
        }
    }
    sparks->particles = met;
    return met;
}

void PARTIXEL_delete(PARTIXEL** handle) {
    deleteRecord(handle, PARTIXEL_error);
}

void PARTIXEL_error() {
    reportLine(PARTIXEL_verbose, "PARTIXEL error");
}

} // namespace velm
