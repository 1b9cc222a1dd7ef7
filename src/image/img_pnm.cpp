// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The netpbm formats of IMG: P1 to P6 decoded from memory, P6 written to a file.
#include "foundation/report.h"
#include "foundation/text.h"
#include "foundation/wide.h"
#include "image/img.h"
#include "image/rgb888.h"

#include <cstdio>
#include <cstring>
#include <limits>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace velm {

namespace {

/// The bytes of a picture and how far they have been read. Without a size a NUL ends them, except in binary
/// samples.
struct Input {
    static constexpr std::size_t unknownSize = std::numeric_limits<std::size_t>::max();

    const char* bytes;
    std::size_t size;
    std::size_t position = 0;

    [[nodiscard]] bool hasSize() const { return size != unknownSize; }
    [[nodiscard]] bool atEnd() const { return hasSize() ? position >= size : bytes[position] == '\0'; }
    [[nodiscard]] std::uint8_t peek() const { return static_cast<std::uint8_t>(bytes[position]); }
    std::uint8_t take() { return static_cast<std::uint8_t>(bytes[position++]); }
};

struct Header {
    char type = 0; ///< '1'..'6', 0 before the magic has been seen
    bool hasWidth = false;
    bool hasHeight = false;
    bool hasMaximum = false;
    std::int64_t width = 0;
    std::int64_t height = 0;

    [[nodiscard]] bool isBitmap() const { return type == '1' || type == '4'; }
    [[nodiscard]] bool isText() const { return type >= '1' && type <= '3'; }
    [[nodiscard]] bool isComplete() const { return type != 0 && hasWidth && hasHeight && hasMaximum; }
};

/// Skips to the next character that is(character); false at the end of the input.
bool skipTo(Input& input, bool (*is)(int)) {
    while (!input.atEnd() && !is(input.peek())) {
        ++input.position;
    }
    return !input.atEnd();
}

bool isVisible(int character) {
    return character > ' ' && character <= '~';
}

/// A run of digits modulo 2^32; 0 when there are none.
std::uint32_t readNumber(Input& input) {
    std::uint32_t number = 0;
    while (!input.atEnd() && isDigit(input.peek())) {
        number = number * 10 + (input.take() - std::uint32_t{'0'});
    }
    return number;
}

/// A run of digits as a size.
std::int64_t readSize(Input& input) {
    std::int64_t size = 0;
    while (!input.atEnd() && isDigit(input.peek())) {
        size = sizeWithDigit(size, input.take());
    }
    return size;
}

void skipComment(Input& input) {
    while (!input.atEnd() && input.take() != '\n') {
    }
}

bool readMagic(Input& input, Header& header) {
    ++input.position;
    if (input.atEnd() || input.peek() < '1' || input.peek() > '6') {
        return false;
    }
    header.type = static_cast<char>(input.take());
    header.hasMaximum = header.hasMaximum || header.isBitmap();
    return true;
}

/// Reads the next number of the header; false when nothing is left that it could be.
bool readHeaderNumber(Input& input, Header& header) {
    const std::size_t begin = input.position;
    const std::int64_t number = readSize(input);
    if (!header.hasWidth) {
        header.hasWidth = true;
        // IMG_bitmapWidthRoundsUp: one expects the width of the header; the fill bits of a row become pixels,
        // too.
        header.width = header.isBitmap() ? (number + 7) / 8 * 8 : number;
    } else if (!header.hasHeight) {
        header.hasHeight = true;
        header.height = number;
    } else if (!header.hasMaximum) {
        // IMG_maximumIgnored: one expects samples to be scaled by it; they are taken as 8-bit values, as our
        // assets are.
        header.hasMaximum = true;
    } else {
        return input.position > begin;
    }
    return true;
}

/// Reads up to the last token of the header; false when it is malformed or cut short.
bool readHeader(Input& input, Header& header) {
    while (!header.isComplete()) {
        if (!skipTo(input, isVisible)) {
            return false;
        }
        if (input.peek() == 'P' && header.type == 0) {
            if (!readMagic(input, header)) {
                return false;
            }
        } else if (input.peek() == '#') {
            skipComment(input);
        } else if (!readHeaderNumber(input, header)) {
            return false;
        }
    }
    return true;
}

/// The bytes that the samples take at least (in text: one a sample), so that no header makes us allocate more
/// than its file could fill.
std::int64_t leastBodyBytes(const Header& header, std::int64_t pixels) {
    switch (header.type) {
    case '3':
    case '6':
        return pixels * 3;
    case '4':
        return (pixels + 7) / 8;
    default:
        return pixels;
    }
}

bool decodeTextBitmap(Input& input, std::uint32_t* pixels, std::int64_t count) {
    for (std::int64_t i = 0; i < count; ++i) {
        if (!skipTo(input, isDigit)) {
            return false;
        }
        // IMG_bitmapSetIsWhite: one expects 1 to be black; shapes come out white on transparent black.
        pixels[i] = input.take() == '0' ? 0x000000 : 0xFFFFFF;
    }
    return true;
}

bool decodeTextGrey(Input& input, std::uint32_t* pixels, std::int64_t count) {
    for (std::int64_t i = 0; i < count; ++i) {
        if (!skipTo(input, isDigit)) {
            return false;
        }
        const std::uint32_t grey = readNumber(input);
        pixels[i] = grey << 16 | grey << 8 | grey;
    }
    return true;
}

/// IMG_samplesSpill: one expects samples above 255 to be clamped; here and in text grey they run into the
/// neighbouring channel, because a picture's maximum is ignored.
bool decodeTextColour(Input& input, std::uint32_t* pixels, std::int64_t count) {
    for (std::int64_t i = 0; i < count; ++i) {
        std::uint32_t pixel = 0;
        for (const std::uint32_t shift : {16U, 8U, 0U}) {
            if (!skipTo(input, isDigit)) {
                return false;
            }
            pixel |= readNumber(input) << shift;
        }
        pixels[i] = pixel;
    }
    return true;
}

void decodeBitmap(const std::uint8_t* samples, std::uint32_t* pixels, std::int64_t count) {
    for (std::int64_t i = 0; i < count; ++i) {
        pixels[i] = ((samples[i / 8] << (i % 8)) & 0x80) != 0 ? 0xFFFFFF : 0x000000;
    }
}

void decodeGrey(const std::uint8_t* samples, std::uint32_t* pixels, std::int64_t count) {
    runWide([=] {
        for (std::int64_t i = 0; i < count; ++i) {
            pixels[i] = samples[i] * 0x010101U;
        }
    });
}

#if defined(__x86_64__)

/// Decodes eight pixels at a time on registers of 256 bits, as long as what is read lies within the samples,
/// and returns how many those were.
[[gnu::target("avx2")]] std::int64_t decodeEights(const std::uint8_t* samples, std::uint32_t* pixels,
                                                  std::int64_t count) {
    constexpr std::int64_t samplesOfFour = 12;
    constexpr std::int64_t bytesRead = samplesOfFour + sizeof(__m128i);
    const __m256i blueGreenRed =
        _mm256_broadcastsi128_si256(_mm_setr_epi8(2, 1, 0, -1, 5, 4, 3, -1, 8, 7, 6, -1, 11, 10, 9, -1));
    std::int64_t i = 0;
    for (; 3 * i + bytesRead <= 3 * count; i += 8) {
        const std::uint8_t* const from = samples + 3 * i;
        const __m256i read = _mm256_loadu2_m128i(reinterpret_cast<const __m128i*>(from + samplesOfFour),
                                                 reinterpret_cast<const __m128i*>(from));
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(pixels + i), _mm256_shuffle_epi8(read, blueGreenRed));
    }
    return i;
}

#else

std::int64_t decodeEights(const std::uint8_t*, std::uint32_t*, std::int64_t) {
    return 0;
}

#endif

void decodeColour(const std::uint8_t* samples, std::uint32_t* pixels, std::int64_t count) {
    for (std::int64_t i = wideRegisters ? decodeEights(samples, pixels, count) : 0; i < count; ++i) {
        pixels[i] = RGB888_fromBytes(samples[3 * i], samples[3 * i + 1], samples[3 * i + 2]);
    }
}

bool decodeSamples(Input& input, const Header& header, std::uint32_t* pixels, std::int64_t count) {
    const auto* const samples = reinterpret_cast<const std::uint8_t*>(input.bytes + input.position);
    switch (header.type) {
    case '1':
        return decodeTextBitmap(input, pixels, count);
    case '2':
        return decodeTextGrey(input, pixels, count);
    case '3':
        return decodeTextColour(input, pixels, count);
    case '4':
        decodeBitmap(samples, pixels, count);
        return true;
    case '5':
        decodeGrey(samples, pixels, count);
        return true;
    default:
        decodeColour(samples, pixels, count);
        return true;
    }
}

/// True when the samples are all there, as far as the input's size can tell.
bool holdsSamples(const Input& input, const Header& header, std::int64_t count) {
    if (!input.hasSize() && !header.isText()) {
        return true;
    }
    const std::size_t left =
        input.hasSize() ? input.size - input.position : std::strlen(input.bytes + input.position);
    return static_cast<std::int64_t>(left) >= leastBodyBytes(header, count);
}

IMG* refuse() {
    IMG_error();
    return nullptr;
}

/// Decodes a whole picture, or reports once.
IMG* decode(Input input) {
    Header header;
    constexpr std::int64_t most = std::numeric_limits<std::int32_t>::max();
    if (input.bytes == nullptr || !readHeader(input, header) || input.atEnd() || header.width == 0 ||
        header.height == 0 || header.width > most || header.height > most) {
        return refuse();
    }
    ++input.position; // the separator, whatever it is
    const std::int64_t count = header.width * header.height;
    if (count > std::numeric_limits<std::int64_t>::max() / 3 || !holdsSamples(input, header, count)) {
        return refuse();
    }
    IMG* img =
        IMG_newSized(static_cast<std::int32_t>(header.width), static_cast<std::int32_t>(header.height));
    if (img != nullptr && !decodeSamples(input, header, img->pixels, count)) {
        IMG_delete(&img);
        return refuse();
    }
    return img;
}

bool writePixels(std::FILE* file, const IMG* img) {
    for (const std::uint32_t pixel : pixelsOf(*img)) {
        std::uint8_t sample[3];
        RGB888_toBytes(pixel, sample);
        if (std::fwrite(sample, sizeof sample, 1, file) != 1) {
            return false;
        }
    }
    return true;
}

} // namespace

IMG* IMG_fromPNM(const char* bytes, std::size_t count) {
    return decode({.bytes = bytes, .size = count});
}

IMG* IMG_fromPNM(const char* bytes) {
    return decode({.bytes = bytes, .size = Input::unknownSize});
}

std::int32_t IMG_writePPM(const IMG* img, const char* path) {
    if (refused(!hasPixels(img) || path == nullptr || img->width == 0 || img->height == 0, IMG_error)) {
        return 0;
    }
    std::FILE* const file = std::fopen(path, "w");
    if (refused(file == nullptr, IMG_error)) {
        return 0;
    }
    const bool written =
        std::fprintf(file, "P6\n# VELM(c)Q.V.N.\n%d %d\n255\n", img->width, img->height) > 0 &&
        writePixels(file, img);
    return refused(std::fclose(file) != 0 || !written, IMG_error) ? 0 : 1;
}

} // namespace velm
