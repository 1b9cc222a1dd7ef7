// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What RECT draws one rectangle with: upright and turned, filled and framed, in three ways of mixing.
#include "effects/rect.h"
#include "foundation/report.h"
#include "foundation/sine.h"
#include "image/img.h"
#include "image/imgfx.h"
#include "image/rgb888.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace velm {

namespace {

/// 64 bits here, too: a rectangle far outside is told from its corners.
struct Corner {
    std::int64_t x, y;
};

using Corners = std::array<Corner, 4>; ///< in order around the rectangle

/// A rectangle with its sizes made positive. 64 bits, so that no corner overflows.
struct Box {
    std::int64_t left, top, width, height;
};

Box upright(const RECT_BOX& box) {
    return {.left = std::min<std::int64_t>(box.x, std::int64_t{box.x} + box.w),
            .top = std::min<std::int64_t>(box.y, std::int64_t{box.y} + box.h),
            .width = std::abs(std::int64_t{box.w}),
            .height = std::abs(std::int64_t{box.h})};
}

/// Pixels from..to - 1 of a row that lies inside, clipped.
void mixRow(IMG* target, std::int64_t y, std::int64_t from, std::int64_t to, std::uint32_t colour,
            RECT_MIX mix) {
    const std::int64_t width = target->width;
    std::uint32_t* const row = rowOf(*target, y);
    std::uint32_t* const begin = row + std::clamp<std::int64_t>(from, 0, width);
    std::uint32_t* const end = row + std::clamp<std::int64_t>(to, 0, width);
    switch (mix) {
    case RECT_MIX::set:
        for (std::uint32_t* pixel = begin; pixel < end; ++pixel) {
            *pixel = colour;
        }
        break;
    case RECT_MIX::add:
        for (std::uint32_t* pixel = begin; pixel < end; ++pixel) {
            *pixel = RGB888_add(*pixel, colour);
        }
        break;
    case RECT_MIX::average:
        for (std::uint32_t* pixel = begin; pixel < end; ++pixel) {
            *pixel = RGB888_average(*pixel, colour);
        }
        break;
    }
}

void fillBox(IMG* target, const Box& box, std::uint32_t colour, RECT_MIX mix) {
    const std::int64_t bottom = std::min<std::int64_t>(box.top + box.height, target->height);
    for (std::int64_t y = std::max<std::int64_t>(box.top, 0); y < bottom; ++y) {
        mixRow(target, y, box.left, box.left + box.width, colour, mix);
    }
}

Corners cornersOf(const RECT_BOX& box, std::int32_t angle) {
    const std::int64_t acrossX = SINE_cosineScaled(box.w, angle);
    const std::int64_t acrossY = SINE_scaled(box.w, angle);
    const std::int64_t downX = -SINE_scaled(box.h, angle);
    const std::int64_t downY = SINE_cosineScaled(box.h, angle);
    const auto corner = [=](std::int64_t a, std::int64_t b) {
        return Corner{.x = box.x + ((a * acrossX + b * downX) >> 1),
                      .y = box.y + ((a * acrossY + b * downY) >> 1)};
    };
    return {corner(-1, -1), corner(1, -1), corner(1, 1), corner(-1, 1)};
}

/// True when all corners lie beyond the same side of the target.
bool isBeside(const IMG& target, const Corners& corners) {
    const auto all = [&corners](auto isOut) { return std::all_of(corners.begin(), corners.end(), isOut); };
    return all([](const Corner& c) { return c.x < 0; }) || all([](const Corner& c) { return c.y < 0; }) ||
           all([&target](const Corner& c) { return c.x >= target.width; }) ||
           all([&target](const Corner& c) { return c.y >= target.height; });
}

/// Fills a convex figure row by row: a row reaches from the leftmost to the rightmost edge that crosses it.
void fillCorners(IMG* target, const Corners& corners, std::uint32_t colour, RECT_MIX mix) {
    const auto [highest, lowest] = std::minmax_element(
        corners.begin(), corners.end(), [](const Corner& a, const Corner& b) { return a.y < b.y; });
    const std::int64_t bottom = std::min<std::int64_t>(lowest->y, target->height);
    for (std::int64_t y = std::max<std::int64_t>(highest->y, 0); y < bottom; ++y) {
        std::int64_t left = target->width;
        std::int64_t right = 0;
        for (std::size_t i = 0; i < corners.size(); ++i) {
            const Corner& a = corners[i];
            const Corner& b = corners[(i + 1) % corners.size()];
            if ((a.y <= y) == (b.y <= y)) {
                continue;
            }
            const std::int64_t x = a.x + (b.x - a.x) * (y - a.y) / (b.y - a.y);
            left = std::min(left, x);
            right = std::max(right, x);
        }
        mixRow(target, y, left, right, colour, mix);
    }
}

void frameCorners(IMG* target, const Corners& corners, std::uint32_t colour, RECT_MIX mix) {
    auto* const draw = mix == RECT_MIX::set   ? IMG_drawLine
                       : mix == RECT_MIX::add ? IMGFX_addLine
                                              : IMGFX_averageLine;
    const auto narrow = [](std::int64_t value) { return static_cast<std::int32_t>(value); };
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const Corner& a = corners[i];
        const Corner& b = corners[(i + 1) % corners.size()];
        draw(target, narrow(a.x), narrow(a.y), narrow(b.x), narrow(b.y), colour);
    }
}

} // namespace

void RECT_drawPane(IMG* target, const RECT_BOX& box, std::uint32_t colour, RECT_MIX mix) {
    if (!refused(!hasPixels(target), RECT_error)) {
        fillBox(target, upright(box), colour, mix);
    }
}

void RECT_drawFrame(IMG* target, const RECT_BOX& box, std::int32_t thickness, std::uint32_t colour,
                    RECT_MIX mix) {
    if (refused(!hasPixels(target), RECT_error)) {
        return;
    }
    const Box outer = upright(box);
    // Where the border is thicker than half the rectangle, the bars are cut so that none covers another.
    const std::int64_t top = std::clamp<std::int64_t>(thickness, 0, outer.height);
    const std::int64_t bottom = std::min(top, outer.height - top);
    const std::int64_t left = std::clamp<std::int64_t>(thickness, 0, outer.width);
    const std::int64_t right = std::min(left, outer.width - left);
    const std::int64_t sides = outer.height - top - bottom;
    const std::int64_t belowTop = outer.top + top;
    fillBox(target, {outer.left, outer.top, outer.width, top}, colour, mix);
    fillBox(target, {outer.left, belowTop, left, sides}, colour, mix);
    fillBox(target, {outer.left + outer.width - right, belowTop, right, sides}, colour, mix);
    fillBox(target, {outer.left, belowTop + sides, outer.width, bottom}, colour, mix);
}

void RECT_drawTurned(IMG* target, const RECT_BOX& box, std::int32_t angle, RECT_FACE face,
                     std::uint32_t colour, RECT_MIX mix) {
    if (refused(!hasPixels(target), RECT_error)) {
        return;
    }
    const Corners corners = cornersOf(box, angle);
    if (isBeside(*target, corners)) {
        return;
    }
    if (face != RECT_FACE::frame) {
        constexpr std::uint32_t quarterBits = 0x3F3F3F;
        fillCorners(target, corners, face == RECT_FACE::both ? (colour >> 2) & quarterBits : colour, mix);
    }
    if (face != RECT_FACE::pane) {
        frameCorners(target, corners, colour, mix);
    }
}

} // namespace velm
