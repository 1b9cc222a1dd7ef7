// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The skeleton of the 16 x 16 letters, for pens and chisels to follow. Everything is built of upright, level
// and 45 degree lines: capitals fill the square from (2, 1) to (12, 11), small letters stand from row 4 to
// row 11, descenders reach row 14, digits are as wide as small letters. Column 7 is the middle.
#include "paint/strokes.h"

namespace velm::paint {

namespace {

constexpr Glyphs glyphs = {
    "",                                                    // space
    "71 77, 7A 7B",                                        // !
    "41 44, A1 A4",                                        // "
    "41 4B, A1 AB, 24 C4, 28 C8",                          // #
    "B4 A2 42 33 35 46 A6 B7 B9 AA 4A 39, 70 7C",          // $
    "C1 2B, 21 51 54 24 21, 98 C8 CB 9B 98",               // %
    "CB 54 53 71 81 A3 49 6B 9B C8",                       // &
    "71 74",                                               // '
    "91 64 68 9B",                                         // (
    "51 84 88 5B",                                         // )
    "72 7A, 44 A8, A4 48",                                 // *
    "73 7B, 37 B7",                                        // +
    "7A 7B 5D",                                            // ,
    "37 B7",                                               // -
    "7A 7B",                                               // .
    "C1 2B",                                               // /
    "51 91 B3 B9 9B 5B 39 33 51, 76 77",                   // 0
    "44 71 7B, 3B BB",                                     // 1
    "33 51 91 B3 B4 4B BB, 3B 4B",                         // 2
    "33 51 91 B3 B4 96 B8 B9 9B 5B 39, 66 96",             // 3
    "9B 91 37 38 B8",                                      // 4
    "B1 31 36 96 B8 B9 9B 5B 39",                          // 5
    "A1 61 34 39 5B 9B B9 B8 96 36",                       // 6
    "31 B1 B3 77 7B",                                      // 7
    "51 91 B3 B4 96 56 34 33 51, 56 38 39 5B 9B B9 B8 96", // 8
    "4B 8B B8 B3 91 51 33 34 56 B6",                       // 9
    "75 76, 7A 7B",                                        // :
    "75 76, 7A 7B 5D",                                     // ;
    "A1 56 AB",                                            // <
    "35 B5, 39 B9",                                        // =
    "41 96 4B",                                            // >
    "33 51 91 B3 77, 7A 7B",                               // ?
    "BB 5B 28 24 51 91 C4 C8 78 75 C5",                    // @
    "2B 24 51 91 C4 CB, 27 C7",                            // A
    "2B 21 91 B3 B4 96 26, 96 A6 C8 C9 AB 2B",             // B
    "C4 91 51 24 28 5B 9B C8",                             // C
    "21 91 C4 C8 9B 2B 21",                                // D
    "B1 21 2B BB, 26 96",                                  // E
    "B1 21 2B, 26 96",                                     // F
    "B3 91 51 24 28 5B 9B C8 C7 87",                       // G
    "21 2B, C1 CB, 26 C6",                                 // H
    "41 A1, 71 7B, 4B AB",                                 // I
    "61 B1 B8 8B 5B 28",                                   // J
    "21 2B, 26 66, B1 66 BB",                              // K
    "21 2B BB",                                            // L
    "2B 21 76 C1 CB",                                      // M
    "2B 21 CB C1",                                         // N
    "51 91 C4 C8 9B 5B 28 24 51",                          // O
    "2B 21 A1 C3 C5 A7 27",                                // P
    "51 91 C4 C8 9B 5B 28 24 51, 88 CC",                   // Q
    "2B 21 A1 C3 C5 A7 27, 87 CB",                         // R
    "C3 A1 41 23 24 46 A6 C8 C9 AB 4B 29",                 // S
    "21 C1, 71 7B",                                        // T
    "21 28 5B 9B C8 C1",                                   // U
    "21 26 7B C6 C1",                                      // V
    "21 2B 76 CB C1",                                      // W
    "21 CB, C1 2B",                                        // X
    "21 76 C1, 76 7B",                                     // Y
    "21 C1 2B CB",                                         // Z
    "91 51 5B 9B",                                         // [
    "21 CB",                                               // backslash
    "51 91 9B 5B",                                         // ]
    "35 71 B5",                                            // ^
    "2D CD",                                               // _
    "51 84",                                               // `
    "44 94 B6 BB 5B 39 57 B7",                             // a
    "31 3B 9B B9 B6 94 34",                                // b
    "B6 94 54 36 39 5B 9B B9",                             // c
    "B1 BB 5B 39 36 54 B4",                                // d
    "38 B8 B6 94 54 36 39 5B AB",                          // e
    "A1 81 63 6B, 34 94",                                  // f
    "B4 BC 9E 4E, BB 5B 39 36 54 B4",                      // g
    "31 3B, 34 94 B6 BB",                                  // h
    "70 71, 54 74 7B, 5B 9B",                              // i
    "80 81, 64 84 8C 6E 4E",                               // j
    "31 3B, 37 67, 94 67 AB",                              // k
    "51 71 79 9B AB",                                      // l
    "2B 24 A4 C6 CB, 74 7B",                               // m
    "3B 34 94 B6 BB",                                      // n
    "54 94 B6 B9 9B 5B 39 36 54",                          // o
    "3E 34 94 B6 B9 9B 3B",                                // p
    "BE B4 54 36 39 5B BB",                                // q
    "4B 44 84 A6",                                         // r
    "B5 A4 44 35 36 47 A7 B8 BA AB 4B 3A",                 // s
    "51 59 7B AB, 34 A4",                                  // t
    "34 39 5B BB, B4 BB",                                  // u
    "34 37 7B B7 B4",                                      // v
    "24 29 4B CB C4, 74 7B",                               // w
    "44 BB, B4 4B",                                        // x
    "34 39 5B BB, B4 BC 9E 4E",                            // y
    "44 B4 4B BB",                                         // z
    "A1 81 72 75 56 77 7A 8B AB",                          // {
    "71 7D",                                               // |
    "41 61 72 75 96 77 7A 6B 4B",                          // }
    "38 56 66 88 98 B6",                                   // ~
};

} // namespace

std::string_view skeletonGlyph(char character) {
    return glyphOf(glyphs, character);
}

bool isCrowded(char character) {
    constexpr std::string_view crowded = "#$%&*@";
    return crowded.find(character) != std::string_view::npos;
}

} // namespace velm::paint
