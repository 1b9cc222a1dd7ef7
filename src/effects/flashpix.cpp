// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/flashpix.h"

#include "effects/palette.h"
#include "foundation/chance.h"
#include "foundation/memory.h"
#include "foundation/random.h"
#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/wrap.h"
#include "image/img.h"
#include "image/imgfx.h"
#include "image/rgb888.h"

#include <algorithm>

namespace velm {

const IDENTITY FLASHPIX_identity = makeIdentity("FLASHPIX", "C", "ZENDORAK", "20150713", "CODE");
std::uint8_t FLASHPIX_verbose = 0;

namespace {

constexpr std::int32_t full = RGB888_fullWeight;
constexpr std::uint32_t white = 0xFFFFFF;
constexpr std::int32_t longestLife = 1 << 20; // frames

/// A number 0..limit - 1; 0 when the limit is not positive. The generator's numbers run in step from draw to
/// draw, which would show as lines, so their bits are mixed first (multiplicative hashing).
std::int32_t randomBelow(const FLASHPIX& flash, std::int32_t limit) {
    constexpr std::uint32_t goldenRatio = 0x9E3779B1; // of 2 to the 32nd
    auto number = static_cast<std::uint32_t>(RANDOM_next(flash.random));
    number = (number ^ (number >> 11)) * goldenRatio;
    number = (number ^ (number >> 15)) * goldenRatio;
    return limit > 0
               ? static_cast<std::int32_t>((std::uint64_t{number} * static_cast<std::uint32_t>(limit)) >> 32)
               : 0;
}

/// True for a share 0..256 of the calls.
bool happens(const FLASHPIX& flash, std::int32_t share) {
    return randomBelow(flash, full) < share;
}

std::uint32_t hueAt(const FLASHPIX& flash, std::int32_t x, std::int32_t y) {
    const std::int32_t spread = randomBelow(flash, flash.hueSpread);
    const std::int32_t hue = wrapAdd(wrapAdd(flash.hue, spread), wrapMul(flash.hueSlope, wrapAdd(x, y)));
    return paletteColour(flash.hues, hue);
}

/// Every spark takes its numbers in the same order, whatever becomes of it.
void begin(const FLASHPIX& flash, FLASHPIX_SPARK& spark) {
    const std::int32_t more = randomBelow(flash, wrapAdd(wrapSub(flash.longest, flash.shortest), 1));
    spark.life = std::clamp(wrapAdd(flash.shortest, more), 1, longestLife);
    spark.age = happens(flash, flash.lit) ? 0 : -spark.life;
    if (happens(flash, flash.inShape) && flash.placeCount > 0) {
        const std::int32_t* const place =
            flash.places + 2 * std::int64_t{randomBelow(flash, flash.placeCount)};
        spark.x = place[0];
        spark.y = place[1];
    } else {
        spark.x = randomBelow(flash, flash.width);
        spark.y = randomBelow(flash, flash.height);
    }
    spark.colour = hueAt(flash, spark.x, spark.y);
    spark.glints = happens(flash, flash.glintShare);
}

/// 0..256: up within a quarter of its life, then down, the last part slowest.
std::int32_t brightnessOf(const FLASHPIX_SPARK& spark) {
    const std::int32_t rise = std::max(spark.life / 4, 1);
    if (spark.age < rise) {
        return full * (spark.age + 1) / rise;
    }
    const std::int32_t left = full * (spark.life - spark.age) / std::max(spark.life - rise, 1);
    return (left * left) >> 8;
}

void drawSpark(const FLASHPIX& flash, const FLASHPIX_SPARK& spark, IMG* target) {
    const std::int32_t shine = (std::clamp(flash.brightness, 0, full) * brightnessOf(spark)) >> 8;
    const std::uint32_t colour = RGB888_dim(spark.colour, shine);
    const std::int32_t x = wrapAdd(flash.x, spark.x);
    const std::int32_t y = wrapAdd(flash.y, spark.y);
    IMGFX_addPixel(target, x, y, colour);
    if (!spark.glints) {
        return;
    }
    // The cross shrinks faster than the spark fades, and its middle turns white.
    constexpr std::int32_t longestArm = 3;
    const std::int32_t arm = (longestArm * shine) >> 8;
    IMGFX_addPixel(target, x, y, RGB888_dim(white, shine / 2));
    for (std::int32_t i = 1; i <= arm; ++i) {
        const std::uint32_t ray = RGB888_dim(colour, full / (2 * i));
        IMGFX_addPixel(target, wrapAdd(x, i), y, ray);
        IMGFX_addPixel(target, wrapSub(x, i), y, ray);
        IMGFX_addPixel(target, x, wrapAdd(y, i), ray);
        IMGFX_addPixel(target, x, wrapSub(y, i), ray);
    }
}

std::int32_t litPixels(const IMG& img) {
    const auto pixels = pixelsOf(img);
    return static_cast<std::int32_t>(
        std::count_if(pixels.begin(), pixels.end(), [](std::uint32_t pixel) { return pixel != 0; }));
}

} // namespace

FLASHPIX* FLASHPIX_new() {
    return newRecord<FLASHPIX>(FLASHPIX_error, FLASHPIX_delete, [](FLASHPIX& flash) {
        flash.random = RANDOM_new();
        FLASHPIX_setCount(&flash, flash.count);
        return flash.random != nullptr && flash.sparks != nullptr;
    });
}

void FLASHPIX_setCount(FLASHPIX* flash, std::int32_t count) {
    if (replaceArray(flash, FLASHPIX_error, &FLASHPIX::sparks, &FLASHPIX::count, count)) {
        FLASHPIX_randomize(flash);
    }
}

void FLASHPIX_setShape(FLASHPIX* flash, const IMG* shape) {
    if (refused(flash == nullptr || (shape != nullptr && !hasPixels(shape)), FLASHPIX_error)) {
        return;
    }
    const std::int32_t count = shape == nullptr ? 0 : litPixels(*shape);
    std::int32_t* const places = count == 0 ? nullptr : allocateArray<std::int32_t>(2 * std::int64_t{count});
    if (refused(count != 0 && places == nullptr, FLASHPIX_error)) {
        return;
    }
    delete[] flash->places;
    flash->places = places;
    flash->placeCount = count;
    if (count == 0) {
        return;
    }
    std::int64_t next = 0;
    for (std::int32_t y = 0; y < shape->height; ++y) {
        for (std::int32_t x = 0; x < shape->width; ++x) {
            if (shape->pixels[x + std::int64_t{y} * shape->width] != 0) {
                places[next++] = x;
                places[next++] = y;
            }
        }
    }
}

void FLASHPIX_randomize(FLASHPIX* flash) {
    if (refused(flash == nullptr || flash->random == nullptr, FLASHPIX_error)) {
        return;
    }
    flash->random->counter = static_cast<std::uint32_t>(chance());
    for (std::int32_t i = 0; i < flash->count; ++i) {
        begin(*flash, flash->sparks[i]);
        flash->sparks[i].age = randomBelow(*flash, 2 * flash->sparks[i].life) - flash->sparks[i].life;
    }
}

void FLASHPIX_advance(FLASHPIX* flash) {
    if (refused(flash == nullptr, FLASHPIX_error)) {
        return;
    }
    flash->hue = wrapAdd(flash->hue, flash->hueSpeed);
    for (std::int32_t i = 0; i < flash->count; ++i) {
        FLASHPIX_SPARK& spark = flash->sparks[i];
        ++spark.age;
        // A spark that waited begins anew, too: its place was drawn long ago.
        if (spark.age == 0 || spark.age >= spark.life) {
            begin(*flash, spark);
        }
    }
}

void FLASHPIX_draw(const FLASHPIX* flash, IMG* target) {
    if (refused(flash == nullptr || !hasPixels(target), FLASHPIX_error)) {
        return;
    }
    for (std::int32_t i = 0; i < flash->count; ++i) {
        if (flash->sparks[i].age >= 0) {
            drawSpark(*flash, flash->sparks[i], target);
        }
    }
}

void FLASHPIX_delete(FLASHPIX** handle) {
    deleteRecord(handle, FLASHPIX_error, deletedBy(RANDOM_delete, &FLASHPIX::random), &FLASHPIX::sparks,
                 &FLASHPIX::places);
}

void FLASHPIX_error() {
    reportLine(FLASHPIX_verbose, "FLASHPIX error");
}

} // namespace velm
