// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/bold_ink.h"

#include "image/img.h"
#include "image/rgb888.h"

namespace velm {

namespace {

std::uint32_t* rowOf(const IMG& img, std::int32_t y) {
    return img.pixels + std::int64_t{y} * img.width;
}

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

/// The sheet `steps` steps away: the picture's middle stays where it is.
void printAway(const IMG& sheet, std::int32_t steps, std::int32_t weight, IMG& target) {
    constexpr std::int32_t stepsToEnd = 64; // where it would be a point
    constexpr std::int32_t one = 1 << 16;
    const std::int32_t pitch = one * stepsToEnd / (stepsToEnd - steps); // of the sheet, from pixel to pixel
    const std::int32_t leftmost = steps * sheet.width / (2 * stepsToEnd);
    const std::int32_t topmost = steps * sheet.height / (2 * stepsToEnd);
    for (std::int32_t y = topmost; y < sheet.height - topmost; ++y) {
        const std::uint32_t* const from = rowOf(sheet, ((y - topmost) * pitch) >> 16);
        std::uint32_t* const to = rowOf(target, y);
        for (std::int32_t x = leftmost, at = 0; x < sheet.width - leftmost; ++x, at += pitch) {
            if (const std::uint32_t colour = from[at >> 16]; colour != 0) {
                to[x] = RGB888_dim(colour, weight);
            }
        }
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
