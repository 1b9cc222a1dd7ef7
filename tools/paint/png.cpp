// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "paint/png.h"

#include "paint/files.h"

#include <algorithm>
#include <string_view>

namespace velm::paint {

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

std::uint32_t crcOf(std::string_view bytes) {
    constexpr std::uint32_t polynomial = 0xEDB88320;
    std::uint32_t crc = 0xFFFFFFFF;
    for (const char byte : bytes) {
        crc ^= static_cast<unsigned char>(byte);
        for (std::int32_t bit = 0; bit < 8; ++bit) {
            crc = (crc >> 1) ^ ((crc & 1U) != 0 ? polynomial : 0U);
        }
    }
    return ~crc;
}

std::uint32_t adlerOf(std::string_view bytes) {
    constexpr std::uint32_t prime = 65521;
    std::uint32_t sum = 1;
    std::uint32_t sumOfSums = 0;
    for (const char byte : bytes) {
        sum = (sum + static_cast<unsigned char>(byte)) % prime;
        sumOfSums = (sumOfSums + sum) % prime;
    }
    return (sumOfSums << 16) | sum;
}

/// A zlib stream of stored blocks.
std::string stored(std::string_view bytes) {
    constexpr std::size_t largestBlock = 65535;
    std::string stream = "\x78\x01";
    for (std::size_t at = 0; at < bytes.size(); at += largestBlock) {
        const std::string_view block = bytes.substr(at, largestBlock);
        const auto length = static_cast<std::uint32_t>(block.size());
        appendByte(stream, at + largestBlock >= bytes.size() ? 1 : 0);
        for (const std::uint32_t word : {length, ~length}) {
            appendByte(stream, word);
            appendByte(stream, word >> 8);
        }
        stream += block;
    }
    appendWord(stream, adlerOf(bytes));
    return stream;
}

void appendChunk(std::string& file, const std::string& type, const std::string& content) {
    appendWord(file, static_cast<std::uint32_t>(content.size()));
    file += type + content;
    appendWord(file, crcOf(type + content));
}

/// Each row: the filter byte 0, then red, green and blue of every pixel.
std::string rowsOf(const IMG& img) {
    std::string rows;
    for (std::int32_t y = 0; y < img.height; ++y) {
        appendByte(rows, 0);
        for (std::int32_t x = 0; x < img.width; ++x) {
            const std::uint32_t pixel = IMG_getPixel(&img, x, y);
            appendByte(rows, pixel >> 16);
            appendByte(rows, pixel >> 8);
            appendByte(rows, pixel);
        }
    }
    return rows;
}

} // namespace

bool writePng(const std::string& path, const IMG& img) {
    std::string head;
    appendWord(head, static_cast<std::uint32_t>(img.width));
    appendWord(head, static_cast<std::uint32_t>(img.height));
    for (const std::uint32_t byte : {8U, 2U, 0U, 0U, 0U}) { // 8 bits, true colour, no interlace
        appendByte(head, byte);
    }
    std::string file = "\x89PNG\r\n\x1A\n";
    appendChunk(file, "IHDR", head);
    appendChunk(file, "IDAT", stored(rowsOf(img)));
    appendChunk(file, "IEND", "");
    return writeFile(path, file);
}

} // namespace velm::paint
