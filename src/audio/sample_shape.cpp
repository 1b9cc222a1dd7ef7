// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Where the values of a SAMPLE stand: rotation, resampling and the straight line.
#include "audio/sample.h"
#include "foundation/memory.h"
#include "foundation/report.h"
#include "foundation/wrap.h"

#include <algorithm>
#include <cstdlib>

namespace velm {

namespace {

/// The line over more indices than values: `error` counts down the height and crosses 1 where the value
/// moves.
void rampFlat(std::int32_t* data, std::int64_t width, std::int64_t height, std::int32_t y,
              std::int32_t step) {
    std::int64_t error = width >> 1;
    for (std::int64_t i = 0; i <= width; ++i) {
        data[i] = y;
        error -= height;
        if (error < 1) {
            error += width;
            y = wrapAdd(y, step);
        }
    }
}

/// The line over at least as many values as indices.
// SAMPLE_rampStopsShort: one expects it to end at y2. Each index keeps the first value of its run, so the
// last one is most of a run away from y2, and a fade of 11025 values ends on 1 instead of 0.
void rampSteep(std::int32_t* data, std::int64_t width, std::int64_t height, std::int32_t y,
               std::int32_t step) {
    std::int64_t error = height >> 1;
    for (std::int64_t i = 0; i <= width; ++i) {
        data[i] = y;
        if (error > 0) {
            const std::int64_t run = (error + width - 1) / width;
            y = wrapAdd(y, wrapMul(step, static_cast<std::int32_t>(run)));
            error -= run * width;
        }
        error += height;
    }
}

} // namespace

void SAMPLE_rotate(SAMPLE* sample, std::int32_t amount) {
    if (refused(!hasValues(sample), SAMPLE_error)) {
        return;
    }
    const std::int32_t up = positiveModulo(amount, sample->length);
    std::int32_t* const end = sample->data + sample->length;
    std::rotate(sample->data, end - up, end);
}

void SAMPLE_rotateLeft(SAMPLE* sample, std::int32_t amount) {
    if (refused(!hasValues(sample), SAMPLE_error)) {
        return;
    }
    const std::int32_t down = positiveModulo(amount, sample->length);
    std::rotate(sample->data, sample->data + down, sample->data + sample->length);
}

void SAMPLE_resize(SAMPLE* sample, std::int32_t length) {
    if (refused(!hasValues(sample) || length < 0, SAMPLE_error)) {
        return;
    }
    const std::int32_t capacity = std::max(length, 1);
    std::int32_t* const data = allocateAligned<std::int32_t>(capacity);
    if (refused(data == nullptr, SAMPLE_error)) {
        return;
    }
    for (std::int64_t i = 0; i < length; ++i) {
        data[i] = sample->data[i * sample->length / length];
    }
    freeAligned(sample->data);
    sample->data = data;
    sample->length = length;
    sample->capacity = capacity;
}

void SAMPLE_ramp(SAMPLE* sample, std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2) {
    // SAMPLE_rampKeepsValuesInPlace: one expects swapped indices to take their values along; the line starts
    // with y1 at the lower index whichever that is.
    const auto [low, high] = std::minmax(x1, x2);
    if (refused(!hasValues(sample) || low < 0 || high >= sample->length, SAMPLE_error)) {
        return;
    }
    const std::int64_t width = std::int64_t{high} - low;
    const std::int64_t height = std::abs(std::int64_t{y2} - y1);
    const std::int32_t step = (y2 > y1 ? 1 : 0) - (y2 < y1 ? 1 : 0);
    if (width == 0) {
        sample->data[low] = y1;
        if (height > 1) {
            SAMPLE_error();
        }
    } else if (width <= height) {
        rampSteep(sample->data + low, width, height, y1, step);
    } else {
        rampFlat(sample->data + low, width, height, y1, step);
    }
}

} // namespace velm
