// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/sinedots.h"

#include "foundation/chance.h"
#include "foundation/memory.h"
#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/sine.h"
#include "foundation/wrap.h"
#include "image/img.h"
#include "image/rgb888.h"

#include <algorithm>

namespace velm {

const IDENTITY SINEDOTS_identity = makeIdentity("SINEDOTS", "C", "20150518", "ZENDORAK", "CODE");
std::uint8_t SINEDOTS_verbose = 0;

namespace {

constexpr std::int32_t wordsPerDot = 4;

/// What a wave draws its numbers from. The steps differ by one between x and y and from wave to wave, which
/// keeps the figure from closing on itself.
struct WaveRange {
    std::int32_t speeds;       ///< a speed is 1..speeds
    std::int32_t stepX, stepY; ///< a step is this and up to 15 more
    std::int32_t amplitude;
};
constexpr WaveRange waveRanges[SINEDOTS_waveCount] = {{12, 5, 6, 128}, {10, 6, 7, 64}, {8, 7, 8, 32}};
constexpr std::int32_t stepSpread = 16;

std::int32_t randomBelow(std::int32_t limit) {
    return chance() % limit;
}

/// One coordinate of the curve, dot after dot: centre + ((sum of entry * amplitude) >> 16).
struct Axis {
    std::int32_t centre;
    std::int32_t phase[SINEDOTS_waveCount];
    std::int32_t step[SINEDOTS_waveCount];
    std::int32_t amplitude[SINEDOTS_waveCount];

    std::int32_t next() {
        std::int32_t sum = 0;
        for (std::int32_t k = 0; k < SINEDOTS_waveCount; ++k) {
            sum = wrapAdd(sum, wrapMul(SINE_entry(phase[k]), amplitude[k]));
            phase[k] = wrapAdd(phase[k], step[k]);
        }
        return centre + (sum >> 16);
    }
};

Axis axisOf(const SINEDOTS& dots, std::int32_t size, std::int32_t SINEDOTS_AXES::*member) {
    Axis axis{};
    axis.centre = size >> 1;
    for (std::int32_t k = 0; k < SINEDOTS_waveCount; ++k) {
        axis.phase[k] = dots.phase[k].*member;
        axis.step[k] = dots.step[k].*member;
        axis.amplitude[k] = dots.amplitude[k].*member;
    }
    return axis;
}

/// The curve over one target. Its dots inside the image are handed out in order.
class Curve {
public:
    Curve(SINEDOTS& dots, IMG& target) : image(target) {
        fitTo(dots, target);
        across = axisOf(dots, target.width, &SINEDOTS_AXES::x);
        down = axisOf(dots, target.height, &SINEDOTS_AXES::y);
    }

    /// Calls plot(pixel) for the next `count` dots.
    template <typename Plot>
    void forNext(std::int32_t count, Plot plot) {
        for (std::int32_t i = 0; i < count; ++i) {
            const std::int32_t x = across.next();
            const std::int32_t y = down.next();
            if (contains(image, x, y)) {
                plot(rowOf(image, y)[x]);
            }
        }
    }

private:
    static void fitTo(SINEDOTS& dots, const IMG& target) {
        dots.width = target.width;
        dots.height = target.height;
        // SINEDOTS_depthTakesNextField: one expects a depth; it takes the low half of the word that follows
        // the image's height, the address of its pixels. Nothing reads it.
        dots.depth = static_cast<std::int32_t>(reinterpret_cast<std::uintptr_t>(target.pixels));
        for (std::int32_t k = 0; k < SINEDOTS_waveCount; ++k) {
            dots.amplitude[k].x = target.width >> (k + 1);
            dots.amplitude[k].y = target.height >> (k + 1);
        }
    }

    IMG& image;
    Axis across{};
    Axis down{};
};

bool canDraw(const SINEDOTS* dots, const IMG* target) {
    return dots != nullptr && dots->dots != nullptr && hasPixels(target);
}

/// `times` saturating additions of a colour are one of this colour.
std::uint32_t colourTimes(std::uint32_t colour, std::int64_t times) {
    const auto channel = [=](std::uint32_t shift) {
        return static_cast<std::uint32_t>(std::min<std::int64_t>(255, ((colour >> shift) & 255) * times))
               << shift;
    };
    return channel(16) | channel(8) | channel(0);
}

} // namespace

SINEDOTS* SINEDOTS_new() {
    return newRecord<SINEDOTS>(SINEDOTS_error, SINEDOTS_delete, [](SINEDOTS& dots) {
        SINEDOTS_setCount(&dots, dots.count);
        if (dots.dots != nullptr) {
            SINEDOTS_randomize(&dots);
        }
        return dots.dots != nullptr;
    });
}

void SINEDOTS_setCount(SINEDOTS* dots, std::int32_t count) {
    std::int32_t* const storage = dots != nullptr && count >= 1
                                      ? allocateArray<std::int32_t>(std::int64_t{count} * wordsPerDot)
                                      : nullptr;
    if (adoptArray(dots, SINEDOTS_error, &SINEDOTS::dots, storage)) {
        dots->count = count;
    }
}

void SINEDOTS_randomize(SINEDOTS* dots) {
    if (refused(dots == nullptr || dots->dots == nullptr, SINEDOTS_error)) {
        return;
    }
    for (std::int32_t k = 0; k < SINEDOTS_waveCount; ++k) {
        const WaveRange& range = waveRanges[k];
        dots->phase[k].x = randomBelow(SINE_tableLength);
        dots->phase[k].y = randomBelow(SINE_tableLength);
        dots->speed[k].x = randomBelow(range.speeds) + 1;
        dots->speed[k].y = randomBelow(range.speeds) + 1;
        dots->step[k].x = randomBelow(stepSpread) + range.stepX;
        dots->step[k].y = randomBelow(stepSpread) + range.stepY;
        dots->amplitude[k].x = dots->amplitude[k].y = range.amplitude;
    }
}

void SINEDOTS_advance(SINEDOTS* dots) {
    if (refused(dots == nullptr, SINEDOTS_error)) {
        return;
    }
    for (std::int32_t k = 0; k < SINEDOTS_waveCount; ++k) {
        dots->phase[k].x = wrapAdd(dots->phase[k].x, dots->speed[k].x) & SINE_tableMask;
        dots->phase[k].y = wrapAdd(dots->phase[k].y, dots->speed[k].y) & SINE_tableMask;
    }
}

// Whatever the steps are, after 1024 dots all six phases are back where they began: the dots of every further
// 1024 fall on the first ones, so no draw has to visit more than those.

void SINEDOTS_draw(SINEDOTS* dots, IMG* target) {
    if (refused(!canDraw(dots, target), SINEDOTS_error)) {
        return;
    }
    const std::uint32_t colour = dots->colour;
    Curve(*dots, *target).forNext(std::min(dots->count, SINE_tableLength), [=](std::uint32_t& pixel) {
        pixel = colour;
    });
}

void SINEDOTS_drawAdd(SINEDOTS* dots, IMG* target) {
    if (refused(!canDraw(dots, target), SINEDOTS_error)) {
        return;
    }
    const std::int32_t turns = dots->count / SINE_tableLength;
    const std::int32_t rest = dots->count % SINE_tableLength;
    const auto adder = [](std::uint32_t colour) {
        return [colour](std::uint32_t& pixel) { pixel = RGB888_add(pixel, colour); };
    };
    Curve curve(*dots, *target);
    curve.forNext(rest, adder(colourTimes(dots->colour, std::int64_t{turns} + 1)));
    if (turns > 0) {
        curve.forNext(SINE_tableLength - rest, adder(colourTimes(dots->colour, turns)));
    }
}

void SINEDOTS_delete(SINEDOTS** handle) {
    deleteRecord(handle, SINEDOTS_error, &SINEDOTS::dots);
}

// SINEDOTS_errorIsSilent: one expects a line while SINEDOTS_verbose is set; this module prints none, so its
// failures stay quiet.
void SINEDOTS_error() {}

} // namespace velm
