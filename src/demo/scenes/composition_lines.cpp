// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/composition_lines.h"

#include "demo/scenes/curves.h"
#include "effects/rect.h"
#include "foundation/sine.h"

namespace velm {

namespace {

/// Where each line stands, pixels; the outer ones are the window's edges.
using Places = std::array<std::int32_t, Lines::count>;

/// How a line breathes.
struct Breath {
    std::int32_t reach; ///< pixels
    std::int32_t speed; ///< 1/1024 turns a frame
};

constexpr std::int32_t breathBegins = 2 * barFrames;
constexpr std::array<Breath, Lines::count> uprightBreath = {{{0, 0}, {3, 5}, {4, 4}, {3, 7}, {0, 0}}};
constexpr std::array<Breath, Lines::count> levelBreath = {{{0, 0}, {2, 6}, {3, 5}, {1, 8}, {0, 0}}};

/// An order of the lines, and the frame from which on they slide there.
struct Order {
    std::int32_t begins;
    Places uprights, levels;
};

/// Each gives room to another field: none, drawing and dots, city, bars, letters, none.
constexpr std::array<Order, 6> orders = {
    {{0, {-4, 60, 158, 216, 256}, {-4, 34, 106, 166, 256}},
     {Lines::ordersBegin, {-4, 32, 174, 226, 256}, {-4, 25, 110, 170, 256}},
     {Lines::secondOrder, {-4, 24, 122, 204, 256}, {-4, 38, 112, 168, 256}},
     {Lines::secondOrder + barFrames, {-4, 86, 180, 230, 256}, {-4, 26, 104, 168, 256}},
     {Lines::secondOrder + 3 * barFrames / 2, {-4, 40, 132, 172, 256}, {-4, 40, 96, 170, 256}},
     {Lines::wholeBegins, {-4, 60, 158, 216, 256}, {-4, 34, 106, 166, 256}}}};

} // namespace

void Lines::place(std::int32_t frame) {
    constexpr std::int32_t slide = 40;
    const std::int32_t breath = curveStay(frame, breathBegins, leaves, 60);
    std::size_t order = 1;
    while (order + 1 < orders.size() && frame >= orders[order + 1].begins) {
        ++order;
    }
    const Order& from = orders[order - 1];
    const Order& to = orders[order];
    const std::int32_t way = curveEase(frame, to.begins, to.begins + slide);
    const auto swing = [=](const Breath& line, std::int32_t phase) {
        return SINE_scaled(line.reach * breath, (frame - breathBegins) * line.speed + phase) / curveFull;
    };
    for (std::size_t i = 0; i < count; ++i) {
        x[i] = curveBetween(from.uprights[i], to.uprights[i], way) + swing(uprightBreath[i], 0);
        y[i] = curveBetween(from.levels[i], to.levels[i], way) + swing(levelBreath[i], SINE_quarter);
    }
}

// A line grows from one edge and leaves through the other; every second one goes the opposite way, with a
// negative length. The uprights end on the lowest level; the last of them stops above the letters' field.
void Lines::draw(std::int32_t frame) const {
    constexpr std::int32_t growth = 28; // frames
    constexpr std::int32_t exit = 40;   // frames
    IMG* const screen = demo.screen;
    for (std::size_t i = 1; i + 1 < count; ++i) {
        const auto order = static_cast<std::int32_t>(i);
        const std::int32_t begins = 5 * (order - 1);
        const std::int32_t ends = leaves + 30 + 12 * order;
        const std::int32_t in = curveEase(frame, begins, begins + growth);
        const std::int32_t out = curveEase(frame, ends, ends + exit);
        const std::int32_t from = curveBetween(0, screen->width, out);
        const std::int32_t length = curveBetween(0, screen->width, in) - from;
        const std::int32_t foot = i + 2 < count ? y[count - 2] : y[2];
        const std::int32_t upFrom = curveBetween(0, foot, out);
        const std::int32_t upLength = curveBetween(0, foot, in) - upFrom;
        const bool flips = i % 2 == 0;
        const RECT_BOX across{flips ? screen->width - from : from, y[i], flips ? -length : length, thickness};
        const RECT_BOX up{x[i], flips ? foot - upFrom : upFrom, thickness, flips ? -upLength : upLength};
        RECT_drawPane(screen, across, ink(), RECT_MIX::set);
        RECT_drawPane(screen, up, ink(), RECT_MIX::set);
    }
}

std::uint32_t Lines::ink() {
    return demo.background ^ 0xFFFFFF;
}

} // namespace velm
