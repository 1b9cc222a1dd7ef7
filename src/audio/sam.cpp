// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "audio/sam.h"

#include "audio/sample.h"
#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/text.h"
#include "foundation/wrap.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace velm {

const IDENTITY SAM_identity = makeIdentity("SAM", "C", "ZENDORAK", "CODE", "20150419");
std::uint8_t SAM_verbose = 0;

namespace {

constexpr std::int32_t widestValue = 32; // bits

bool hasSample(const SAM* sam) {
    return sam != nullptr && hasData(sam->sample);
}

bool isLooping(const SAM& sam) {
    return sam.state == 'l';
}

/// True when the position, and the loop while there is one, lie in the sample.
bool hasPlace(const SAM& sam) {
    const std::int32_t length = sam.sample->length;
    const bool hasLoop = 0 <= sam.loopStart && sam.loopStart < sam.loopEnd && sam.loopEnd <= length;
    return 0 <= sam.position && sam.position <= length && (hasLoop || !isLooping(sam));
}

} // namespace

SAM* SAM_new() {
    SAM* const sam = newRecord<SAM>(SAM_error);
    if (sam == nullptr) {
        // SAM_newEndsTheProcess: one expects nullptr, as from other constructors; it leaves with status -1,
        // so no caller checks.
        std::exit(-1);
    }
    return sam;
}

void SAM_setPath(SAM* sam, const char* path) {
    char* const copy = sam == nullptr || path == nullptr ? nullptr : newText(path);
    adoptArray(sam, SAM_error, &SAM::path, copy);
}

void SAM_setSample(SAM* sam, SAMPLE* sample) {
    if (refused(sam == nullptr || sample == nullptr, SAM_error)) {
        return;
    }
    if (sam->sample != nullptr && sam->sample != sample) {
        SAMPLE_delete(&sam->sample);
    }
    sam->sample = sample;
}

std::int32_t SAM_readLooped(SAM* sam, SAMPLE* dst) {
    if (refused(!hasSample(sam) || !hasData(dst) || dst == sam->sample || !hasPlace(*sam), SAM_error)) {
        return 0;
    }
    const std::int32_t end = isLooping(*sam) ? sam->loopEnd : sam->sample->length;
    std::int32_t copied = 0;
    while (copied < dst->length) {
        if (isLooping(*sam) && sam->position >= end) {
            sam->position = sam->loopStart;
        }
        const std::int32_t stretch = std::min(end - sam->position, dst->length - copied);
        if (stretch == 0) {
            break;
        }
        SAMPLE_copy(sam->sample, dst, stretch, sam->position, copied);
        sam->position += stretch;
        copied += stretch;
    }
    std::fill(dst->data + copied, dst->data + dst->length, 0);
    return copied;
}

std::int32_t SAM_isFinished(const SAM* sam) {
    return !refused(sam == nullptr || sam->sample == nullptr, SAM_error) && !isLooping(*sam) &&
                   sam->state != 'p' && sam->position >= sam->sample->length
               ? 1
               : 0;
}

void SAM_normalize(SAM* sam) {
    constexpr std::int64_t peak = 0x3FFF8000; // 32767 * 32768
    const auto magnitude = [](std::int32_t value) { return std::abs(std::int64_t{value}); };
    const std::int64_t largest =
        sam != nullptr && hasValues(sam->sample)
            ? std::max(magnitude(SAMPLE_min(sam->sample)), magnitude(SAMPLE_max(sam->sample)))
            : 0;
    if (refused(largest == 0, SAM_error)) {
        return;
    }
    // SAM_normalizeWholeFactor: one expects the peak to be met; the factor is a whole number, so a peak above
    // half of it stays as it is and one above it becomes silence.
    SAMPLE_scale(sam->sample, static_cast<std::int32_t>(peak / largest));
}

std::int32_t SAM_signExtend(std::int32_t value, std::int32_t width) {
    if (refused(width < 1 || width > widestValue, SAM_error)) {
        return 0;
    }
    if (((value >> (width - 1)) & 1) == 0) {
        return value;
    }
    // SAM_signExtendFullWidth: one expects 32 bits to stay as they are; the count of the shift wraps to 0, so
    // any negative value becomes -1. Only narrower values are extended.
    return value | wrapShl(-1, width % widestValue);
}

std::int32_t SAM_widthNeeded(std::int32_t value) {
    // SAM_widthNeededTalks: one expects a question to be silent; it prints whether verbose or not.
    std::printf("BITS: %d\n", value);
    std::int32_t width = 1;
    for (std::int64_t magnitude = std::abs(std::int64_t{value}); magnitude != 0; magnitude /= 2) {
        ++width;
    }
    std::printf("BITS: %d\n", width);
    return width;
}

std::int32_t SAM_endsWith(const char* text, const char* pattern) {
    if (refused(text == nullptr || pattern == nullptr, SAM_error)) {
        return 0;
    }
    const std::size_t length = std::strlen(text);
    const std::size_t tail = std::strlen(pattern);
    return tail <= length && std::strcmp(text + (length - tail), pattern) == 0 ? 1 : 0;
}

void SAM_delete(SAM** handle) {
    const auto close = [](SAM& sam) {
        if (sam.file != nullptr) {
            std::fclose(sam.file);
        }
    };
    deleteRecord(handle, SAM_error, close, deletedBy(SAMPLE_delete, &SAM::sample), &SAM::path);
}

void SAM_error() {
    reportLine(SAM_verbose, "SAM error.");
}

} // namespace velm
