// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/bold_ink.h"

#include "image/img.h"
#include "image/rgb888.h"

#include <algorithm>
#include <functional>
#include <numeric>

namespace velm {

namespace {

/// Every pixel takes the light of its neighbours to the left, above, and both; from the end on, so that each
/// still finds them thin.
void thicken(IMG& sheet) {
    for (std::int32_t y = sheet.height - 1; y > 0; --y) {
        std::uint32_t* const row = rowOf(sheet, y);
        const std::uint32_t* const above = rowOf(sheet, y - 1);
        for (std::int32_t x = sheet.width - 1; x > 0; --x) {
            row[x] |= row[x - 1] | above[x] | above[x - 1];
        }
    }
}

/// Calls draw(x) for every pixel of a row that is not black. Most are: a run of them is passed in one go.
template <typename Draw>
void forEachLit(const std::uint32_t* row, std::int32_t width, Draw draw) {
    constexpr std::int32_t run = 16;
    for (std::int32_t left = 0; left < width; left += run) {
        const std::int32_t right = std::min(left + run, width);
        if (std::accumulate(row + left, row + right, 0U, std::bit_or()) != 0) {
            for (std::int32_t x = left; x < right; ++x) {
                if (row[x] != 0) {
                    draw(x);
                }
            }
        }
    }
}

/// The sheet `steps` steps away: the picture's middle stays where it is.
void printAway(const IMG& sheet, std::int32_t steps, std::int32_t weight, IMG& target) {
    constexpr std::int32_t stepsToEnd = 64; // where it would be a point
    const auto carried = [steps](std::int32_t at, std::int32_t centre) {
        return centre + (at - centre) * (stepsToEnd - steps) / stepsToEnd;
    };
    for (std::int32_t y = 0; y < sheet.height; ++y) {
        const std::uint32_t* const from = rowOf(sheet, y);
        std::uint32_t* const to = rowOf(target, carried(y, sheet.height / 2));
        forEachLit(from, sheet.width,
                   [&](std::int32_t x) { to[carried(x, sheet.width / 2)] = RGB888_dim(from[x], weight); });
    }
}

} // namespace

void printBold(IMG* sheet, std::int32_t depth, IMG* target) {
    if (sheet->width != target->width || sheet->height != target->height) {
        return;
    }
    constexpr std::int32_t side = 110; // brightness of the nearest copy, 0..256
    thicken(*sheet);
    for (std::int32_t steps = depth; steps > 0; --steps) {
        printAway(*sheet, steps, side - (side - 30) * steps / depth, *target);
    }
    printAway(*sheet, 0, RGB888_fullWeight, *target);
    IMG_fill(sheet, 0);
}

} // namespace velm
