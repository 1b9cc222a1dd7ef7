// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Text of the world for a line font that knows ASCII: a letter with an accent becomes its base letter and a
// sign of the font that stands for the accent; what has no Latin letter becomes a box.
//
//     std::string_view rest = "grün";
//     while (!rest.empty()) {
//         drawLetter(takeLetter(rest)); // 'g', 'r', 'u' below '"', 'n'
//     }
#pragma once

#include <cstdint>
#include <string_view>

namespace velm {

struct ReadableLetter {
    char base = 0;   ///< a printable character of ASCII; 0 is a box
    char mark = ' '; ///< the sign to be drawn with it, ' ' for none; one of `'^~".-,/
};

/// Takes the first letter off a text in UTF-8 that is not empty, with the combining accents after it. A byte
/// that is no UTF-8 counts as a letter of Latin-1.
ReadableLetter takeLetter(std::string_view& text);

/// How many letters a text has.
std::int32_t countLetters(std::string_view text);

} // namespace velm
