// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/sinescan.h"

#include "foundation/chance.h"
#include "foundation/fixed.h"
#include "foundation/memory.h"
#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/wrap.h"
#include "image/img.h"
#include "image/rgb888.h"

#include <algorithm>

namespace velm {

const IDENTITY SINESCAN_identity = makeIdentity("SINESCAN", "CODE", "C", "ZENDORAK", "20150711");
std::uint8_t SINESCAN_verbose = 0;

namespace {

constexpr std::int32_t mostSize = 4096;
constexpr std::int32_t full = RGB888_fullWeight; // of brightness, and an unstretched length

/// A run of pixels `stride` words apart: a row or a column of an image.
template <typename Pixel>
struct Line {
    Pixel* first;
    std::int64_t stride;
    std::int32_t count;
};

template <typename Pixel, typename Image>
Line<Pixel> lineOf(Image& img, bool isRow, std::int32_t index) {
    return isRow ? Line<Pixel>{rowOf(img, index), 1, img.width}
                 : Line<Pixel>{img.pixels + index, img.width, img.height};
}

/// Lays the whole of `from` over pixels begin..end - 1 of `to`, mirrored when end comes first, at a share
/// 0..256 of its brightness. Each pixel takes the sample under its middle.
void layLine(const Line<const std::uint32_t>& from, const Line<std::uint32_t>& to, std::int32_t begin,
             std::int32_t end, std::int32_t share) {
    const bool mirrored = end < begin;
    const std::int32_t first = mirrored ? end : begin;
    const std::int64_t length = std::int64_t{mirrored ? begin : end} - first;
    const std::int64_t stop = std::min<std::int64_t>(first + length, to.count);
    if (length == 0) {
        return;
    }
    // 16.16, rounded down, so that the last pixel stays inside the line.
    const std::int64_t stepSize = toFixed(from.count) / length;
    for (std::int64_t at = std::max(first, 0); at < stop; ++at) {
        const std::int64_t index = wholeOf((at - first) * stepSize + stepSize / 2);
        const std::uint32_t pixel = from.first[(mirrored ? from.count - 1 - index : index) * from.stride];
        if (pixel != 0) {
            to.first[at * to.stride] = share >= full ? pixel : RGB888_dim(pixel, share);
        }
    }
}

std::int32_t angleAt(const SINESCAN_WAVE& wave, std::int32_t line) {
    return wrapAdd(wave.wave.phase, wrapMul(wave.wave.offsetStep, line));
}

std::int32_t valueAt(const SINESCAN_WAVE& wave, std::int32_t line) {
    return SINE_scaled(wave.reach, angleAt(wave, line));
}

/// The part of the brightness that `shade` leaves where a cosine is 1..-1, 32767..-32767.
std::int32_t lightOf(const SINESCAN& scan, std::int32_t cosine) {
    const std::int32_t lost = wrapMul(scan.shade, 32767 - cosine) >> 16;
    return wrapMul(scan.brightness, full - lost) >> 8;
}

/// One picture: what lies across the lines is `lines` long from `place`, what lies along them `length` long
/// about `middle`.
struct Layout {
    std::int32_t lines, place;
    std::int32_t length, middle;
    std::int32_t sourceLines;
};

/// The source line that a line of the picture shows.
std::int32_t sourceLine(const SINESCAN& scan, const Layout& layout, std::int32_t line) {
    const auto straight = static_cast<std::int32_t>(std::int64_t{line} * layout.sourceLines / layout.lines);
    return positiveModulo(wrapAdd(straight, valueAt(scan.scan, line)), layout.sourceLines);
}

void bendLine(const SINESCAN& scan, const Layout& layout, IMG* target, std::int32_t line) {
    const bool isRow = scan.way == SINESCAN_WAY::rows;
    const auto grown = [&](std::int32_t value) {
        return scan.pinned != 0 ? static_cast<std::int32_t>(std::int64_t{value} * line / layout.lines)
                                : value;
    };
    const std::int32_t shift = grown(valueAt(scan.shift, line));
    const std::int32_t scale = wrapAdd(full, grown(valueAt(scan.stretch, line)));
    const std::int32_t length = wrapMul(layout.length, scale) >> 8;
    const std::int32_t begin = wrapSub(wrapAdd(layout.middle, shift), length / 2);
    // The fold's slope is the cosine of the wave that shifts it.
    const std::int32_t light = lightOf(scan, SINE_entry(wrapAdd(angleAt(scan.shift, line), SINE_quarter)));
    layLine(lineOf<const std::uint32_t>(*scan.source, isRow, sourceLine(scan, layout, line)),
            lineOf<std::uint32_t>(*target, isRow, layout.place + line), begin, wrapAdd(begin, length), light);
}

/// The sides of the column whose left edge is left of their right one are those that face the viewer.
void twistLine(const SINESCAN& scan, const Layout& layout, IMG* target, std::int32_t line) {
    const std::int32_t angle = wrapAdd(scan.turn, valueAt(scan.twist, line));
    const std::int32_t middle = wrapAdd(layout.middle, valueAt(scan.shift, line));
    const std::int32_t scale = wrapAdd(full, valueAt(scan.stretch, line));
    // A column as wide as a side has corners half a diagonal away.
    const std::int32_t reach = wrapMul(layout.length, scale) / 362;
    const auto from = lineOf<const std::uint32_t>(*scan.source, true, sourceLine(scan, layout, line));
    const auto to = lineOf<std::uint32_t>(*target, true, layout.place + line);
    for (std::int32_t side = 0; side < 4; ++side) {
        const std::int32_t corner = wrapAdd(angle, side * SINE_quarter);
        const std::int32_t left = SINE_scaled(reach, corner);
        const std::int32_t right = SINE_cosineScaled(reach, corner);
        if (left < right) {
            const std::int32_t facing = SINE_entry(wrapAdd(corner, SINE_quarter + SINE_quarter / 2));
            layLine(from, to, wrapAdd(middle, left), wrapAdd(middle, right), lightOf(scan, facing));
        }
    }
}

void randomizeWave(SINE& wave, std::int32_t speeds, std::int32_t steps) {
    const std::int32_t phase = chance() & SINE_tableMask;
    const std::int32_t speed = chance() % speeds + 1;
    const std::int32_t lineStep = chance() % steps + 1;
    SINE_setup(&wave, SINE_tableLength, phase, speed, 0, lineStep);
}

} // namespace

SINESCAN* SINESCAN_new() {
    SINESCAN* scan = allocateRecord<SINESCAN>();
    SINESCAN_randomize(scan); // reports when memory ran out
    return scan;
}

void SINESCAN_randomize(SINESCAN* scan) {
    if (refused(scan == nullptr, SINESCAN_error)) {
        return;
    }
    randomizeWave(scan->shift.wave, 24, 12);
    randomizeWave(scan->stretch.wave, 16, 8);
    randomizeWave(scan->scan.wave, 16, 8);
    randomizeWave(scan->twist.wave, 12, 4);
}

void SINESCAN_advance(SINESCAN* scan) {
    if (refused(scan == nullptr, SINESCAN_error)) {
        return;
    }
    for (SINESCAN_WAVE* const wave : {&scan->shift, &scan->stretch, &scan->scan, &scan->twist}) {
        SINE_advance(&wave->wave);
    }
    scan->turn = wrapAdd(scan->turn, scan->turnSpeed) & SINE_tableMask;
}

void SINESCAN_draw(const SINESCAN* scan, IMG* target) {
    if (refused(scan == nullptr || !hasPixels(target) || !hasPixels(scan->source) ||
                    scan->source->width < 1 || scan->source->height < 1,
                SINESCAN_error)) {
        return;
    }
    const std::int32_t width = std::min(scan->width, mostSize);
    const std::int32_t height = std::min(scan->height, mostSize);
    if (width < 1 || height < 1) {
        return;
    }
    const bool isColumns = scan->way == SINESCAN_WAY::columns;
    const Layout layout =
        isColumns ? Layout{width, wrapSub(scan->x, width / 2), height, scan->y, scan->source->width}
                  : Layout{height, wrapSub(scan->y, height / 2), width, scan->x, scan->source->height};
    const std::int64_t targetLines = isColumns ? target->width : target->height;
    const auto first =
        static_cast<std::int32_t>(std::clamp<std::int64_t>(-std::int64_t{layout.place}, 0, layout.lines));
    const auto last =
        static_cast<std::int32_t>(std::clamp<std::int64_t>(targetLines - layout.place, 0, layout.lines));
    for (std::int32_t line = first; line < last; ++line) {
        if (scan->way == SINESCAN_WAY::twister) {
            twistLine(*scan, layout, target, line);
        } else {
            bendLine(*scan, layout, target, line);
        }
    }
}

void SINESCAN_delete(SINESCAN** handle) {
    deleteRecord(handle, SINESCAN_error);
}

void SINESCAN_error() {
    reportLine(SINESCAN_verbose, "SINESCAN error");
}

} // namespace velm
