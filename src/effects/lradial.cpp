// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/lradial.h"

#include "audio/sample.h"
#include "effects/palette.h"
#include "foundation/chance.h"
#include "foundation/random.h"
#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/wrap.h"
#include "image/img.h"
#include "image/imgfx.h"

#include <algorithm>

namespace velm {

const IDENTITY LRADIAL_identity = makeIdentity("LRADIAL", "ZENDORAK", "20150703", "C", "CODE");
std::uint8_t LRADIAL_verbose = 0;

namespace {

constexpr std::int32_t mostWaves = 7; // periods of the wave around the circle

std::uint32_t colourOf(const LRADIAL& rays, std::int32_t index) {
    const std::int64_t colours = rays.colours == nullptr ? 0 : rays.colours->length;
    const auto around = static_cast<std::int32_t>(index * colours / rays.count);
    return paletteColour(rays.colours, wrapAdd(rays.hue, around));
}

} // namespace

LRADIAL* LRADIAL_new() {
    return newRecord<LRADIAL>(LRADIAL_error, LRADIAL_delete, [](LRADIAL& rays) {
        LRADIAL_setCount(&rays, rays.count);
        if (rays.lengths == nullptr) {
            return false;
        }
        LRADIAL_randomize(&rays);
        return true;
    });
}

void LRADIAL_setCount(LRADIAL* rays, std::int32_t count) {
    if (replaceArray(rays, LRADIAL_error, &LRADIAL::lengths, &LRADIAL::count, count)) {
        LRADIAL_setWaveLengths(rays);
    }
}

void LRADIAL_randomize(LRADIAL* rays) {
    if (refused(rays == nullptr, LRADIAL_error)) {
        return;
    }
    rays->turn = chance() & SINE_tableMask;
    rays->spin = RANDOM_eitherWay(chance());
    const std::int32_t phase = chance() & SINE_tableMask;
    const std::int32_t speed = chance() % 16 + 4;
    const std::int32_t waves = chance() % mostWaves + 1;
    SINE_setup(&rays->wave, SINE_tableLength, phase, speed, 0, waves);
    LRADIAL_setWaveLengths(rays);
}

void LRADIAL_setWaveLengths(LRADIAL* rays) {
    if (refused(rays == nullptr, LRADIAL_error)) {
        return;
    }
    for (std::int32_t i = 0; i < rays->count; ++i) {
        // Whole periods around the circle, so that the last ray meets the first.
        const std::int64_t around = std::int64_t{rays->wave.offsetStep} * i * SINE_tableLength / rays->count;
        const std::int32_t angle = wrapAdd(rays->wave.phase, static_cast<std::int32_t>(around));
        rays->lengths[i] =
            static_cast<std::int32_t>((std::int64_t{rays->reach} * (SINE_entry(angle) + 32768)) >> 16);
    }
}

void LRADIAL_setSoundLengths(LRADIAL* rays, const SAMPLE* sound, std::int32_t begin, std::int32_t step,
                             std::int32_t shift) {
    if (refused(rays == nullptr || sound == nullptr || shift < 0 || shift > 31, LRADIAL_error)) {
        return;
    }
    for (std::int32_t i = 0; i < rays->count; ++i) {
        const std::int64_t at = begin + std::int64_t{step} * i;
        const bool inside = at >= 0 && at < sound->length;
        const std::int64_t value = inside ? SAMPLE_get(sound, static_cast<std::int32_t>(at)) : 0;
        rays->lengths[i] = static_cast<std::int32_t>(
            std::min<std::int64_t>((value < 0 ? -value : value) >> shift, std::max(rays->reach, 0)));
    }
}

void LRADIAL_advance(LRADIAL* rays) {
    if (refused(rays == nullptr, LRADIAL_error)) {
        return;
    }
    rays->turn = wrapAdd(rays->turn, rays->spin) & SINE_tableMask;
    rays->hue = wrapAdd(rays->hue, rays->hueSpeed);
    if (rays->colours != nullptr && rays->colours->length > 0) {
        rays->hue = positiveModulo(rays->hue, rays->colours->length);
    }
    SINE_advance(&rays->wave);
}

void LRADIAL_draw(const LRADIAL* rays, IMG* target) {
    if (refused(rays == nullptr || !hasPixels(target), LRADIAL_error)) {
        return;
    }
    for (std::int32_t i = 0; i < rays->count; ++i) {
        const std::int64_t around = std::int64_t{i} * SINE_tableLength / rays->count;
        const std::int32_t angle = wrapAdd(rays->turn, static_cast<std::int32_t>(around));
        const std::uint32_t half = (colourOf(*rays, i) >> 1) & 0x7F7F7F;
        const auto ray = [&](std::int32_t length) {
            const std::int32_t outer = wrapAdd(rays->inner, length);
            IMGFX_addLine(target, wrapAdd(rays->x, SINE_cosineScaled(rays->inner, angle)),
                          wrapAdd(rays->y, SINE_scaled(rays->inner, angle)),
                          wrapAdd(rays->x, SINE_cosineScaled(outer, angle)),
                          wrapAdd(rays->y, SINE_scaled(outer, angle)), half);
        };
        // One stroke over another: the inner half of a ray is twice as bright as its tip.
        ray(rays->lengths[i]);
        ray(rays->lengths[i] / 2);
    }
}

void LRADIAL_delete(LRADIAL** handle) {
    deleteRecord(handle, LRADIAL_error, &LRADIAL::lengths);
}

void LRADIAL_error() {
    reportLine(LRADIAL_verbose, "LRADIAL error");
}

} // namespace velm
