// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Rings and discs by the midpoint algorithm, walked row by row, so that each row is clipped once.
#include "effects/circle.h"
#include "foundation/report.h"
#include "foundation/wide.h"
#include "image/img.h"
#include "image/rgb888.h"

#include <algorithm>

namespace velm {

namespace {

/// Calls row(dy, inner, outer) for each row dy = 0..radius below the centre: the disc reaches `outer` pixels
/// to the right of the centre, and its rim is the pixels from `inner` to there.
///
/// With a the larger and b the smaller distance from the centre along the axes, a pixel belongs to the disc
/// when a - 1/2 lies inside the true circle: a * (a - 1) + b * b < radius * radius. `outer` only falls from
/// row to row, so all rows together cost two steps a row.
template <typename Row>
void walkRows(std::int32_t radius, Row row) {
    const auto inside = [radius](std::int32_t dx, std::int32_t dy) {
        const std::int32_t a = std::max(dx, dy);
        const std::int32_t b = std::min(dx, dy);
        return a * (a - 1) + b * b < radius * radius;
    };
    std::int32_t outer = radius;
    for (std::int32_t dy = 0; dy <= radius; ++dy) {
        std::int32_t below = dy == radius ? -1 : outer;
        while (below >= 0 && !inside(below, dy + 1)) {
            --below;
        }
        row(dy, std::min(below + 1, outer), outer);
        outer = below;
    }
}

/// Calls touch(pixel) for columns x1..x2 of row y, as far as they lie inside the image.
template <typename Touch>
void paintSpan(IMG& img, std::int64_t y, std::int64_t x1, std::int64_t x2, Touch touch) {
    const auto left = std::max<std::int64_t>(x1, 0);
    const auto right = std::min<std::int64_t>(x2, img.width - 1);
    if (y < 0 || y >= img.height) {
        return;
    }
    runWide([=, row = rowOf(img, y)] {
        for (std::int64_t x = left; x <= right; ++x) {
            touch(row[x]);
        }
    });
}

/// True when there is something to draw; a missing image is reported.
bool canPaint(const IMG* img, std::int64_t x, std::int64_t y, std::int32_t radius) {
    if (refused(!hasPixels(img), CIRCLE_error)) {
        return false;
    }
    const auto reaches = [radius](std::int64_t centre, std::int64_t size) {
        return centre + radius >= 0 && centre - radius < size;
    };
    return radius >= 0 && radius <= CIRCLE_largestRadius && reaches(x, img->width) && reaches(y, img->height);
}

template <typename Touch>
void paintRing(IMG* img, std::int64_t x, std::int64_t y, std::int32_t radius, Touch touch) {
    if (!canPaint(img, x, y, radius)) {
        return;
    }
    walkRows(radius, [&](std::int32_t dy, std::int32_t inner, std::int32_t outer) {
        for (const std::int64_t line : {y - dy, y + dy}) {
            if (inner == 0) {
                paintSpan(*img, line, x - outer, x + outer, touch);
            } else {
                paintSpan(*img, line, x - outer, x - inner, touch);
                paintSpan(*img, line, x + inner, x + outer, touch);
            }
            if (dy == 0) {
                break; // the middle row is its own mirror image
            }
        }
    });
}

template <typename Touch>
void paintDisc(IMG* img, std::int64_t x, std::int64_t y, std::int32_t radius, Touch touch) {
    if (!canPaint(img, x, y, radius)) {
        return;
    }
    walkRows(radius, [&](std::int32_t dy, std::int32_t, std::int32_t outer) {
        paintSpan(*img, y - dy, x - outer, x + outer, touch);
        if (dy > 0) {
            paintSpan(*img, y + dy, x - outer, x + outer, touch);
        }
    });
}

auto setter(std::uint32_t colour) {
    return [colour](std::uint32_t& pixel) { pixel = colour; };
}

auto adder(std::uint32_t colour) {
    return [colour](std::uint32_t& pixel) { pixel = RGB888_add(pixel, colour); };
}

} // namespace

void CIRCLE_drawRing(IMG* img, std::int32_t x, std::int32_t y, std::int32_t radius, std::uint32_t colour) {
    paintRing(img, x, y, radius, setter(colour));
}

void CIRCLE_addRing(IMG* img, std::int32_t x, std::int32_t y, std::int32_t radius, std::uint32_t colour) {
    paintRing(img, x, y, radius, adder(colour));
}

void CIRCLE_drawDisc(IMG* img, std::int32_t x, std::int32_t y, std::int32_t radius, std::uint32_t colour) {
    paintDisc(img, x, y, radius, setter(colour));
}

void CIRCLE_addDisc(IMG* img, std::int32_t x, std::int32_t y, std::int32_t radius, std::uint32_t colour) {
    paintDisc(img, x, y, radius, adder(colour));
}

void CIRCLE_xorDisc(IMG* img, std::int32_t x, std::int32_t y, std::int32_t radius, std::uint32_t colour) {
    paintDisc(img, x, y, radius, [colour](std::uint32_t& pixel) { pixel ^= colour; });
}

} // namespace velm
