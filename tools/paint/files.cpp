// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "paint/files.h"

#include "png/png.h"

#include <cstddef>
#include <cstdlib>
#include <fstream>
#include <iostream>

namespace velm::paint {

namespace {

/// The comment line after the magic names the picture; `range` is the maximum value line or empty.
std::string header(const char* magic, const std::string& title, const IMG& img, const char* range) {
    return std::string(magic) + "\n# VELM4030 " + title + "\n" + std::to_string(img.width) + " " +
           std::to_string(img.height) + "\n" + range;
}

char byteOf(std::uint32_t value) {
    return static_cast<char>(static_cast<unsigned char>(value));
}

} // namespace

Picture makePicture(std::int32_t width, std::int32_t height) {
    Picture picture(IMG_newSized(width, height));
    if (picture == nullptr) {
        std::cerr << "paint_assets: out of memory\n";
        std::exit(EXIT_FAILURE);
    }
    return picture;
}

bool writeFile(const std::string& path, const std::string& bytes) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) {
        std::cerr << "paint_assets: cannot write " << path << "\n";
        return false;
    }
    return true;
}

bool writePng(const std::string& path, const IMG& img, const IMG* coverage) {
    return writeFile(path, pngOf(img, coverage));
}

bool writeBitmap(const std::string& path, const std::string& title, const IMG& img, Ink ink) {
    std::string bytes = header("P4", title, img, "");
    const std::uint32_t flip = ink == Ink::clearBits ? 0xFF : 0x00;
    for (std::size_t first = 0; first < pixelsOf(img).size(); first += 8) {
        std::uint32_t bits = 0;
        for (std::size_t i = 0; i < 8; ++i) {
            bits = (bits << 1) | (img.pixels[first + i] != 0 ? 1U : 0U);
        }
        bytes += byteOf(bits ^ flip);
    }
    return writeFile(path, bytes);
}

bool writeGrey(const std::string& path, const std::string& title, const IMG& img) {
    std::string bytes = header("P5", title, img, "255\n");
    for (const std::uint32_t pixel : pixelsOf(img)) {
        bytes += byteOf(pixel);
    }
    return writeFile(path, bytes);
}

bool writeColour(const std::string& path, const std::string& title, const IMG& img) {
    std::string bytes = header("P6", title, img, "255\n");
    for (const std::uint32_t pixel : pixelsOf(img)) {
        bytes += byteOf(pixel >> 16);
        bytes += byteOf(pixel >> 8);
        bytes += byteOf(pixel);
    }
    return writeFile(path, bytes);
}

} // namespace velm::paint
