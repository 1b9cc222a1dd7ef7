// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// PNG files, for contact sheets, icons and pictures of the demo.
//
//     const std::string file = pngOf(*frame);
#pragma once

#include "image/img.h"

#include <string>

namespace velm {

/// The file of a picture: 8-bit red, green and blue, and the blue channel of `coverage`, a picture of the
/// same size, as alpha; nullptr for none. Empty when memory runs out.
std::string pngOf(const IMG& img, const IMG* coverage = nullptr);

} // namespace velm
