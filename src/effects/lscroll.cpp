// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/lscroll.h"

#include "effects/palette.h"
#include "foundation/chance.h"
#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/root.h"
#include "foundation/wrap.h"
#include "image/img.h"
#include "image/rgb888.h"
#include "vector/vec2d.h"

#include <algorithm>

namespace velm {

const IDENTITY LSCROLL_identity = makeIdentity("LSCROLL", "ZENDORAK", "20150708", "CODE", "C");
std::uint8_t LSCROLL_verbose = 0;

namespace {

constexpr std::int32_t full = RGB888_fullWeight;
constexpr std::int32_t farthest = 8192;
constexpr std::int32_t mostStations = 1 << 18;

/// A place on the target, 16.16 pixels.
struct Place {
    std::int64_t x, y;
};

/// 1/1024 turns of a direction: the quadrant first, then the side of ever closer rays that it is on.
std::int32_t angleOf(std::int64_t dx, std::int64_t dy) {
    std::int32_t angle = 0;
    while (dx <= 0 || dy < 0) { // a quarter turn back, until it points right and down, or right
        if (dx == 0 && dy == 0) {
            return 0;
        }
        const std::int64_t oldX = dx;
        dx = dy;
        dy = -oldX;
        angle += SINE_quarter;
    }
    std::int32_t within = 0;
    for (std::int32_t bit = SINE_quarter / 2; bit != 0; bit /= 2) {
        const std::int32_t ray = within + bit;
        within += dy * SINE_entry(ray + SINE_quarter) >= dx * SINE_entry(ray) ? bit : 0;
    }
    return (angle + within) & SINE_tableMask;
}

/// Walks a path given by corners 0..corners, one pixel at a time: calls visit(station) and returns how often.
template <typename Corner, typename Visit>
std::int32_t walk(std::int32_t corners, Corner corner, Visit visit) {
    std::int64_t along = 0; // 16.16 pixels from the last corner to the next station
    std::int32_t count = 0;
    Place from = corner(0);
    for (std::int32_t i = 1; i <= corners; ++i) {
        const Place to = corner(i);
        const std::int64_t dx = to.x - from.x;
        const std::int64_t dy = to.y - from.y;
        const std::int32_t length = rootOf(dx * dx + dy * dy);
        for (; along < length && count < mostStations; along += fixedOne) {
            visit(LSCROLL_STATION{static_cast<std::int32_t>(from.x + dx * along / length),
                                  static_cast<std::int32_t>(from.y + dy * along / length), angleOf(dx, dy)});
            ++count;
        }
        along -= length;
        from = to;
    }
    return count;
}

/// Replaces the path by another, or reports and leaves it.
template <typename Corner>
void setPath(LSCROLL* scroll, std::int32_t corners, Corner corner) {
    const std::int32_t length = scroll == nullptr ? 0 : walk(corners, corner, [](const LSCROLL_STATION&) {});
    if (replaceArray(length == 0 ? nullptr : scroll, LSCROLL_error, &LSCROLL::stations, &LSCROLL::length,
                     length)) {
        walk(corners, corner,
             [next = scroll->stations](const LSCROLL_STATION& station) mutable { *next++ = station; });
    }
}

bool isNear(std::int32_t coordinate, std::int32_t limit = farthest) {
    return coordinate >= -limit && coordinate <= limit;
}

/// A glyph's middle, its turn and its scale.
struct Pose {
    Place at;
    std::int64_t scale, sine, cosine;
    std::int32_t middle;

    [[nodiscard]] VEC2D place(const VEC2D& point) const {
        const std::int64_t u = wrapMul(std::int64_t{point.x} - middle, scale);
        const std::int64_t v = wrapMul(std::int64_t{point.y} - middle, scale);
        const std::int64_t right = wrapSub(wrapMul(u, cosine), wrapMul(v, sine)) >> 15;
        const std::int64_t down = wrapAdd(wrapMul(u, sine), wrapMul(v, cosine)) >> 15;
        return {static_cast<std::int32_t>(wholeOf(at.x + right + fixedOne / 2)),
                static_cast<std::int32_t>(wholeOf(at.y + down + fixedOne / 2)), 0};
    }
};

/// Glyph n stands `along` 16.16 pixels from the path's beginning.
Pose poseOf(const LSCROLL& scroll, std::int32_t n, std::int64_t along) {
    const std::int64_t index = wholeOf(along);
    const LSCROLL_STATION& here = scroll.stations[index];
    const LSCROLL_STATION& there = scroll.stations[std::min<std::int64_t>(index + 1, scroll.length - 1)];
    const std::int64_t part = along & (fixedOne - 1);
    const std::int32_t place = placeOf(scroll.text, n); // the waves travel with the glyphs
    const std::int32_t lift =
        SINE_scaled(scroll.liftHeight, wrapAdd(scroll.lift.phase, wrapMul(place, scroll.lift.offsetStep)));
    const std::int32_t swing =
        SINE_scaled(scroll.swingAngle, wrapAdd(scroll.swing.phase, wrapMul(place, scroll.swing.offsetStep)));
    const std::int64_t upX = SINE_entry(here.angle);
    const std::int64_t upY = -SINE_entry(here.angle + SINE_quarter);
    const std::int32_t angle = here.angle + swing;
    return {{here.x + wholeOf((std::int64_t{there.x} - here.x) * part) + upX * lift * 2,
             here.y + wholeOf((std::int64_t{there.y} - here.y) * part) + upY * lift * 2},
            scroll.scale,
            SINE_entry(angle),
            SINE_entry(angle + SINE_quarter),
            scroll.middle};
}

/// 0..256: what the fading ends leave of the scroller's light.
std::int32_t lightAt(const LSCROLL& scroll, std::int64_t along) {
    const std::int64_t toEnd = std::min(wholeOf(along), scroll.length - 1 - (wholeOf(along)));
    const std::int64_t light = std::clamp(scroll.light, 0, full);
    return static_cast<std::int32_t>(
        scroll.fade > 0 ? light * std::min<std::int64_t>(toEnd, scroll.fade) / scroll.fade : light);
}

} // namespace

LSCROLL* LSCROLL_new() {
    return newRecord<LSCROLL>(LSCROLL_error, LSCROLL_delete, [](LSCROLL& scroll) {
        LSCROLL_setLine(&scroll, 0, scroll.length / 2, scroll.length, scroll.length / 2);
        if (scroll.stations == nullptr) {
            return false;
        }
        LSCROLL_randomize(&scroll);
        return true;
    });
}

void LSCROLL_setText(LSCROLL* scroll, const char* text) {
    if (!refused(scroll == nullptr || text == nullptr, LSCROLL_error)) {
        setText(scroll->text, text);
    }
}

void LSCROLL_setLine(LSCROLL* scroll, std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2) {
    const bool isFar = !isNear(x1) || !isNear(y1) || !isNear(x2) || !isNear(y2);
    setPath(isFar ? nullptr : scroll, 1, [=](std::int32_t i) {
        return i == 0 ? Place{toFixed(x1), toFixed(y1)} : Place{toFixed(x2), toFixed(y2)};
    });
}

void LSCROLL_setCurve(LSCROLL* scroll, const LSCROLL_CURVE& curve) {
    constexpr std::int32_t widest = farthest / 2;
    const bool isFar = !isNear(curve.centreX) || !isNear(curve.centreY) || !isNear(curve.radiusX, widest) ||
                       !isNear(curve.radiusY, widest);
    // Radii in half pixels' 16.16 times an entry of 15 bits are 16.16 pixels without a shift.
    setPath(isFar ? nullptr : scroll, SINE_tableLength, [&curve](std::int32_t t) {
        const std::int32_t across = wrapAdd(wrapMul(curve.turnsX, t), curve.phase);
        const std::int32_t down = wrapAdd(wrapMul(curve.turnsY, t), SINE_quarter);
        return Place{toFixed(curve.centreX) + std::int64_t{2} * curve.radiusX * SINE_entry(across),
                     toFixed(curve.centreY) - std::int64_t{2} * curve.radiusY * SINE_entry(down)};
    });
}

void LSCROLL_fit(LSCROLL* scroll) {
    if (refused(scroll == nullptr || scroll->text.length <= 0 || scroll->cell <= 0, LSCROLL_error)) {
        return;
    }
    scroll->scale = scaleToFit(scroll->length, scroll->text.length, scroll->cell);
    scroll->fade = 0;
}

void LSCROLL_randomize(LSCROLL* scroll) {
    if (refused(scroll == nullptr, LSCROLL_error)) {
        return;
    }
    scroll->lift.phase = chance() & SINE_tableMask;
    scroll->swing.phase = chance() & SINE_tableMask;
    scroll->hue = chance() & 0xFFFF;
}

void LSCROLL_advance(LSCROLL* scroll) {
    if (refused(scroll == nullptr, LSCROLL_error)) {
        return;
    }
    moveText(scroll->text, scroll->speed, pitchOf(scroll->cell, scroll->scale));
    SINE_advance(&scroll->lift);
    SINE_advance(&scroll->swing);
    scroll->hue = wrapAdd(scroll->hue, scroll->hueSpeed);
}

void LSCROLL_draw(const LSCROLL* scroll, IMG* target) {
    if (refused(scroll == nullptr || scroll->glyphs == nullptr || !hasPixels(target), LSCROLL_error)) {
        return;
    }
    const std::int64_t pitch = pitchOf(scroll->cell, scroll->scale);
    // A glyph is on the path when its middle is.
    std::int64_t along = pitch / 2 - scroll->text.offset;
    for (std::int32_t n = 0; wholeOf(along) < scroll->length; ++n, along += pitch) {
        if (along < 0) {
            continue;
        }
        const Pose pose = poseOf(*scroll, n, along);
        const std::uint32_t hue = paletteColour(
            scroll->palette, wrapAdd(scroll->hue, wrapMul(placeOf(scroll->text, n), scroll->hueStep)));
        const std::uint32_t colour = RGB888_dim(hue, lightAt(*scroll, along));
        forEachStroke(
            glyphOf(scroll->glyphs, characterOf(scroll->text, n)),
            [&](const VEC2D& a, const VEC2D& b) { addStroke(target, pose.place(a), pose.place(b), colour); });
    }
}

void LSCROLL_delete(LSCROLL** handle) {
    deleteRecord(handle, LSCROLL_error, &LSCROLL::stations);
}

void LSCROLL_error() {
    reportLine(LSCROLL_verbose, "LSCROLL error");
}

} // namespace velm
