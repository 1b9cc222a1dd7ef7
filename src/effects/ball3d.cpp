// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/ball3d.h"

#include "foundation/chance.h"
#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/sine.h"
#include "foundation/wrap.h"
#include "image/img.h"
#include "image/rgb888.h"

#include <algorithm>
#include <cstdio>

namespace velm {

const IDENTITY BALL3D_identity = makeIdentity("BALL3D", "20150602", "C", "ZENDORAK", "CODE");
std::uint8_t BALL3D_verbose = 0;

namespace {

constexpr std::int32_t randomRange = 256;
constexpr std::int32_t rings = SINE_tableLength / 2;
constexpr std::int32_t ringPoints = SINE_tableLength / 2;
constexpr std::int32_t shadeDivisor = 9;
constexpr std::int32_t brightest = 255;

/// A circle of latitude. All of its points lie in one row of the image.
struct Ring {
    std::int32_t radius, offset; ///< pixels; the row is the ball's y + offset

    bool operator==(const Ring&) const = default;
};

Ring ringOf(const BALL3D& ball, std::int32_t latitude) {
    return {.radius = SINE_scaled(ball.radius, latitude), .offset = SINE_cosineScaled(ball.radius, latitude)};
}

/// How much a point faces the light: the dot product by 9, cut towards zero.
std::int32_t shadeOf(const BALL3D_LIGHT& light, const Ring& ring, std::int32_t longitude) {
    const std::int32_t across = SINE_cosineScaled(ring.radius, longitude);
    const std::int32_t nearness = SINE_scaled(ring.radius, longitude);
    const std::int32_t dot =
        wrapAdd(wrapAdd(wrapMul(light.x, across), wrapMul(light.y, ring.offset)), wrapMul(light.z, nearness));
    return dot / shadeDivisor;
}

/// BALL3D_greySpills: one expects the grey to stop at 255; it is not clamped, so that a shade above 255
/// spills into the next channel. Lights that are too strong owe their rainbows to it.
std::uint32_t greyOf(std::uint32_t shade) {
    return shade | (shade << 8) | (shade << 16);
}

std::uint32_t shaded(std::uint32_t colour, std::int32_t shade) {
    if (shade < 0) {
        return RGB888_sub(colour, greyOf(0U - static_cast<std::uint32_t>(shade)));
    }
    return RGB888_add(colour, greyOf(static_cast<std::uint32_t>(shade)));
}

/// Draws the points of a ring from right to left. Of neighbours that fall on one pixel only the last is ever
/// seen, so only that one is shaded.
void drawRing(const BALL3D& ball, const Ring& ring) {
    const std::int32_t y = wrapAdd(ball.y, ring.offset);
    if (y < 0 || y >= ball.target->height) {
        return;
    }
    std::uint32_t* const row = rowOf(*ball.target, y);
    std::int32_t across[ringPoints + 1];
    for (std::int32_t v = 0; v < ringPoints; ++v) {
        across[v] = SINE_cosineScaled(ring.radius, v);
    }
    across[ringPoints] = ~across[ringPoints - 1]; // nothing follows the last point
    for (std::int32_t v = 0; v < ringPoints; ++v) {
        const std::int32_t x = wrapAdd(ball.x, across[v]);
        if (across[v] != across[v + 1] && x >= 0 && x < ball.target->width) {
            row[x] = shaded(ball.colour, shadeOf(ball.light, ring, v));
        }
    }
}

/// BALL3D_lastShadeDecides: one expects every shade to be checked; only the last point's is, and then the
/// range of all of them is printed, with 0 in it and without a line end.
void reportOverflow(const BALL3D& ball) {
    const std::int32_t last = shadeOf(ball.light, ringOf(ball, rings - 1), ringPoints - 1);
    if (last >= -brightest && last <= brightest) {
        return;
    }
    std::int32_t lowest = 0;
    std::int32_t highest = 0;
    for (std::int32_t u = 0; u < rings; ++u) {
        const Ring ring = ringOf(ball, u);
        for (std::int32_t v = 0; v < ringPoints; ++v) {
            const std::int32_t shade = shadeOf(ball.light, ring, v);
            lowest = std::min(lowest, shade);
            highest = std::max(highest, shade);
        }
    }
    std::printf("min=%d max=%d", lowest, highest);
}

} // namespace

BALL3D* BALL3D_new() {
    BALL3D* ball = newRecord<BALL3D>(BALL3D_error);
    if (ball == nullptr) {
        return nullptr;
    }
    ball->x = chance() % randomRange;
    ball->y = chance() % randomRange;
    ball->z = chance() % randomRange;
    ball->radius = chance() % randomRange;
    ball->colour = static_cast<std::uint32_t>(chance());
    ball->colour2 = static_cast<std::uint32_t>(chance());
    return ball;
}

void BALL3D_draw(const BALL3D* ball) {
    if (refused(ball == nullptr || !hasPixels(ball->target), BALL3D_error)) {
        return;
    }
    // A ball has fewer rings of its own than there are latitudes: one that equals the next one is drawn with
    // it.
    for (std::int32_t u = 0; u < rings; ++u) {
        const Ring ring = ringOf(*ball, u);
        if (u == rings - 1 || ring != ringOf(*ball, u + 1)) {
            drawRing(*ball, ring);
        }
    }
    reportOverflow(*ball);
}

void BALL3D_delete(BALL3D** handle) {
    deleteRecord(handle, BALL3D_error);
}

void BALL3D_error() {
    reportLine(BALL3D_verbose, "BALL3D error");
}

} // namespace velm
