// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// PNG files for the contact sheets and the icons.
//
//     writePng(directory + "/font_small.png", *sheet);
#pragma once

#include "paint/paint.h"

namespace velm::paint {

/// Writes 8-bit red, green and blue, and the blue channel of `coverage`, a picture of the same size, as
/// alpha; nullptr for none. False, after a message on stderr, when the file cannot be written whole.
bool writePng(const std::string& path, const IMG& img, const IMG* coverage = nullptr);

} // namespace velm::paint
