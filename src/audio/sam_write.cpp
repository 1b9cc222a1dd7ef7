// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What SAM writes: its own format and two headerless ones, byte for byte.
#include "audio/sam.h"
#include "audio/sample.h"
#include "foundation/report.h"

#include <algorithm>

namespace velm {

namespace {

/// The values of a sample lie from the least to the most.
struct Range {
    std::int32_t least = 0;
    std::int32_t most = 0;

    [[nodiscard]] bool fits(std::int32_t bits) const {
        const std::int32_t limit = 1 << (bits - 1);
        return -limit <= least && most < limit;
    }
};

Range rangeOf(const SAMPLE* sample) {
    if (sample->length == 0) {
        return {};
    }
    return {SAMPLE_min(sample), SAMPLE_max(sample)};
}

bool hasSample(const SAM* sam) {
    return sam != nullptr && hasData(sam->sample);
}

/// Reports when there is nothing to write or nowhere to write it.
bool canWrite(const SAM* sam) {
    return !refused(!hasSample(sam) || sam->file == nullptr, SAM_error);
}

/// Closes the file: 1, or 0 (reported) when it has not taken everything.
std::int32_t finish(SAM* sam, bool isWritten) {
    const bool isWhole = std::ferror(sam->file) == 0;
    const bool isClosed = std::fclose(sam->file) == 0;
    sam->file = nullptr;
    return refused(!isWritten || !isWhole || !isClosed, SAM_error) ? 0 : 1;
}

bool writeText(const SAMPLE* sample, std::FILE* file) {
    return std::all_of(sample->data, sample->data + sample->length,
                       [file](std::int32_t value) { return std::fprintf(file, "%d\n", value) > 0; });
}

/// Writes the line with the width, then the values, the most significant byte first.
bool writeWidthAndValues(const SAM* sam, std::int32_t bits) {
    constexpr std::int32_t bitsPerByte = 8;
    return std::fprintf(sam->file, "%d\n", bits) > 0 &&
           SAMPLE_writeRaw(sam->sample, sam->file, bits / bitsPerByte, 'm') != 0;
}

} // namespace

std::int32_t SAM_writeSam(SAM* sam) {
    if (!canWrite(sam)) {
        return 0;
    }
    const bool isBinary = sam->storage == 'b' || sam->storage == 'B';
    const bool isText = sam->storage == 'a' || sam->storage == 'A';
    const char* const storage = isBinary ? "binary\n" : isText ? "ASCII\n" : "";
    // SAM_chanels: one expects two n; it is written with one, and the bytes of a file are what they are.
    // SAM_writesSixteenBits: one expects the record's own form, and clipped values; whatever the record says
    // it is this one, and binary values keep their low 16 bits.
    std::fprintf(sam->file, "SAM\n%ssigned\nbits 16\nlittle endian\nchanels 1\n%d\n", storage,
                 sam->sample->length);
    return finish(sam, isBinary ? SAMPLE_writeRaw(sam->sample, sam->file, 2, 'l') != 0
                                : isText && writeText(sam->sample, sam->file));
}

std::int32_t SAM_writeWav(SAM* sam) {
    if (!canWrite(sam)) {
        return 0;
    }
    // SAM_wavHasNoRiff: one expects what the reader of such names takes; it is a line and bytes, and for
    // values beyond 16 bits an empty file, which counts as written.
    const Range range = rangeOf(sam->sample);
    for (const std::int32_t bits : {8, 16}) {
        if (range.fits(bits)) {
            return finish(sam, writeWidthAndValues(sam, bits));
        }
    }
    return finish(sam, true);
}

std::int32_t SAM_writeRaw(SAM* sam) {
    if (!canWrite(sam)) {
        return 0;
    }
    std::fprintf(sam->file, "SAM\nbinary\n%d\n", sam->sample->length);
    const Range range = rangeOf(sam->sample);
    for (const std::int32_t bits : {8, 16, 24}) {
        if (range.fits(bits)) {
            return finish(sam, writeWidthAndValues(sam, bits));
        }
    }
    // SAM_rawLosesLoudPeaks: one expects 32 bits for whatever is wider than 24; only low values make it so,
    // and with nothing but high ones neither width nor values are written, which counts as written.
    constexpr std::int32_t least24Bits = -(1 << 23);
    return finish(sam, range.least >= least24Bits || writeWidthAndValues(sam, 32));
}

std::int32_t SAM_save(SAM* sam) {
    if (refused(!hasSample(sam) || (sam->file == nullptr && sam->path == nullptr), SAM_error)) {
        return 0;
    }
    if (sam->file == nullptr) {
        sam->file = std::fopen(sam->path, "wb");
    }
    const auto endsWith = [sam](const char* ending) {
        return sam->path != nullptr && SAM_endsWith(sam->path, ending) != 0;
    };
    if (endsWith("wav")) {
        return SAM_writeWav(sam);
    }
    return endsWith("raw") ? SAM_writeRaw(sam) : SAM_writeSam(sam);
}

} // namespace velm
