// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "png/png.h"

#include <zlib.h>

namespace velm {

namespace {

void appendByte(std::string& bytes, std::uint32_t value) {
    bytes += static_cast<char>(static_cast<unsigned char>(value));
}

/// Most significant byte first.
void appendWord(std::string& bytes, std::uint32_t value) {
    for (std::uint32_t shift = 32; shift != 0; shift -= 8) {
        appendByte(bytes, value >> (shift - 8));
    }
}

std::uint32_t crcOf(const std::string& bytes) {
    const auto* const start = reinterpret_cast<const Bytef*>(bytes.data());
    return static_cast<std::uint32_t>(crc32(0, start, static_cast<uInt>(bytes.size())));
}

/// A zlib stream, as small as it gets; empty when memory runs out.
std::string compressed(const std::string& bytes) {
    uLongf length = compressBound(static_cast<uLong>(bytes.size()));
    std::string stream(length, '\0');
    const int result = compress2(reinterpret_cast<Bytef*>(stream.data()), &length,
                                 reinterpret_cast<const Bytef*>(bytes.data()),
                                 static_cast<uLong>(bytes.size()), Z_BEST_COMPRESSION);
    stream.resize(result == Z_OK ? length : 0);
    return stream;
}

void appendChunk(std::string& file, const std::string& type, const std::string& content) {
    appendWord(file, static_cast<std::uint32_t>(content.size()));
    file += type + content;
    appendWord(file, crcOf(type + content));
}

/// Each row: the filter byte 0, then red, green, blue and, if there is one, coverage of every pixel.
std::string rowsOf(const IMG& img, const IMG* coverage) {
    std::string rows;
    for (std::int32_t y = 0; y < img.height; ++y) {
        appendByte(rows, 0);
        for (std::int32_t x = 0; x < img.width; ++x) {
            const std::uint32_t pixel = IMG_getPixel(&img, x, y);
            appendByte(rows, pixel >> 16);
            appendByte(rows, pixel >> 8);
            appendByte(rows, pixel);
            if (coverage != nullptr) {
                appendByte(rows, IMG_getPixel(coverage, x, y));
            }
        }
    }
    return rows;
}

} // namespace

std::string pngOf(const IMG& img, const IMG* coverage) {
    constexpr std::uint32_t trueColour = 2;
    constexpr std::uint32_t withAlpha = 6;
    std::string head;
    appendWord(head, static_cast<std::uint32_t>(img.width));
    appendWord(head, static_cast<std::uint32_t>(img.height));
    const std::uint32_t kind = coverage != nullptr ? withAlpha : trueColour;
    for (const std::uint32_t byte : {8U, kind, 0U, 0U, 0U}) { // 8 bits, no interlace
        appendByte(head, byte);
    }
    std::string file = "\x89PNG\r\n\x1A\n";
    appendChunk(file, "IHDR", head);
    const std::string rows = compressed(rowsOf(img, coverage));
    appendChunk(file, "IDAT", rows);
    appendChunk(file, "IEND", "");
    return rows.empty() ? "" : file;
}

} // namespace velm
