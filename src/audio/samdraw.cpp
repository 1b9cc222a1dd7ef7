// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "audio/samdraw.h"

#include "audio/sam.h"
#include "audio/sample.h"
#include "foundation/fixed.h"
#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/wrap.h"
#include "image/img.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace velm {

const IDENTITY SAMDRAW_identity = makeIdentity("SAMDRAW", "CODE", "ZENDORAK", "20150425", "C");
std::uint8_t SAMDRAW_verbose = 0;

namespace {

bool canDraw(const SAMDRAW* draw) {
    return draw != nullptr && draw->source != nullptr && hasPixels(draw->target);
}

bool hasSample(const SAMDRAW& draw) {
    return hasData(draw.source->sample);
}

/// SAMDRAW_swapLeavesSample: one expects the ends to be put in order, then into the sample; each is clamped
/// on one side only and the swap comes last, so a view beyond the sample reaches outside, where values are 0.
void clampView(SAMDRAW& draw) {
    const std::int32_t length = draw.source->sample->length;
    draw.first = std::max(draw.first, 0);
    draw.last = std::min(draw.last, length - 1);
    if (draw.first > draw.last) {
        std::swap(draw.first, draw.last);
    }
}

/// The bar from the centre line to value * mid >> 15 below it, wrapping at 32 bits.
void drawBar(const SAMDRAW& draw, std::int32_t x, std::int32_t value, std::uint32_t colour) {
    const std::int32_t mid = draw.target->height >> 1;
    const std::int32_t y = wrapAdd(wrapMul(value, mid) >> 15, mid);
    IMG_drawVLine(draw.target, colour, x, std::min(mid, y), std::max(mid, y));
}

/// Values a column, 16.16. SAMDRAW_stepIgnoresView: one expects the view to fill the width, to its end; the
/// step is that of the whole sample and, where that is longer than the width, a whole number.
std::int64_t stepOf(std::int64_t length, std::int64_t width) {
    return length <= width ? toFixed(length) / width : toFixed(length / width);
}

/// Fills the target and draws value(sample, index) a column.
template <typename Value>
void drawView(SAMDRAW* draw, Value value) {
    if (refused(!canDraw(draw), SAMDRAW_error)) {
        return;
    }
    const std::int32_t width = draw->target->width;
    IMG_fillRect(draw->target, 0, 0, width, draw->target->height, draw->background);
    if (refused(!hasSample(*draw), SAMDRAW_error)) {
        return;
    }
    clampView(*draw);
    const SAMPLE* const sample = draw->source->sample;
    const std::int64_t step = width > 0 ? stepOf(sample->length, width) : 0;
    std::int64_t place = toFixed(draw->first); // 16.16
    for (std::int32_t x = 0; x < width && wholeOf(place) <= draw->last; ++x, place += step) {
        drawBar(*draw, x, value(sample, static_cast<std::int32_t>(wholeOf(place))), draw->lineColour);
    }
}

/// SAMDRAW_extremesIgnoreView: one expects marks on the bars that are in view; the extremes are those of the
/// whole sample, and so are their columns, so that they meet the bars only where the whole sample is shown.
void markFirst(const SAMDRAW& draw, std::int32_t value) {
    const SAMPLE* const sample = draw.source->sample;
    const std::int64_t index = SAMPLE_find(sample, value, 0);
    drawBar(draw, static_cast<std::int32_t>(draw.target->width * index / sample->length), value,
            draw.markColour);
}

} // namespace

SAMDRAW* SAMDRAW_new() {
    SAMDRAW* const draw = newRecord<SAMDRAW>(SAMDRAW_error);
    if (draw == nullptr) {
        // SAMDRAW_newEndsTheProcess: one expects nullptr, as from other constructors; it leaves with status
        // -1, so no caller checks.
        std::exit(-1);
    }
    return draw;
}

void SAMDRAW_draw(SAMDRAW* draw) {
    drawView(draw, [](const SAMPLE* sample, std::int32_t index) { return SAMPLE_get(sample, index); });
}

void SAMDRAW_drawSmooth(SAMDRAW* draw) {
    drawView(draw, [](const SAMPLE* sample, std::int32_t index) {
        const std::int32_t before = SAMPLE_get(sample, wrapSub(index, 1));
        const std::int32_t after = SAMPLE_get(sample, wrapAdd(index, 1));
        return wrapAdd(wrapAdd(before, SAMPLE_get(sample, index)), after) / 3;
    });
}

void SAMDRAW_drawExtremes(SAMDRAW* draw) {
    if (refused(!canDraw(draw) || !hasSample(*draw) || draw->source->sample->length == 0, SAMDRAW_error)) {
        return;
    }
    clampView(*draw);
    markFirst(*draw, SAMPLE_max(draw->source->sample));
    markFirst(*draw, SAMPLE_min(draw->source->sample));
}

void SAMDRAW_delete(SAMDRAW** handle) {
    deleteRecord(handle, SAMDRAW_error);
}

void SAMDRAW_error() {
    reportLine(SAMDRAW_verbose, "SAMDRAW error.");
}

} // namespace velm
