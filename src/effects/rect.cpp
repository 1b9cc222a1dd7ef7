// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/rect.h"

#include "foundation/chance.h"
#include "foundation/fixed.h"
#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/wrap.h"
#include "image/img.h"
#include "image/rgb888.h"

#include <algorithm>
#include <cstdlib>

namespace velm {

const IDENTITY RECT_identity = makeIdentity("RECT", "20150709", "C", "CODE", "ZENDORAK");
std::uint8_t RECT_verbose = 0;

namespace {

constexpr std::int32_t step = 256;        // `travel` from one rectangle to the next
constexpr std::int32_t fullSizeSteps = 4; // a tunnel's frame has its full size that far away
constexpr std::int32_t nearestStep = 128; // nearer frames surround the viewer and are left out
constexpr std::uint32_t backBits = 0x7F7F7F;

std::int32_t randomWithin(std::int32_t reach) {
    return chance() % (2 * reach + 1) - reach;
}

void randomizePane(const RECT& rect, RECT_PANE& pane) {
    constexpr std::int32_t fastest = fixedOne * 3 / 2;
    constexpr std::int32_t smallest = 16;
    constexpr std::int32_t sizes = 64;
    pane.x = wrapShl(chance() % std::max(rect.width, 1), 16);
    pane.y = wrapShl(chance() % std::max(rect.height, 1), 16);
    pane.speedX = randomWithin(fastest);
    pane.speedY = randomWithin(fastest);
    pane.width = smallest + chance() % sizes;
    pane.height = smallest + chance() % sizes;
    pane.flip = chance() & SINE_tableMask;
    pane.flipSpeed = randomWithin(12);
    pane.turn = chance() & SINE_tableMask;
    pane.turnSpeed = randomWithin(4);
    pane.colour = 0x404040 | (static_cast<std::uint32_t>(chance()) & 0xFFFFFF);
}

/// A colour at a share of the record's brightness, both 0..256.
std::uint32_t dimmed(const RECT& rect, std::uint32_t colour, std::int32_t share) {
    const std::int32_t bright = std::clamp(rect.brightness, 0, RGB888_fullWeight);
    return RGB888_dim(colour, (bright * std::clamp(share, 0, RGB888_fullWeight)) >> 8);
}

/// Moves a coordinate and takes it around a field that a margin of the pane's size widens on both sides.
std::int32_t drifted(std::int32_t at, std::int32_t speed, std::int32_t field, std::int32_t margin) {
    const std::int64_t length = toFixed(field + 2 * std::int64_t{margin});
    const std::int64_t begin = -toFixed(margin);
    if (length <= 0) {
        return at;
    }
    const std::int64_t inside = (std::int64_t{at} + speed - begin) % length;
    return static_cast<std::int32_t>(begin + inside + (inside < 0 ? length : 0));
}

void advancePane(const RECT& rect, RECT_PANE& pane) {
    // A turned pane reaches no farther than both its sizes together, halved.
    const std::int32_t margin = (std::abs(pane.width) + std::abs(pane.height)) / 2;
    pane.x = drifted(pane.x, pane.speedX, rect.width, margin);
    pane.y = drifted(pane.y, pane.speedY, rect.height, margin);
    pane.flip = wrapAdd(pane.flip, pane.flipSpeed) & SINE_tableMask;
    pane.turn = wrapAdd(pane.turn, pane.turnSpeed) & SINE_tableMask;
}

void drawFleet(const RECT& rect, IMG* target) {
    for (std::int32_t i = 0; i < rect.count; ++i) {
        const RECT_PANE& pane = rect.panes[i];
        const std::int32_t width = SINE_cosineScaled(pane.width, pane.flip);
        const std::uint32_t colour = dimmed(rect, pane.colour, RGB888_fullWeight);
        const RECT_BOX box{wrapAdd(rect.x, wholeOf(pane.x)), wrapAdd(rect.y, wholeOf(pane.y)), width,
                           pane.height};
        RECT_drawTurned(target, box, pane.turn, rect.face, width < 0 ? (colour >> 1) & backBits : colour,
                        rect.mix);
    }
}

/// How far off its axis a winding way is, `along` 1/256 steps ahead.
std::int32_t windAt(const SINE& wind, std::int32_t reach, std::int32_t along) {
    return SINE_scaled(reach, wrapAdd(wind.phase, wrapMul(wind.offsetStep, along) >> 8));
}

/// The colour that travels with a rectangle which is `ahead` steps away.
std::uint32_t colourAhead(const RECT& rect, std::int32_t ahead) {
    return rect.panes[positiveModulo(wrapAdd(rect.travel >> 8, ahead), rect.count)].colour;
}

/// Frames at even distances: the size of one is what its distance leaves of it, and the way winds ahead of
/// the viewer, who is always on it.
void drawTunnel(const RECT& rect, IMG* target) {
    const std::int32_t middleX = wrapAdd(rect.x, rect.width / 2);
    const std::int32_t middleY = wrapAdd(rect.y, rect.height / 2);
    const std::int32_t hereX = windAt(rect.windX, rect.reach, 0);
    const std::int32_t hereY = windAt(rect.windY, rect.reach, 0);
    for (std::int32_t ahead = rect.count - 1; ahead >= 0; --ahead) {
        const std::int32_t away = (ahead + 1) * step - (rect.travel & (step - 1));
        if (away < nearestStep) {
            continue;
        }
        const auto seen = [away](std::int32_t size) {
            return static_cast<std::int32_t>(std::int64_t{size} * fullSizeSteps * step / away);
        };
        const std::int32_t x = wrapAdd(middleX, seen(windAt(rect.windX, rect.reach, away) - hereX));
        const std::int32_t y = wrapAdd(middleY, seen(windAt(rect.windY, rect.reach, away) - hereY));
        const std::int32_t angle = wrapAdd(rect.turn, wrapMul(rect.twist, away) >> 8);
        const std::uint32_t colour =
            dimmed(rect, colourAhead(rect, ahead), RGB888_fullWeight - away / rect.count);
        const auto draw = [&](RECT_FACE face, std::uint32_t shade) {
            RECT_drawTurned(target, {x, y, seen(rect.paneWidth), seen(rect.paneHeight)}, angle, face, shade,
                            rect.mix);
        };
        if (rect.face != RECT_FACE::both) {
            draw(rect.face, colour);
            continue;
        }
        // Glass clears as it comes near, so that nothing flickers when it passes the viewer.
        constexpr std::uint32_t sixteenthBits = 0x0F0F0F;
        draw(RECT_FACE::pane, dimmed(rect, (colour >> 4) & sixteenthBits, (away - nearestStep) / 4));
        draw(RECT_FACE::frame, colour);
    }
}

/// Rectangles that grow evenly from nothing, each turned and moved a little from the one around it.
void drawNest(const RECT& rect, IMG* target) {
    const std::int32_t middleX = wrapAdd(rect.x, rect.width / 2);
    const std::int32_t middleY = wrapAdd(rect.y, rect.height / 2);
    for (std::int32_t ahead = rect.count - 1; ahead >= 0; --ahead) {
        const std::int32_t away = (ahead + 1) * step - (rect.travel & (step - 1));
        const std::int32_t grown = rect.count * step - away; // of count * step
        const auto seen = [&rect, grown](std::int32_t size) {
            return static_cast<std::int32_t>(std::int64_t{size} * grown / (std::int64_t{rect.count} * step));
        };
        // Born dark, and dark again before it leaves, so that nothing appears or vanishes at once.
        const std::int32_t share = std::min(grown, away);
        const RECT_BOX box{wrapAdd(middleX, seen(windAt(rect.windX, rect.reach, away))),
                           wrapAdd(middleY, seen(windAt(rect.windY, rect.reach, away))), seen(rect.paneWidth),
                           seen(rect.paneHeight)};
        RECT_drawTurned(target, box, wrapAdd(rect.turn, wrapMul(rect.twist, away) >> 8), rect.face,
                        dimmed(rect, colourAhead(rect, ahead), share), rect.mix);
    }
}

} // namespace

RECT* RECT_new() {
    return newRecord<RECT>(RECT_error, RECT_delete, [](RECT& rect) {
        RECT_setCount(&rect, rect.count);
        return rect.panes != nullptr;
    });
}

void RECT_setCount(RECT* rect, std::int32_t count) {
    if (replaceArray(rect, RECT_error, &RECT::panes, &RECT::count, count)) {
        RECT_randomize(rect);
    }
}

void RECT_randomize(RECT* rect) {
    if (refused(rect == nullptr, RECT_error)) {
        return;
    }
    for (std::int32_t i = 0; i < rect->count; ++i) {
        randomizePane(*rect, rect->panes[i]);
    }
}

void RECT_advance(RECT* rect) {
    if (refused(rect == nullptr, RECT_error)) {
        return;
    }
    for (std::int32_t i = 0; i < rect->count; ++i) {
        advancePane(*rect, rect->panes[i]);
    }
    rect->travel = wrapAdd(rect->travel, rect->speed);
    rect->turn = wrapAdd(rect->turn, rect->turnSpeed) & SINE_tableMask;
    SINE_advance(&rect->windX);
    SINE_advance(&rect->windY);
}

void RECT_draw(const RECT* rect, IMG* target) {
    if (refused(rect == nullptr || !hasPixels(target), RECT_error)) {
        return;
    }
    switch (rect->path) {
    case RECT_PATH::drift:
        drawFleet(*rect, target);
        break;
    case RECT_PATH::tunnel:
        drawTunnel(*rect, target);
        break;
    case RECT_PATH::nest:
        drawNest(*rect, target);
        break;
    }
}

void RECT_delete(RECT** handle) {
    deleteRecord(handle, RECT_error, &RECT::panes);
}

void RECT_error() {
    reportLine(RECT_verbose, "RECT error");
}

} // namespace velm
