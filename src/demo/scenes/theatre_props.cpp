// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/theatre_props.h"

#include "demo/scenes/curves.h"
#include "demo/scenes/theatre_house.h"
#include "foundation/chance.h"
#include "foundation/sine.h"

#include <algorithm>
#include <array>

namespace velm {

void prepareTapestry(IMG& tapestry) {
    IMG_fill(&tapestry, 0x100818);
    for (std::int32_t row = 0; row < 64; ++row) {
        IMG_blit(demo.pictureB, &tapestry, 0, row, 0, row, 128, 1);
        IMG_blit(demo.pictureB, &tapestry, 0, 63 - row, 0, 64 + row, 128, 1);
    }
    RECT_drawFrame(&tapestry, {0, -8, 128, 144}, 3, 0xE0B050, RECT_MIX::set);
}

void preparePoster(IMG& poster) {
    constexpr std::int32_t border = 8;
    constexpr std::array<std::uint32_t, 4> goldLeaf = {0x604010, 0xE0B048, 0xFFE898, 0x805818};
    const IMG* const from = demo.pictureA;
    for (std::int32_t y = 0; y < 2 * from->height; ++y) {
        for (std::int32_t x = 0; x < 2 * from->width; ++x) {
            const auto at = [&](std::int32_t dx, std::int32_t dy) {
                return IMG_getPixel(from, std::min((x + dx) / 2, from->width - 1),
                                    std::min((y + dy) / 2, from->height - 1));
            };
            const std::uint32_t smooth =
                RGB888_average(RGB888_average(at(0, 0), at(1, 0)), RGB888_average(at(0, 1), at(1, 1)));
            IMG_putPixel(&poster, border + x, border + y, smooth | 1);
        }
    }
    for (std::int32_t i = 0; i < 4; ++i) {
        RECT_drawFrame(&poster, {2 * i, 2 * i, poster.width - 4 * i, poster.height - 4 * i}, 2,
                       goldLeaf[static_cast<std::size_t>(i)], RECT_MIX::set);
    }
}

void prepareCover(IMG& cover) {
    constexpr std::int32_t samples = 4; // a pixel, each way
    const IMG* const mask = demo.pictureMask;
    for (std::int32_t y = 0; y < cover.height; ++y) {
        for (std::int32_t x = 0; x < cover.width; ++x) {
            std::uint32_t covered = 0;
            for (std::int32_t i = 0; i < samples * samples; ++i) {
                const std::int32_t fromX =
                    (x * samples + i % samples) * mask->width / (samples * cover.width);
                const std::int32_t fromY =
                    (y * samples + i / samples) * mask->height / (samples * cover.height);
                covered += IMG_getPixel(mask, fromX, fromY) != 0 ? 1 : 0;
            }
            IMG_putPixel(&cover, x, y, covered * 255 / (samples * samples));
        }
    }
}

void prepareFlagBars(RASTER& bars) {
    constexpr std::int32_t count = 96;
    constexpr std::int32_t magenta = 768;
    constexpr std::int32_t hues = 512;
    colourRaster(bars, count, [](std::int32_t i) {
        return curveHue(magenta + std::min(i, count - i) * 2 * hues / count);
    });
    bars.speed = 0x14000;
}

void prepareBackdrop(RASTER& backdrop) {
    constexpr std::int32_t count = 256;
    colourRaster(backdrop, count, [](std::int32_t i) {
        return curveMix(0x04020C, 0x281040, 128 + SINE_scaled(127, i * SINE_tableLength / count));
    });
    backdrop.speed = 0x10000;
}

void prepareConfetti(RECT& confetti) {
    constexpr std::int32_t count = 120;
    RECT_setCount(&confetti, count);
    confetti.face = RECT_FACE::pane;
    confetti.mix = RECT_MIX::set;
    for (std::int32_t i = 0; i < confetti.count; ++i) {
        RECT_PANE& pane = confetti.panes[i];
        pane.width = 3 + pane.width % 5;
        pane.height = 3 + pane.height % 4;
        pane.flipSpeed *= 3;
        pane.turnSpeed *= 4;
        pane.colour = curveHue(1000 + i * 5); // from red over gold to green
    }
}

void fireConfetti(RECT& confetti) {
    constexpr std::int32_t slowest = 0x18000;
    constexpr std::int32_t wing = 20; // columns from either side
    for (std::int32_t i = 0; i < confetti.count; ++i) {
        RECT_PANE& pane = confetti.panes[i];
        const bool isRight = i % 2 != 0;
        const std::int32_t inwards = chance() % 0x24000;
        pane.x = (isRight ? demo.screen->width - wing : wing) * 0x10000;
        pane.y = (stageHeight - 8) * 0x10000;
        pane.speedX = isRight ? -inwards : inwards;
        pane.speedY = -slowest - chance() % 0x40000;
    }
}

void dropConfetti(RECT& confetti) {
    constexpr std::int32_t gravity = 0x1C00;
    constexpr std::int32_t fastestFall = 0x10000;
    RECT_advance(&confetti);
    for (std::int32_t i = 0; i < confetti.count; ++i) {
        RECT_PANE& pane = confetti.panes[i];
        pane.speedX -= pane.speedX / 64;
        pane.speedY = std::min(pane.speedY + gravity, fastestFall);
    }
}

} // namespace velm
