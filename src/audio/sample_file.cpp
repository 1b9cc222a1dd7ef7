// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The values of a SAMPLE as raw bytes in an open file, one to four a value, in either order.
#include "audio/sample.h"
#include "foundation/report.h"

#include <algorithm>

namespace velm {

namespace {

constexpr std::int32_t mostBytes = 4;

bool isRawForm(std::int32_t bytes, char endian) {
    return bytes >= 1 && bytes <= mostBytes && (endian == 'l' || endian == 'm');
}

/// Where in a value the byte at `position` of the file's group belongs.
std::int32_t shiftOf(std::int32_t position, std::int32_t bytes, char endian) {
    constexpr std::int32_t bitsPerByte = 8;
    return bitsPerByte * (endian == 'l' ? position : bytes - 1 - position);
}

} // namespace

std::int32_t SAMPLE_readRaw(SAMPLE* sample, std::FILE* file, std::int32_t bytes, char endian,
                            std::int32_t count) {
    if (refused(!hasData(sample) || file == nullptr || !isRawForm(bytes, endian), SAMPLE_error)) {
        return 0;
    }
    const std::int32_t lengthBefore = sample->length;
    std::uint8_t group[mostBytes];
    while (sample->length - lengthBefore < count &&
           std::fread(group, static_cast<std::size_t>(bytes), 1, file) == 1) {
        std::uint32_t value = 0;
        for (std::int32_t i = 0; i < bytes; ++i) {
            value |= std::uint32_t{group[i]} << shiftOf(i, bytes, endian);
        }
        const std::int32_t length = sample->length;
        SAMPLE_append(sample, static_cast<std::int32_t>(value));
        if (sample->length == length) {
            break;
        }
    }
    return sample->length - lengthBefore;
}

std::int32_t SAMPLE_writeRaw(const SAMPLE* sample, std::FILE* file, std::int32_t bytes, char endian) {
    if (refused(!hasData(sample) || file == nullptr || !isRawForm(bytes, endian), SAMPLE_error)) {
        return 0;
    }
    const auto isWritten = [=](std::int32_t value) {
        std::uint8_t group[mostBytes];
        for (std::int32_t i = 0; i < bytes; ++i) {
            group[i] = static_cast<std::uint8_t>(value >> shiftOf(i, bytes, endian));
        }
        return std::fwrite(group, static_cast<std::size_t>(bytes), 1, file) == 1;
    };
    const bool isWhole =
        std::all_of(sample->data, sample->data + sample->length, isWritten) && std::fflush(file) == 0;
    return refused(!isWhole, SAMPLE_error) ? 0 : 1;
}

} // namespace velm
