// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The program's icon: the logo's V of three lines as a neon sign in a black tile. It is drawn for every size:
// small ones are one plain tube that stays readable, larger ones have more tubes and a scene behind them.
//
//     bool written = writeIcons("build/icons"); // 16.png to 256.png
#pragma once

#include "paint/paint.h"

namespace velm::paint {

struct Icon {
    Picture colours;  ///< square
    Picture coverage; ///< the same size; blue 0 is transparent, 255 opaque
};

/// An icon of `size` by `size` pixels, 16 or more.
Icon paintIcon(std::int32_t size);

/// Writes the icon of the program's windows as a PAM file; false, after a message on stderr, when it cannot
/// be written whole.
bool writeIconOfWindows(const std::string& path);

/// Writes SIZE.png for every usual size; false, after a message on stderr, when one cannot be written whole.
bool writeIcons(const std::string& directory);

} // namespace velm::paint
