// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/pond_view.h"

#include "effects/circle.h"
#include "foundation/chance.h"
#include "foundation/sine.h"
#include "foundation/wide.h"
#include "image/imgfx.h"

#include <algorithm>
#include <cstring>

namespace velm {

namespace {

constexpr std::uint32_t zenith = 0x060822, afterglow = 0x342C62; // the sky's ends
constexpr std::uint32_t hills = 0x03040C;
constexpr std::uint32_t farWater = 0x142448, nearWater = 0x02040C;
constexpr std::int32_t starCount = 70;

/// Rows of a hill above the horizon.
std::int32_t hillAt(std::int32_t x) {
    constexpr std::int32_t least = 7;
    return least + SINE_scaled(5, 5 * x + 100) + SINE_scaled(4, 11 * x) + SINE_scaled(2, 37 * x + 500);
}

void paintSky(IMG* sky) {
    for (std::int32_t y = 0; y < PondView::horizon; ++y) {
        const std::int32_t low = curveRise(y, 0, PondView::horizon);
        IMG_drawHLine(sky, curveMix(zenith, afterglow, low * low >> 8), y, 0, sky->width - 1);
    }
    for (std::int32_t i = 0; i < starCount; ++i) {
        const std::int32_t x = chance() & 255, y = chance() % PondView::horizon;
        const auto light = static_cast<std::uint32_t>(60 + chance() % 130);
        IMGFX_addPixel(sky, x, y, light * 0x010101U);
    }
}

constexpr std::int32_t moonRadius = 26, halos = 12, haloStep = 4;

void paintMoon(IMG* moon) {
    constexpr std::uint32_t disc = 0x504E46, glow = 0x020203;
    const std::int32_t centre = moon->width / 2;
    for (std::int32_t i = 1; i <= halos; ++i) {
        CIRCLE_addDisc(moon, centre, centre, moonRadius + haloStep * i, glow);
    }
    CIRCLE_addDisc(moon, centre, centre, moonRadius, disc);
}

/// dst := min(255, dst + colour * weight / 256)
std::uint32_t lit(std::uint32_t dst, std::uint32_t colour, std::int32_t weight) {
    return RGB888_add(dst, RGB888_mix(0, colour, static_cast<std::uint32_t>(weight)));
}

bool isBlack(const std::uint32_t* pixels, std::int32_t count) {
    std::uint32_t all = 0;
    for (std::int32_t i = 0; i < count; ++i) {
        all |= pixels[i];
    }
    return all == 0;
}

} // namespace

PondView::PondView() {
    constexpr std::int32_t border = 40; // columns over which the edges darken
    if (sky != nullptr) {
        paintSky(sky);
    }
    if (moon != nullptr) {
        paintMoon(moon);
    }
    if (bendColumns != nullptr) {
        bendColumns->y = top;
    }
    for (std::int32_t i = 0; i < 256; ++i) {
        edge[static_cast<std::size_t>(i)] = curveEase(std::min(i, 255 - i), 0, border);
    }
}

/// With B rows of distance between eye and window, row t below the horizon shows v = 2 * 256 * t / (t + B).
PondView::Row PondView::rowAt(std::int32_t below) {
    constexpr std::int32_t nearStep = 158; // 24.8; columns of the plane a pixel, at the window's lower edge
    constexpr std::int32_t farEdge = 14, nearEdge = 70;
    const std::int32_t distance = below + water;
    return {.v = std::min(512 * below / distance, 254),
            .step = nearStep * 2 * water / distance,
            .light = curveEase(below, 0, farEdge) - curveEase(below, water - nearEdge, water)};
}

std::int32_t PondView::planeX(std::int32_t x) {
    return middle + (x - middle) * rowAt(shore - horizon).step / 256;
}

std::int32_t PondView::planeY() {
    return rowAt(shore - horizon).v;
}

void PondView::drawMoon() {
    constexpr std::uint32_t warmth = 0x030200, flare = 0x483410;
    IMGFX_addBlit(moon, view, 0, 0, middle - moonReach, moonY - moonReach, moon->width, moon->height);
    if (moonLight > 0) {
        for (std::int32_t i = 1; i <= halos * moonLight / curveFull; ++i) {
            CIRCLE_addDisc(view, middle, moonY, moonRadius + haloStep * i, warmth);
        }
        CIRCLE_addDisc(view, middle, moonY, moonRadius, curveDim(flare, moonLight));
    }
    for (std::int32_t x = 0; x < view->width; ++x) {
        IMG_drawVLine(view, hills, x, horizon - hillAt(x), horizon - 1);
    }
}

/// Adds the mirror image of what stands above row `axis`.
void PondView::mirror(const IMG* source, std::int32_t axis, std::int32_t weight) {
    for (std::int32_t y = axis; y < 2 * axis && y < top + surface->height; ++y) {
        const std::uint32_t* const from = rowOf(*source, 2 * axis - 1 - y);
        std::uint32_t* const to = rowOf(*surface, y - top);
        const std::int32_t light = weight - weight * (y - axis) / axis;
        runWide([=, width = source->width] {
            for (std::int32_t x = 0; x < width; ++x) {
                to[x] = lit(to[x], from[x], light);
            }
        });
    }
}

/// Adds what a row of the window shows of a row of the plane and the next: rows far away are denser than
/// the window's. `count` pixels, at most a block, from column `left` on.
void PondView::layBlock(const Row& row, const IMG& flat, std::uint32_t* to, std::int32_t left,
                        std::int32_t count) const {
    const std::uint32_t* const from = rowOf(flat, row.v);
    const std::uint32_t* const behind = from + flat.width;
    std::uint32_t seen[block];
    std::int32_t light[block];
    for (std::int32_t i = 0; i < count; ++i) {
        const std::int32_t x = left + i;
        const std::int32_t u = middle + (((x - middle) * row.step) >> 8);
        seen[i] = RGB888_add(from[u], behind[u]);
        light[i] = std::min(edge[static_cast<std::size_t>(u)], edge[static_cast<std::size_t>(x)]);
    }
    if (isBlack(seen, count)) {
        return;
    }
    runWide([=, &seen, &light, weight = row.light] {
        for (std::int32_t i = 0; i < count; ++i) {
            to[left + i] = lit(to[left + i], seen[i], light[i] * weight >> 8);
        }
    });
}

/// Adds a plane in perspective.
void PondView::lay(const IMG* flat) {
    for (std::int32_t below = 0; below < water; ++below) {
        const Row row = rowAt(below);
        if (isBlack(rowOf(*flat, row.v), 2 * flat->width)) {
            continue;
        }
        std::uint32_t* const to = rowOf(*surface, horizon - top + below);
        const std::int32_t reach = std::min(middle, (middle - 1) * 256 / row.step);
        for (std::int32_t left = middle - reach; left < middle + reach; left += block) {
            layBlock(row, *flat, to, left, std::min(block, middle + reach - left));
        }
    }
}

void PondView::draw(IMG* target) {
    constexpr std::int32_t skyWeight = 150, hoverWeight = 140;
    IMG_copy(sky, view);
    drawMoon();
    for (std::int32_t y = 0; y < surface->height; ++y) {
        const std::uint32_t colour = curveMix(farWater, nearWater, curveRise(y, 0, surface->height));
        IMG_drawHLine(surface, colour, y, 0, surface->width - 1);
    }
    mirror(view, horizon, skyWeight);
    lay(plane);
    if (hasBands) {
        lay(bands);
    }
    mirror(above, shore, hoverWeight);
    bendRows->amplitude = 2 + swell / 64;
    bendColumns->amplitude = swell / 36;
    DISTX_draw(bendRows, bent);
    DISTX_advance(bendRows);
    DISTY_draw(bendColumns, target);
    DISTY_advance(bendColumns);
    std::memcpy(target->pixels, view->pixels,
                sizeof(std::uint32_t) * static_cast<std::size_t>(horizon * view->width));
}

} // namespace velm
