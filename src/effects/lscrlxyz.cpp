// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/lscrlxyz.h"

#include "effects/palette.h"
#include "foundation/chance.h"
#include "foundation/memory.h"
#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/sine.h"
#include "foundation/wrap.h"
#include "image/img.h"
#include "image/rgb888.h"
#include "vector/obj2d.h"
#include "vector/vec2d.h"

#include <algorithm>
#include <cstdlib>

namespace velm {

const IDENTITY LSCRLXYZ_identity = makeIdentity("LSCRLXYZ", "CODE", "20150709", "ZENDORAK", "C");
std::uint8_t LSCRLXYZ_verbose = 0;

namespace {

constexpr std::int32_t full = RGB888_fullWeight;
constexpr std::int32_t nearest = 24;  // pixels from the viewer; what comes closer is left out
constexpr std::int32_t widest = 4096; // pixels of a radius
constexpr std::int32_t largest = 256 * fixedOne;

/// A point in space, 16.16 pixels from the surface's middle.
struct Point {
    std::int64_t x, y, z;
};

/// A cosine that reaches 1.0, so that what does not turn keeps its place.
std::int64_t cosine(std::int32_t angle) {
    return (angle & SINE_tableMask) == 0 ? 1 << 15 : SINE_entry(wrapAdd(angle, SINE_quarter));
}

/// Turns (a, b) by an angle.
void turn(std::int64_t& a, std::int64_t& b, std::int32_t angle) {
    const std::int64_t s = SINE_entry(angle);
    const std::int64_t c = cosine(angle);
    const std::int64_t oldA = a;
    a = (oldA * c - b * s) >> 15;
    b = (oldA * s + b * c) >> 15;
}

/// A record's values within the bounds that the arithmetic is made for.
struct Surface {
    explicit Surface(const LSCRLXYZ& record)
        : scroll(record), radius(std::clamp(record.radius, 1, widest)),
          rise(std::clamp(record.rise, -widest, widest)),
          distance(std::clamp(record.distance, 1, 2 * widest)),
          waves(std::clamp(record.waves, -fixedOne, fixedOne)) {
        constexpr std::int32_t mostTurns = 64;
        const bool isStraight = record.shape == LSCRLXYZ_SHAPE::ribbon;
        const bool isScrew = record.shape == LSCRLXYZ_SHAPE::screw;
        turns = isScrew ? std::clamp(record.turns, 1, mostTurns) : 1;
        // A circle is 2 * 355 / 113 radii long.
        length =
            isStraight ? 2 * radius : static_cast<std::int32_t>(std::int64_t{710} * radius * turns / 113);
        reach = radius + (isStraight || isScrew ? turns * std::abs(rise) / 2 : 0);
    }

    /// Point (u, v) of the text, 16.16 pixels from the surface's middle and off the line, laid on the
    /// surface.
    [[nodiscard]] Point place(std::int64_t u, std::int64_t v) const {
        if (scroll.shape == LSCRLXYZ_SHAPE::ribbon) {
            const auto along = static_cast<std::int32_t>((u * waves) >> 22); // waves per 64 pixels
            return {u, v, std::int64_t{2} * rise * SINE_entry(wrapAdd(along, scroll.wave))};
        }
        const auto angle = static_cast<std::int32_t>(u * SINE_tableLength * turns / toFixed(length));
        const std::int64_t s = SINE_entry(angle);
        const std::int64_t c = cosine(angle);
        if (scroll.shape == LSCRLXYZ_SHAPE::disc) {
            const std::int64_t rim = toFixed(radius) - v;
            return {(rim * s) >> 15, -((rim * c) >> 15), 0};
        }
        const std::int64_t height =
            scroll.shape == LSCRLXYZ_SHAPE::screw ? u * turns * rise / std::max(1, length) : 0;
        return {std::int64_t{2} * radius * s, v + height, std::int64_t{-2} * radius * c};
    }

    /// The same, turned as the record is.
    [[nodiscard]] Point turned(std::int64_t u, std::int64_t v) const {
        Point point = place(u, v);
        turn(point.y, point.z, scroll.angle.x);
        turn(point.z, point.x, scroll.angle.y);
        turn(point.x, point.y, scroll.angle.z);
        return point;
    }

    /// Where the viewer sees a point; false when it is too close. Nothing nearer than `nearest` keeps the
    /// products below 2^63.
    [[nodiscard]] bool project(const Point& point, VEC2D& seen) const {
        const std::int64_t away = toFixed(distance) + point.z;
        if (away < toFixed(nearest)) {
            return false;
        }
        seen.x = wrapAdd(scroll.x, static_cast<std::int32_t>(point.x * distance / away));
        seen.y = wrapAdd(scroll.y, static_cast<std::int32_t>(point.y * distance / away));
        return true;
    }

    /// 0..256: full at the front of the surface, the dimmest at its back.
    [[nodiscard]] std::int32_t lightAt(std::int64_t z) const {
        const std::int64_t depth = std::clamp<std::int64_t>(wholeOf(z) + reach, 0, 2 * std::int64_t{reach});
        const std::int64_t dimmest = std::clamp(scroll.dimmest, 0, full);
        const std::int64_t light = full - (full - dimmest) * depth / (2 * std::int64_t{reach});
        return static_cast<std::int32_t>(light * std::clamp(scroll.light, 0, full) / full);
    }

    const LSCRLXYZ& scroll;
    std::int32_t radius, rise, distance, waves;
    std::int32_t turns{};
    std::int32_t length{}; ///< pixels along the surface
    std::int32_t reach{};  ///< pixels from the middle that no point is far beyond
};

/// Draws a glyph whose middle is at (u, 0). Both ends of a stroke decide its brightness.
void drawGlyph(const Surface& surface, const OBJ2D* glyph, std::int64_t u, std::uint32_t hue, IMG* target) {
    const LSCRLXYZ& scroll = surface.scroll;
    const std::int64_t across = toFixed(std::clamp(scroll.across, -widest, widest));
    const std::int64_t middle = std::clamp(scroll.middle, -widest, widest);
    const std::int64_t scale = std::clamp(scroll.scale, -largest, largest);
    const auto turned = [&](const VEC2D& point) {
        return surface.turned(u + (point.x - middle) * scale, across + (point.y - middle) * scale);
    };
    forEachStroke(glyph, [&](const VEC2D& a, const VEC2D& b) {
        const Point from = turned(a);
        const Point to = turned(b);
        VEC2D seenFrom{};
        VEC2D seenTo{};
        if (surface.project(from, seenFrom) && surface.project(to, seenTo)) {
            addStroke(target, seenFrom, seenTo, RGB888_dim(hue, surface.lightAt((from.z + to.z) / 2)));
        }
    });
}

} // namespace

LSCRLXYZ* LSCRLXYZ_new() {
    LSCRLXYZ* scroll = allocateRecord<LSCRLXYZ>();
    LSCRLXYZ_randomize(scroll); // reports when memory ran out
    return scroll;
}

void LSCRLXYZ_setText(LSCRLXYZ* scroll, const char* text) {
    if (!refused(scroll == nullptr || text == nullptr, LSCRLXYZ_error)) {
        setText(scroll->text, text);
    }
}

std::int32_t LSCRLXYZ_length(const LSCRLXYZ* scroll) {
    return refused(scroll == nullptr, LSCRLXYZ_error) ? 0 : Surface(*scroll).length;
}

void LSCRLXYZ_fit(LSCRLXYZ* scroll) {
    if (!refused(scroll == nullptr || scroll->text.length <= 0 || scroll->cell <= 0, LSCRLXYZ_error)) {
        scroll->scale = scaleToFit(LSCRLXYZ_length(scroll), scroll->text.length, scroll->cell);
    }
}

void LSCRLXYZ_randomize(LSCRLXYZ* scroll) {
    if (refused(scroll == nullptr, LSCRLXYZ_error)) {
        return;
    }
    scroll->angle.x = chance() & SINE_tableMask;
    scroll->angle.y = chance() & SINE_tableMask;
    scroll->angle.z = chance() & SINE_tableMask;
    scroll->hue = chance() & 0xFFFF;
}

void LSCRLXYZ_advance(LSCRLXYZ* scroll) {
    if (refused(scroll == nullptr, LSCRLXYZ_error)) {
        return;
    }
    moveText(scroll->text, scroll->speed, pitchOf(scroll->cell, scroll->scale));
    scroll->angle.x = wrapAdd(scroll->angle.x, scroll->spin.x) & SINE_tableMask;
    scroll->angle.y = wrapAdd(scroll->angle.y, scroll->spin.y) & SINE_tableMask;
    scroll->angle.z = wrapAdd(scroll->angle.z, scroll->spin.z) & SINE_tableMask;
    scroll->wave = wrapAdd(scroll->wave, scroll->waveSpeed) & SINE_tableMask;
    scroll->hue = wrapAdd(scroll->hue, scroll->hueSpeed);
}

void LSCRLXYZ_draw(const LSCRLXYZ* scroll, IMG* target) {
    if (refused(scroll == nullptr || scroll->glyphs == nullptr || !hasPixels(target), LSCRLXYZ_error)) {
        return;
    }
    const Surface surface(*scroll);
    const std::int64_t pitch = pitchOf(scroll->cell, scroll->scale);
    const std::int64_t length = toFixed(surface.length);
    std::int64_t along = pitch / 2 - scroll->text.offset;
    for (std::int32_t n = 0; along < length; ++n, along += pitch) {
        const OBJ2D* const glyph = glyphOf(scroll->glyphs, characterOf(scroll->text, n));
        if (along >= 0 && glyph != nullptr) {
            const std::int32_t entry = wrapMul(placeOf(scroll->text, n), scroll->hueStep);
            drawGlyph(surface, glyph, along - length / 2,
                      paletteColour(scroll->palette, wrapAdd(scroll->hue, entry)), target);
        }
    }
}

void LSCRLXYZ_delete(LSCRLXYZ** handle) {
    deleteRecord(handle, LSCRLXYZ_error);
}

void LSCRLXYZ_error() {
    reportLine(LSCRLXYZ_verbose, "LSCRLXYZ error");
}

} // namespace velm
