// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/blossom.h"

#include <algorithm>

namespace velm {

namespace {

/// A number 1..most with either sign.
std::int32_t drawSigned(RANDOM* random, std::int32_t most) {
    const std::int32_t size = 1 + RANDOM_below(random, most);
    return RANDOM_below(random, 2) != 0 ? size : -size;
}

/// One petal, trailed by its own past, ever dimmer.
void drawPetal(SINEDOTS& dots, IMG* target, std::uint32_t colour, std::int32_t weight) {
    constexpr std::int32_t moments = 7;
    constexpr std::int32_t lag = 3; // frames
    SINEDOTS_AXES phases[SINEDOTS_waveCount];
    std::copy_n(dots.phase, SINEDOTS_waveCount, phases);
    for (std::int32_t k = 0; k < moments; ++k) {
        for (std::int32_t wave = 0; wave < SINEDOTS_waveCount; ++wave) {
            dots.phase[wave].x = phases[wave].x - k * lag * dots.speed[wave].x;
            dots.phase[wave].y = phases[wave].y - k * lag * dots.speed[wave].y;
        }
        dots.colour = curveDim(colour, weight * (moments - k) / moments);
        SINEDOTS_draw(&dots, target);
    }
    std::copy_n(phases, SINEDOTS_waveCount, dots.phase);
}

} // namespace

void plantBlossom(RANDOM* random, Blossom& blossom, std::int32_t apart) {
    const std::int32_t hue = RANDOM_below(random, hueCount);
    for (std::int32_t i = 0; i < petalCount; ++i) {
        SINEDOTS& dots = *blossom.petals[i].dots;
        blossom.petals[i].hue = hue + i * apart;
        for (std::int32_t wave = 0; wave < SINEDOTS_waveCount; ++wave) {
            // Small steps make lines of the dots, each wave finer than the one before.
            const std::int32_t most = 1 + 2 * wave;
            dots.step[wave] = {drawSigned(random, most), drawSigned(random, most), 0};
            dots.speed[wave] = {drawSigned(random, 4), drawSigned(random, 4), 0};
            dots.phase[wave] = {RANDOM_below(random, SINE_tableLength),
                                RANDOM_below(random, SINE_tableLength), 0};
        }
    }
}

void advanceBlossom(Blossom& blossom) {
    for (const Petal& petal : blossom.petals) {
        SINEDOTS_advance(petal.dots);
    }
}

void drawBlossom(const Blossom& blossom, IMG* target, std::int32_t petals, std::int32_t hue,
                 std::int32_t weight) {
    for (std::int32_t i = 0; i < petals; ++i) {
        const Petal& petal = blossom.petals[i];
        drawPetal(*petal.dots, target, curveHue(petal.hue + hue), weight);
    }
}

void addMirrored(const IMG* picture, IMG* target, bool isStar) {
    const std::int32_t lastX = picture->width - 1;
    const std::int32_t lastY = picture->height - 1;
    const auto put = [target](std::int32_t x, std::int32_t y, std::uint32_t colour) {
        std::uint32_t& pixel = target->pixels[y * target->width + x];
        pixel = RGB888_add(pixel, colour);
    };
    for (std::int32_t y = 0; y <= lastY; ++y) {
        for (std::int32_t x = 0; x <= lastX; ++x) {
            const std::uint32_t colour = picture->pixels[y * picture->width + x];
            if (colour == 0) {
                continue;
            }
            put(x, y, colour), put(lastX - x, y, colour);
            put(x, lastY - y, colour), put(lastX - x, lastY - y, colour);
            if (isStar) {
                put(y, x, colour), put(lastY - y, x, colour);
                put(y, lastX - x, colour), put(lastY - y, lastX - x, colour);
            }
        }
    }
}

} // namespace velm
