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

constexpr std::int32_t endless = 0x7FFFFFFF; ///< a span that may become as long as its row

// A word of the map: this bit, the seed's hue in 15 bits, the steps from the seed in 16.
constexpr std::uint32_t filledBit = 0x80000000U;
constexpr std::int32_t mostHue = 0x7FFF;
constexpr std::int32_t mostAge = 0xFFFF;

bool fits(const FILL& fill, const IMG* img) {
    return hasPixels(img) && img->width <= fill.width && img->height <= fill.height;
}

/// Makes everything dry, over another drawing or none.
void forget(FILL& fill, const IMG* drawing) {
    std::fill_n(fill.map, std::int64_t{fill.width} * fill.height, 0U);
    fill.first = fill.count = 0;
    fill.drained = 0;
    fill.drawing = drawing;
}

/// How spans take hold of an area of free and taken pixels. Every pixel is taken by one span only and every
/// span takes one at least, so there are never more spans than pixels.
///
/// Area has isFree(x, row) and take(span).
template <typename Area>
class Spreading {
public:
    Spreading(FILL& record, std::int32_t areaWidth, std::int32_t areaHeight, Area& pixels)
        : fill(record), width(areaWidth), height(areaHeight), area(pixels) {}

    /// Takes the free pixels about (x, row) from `least` to `most` as one new span, and returns the last one.
    /// (x, row) must be free.
    std::int32_t take(std::int32_t x, std::int32_t row, std::int32_t least, std::int32_t most,
                      const FILL_SPAN& from) {
        FILL_SPAN span{x, x, row, std::min(from.age + 1, mostAge), from.hue};
        while (span.left > least && area.isFree(span.left - 1, row)) {
            --span.left;
        }
        while (span.right < most && area.isFree(span.right + 1, row)) {
            ++span.right;
        }
        area.take(span);
        fill.spans[fill.count++] = span;
        return span.right;
    }

    /// Takes what a span touches: its row on both sides, and the rows above and below.
    void spread(const FILL_SPAN& span, std::int32_t reach) {
        const std::int32_t least = reach == endless ? 0 : std::max(0, span.left - reach);
        const std::int32_t most = reach == endless ? width - 1 : std::min(width - 1, span.right + reach);
        const std::int32_t before = span.left - 1;
        const std::int32_t after = span.right + 1;
        if (before >= 0 && area.isFree(before, span.row)) {
            take(before, span.row, least, before, span);
        }
        if (after < width && area.isFree(after, span.row)) {
            take(after, span.row, after, most, span);
        }
        for (const std::int32_t row : {span.row - 1, span.row + 1}) {
            for (std::int32_t x = span.left; row >= 0 && row < height && x <= span.right; ++x) {
                if (area.isFree(x, row)) {
                    x = take(x, row, least, most, span);
                }
            }
        }
    }

private:
    FILL& fill;
    std::int32_t width, height;
    Area& area;
};

/// Pixels of one colour that take another one.
struct ColourArea {
    IMG& img;
    std::uint32_t from, to;
    std::int32_t taken;

    [[nodiscard]] bool isFree(std::int32_t x, std::int32_t row) const { return rowOf(img, row)[x] == from; }
    void take(const FILL_SPAN& span) {
        std::fill_n(rowOf(img, span.row) + span.left, span.right - span.left + 1, to);
        taken += span.right - span.left + 1;
    }
};

/// Black pixels of a drawing that the map shows as dry.
struct DryArea {
    FILL& fill;

    [[nodiscard]] bool isFree(std::int32_t x, std::int32_t row) const {
        const IMG& img = *fill.drawing;
        return img.pixels[x + std::int64_t{row} * img.width] == 0 &&
               fill.map[x + std::int64_t{row} * fill.width] == 0;
    }
    void take(const FILL_SPAN& span) const {
        const auto word =
            filledBit | static_cast<std::uint32_t>(span.hue) << 16 | static_cast<std::uint32_t>(span.age);
        std::fill_n(fill.map + span.left + std::int64_t{span.row} * fill.width, span.right - span.left + 1,
                    word);
    }
};

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

std::int32_t FILL_flood(FILL* fill, IMG* target, std::int32_t x, std::int32_t y, std::uint32_t colour) {
    if (refused(fill == nullptr || fill->spans == nullptr || !fits(*fill, target), FILL_error)) {
        return 0;
    }
    forget(*fill, nullptr);
    const std::uint32_t from = IMG_getPixel(target, x, y);
    if (!contains(*target, x, y) || from == colour) {
        return 0;
    }
    ColourArea area{*target, from, colour, 0};
    Spreading<ColourArea> spreading(*fill, target->width, target->height, area);
    spreading.take(x, y, 0, target->width - 1, FILL_SPAN{});
    // The last span spreads first: what is still to do stays short.
    while (fill->count > 0) {
        const FILL_SPAN span = fill->spans[--fill->count];
        spreading.spread(span, endless);
    }
    return area.taken;
}

void FILL_begin(FILL* fill, const IMG* drawing) {
    if (refused(fill == nullptr || fill->map == nullptr || !fits(*fill, drawing), FILL_error)) {
        return;
    }
    forget(*fill, drawing);
}

bool FILL_pour(FILL* fill, std::int32_t x, std::int32_t y, std::int32_t hue) {
    if (refused(fill == nullptr || fill->drawing == nullptr, FILL_error)) {
        return false;
    }
    DryArea area{*fill};
    if (!contains(*fill->drawing, x, y) || !area.isFree(x, y)) {
        return false;
    }
    const FILL_SPAN source{x, x, y, -1, hue & mostHue};
    Spreading<DryArea>(*fill, fill->drawing->width, fill->drawing->height, area).take(x, y, x, x, source);
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
    DryArea area{*fill};
    Spreading<DryArea> spreading(*fill, fill->drawing->width, fill->drawing->height, area);
    // The first span spreads first, one pixel up and down and none or one more sideways by turns: a front
    // that is round enough, where whole rows at a time would show the trick.
    for (std::int32_t i = 0; i < fill->flow && fill->first < fill->count; ++i) {
        const FILL_SPAN span = fill->spans[fill->first++];
        spreading.spread(span, span.age & 1);
    }
    fill->phase = wrapAdd(fill->phase, fill->speed);
}

bool FILL_isDone(const FILL* fill) {
    return refused(fill == nullptr, FILL_error) ? true : fill->first == fill->count;
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
