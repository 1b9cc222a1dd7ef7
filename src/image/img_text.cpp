// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The bracketed text form of IMG: "IMG{\nP3\n...}\n", six pixels a line, written and read.
#include "foundation/memory.h"
#include "foundation/report.h"
#include "foundation/text.h"
#include "image/img.h"
#include "image/rgb888.h"

#include <cstdio>
#include <cstring>
#include <limits>

namespace velm {

namespace {

constexpr std::int64_t charactersPerPixel = 12;
constexpr std::int64_t pixelsPerLine = 6;

void skipOne(const char*& text) {
    if (*text != '\0') {
        ++text;
    }
}

/// Moves `text` just past the needle; false when it is not there.
bool moveAfter(const char*& text, const char* needle) {
    const std::int32_t end = IMG_findAfter(text, needle);
    text += end;
    return end != 0;
}

/// Reads one sample modulo 2^32: skips to its first digit, then takes the digits; false at the end of the
/// text.
bool readSample(const char*& text, std::uint32_t& sample) {
    while (*text != '\0' && !isDigit(*text)) {
        ++text;
    }
    if (*text == '\0') {
        return false;
    }
    sample = 0;
    for (; isDigit(*text); ++text) {
        sample = sample * 10 + static_cast<std::uint32_t>(*text - '0');
    }
    return true;
}

bool readPixels(const char*& text, IMG* img) {
    for (std::uint32_t& pixel : pixelsOf(*img)) {
        std::uint32_t red = 0;
        std::uint32_t green = 0;
        std::uint32_t blue = 0;
        if (!readSample(text, red) || !readSample(text, green) || !readSample(text, blue)) {
            return false;
        }
        pixel = red << 16 | green << 8 | blue;
    }
    return true;
}

/// Reads "width height maximum" and the one separator after each; the maximum does not matter.
void readSizes(const char*& text, std::int64_t& width, std::int64_t& height) {
    width = readSize(text);
    skipOne(text);
    height = readSize(text);
    skipOne(text);
    readSize(text);
    skipOne(text);
}

IMG* refuse() {
    IMG_error();
    return nullptr;
}

/// The image after "P3\n", or nullptr (reported once). A pixel takes five characters at least, so sizes that
/// the text cannot fill are refused before anything is allocated.
IMG* parse(const char* text) {
    if (!moveAfter(text, "IMG") || !moveAfter(text, "{") || !moveAfter(text, "P3\n")) {
        return refuse();
    }
    std::int64_t width = 0;
    std::int64_t height = 0;
    readSizes(text, width, height);
    constexpr std::int64_t most = std::numeric_limits<std::int32_t>::max();
    constexpr std::int64_t leastCharacters = 5;
    const auto left = static_cast<std::int64_t>(std::strlen(text));
    if (width > most || height > most || width * height > left / leastCharacters + 1) {
        return refuse();
    }
    IMG* img = IMG_newSized(static_cast<std::int32_t>(width), static_cast<std::int32_t>(height));
    if (img != nullptr && !readPixels(text, img)) {
        IMG_delete(&img);
        return refuse();
    }
    return img;
}

} // namespace

char* IMG_toText(const IMG* img) {
    if (refused(!hasPixels(img), IMG_error)) {
        return nullptr;
    }
    const std::int64_t count = std::int64_t{img->width} * img->height;
    const std::int64_t size = charactersPerPixel * count + 26 + count / pixelsPerLine + 3;
    char* const text = allocateArray<char>(size);
    if (refused(text == nullptr, IMG_error)) {
        return nullptr;
    }
    if (count == 0) {
        std::memcpy(text, "IMG{}", sizeof "IMG{}");
        return text;
    }
    char* end = text + std::sprintf(text, "IMG{\nP3\n%d %d\n255\n", img->width, img->height);
    for (std::int64_t i = 0; i < count; ++i) {
        std::uint8_t sample[3];
        RGB888_toBytes(img->pixels[i], sample);
        end += std::sprintf(end, "%3d %3d %3d ", sample[0], sample[1], sample[2]);
        if ((i + 1) % pixelsPerLine == 0 || i + 1 == count) {
            end[-1] = '\n';
        }
    }
    std::memcpy(end, "}\n", sizeof "}\n");
    return text;
}

IMG* IMG_fromText(const char* text) {
    return text == nullptr ? refuse() : parse(text);
}

std::int32_t IMG_findAfter(const char* haystack, const char* needle) {
    if (refused(haystack == nullptr || needle == nullptr, IMG_error)) {
        return 0;
    }
    std::size_t i = 0;
    std::size_t j = 0;
    while (haystack[i] != '\0' && needle[j] != '\0') {
        // IMG_findAfterMiscounts: one expects the search to start over; the byte that did not match counts as
        // the needle's first, so "xMG" is taken for "IMG" and any byte for "{". Texts that rely on it are
        // read.
        if (haystack[i] != needle[j]) {
            j = 0;
        }
        ++i;
        ++j;
    }
    constexpr std::size_t most = std::numeric_limits<std::int32_t>::max();
    return needle[j] == '\0' && i <= most ? static_cast<std::int32_t>(i) : 0;
}

} // namespace velm
