// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/wordzoom.h"

#include "effects/line_text.h"
#include "effects/palette.h"
#include "foundation/chance.h"
#include "foundation/fixed.h"
#include "foundation/random.h"
#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/sine.h"
#include "foundation/wrap.h"
#include "image/img.h"
#include "image/rgb888.h"
#include "vector/obj2d.h"
#include "vector/vec2d.h"

#include <algorithm>

namespace velm {

const IDENTITY WORDZOOM_identity = makeIdentity("WORDZOOM", "20150707", "CODE", "C", "ZENDORAK");
std::uint8_t WORDZOOM_verbose = 0;

namespace {

constexpr std::int32_t mostEchoes = 8;
constexpr std::int32_t mostTwist = 160; // 1/1024 turns
constexpr std::int32_t mostDrift = 4096;
constexpr std::int32_t largestCell = 4096;
constexpr std::int64_t outOfSight = 1 << 20; // font units from a word's middle
// A word's way, as scales: it starts as a spark, is bright from there to there, and is past.
constexpr std::int32_t farthest = fixedOne / 12;
constexpr std::int32_t brightFrom = fixedOne * 3 / 4;
constexpr std::int32_t brightTo = fixedOne * 5 / 2;
constexpr std::int32_t past = fixedOne * 10;
constexpr std::int32_t full = RGB888_fullWeight;

bool isGap(char character) {
    return character == ' ' || character == '\n';
}

/// A number -most..most.
std::int32_t drawNumber(WORDZOOM& zoom, std::int32_t most) {
    const std::int32_t reach = std::clamp(most, 0, mostDrift);
    return RANDOM_below(zoom.random, 2 * reach + 1) - reach;
}

/// Goes to the next word and returns its length; 0 when there is none left.
std::int32_t findWord(WORDZOOM& zoom) {
    for (std::int32_t rounds = 0; rounds < 2; ++rounds) {
        while (isGap(zoom.text[zoom.next])) {
            ++zoom.next;
        }
        std::int32_t length = 0;
        while (zoom.text[zoom.next + length] != '\0' && !isGap(zoom.text[zoom.next + length])) {
            ++length;
        }
        if (length > 0 || zoom.loop == 0) {
            return length;
        }
        zoom.next = 0;
    }
    return 0;
}

void startWord(WORDZOOM& zoom) {
    WORDZOOM_FLIGHT* const free =
        std::find_if(std::begin(zoom.flights), std::end(zoom.flights),
                     [](const WORDZOOM_FLIGHT& flight) { return flight.word == nullptr; });
    const std::int32_t length = free == std::end(zoom.flights) ? 0 : findWord(zoom);
    if (length == 0) {
        return;
    }
    free->word = zoom.text + zoom.next;
    free->length = length;
    free->scale = farthest;
    free->hue = zoom.hue;
    free->driftX = drawNumber(zoom, zoom.spread);
    free->driftY = drawNumber(zoom, zoom.spread);
    free->twist = drawNumber(zoom, mostTwist);
    zoom.next += length;
    zoom.hue = wrapAdd(zoom.hue, zoom.hueStep);
    zoom.wait = zoom.interval;
}

/// 0..256: rises up to `brightFrom`, stays, and falls from `brightTo` until the word is past.
std::int32_t brightnessAt(std::int32_t scale) {
    if (scale < brightFrom) {
        return static_cast<std::int32_t>(std::int64_t{full} * scale / brightFrom);
    }
    return scale <= brightTo ? full : std::max(0, full * ((past - scale) >> 8) / ((past - brightTo) >> 8));
}

/// Where the points of a character come to stand.
struct Pose {
    std::int64_t scale, sine, cosine; // 16.16, and two table entries
    std::int64_t left;                // font units from the word's middle to the glyph's origin
    static constexpr std::int64_t half = std::int64_t{1} << 30; // of a pixel
    std::int32_t middle, x, y;

    [[nodiscard]] VEC2D place(const VEC2D& point) const {
        const std::int64_t u = (left + point.x) * scale;
        const std::int64_t v = (std::int64_t{point.y} - middle) * scale;
        const std::int64_t right = wrapAdd(wrapSub(wrapMul(u, cosine), wrapMul(v, sine)), half) >> 31;
        const std::int64_t down = wrapAdd(wrapAdd(wrapMul(u, sine), wrapMul(v, cosine)), half) >> 31;
        return {wrapAdd(x, static_cast<std::int32_t>(right)), wrapAdd(y, static_cast<std::int32_t>(down)), 0};
    }
};

void drawWord(const WORDZOOM& zoom, const WORDZOOM_FLIGHT& flight, std::int32_t scale, std::uint32_t colour,
              IMG* target) {
    const std::int32_t angle = fixedScaled(flight.twist, fixedOne - std::min(scale, fixedOne));
    Pose pose{scale,
              SINE_entry(angle),
              angle == 0 ? 32768 : SINE_entry(angle + SINE_quarter),
              0,
              std::clamp(zoom.middle, -largestCell, largestCell),
              wrapAdd(zoom.x, fixedScaled(flight.driftX, scale)),
              wrapAdd(zoom.y, fixedScaled(flight.driftY, scale))};
    const std::int64_t cell = std::clamp(zoom.cell, -largestCell, largestCell);
    for (std::int32_t i = 0; i < flight.length; ++i) {
        // Twice the way of this character's middle from the word's, halved.
        const std::int64_t twice = 2 * std::int64_t{i} + 1 - flight.length;
        pose.left = std::clamp(cell * twice / 2 - pose.middle, -outOfSight, outOfSight);
        const OBJ2D* const glyph = glyphOf(zoom.glyphs, static_cast<std::uint8_t>(flight.word[i]));
        forEachStroke(glyph, [&](const VEC2D& a, const VEC2D& b) {
            addStroke(target, pose.place(a), pose.place(b), colour);
        });
    }
}

/// The copies first, from the farthest and dimmest on, then the word itself.
void drawFlight(const WORDZOOM& zoom, const WORDZOOM_FLIGHT& flight, IMG* target) {
    const std::uint32_t colour = paletteColour(zoom.palette, flight.hue);
    const std::int32_t light = brightnessAt(flight.scale);
    for (std::int32_t echo = std::clamp(zoom.echoes, 0, mostEchoes); echo >= 0; --echo) {
        const std::int32_t scale = flight.scale - flight.scale / 20 * echo;
        const std::int32_t share = echo == 0 ? light : light / (2 + 2 * echo);
        drawWord(zoom, flight, scale, RGB888_dim(colour, share), target);
    }
}

} // namespace

WORDZOOM* WORDZOOM_new() {
    return newRecord<WORDZOOM>(WORDZOOM_error, WORDZOOM_delete, [](WORDZOOM& zoom) {
        zoom.random = RANDOM_new();
        WORDZOOM_randomize(&zoom);
        return zoom.random != nullptr;
    });
}

void WORDZOOM_setText(WORDZOOM* zoom, const char* text) {
    if (refused(zoom == nullptr || text == nullptr, WORDZOOM_error)) {
        return;
    }
    zoom->text = text;
    zoom->next = 0;
    zoom->wait = 0;
    std::fill(std::begin(zoom->flights), std::end(zoom->flights), WORDZOOM_FLIGHT{});
}

void WORDZOOM_randomize(WORDZOOM* zoom) {
    if (refused(zoom == nullptr || zoom->random == nullptr, WORDZOOM_error)) {
        return;
    }
    zoom->hue = chance() & 0xFFFF;
    zoom->random->counter = static_cast<std::uint32_t>(chance());
}

void WORDZOOM_advance(WORDZOOM* zoom) {
    if (refused(zoom == nullptr || zoom->text == nullptr, WORDZOOM_error)) {
        return;
    }
    for (WORDZOOM_FLIGHT& flight : zoom->flights) {
        if (flight.word == nullptr) {
            continue;
        }
        // At least a little each frame, so that every word passes in the end.
        const std::int64_t growth =
            std::max<std::int64_t>(1, wholeOf(std::int64_t{flight.scale} * zoom->growth));
        flight.scale = static_cast<std::int32_t>(std::min<std::int64_t>(flight.scale + growth, past));
        if (flight.scale >= past) {
            flight = {};
        }
    }
    if (zoom->wait > 0) {
        --zoom->wait;
    } else {
        zoom->wait = 0;
        startWord(*zoom);
    }
}

void WORDZOOM_draw(const WORDZOOM* zoom, IMG* target) {
    if (refused(zoom == nullptr || zoom->glyphs == nullptr || !hasPixels(target), WORDZOOM_error)) {
        return;
    }
    for (const WORDZOOM_FLIGHT& flight : zoom->flights) {
        if (flight.word != nullptr) {
            drawFlight(*zoom, flight, target);
        }
    }
}

void WORDZOOM_delete(WORDZOOM** handle) {
    deleteRecord(handle, WORDZOOM_error, deletedBy(RANDOM_delete, &WORDZOOM::random));
}

void WORDZOOM_error() {
    reportLine(WORDZOOM_verbose, "WORDZOOM error");
}

} // namespace velm
