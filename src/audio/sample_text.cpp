// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The text form of SAMPLE, "SAMPLE { 2\n-5\n7\n}\n": the length, then every value.
#include "audio/sample.h"
#include "foundation/memory.h"
#include "foundation/report.h"
#include "foundation/text.h"

#include <cstdio>
#include <cstring>

namespace velm {

namespace {

constexpr std::int64_t charactersPerValue = 12; // "-2147483648\n"

/// Skips to the next number and reads it; false when there is none or it does not fit a value.
bool readNumber(const char*& text, std::int32_t& value) {
    while (*text != '\0' && !isDigit(*text) && !(*text == '-' && isDigit(text[1]))) {
        ++text;
    }
    if (*text == '\0') {
        return false;
    }
    const bool negative = *text == '-';
    text += negative ? 1 : 0;
    const std::int64_t size = readSize(text);
    const std::int64_t number = negative ? -size : size;
    value = static_cast<std::int32_t>(number);
    return value == number;
}

/// The sample after the word, or nullptr. A value takes two characters at least, so a length that the text
/// cannot fill is refused before anything is allocated.
SAMPLE* parse(const char* text) {
    text = std::strstr(text, "SAMPLE");
    std::int32_t length = 0;
    if (text == nullptr || !readNumber(text, length) || length < 0 ||
        static_cast<std::size_t>(length) > (std::strlen(text) + 1) / 2) {
        return nullptr;
    }
    SAMPLE* sample = SAMPLE_new();
    std::int32_t value = 0;
    for (std::int32_t i = 0; i < length && sample != nullptr; ++i) {
        if (!readNumber(text, value)) {
            SAMPLE_delete(&sample);
            return nullptr;
        }
        SAMPLE_append(sample, value);
    }
    if (sample != nullptr && sample->length != length) {
        SAMPLE_delete(&sample);
    }
    return sample;
}

} // namespace

char* SAMPLE_toText(const SAMPLE* sample) {
    if (refused(!hasData(sample), SAMPLE_error)) {
        return nullptr;
    }
    char* const text = allocateArray<char>((std::int64_t{sample->length} + 2) * charactersPerValue);
    if (refused(text == nullptr, SAMPLE_error)) {
        return nullptr;
    }
    if (sample->length == 0) {
        std::sprintf(text, "SAMPLE { 0 }\n");
        return text;
    }
    char* end = text + std::sprintf(text, "SAMPLE { %d\n", sample->length);
    for (std::int32_t i = 0; i < sample->length; ++i) {
        end += std::sprintf(end, "%d\n", sample->data[i]);
    }
    std::sprintf(end, "}\n");
    return text;
}

SAMPLE* SAMPLE_fromText(const char* text) {
    SAMPLE* const sample = text == nullptr ? nullptr : parse(text);
    if (sample == nullptr) {
        SAMPLE_error();
    }
    return sample;
}

} // namespace velm
