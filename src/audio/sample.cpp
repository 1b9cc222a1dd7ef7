// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "audio/sample.h"

#include "foundation/memory.h"
#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/wrap.h"

#include <algorithm>
#include <cstring>

namespace velm {

const IDENTITY SAMPLE_identity = makeIdentity("SAMPLE", "CODE", "20150405", "ZENDORAK", "C");
std::uint8_t SAMPLE_verbose = 0;

namespace {

constexpr std::int32_t firstCapacity = 32;

bool hasIndex(const SAMPLE* sample, std::int32_t index) {
    return hasData(sample) && index >= 0 && index < sample->length;
}

bool hasRange(const SAMPLE* sample, std::int32_t start, std::int32_t count) {
    return hasData(sample) && start >= 0 && count >= 0 && std::int64_t{start} + count <= sample->length;
}

/// Copies values between places that may overlap.
void move(const std::int32_t* from, std::int32_t count, std::int32_t* to) {
    std::memmove(to, from, static_cast<std::size_t>(count) * sizeof *from);
}

/// A new sample of `length` values, all 0, or nullptr (reported).
SAMPLE* newOfLength(std::int32_t length) {
    SAMPLE* sample = SAMPLE_new();
    if (sample == nullptr) {
        return nullptr;
    }
    SAMPLE_setLength(sample, length);
    if (sample->length != length) {
        SAMPLE_delete(&sample);
    }
    return sample;
}

/// Makes room for `count` values before `position`; false (reported) when that cannot be.
bool openGap(SAMPLE* sample, std::int32_t position, std::int32_t count) {
    const std::int32_t length = sample->length;
    if (refused(position < 0 || position > length, SAMPLE_error)) {
        return false;
    }
    SAMPLE_setLength(sample, wrapAdd(length, count));
    if (sample->length != wrapAdd(length, count)) {
        return false;
    }
    move(sample->data + position, length - position, sample->data + position + count);
    return true;
}

} // namespace

SAMPLE* SAMPLE_new() {
    return newRecord<SAMPLE>(SAMPLE_error, SAMPLE_delete, [](SAMPLE& sample) {
        SAMPLE_setCapacity(&sample, firstCapacity);
        return sample.data != nullptr;
    });
}

SAMPLE* SAMPLE_fromBytes(const std::int8_t* bytes, std::int32_t count) {
    if (refused(bytes == nullptr || count < 0, SAMPLE_error)) {
        return nullptr;
    }
    SAMPLE* const sample = newOfLength(count);
    if (sample != nullptr) {
        std::copy_n(bytes, count, sample->data);
    }
    return sample;
}

SAMPLE* SAMPLE_clone(const SAMPLE* src) {
    return refused(!hasData(src), SAMPLE_error) ? nullptr : SAMPLE_slice(src, 0, src->length);
}

SAMPLE* SAMPLE_slice(const SAMPLE* sample, std::int32_t from, std::int32_t to) {
    if (refused(!hasData(sample), SAMPLE_error)) {
        return nullptr;
    }
    const std::int32_t start = std::clamp(from, 0, sample->length);
    const std::int32_t count = std::max(std::clamp(to, 0, sample->length) - start, 0);
    SAMPLE* const slice = newOfLength(count);
    if (slice != nullptr) {
        SAMPLE_copy(sample, slice, count, start, 0);
    }
    return slice;
}

void SAMPLE_setCapacity(SAMPLE* sample, std::int32_t count) {
    if (refused(sample == nullptr || count < 0, SAMPLE_error)) {
        return;
    }
    if (count == sample->capacity) {
        return;
    }
    std::int32_t* const data = count == 0 ? nullptr : allocateAligned<std::int32_t>(count);
    if (refused(data == nullptr && count != 0, SAMPLE_error)) {
        return;
    }
    sample->capacity = count;
    sample->length = std::min(sample->length, count);
    std::copy_n(sample->data, sample->length, data);
    freeAligned(sample->data);
    sample->data = data;
}

void SAMPLE_setLength(SAMPLE* sample, std::int32_t length) {
    if (refused(sample == nullptr || length < 0, SAMPLE_error)) {
        return;
    }
    if (sample->capacity < length) {
        SAMPLE_setCapacity(sample, length);
    }
    if (sample->capacity >= length) {
        sample->length = length;
    }
}

std::int32_t SAMPLE_get(const SAMPLE* sample, std::int32_t index) {
    return refused(!hasIndex(sample, index), SAMPLE_error) ? 0 : sample->data[index];
}

void SAMPLE_set(SAMPLE* sample, std::int32_t index, std::int32_t value) {
    if (refused(!hasIndex(sample, index), SAMPLE_error)) {
        return;
    }
    sample->data[index] = value;
}

void SAMPLE_append(SAMPLE* sample, std::int32_t value) {
    if (refused(!hasData(sample), SAMPLE_error)) {
        return;
    }
    if (sample->length >= sample->capacity) {
        SAMPLE_setCapacity(sample, wrapMul(sample->capacity, 2));
    }
    if (sample->length < sample->capacity) {
        sample->data[sample->length++] = value;
    }
}

void SAMPLE_insert(SAMPLE* sample, const SAMPLE* other, std::int32_t position) {
    if (refused(!hasData(sample) || !hasData(other), SAMPLE_error)) {
        return;
    }
    const std::int32_t count = other->length;
    if (!openGap(sample, position, count)) {
        return;
    }
    if (other != sample) {
        std::copy_n(other->data, count, sample->data + position);
        return;
    }
    // The gap has cut the sample in two: its start is where it was, its end comes after the gap.
    std::int32_t* const gap = sample->data + position;
    move(sample->data, position, gap);
    move(gap + count, count - position, gap + position);
}

void SAMPLE_insertValue(SAMPLE* sample, std::int32_t value, std::int32_t index) {
    if (refused(!hasData(sample), SAMPLE_error)) {
        return;
    }
    if (openGap(sample, index, 1)) {
        sample->data[index] = value;
    }
}

void SAMPLE_removeAt(SAMPLE* sample, std::int32_t index) {
    if (refused(!hasIndex(sample, index), SAMPLE_error)) {
        return;
    }
    --sample->length;
    move(sample->data + index + 1, sample->length - index, sample->data + index);
}

std::int32_t SAMPLE_find(const SAMPLE* sample, std::int32_t value, std::int32_t start) {
    if (refused(!hasData(sample) || start < 0, SAMPLE_error)) {
        return -1;
    }
    for (std::int32_t i = start; i < sample->length; ++i) {
        if (sample->data[i] == value) {
            return i;
        }
    }
    return -1;
}

void SAMPLE_copy(const SAMPLE* src, SAMPLE* dst, std::int32_t count, std::int32_t srcStart,
                 std::int32_t dstStart) {
    if (refused(!hasRange(src, srcStart, count) || !hasRange(dst, dstStart, count), SAMPLE_error)) {
        return;
    }
    move(src->data + srcStart, count, dst->data + dstStart);
}

void SAMPLE_clear(SAMPLE* sample) {
    if (refused(!hasData(sample), SAMPLE_error)) {
        return;
    }
    std::fill_n(sample->data, sample->length, 0);
}

std::int32_t SAMPLE_equals(const SAMPLE* a, const SAMPLE* b) {
    const bool areEqual =
        hasData(a) && hasData(b) && std::equal(a->data, a->data + a->length, b->data, b->data + b->length);
    return refused(!areEqual, SAMPLE_error) ? 0 : 1;
}

void SAMPLE_delete(SAMPLE** handle) {
    deleteRecord(handle, SAMPLE_error, aligned(&SAMPLE::data));
}

void SAMPLE_error() {
    reportLine(SAMPLE_verbose, "SAMPLE error");
}

} // namespace velm
