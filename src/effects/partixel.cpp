// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/partixel.h"

#include "foundation/random.h"
#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/wide.h"
#include "image/img.h"
#include "image/imgfx.h"
#include "image/rgb888.h"

#include <algorithm>

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

bool isEmpty(const IMG& image, std::int32_t x, std::int32_t y) {
    return !contains(image, x, y) || rowOf(image, y)[x] == 0;
}

void moveWater(IMG* image, std::int32_t x, std::int32_t y, std::int32_t step, std::uint32_t colour) {
    const struct { std::int32_t x, y; } places[] = {{x, y + 1}, {x + step, y}, {x - step, y}};
    for (const auto& to : places) {
        if (isEmpty(*image, to.x, to.y)) {
            IMG_putPixel(image, to.x, to.y, colour);
            IMG_putPixel(image, x, y, 0);
            return;
        }
    }
}

constexpr std::int32_t block = 32; ///< pixels that are looked at together

/// Calls meet(x) along a row in steps of 1 or -1 columns. Most of an image is empty or at rest: a block of
/// which rests(its left end) says so when its turn comes is passed over.
template <typename Rests, typename Meet>
void scanRow(std::int32_t width, std::int32_t step, Rests rests, Meet meet) {
    std::int32_t x = step > 0 ? 0 : width - 1;
    while (x >= 0 && x < width) {
        const std::int32_t left = step > 0 ? x : x - block + 1;
        const std::int32_t end = std::clamp(x + step * block, -1, width);
        if (end != x + step * block || !rests(left)) {
            for (; x != end; x += step) {
                meet(x);
            }
        }
        x = end;
    }
}

/// How many pixels of a block are what is asked for.
template <typename Is>
std::int32_t countIf(const std::uint32_t* row, Is is) {
    std::int32_t count = 0;
    for (std::int32_t i = 0; i < block; ++i) {
        count += is(row[i]) ? 1 : 0;
    }
    return count;
}

/// True when no water of the block that begins at `row` has an empty place to go to.
bool waterRests(const std::uint32_t* row, std::int32_t width, std::uint32_t colour) {
    const std::uint32_t* const below = row + width;
    std::uint32_t moving = 0;
    for (std::int32_t i = 0; i < block; ++i) {
        const bool isOpen = (below[i] == 0) | (row[i - 1] == 0) | (row[i + 1] == 0);
        moving |= static_cast<std::uint32_t>((row[i] == colour) & isOpen);
    }
    return moving == 0;
}

/// One row of water that runs, and is scanned, in steps of 1 or -1 columns; returns how much it met.
std::int32_t flowRow(IMG* image, std::int32_t y, std::int32_t step, std::uint32_t colour) {
    const std::uint32_t* const row = rowOf(*image, y);
    std::int32_t met = 0;
    scanRow(
        image->width, step,
        [&](std::int32_t left) {
            const std::int32_t here = countIf(row + left, [=](auto pixel) { return pixel == colour; });
            const bool isInner = left > 0 && left + block < image->width && y + 1 < image->height;
            const bool rests = here == 0 || (isInner && waterRests(row + left, image->width, colour));
            met += rests ? here : 0;
            return rests;
        },
        // PARTIXEL_scanMeetsAgain: one expects one step and one count a particle; what moved with the scan
        // stands before it again, so that water runs along a floor in one frame. That is how it flows.
        [&](std::int32_t x) {
            if (row[x] == colour) {
                ++met;
                moveWater(image, x, y, step, colour);
            }
        });
    return met;
}

std::int32_t flow(PARTIXEL* water, std::int32_t step) {
    std::int32_t met = 0;
    runWide([&met, step, image = water->image, colour = water->colour] {
        for (std::int32_t y = image->height - 1; y >= 0; --y) {
            met += flowRow(image, y, step, colour);
        }
    });
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
    return refused(PARTIXEL_random == nullptr, PARTIXEL_error) ? nullptr
                                                               : newRecord<PARTIXEL>(PARTIXEL_error);
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
        scanRow(
            image->width, 1, [row](std::int32_t left) { return countIf(row + left, isSpark) == 0; },
            [&](std::int32_t x) {
                if (isSpark(row[x])) {
                    ++met;
                    moveSpark(image, x, y, row[x]);
                }
            });
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
