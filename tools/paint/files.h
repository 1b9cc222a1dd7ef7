// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Writing files: pictures in the binary netpbm types with one comment line each, texts as they are. All
// return false, after a message on stderr, when a file cannot be written whole.
//
//     bool written = writeColour(directory + "/strip.ppm", "strip", *paintStrip());
#pragma once

#include "image/img.h"
#include "paint/paint.h"

namespace velm::paint {

/// P4; pixels that are not 0 are white. The width must be a multiple of 8.
bool writeBitmap(const std::string& path, const std::string& title, const IMG& img, Ink ink);

/// P5: the blue channel is the grey.
bool writeGrey(const std::string& path, const std::string& title, const IMG& img);

/// P6.
bool writeColour(const std::string& path, const std::string& title, const IMG& img);

/// PNG, with the coverage as alpha; nullptr for none.
bool writePng(const std::string& path, const IMG& img, const IMG* coverage = nullptr);

/// The bytes as they stand.
bool writeFile(const std::string& path, const std::string& bytes);

} // namespace velm::paint
