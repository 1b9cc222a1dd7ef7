// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/fill.h"

#include "effects/palette.h"
#include "foundation/chance.h"
#include "foundation/memory.h"
#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/sine.h"
#include "foundation/wrap.h"
#include "image/img.h"
#include "image/rgb888.h"

#include <algorithm>

namespace velm {

const IDENTITY FILL_identity = makeIdentity("FILL", "C", "ZENDORAK", "20150706", "CODE");
std::uint8_t FILL_verbose = 0;

namespace {

// A word of the map: this bit, the seed's hue in 15 bits, the steps from the seed in 16.
constexpr std::uint32_t filledBit = 0x80000000U;
constexpr std::int32_t mostHue = 0x7FFF;
constexpr std::int32_t mostAge = 0xFFFF;

bool fits(const FILL& fill, const IMG* img) {
    return hasPixels(img) && img->width <= fill.width && img->height <= fill.height;
}

/// True for a black pixel of the drawing that the map shows as dry.
bool isDry(const FILL& fill, std::int32_t x, std::int32_t row) {
    return rowOf(*fill.drawing, row)[x] == 0 && fill.map[x + std::int64_t{row} * fill.width] == 0;
}

/// Takes the dry pixels about (x, row) from `least` to `most` as one new span, and returns the last one.
/// (x, row) must be dry. Every pixel is taken by one span only and every span takes one at least, so there
/// are never more spans than pixels.
std::int32_t take(FILL& fill, std::int32_t x, std::int32_t row, std::int32_t least, std::int32_t most,
                  const FILL_SPAN& from) {
    FILL_SPAN span{x, x, row, std::min(from.age + 1, mostAge), from.hue};
    while (span.left > least && isDry(fill, span.left - 1, row)) {
        --span.left;
    }
    while (span.right < most && isDry(fill, span.right + 1, row)) {
        ++span.right;
    }
    const auto word =
        filledBit | static_cast<std::uint32_t>(span.hue) << 16 | static_cast<std::uint32_t>(span.age);
    std::fill_n(fill.map + span.left + std::int64_t{row} * fill.width, span.right - span.left + 1, word);
    fill.spans[fill.count++] = span;
    return span.right;
}

/// Takes what a span touches: its row up to `reach` pixels on both sides, and the rows above and below.
void spread(FILL& fill, const FILL_SPAN& span, std::int32_t reach) {
    const std::int32_t width = fill.drawing->width;
    const std::int32_t least = std::max(0, span.left - reach);
    const std::int32_t most = std::min(width - 1, span.right + reach);
    const std::int32_t before = span.left - 1;
    const std::int32_t after = span.right + 1;
    if (before >= 0 && isDry(fill, before, span.row)) {
        take(fill, before, span.row, least, before, span);
    }
    if (after < width && isDry(fill, after, span.row)) {
        take(fill, after, span.row, after, most, span);
    }
    for (const std::int32_t row : {span.row - 1, span.row + 1}) {
        for (std::int32_t x = span.left; row >= 0 && row < fill.drawing->height && x <= span.right; ++x) {
            if (isDry(fill, x, row)) {
                x = take(fill, x, row, least, most, span);
            }
        }
    }
}

/// Palette entry and brightness of a place that the colour reached after `age` steps. The brightness is a
/// wave, 256 at its crests, that runs outwards twice as fast as the hues.
std::uint32_t colourAt(const FILL& fill, std::int32_t hue, std::int32_t age) {
    constexpr std::int32_t waveStep = 24; // 1/1024 turns a step
    const std::int32_t entry = wrapSub(wrapAdd(hue, wrapMul(age, fill.stretch)), fill.phase);
    const std::int32_t trough = (32768 - SINE_entry(wrapSub(age * waveStep, wrapMul(fill.phase, 2)))) >> 8;
    const std::int32_t light = RGB888_fullWeight - ((trough * std::clamp(fill.ripple, 0, 255)) >> 8);
    return RGB888_dim(paletteColour(fill.palette, entry), light);
}

} // namespace

FILL* FILL_new() {
    return newRecord<FILL>(FILL_error, FILL_delete, [](FILL& fill) {
        FILL_setSize(&fill, fill.width, fill.height);
        return fill.spans != nullptr;
    });
}

void FILL_setSize(FILL* fill, std::int32_t width, std::int32_t height) {
    constexpr std::int32_t widest = 0x4000; // so that spans are counted in 32 bits
    if (refused(fill == nullptr || width < 1 || height < 1 || width > widest || height > widest,
                FILL_error)) {
        return;
    }
    const std::int64_t pixels = std::int64_t{width} * height;
    auto* const map = allocateArray<std::uint32_t>(pixels);
    auto* const spans = map == nullptr ? nullptr : allocateArray<FILL_SPAN>(pixels);
    if (spans == nullptr) {
        delete[] map;
        FILL_error();
        return;
    }
    delete[] fill->map;
    delete[] fill->spans;
    fill->map = map;
    fill->spans = spans;
    fill->width = width;
    fill->height = height;
    fill->first = fill->count = 0;
    fill->drawing = nullptr;
}

void FILL_begin(FILL* fill, const IMG* drawing) {
    if (refused(fill == nullptr || fill->map == nullptr || !fits(*fill, drawing), FILL_error)) {
        return;
    }
    std::fill_n(fill->map, std::int64_t{fill->width} * fill->height, 0U);
    fill->first = fill->count = 0;
    fill->drained = 0;
    fill->drawing = drawing;
}

bool FILL_pour(FILL* fill, std::int32_t x, std::int32_t y, std::int32_t hue) {
    if (refused(fill == nullptr || fill->drawing == nullptr, FILL_error)) {
        return false;
    }
    if (!contains(*fill->drawing, x, y) || !isDry(*fill, x, y)) {
        return false;
    }
    take(*fill, x, y, x, x, {x, x, y, -1, hue & mostHue});
    return true;
}

void FILL_randomize(FILL* fill) {
    if (refused(fill == nullptr || fill->drawing == nullptr, FILL_error)) {
        return;
    }
    const IMG& drawing = *fill->drawing;
    const std::int64_t pixels = std::int64_t{drawing.width} * drawing.height;
    for (std::int32_t i = 0; i < fill->seeds && pixels > 0; ++i) {
        const std::int64_t x = chance() % drawing.width;
        const std::int64_t y = chance() % drawing.height;
        const std::int32_t hue = chance() & mostHue;
        for (std::int64_t k = 0; k < pixels; ++k) {
            const std::int64_t at = (x + y * drawing.width + k) % pixels;
            if (FILL_pour(fill, static_cast<std::int32_t>(at % drawing.width),
                          static_cast<std::int32_t>(at / drawing.width), hue)) {
                break;
            }
        }
    }
}

void FILL_advance(FILL* fill) {
    if (refused(fill == nullptr || fill->drawing == nullptr, FILL_error)) {
        return;
    }
    // The first span spreads first, one pixel up and down and none or one more sideways by turns: a front
    // that is round enough, where whole rows at a time would show the trick.
    for (std::int32_t i = 0; i < fill->flow && fill->first < fill->count; ++i) {
        const FILL_SPAN span = fill->spans[fill->first++];
        spread(*fill, span, span.age & 1);
    }
    fill->phase = wrapAdd(fill->phase, fill->speed);
}

void FILL_draw(const FILL* fill, IMG* target) {
    if (refused(fill == nullptr || fill->map == nullptr || !hasPixels(target), FILL_error)) {
        return;
    }
    std::uint32_t last = 0; // neighbours often share their colour
    std::uint32_t colour = 0;
    for (std::int32_t y = 0; y < std::min(fill->height, target->height); ++y) {
        const std::uint32_t* const words = fill->map + std::int64_t{y} * fill->width;
        std::uint32_t* const row = rowOf(*target, y);
        for (std::int32_t x = 0; x < std::min(fill->width, target->width); ++x) {
            const std::uint32_t word = words[x];
            const auto age = static_cast<std::int32_t>(word & static_cast<std::uint32_t>(mostAge));
            if (word == 0 || age < fill->drained) {
                continue;
            }
            if (word != last) {
                last = word;
                colour = colourAt(*fill, static_cast<std::int32_t>(word >> 16) & mostHue, age);
            }
            row[x] = colour;
        }
    }
}

void FILL_delete(FILL** handle) {
    deleteRecord(handle, FILL_error, &FILL::map, &FILL::spans);
}

void FILL_error() {
    reportLine(FILL_verbose, "FILL error");
}

} // namespace velm
