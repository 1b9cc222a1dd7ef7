// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The 16 x 16 line letters: every stroke is a ribbon one unit wide and every glyph its closed outline. At its
// own size the two edges touch and make a stroke of two pixels; enlarged they part and make a hollow letter.
//
// Capitals stand from (2, 1) to (13, 12), small letters on row 12 from row 4 with descenders to row 15,
// digits from column 3 to 12. Everything is built about the middle of the columns, between 7 and 8.
#include "paint/strokes.h"

namespace velm::paint {

namespace {

constexpr Glyphs glyphs = {
    "",                                                                                    // space
    "71 81 88 78 71, 7B 8B 8C 7C 7B",                                                      // !
    "41 51 54 44 41, A1 B1 B4 A4 A1",                                                      // "
    "41 51 54 A4 A1 B1 B4 D4 D5 B5 B8 D8 D9 B9 BC AC A9 59 5C 4C 49 29 28 48 45 25 24 44 " // #
    "41, 55 A5 A8 58 55",
    "D3 B1 81 80 70 71 41 23 25 47 B7 C8 CA BB 4B 3A 2A 4C 7C 7D 8D 8C BC DA D8 B6 46 35 " // $
    "33 42 B2 C3 D3",
    "C1 D1 2C 1C C1, 21 51 54 24 21, A9 D9 DC AC A9",                                     // %
    "CC 55 53 71 91 B3 59 5A 6B 9B C8 D8 9C 6C 4A 49 A3 92 72 63 65 DC CC",               // &
    "71 81 84 74 71",                                                                     // '
    "91 64 69 9C AC 79 74 A1 91",                                                         // (
    "61 94 99 6C 5C 89 84 51 61",                                                         // )
    "72 82 8B 7B 72, 34 C8 C9 35 34, C4 38 39 C5 C4",                                     // *
    "73 83 87 C7 C8 88 8C 7C 78 38 37 77 73",                                             // +
    "7B 8B 8D 6F 5F 7D 7B",                                                               // ,
    "37 C7 C8 38 37",                                                                     // -
    "7B 8B 8C 7C 7B",                                                                     // .
    "C1 D1 2C 1C C1",                                                                     // /
    "51 A1 C3 CA AC 5C 3A 33 51, 52 A2 B3 BA AB 5B 4A 43 52, 76 86 87 77 76",             // 0
    "44 71 81 8B CB CC 3C 3B 7B 72 45 44",                                                // 1
    "33 51 A1 C3 C5 6B CB CC 3C 3B 5B B5 B3 A2 52 43 33",                                 // 2
    "33 51 A1 C3 C5 B6 B7 C8 CA AC 5C 3A 4A 5B AB BA B8 A7 67 66 A6 B5 B3 A2 52 43 33",   // 3
    "91 A1 A8 C8 C9 A9 AC 9C 99 39 37 91, 47 92 98 48 47",                                // 4
    "C1 31 37 A7 B8 BA AB 5B 4A 3A 5C AC CA C8 A6 46 42 C2 C1",                           // 5
    "B1 61 34 3A 5C AC CA C8 A6 46 44 62 B2 B1, 47 A7 B8 BA AB 5B 4A 47",                 // 6
    "31 C1 C4 88 8C 7C 78 B4 B2 32 31",                                                   // 7
    "51 A1 C3 C5 B6 B7 C8 CA AC 5C 3A 38 47 46 35 33 51, 52 A2 B3 B5 A6 56 45 43 52, 57 " // 8
    "A7 B8 BA AB 5B 4A 48 57",
    "4C 9C C9 C3 A1 51 33 35 57 B7 B9 9B 4B 4C, B6 56 45 43 52 A2 B3 B6",         // 9
    "75 85 86 76 75, 7B 8B 8C 7C 7B",                                             // :
    "75 85 86 76 75, 7B 8B 8D 6F 5F 7D 7B",                                       // ;
    "A1 B1 66 67 BC AC 57 56 A1",                                                 // <
    "35 C5 C6 36 35, 39 C9 CA 3A 39",                                             // =
    "51 41 96 97 4C 5C A7 A6 51",                                                 // >
    "33 51 A1 C3 C5 89 79 B5 B3 A2 52 43 33, 7B 8B 8C 7C 7B",                     // ?
    "CC 5C 29 24 51 A1 D4 D9 69 65 C5 C4 A2 52 34 39 5B CB CC, 76 C6 C8 78 76",   // @
    "2C 24 51 A1 D4 DC CC C8 38 3C 2C, 37 34 52 A2 C4 C7 37",                     // A
    "21 A1 C3 C5 B6 D8 DA BC 2C 21, 32 A2 B3 B5 A6 36 32, 37 B7 C8 CA BB 3B 37",  // B
    "D4 A1 51 24 29 5C AC D9 C9 AB 5B 39 34 52 A2 C4 D4",                         // C
    "21 A1 D4 D9 AC 2C 21, 32 A2 C4 C9 AB 3B 32",                                 // D
    "C1 21 2C CC CB 3B 37 A7 A6 36 32 C2 C1",                                     // E
    "C1 21 2C 3C 37 A7 A6 36 32 C2 C1",                                           // F
    "D4 A1 51 24 29 5C AC D9 D7 87 88 C8 C9 AB 5B 39 34 52 A2 C4 D4",             // G
    "21 2C 3C 37 C7 CC DC D1 C1 C6 36 31 21",                                     // H
    "41 B1 B2 82 8B BB BC 4C 4B 7B 72 42 41",                                     // I
    "61 C1 C9 9C 5C 29 39 5B 9B B9 B2 62 61",                                     // J
    "21 31 36 76 C1 D1 86 87 DC CC 77 37 3C 2C 21",                               // K
    "21 31 3B CB CC 2C 21",                                                       // L
    "21 31 75 85 C1 D1 DC CC C2 86 76 32 3C 2C 21",                               // M
    "21 31 CA C1 D1 DC CC CB 32 3C 2C 21",                                        // N
    "51 A1 D4 D9 AC 5C 29 24 51, 52 A2 C4 C9 AB 5B 39 34 52",                     // O
    "21 B1 D3 D6 B8 38 3C 2C 21, 32 B2 C3 C6 B7 37 32",                           // P
    "51 A1 D4 D9 AC 5C 29 24 51, 52 A2 C4 C9 AB 5B 39 34 52, 88 98 ED DD 88",     // Q
    "21 B1 D3 D6 B8 98 DC CC 88 38 3C 2C 21, 32 B2 C3 C6 B7 37 32",               // R
    "D3 B1 41 23 25 47 B7 C8 CA BB 4B 3A 2A 4C BC DA D8 B6 46 35 33 42 B2 C3 D3", // S
    "21 D1 D2 82 8C 7C 72 22 21",                                                 // T
    "21 29 5C AC D9 D1 C1 C9 AB 5B 39 31 21",                                     // U
    "21 27 7C 8C D7 D1 C1 C7 8B 7B 37 31 21",                                     // V
    "2C 3C 78 88 CC DC D1 C1 CB 87 77 3B 31 21 2C",                               // W
    "21 31 75 85 C1 D1 86 87 DC CC 88 78 3C 2C 77 76 21",                         // X
    "21 31 75 85 C1 D1 86 8C 7C 76 21",                                           // Y
    "21 D1 D2 4B DB DC 2C 2B 3B C2 22 21",                                        // Z
    "51 A1 A2 62 6B AB AC 5C 51",                                                 // [
    "21 31 EC DC 21",                                                             // backslash
    "51 A1 AC 5C 5B 9B 92 52 51",                                                 // ]
    "35 71 81 C5 B5 82 72 45 35",                                                 // ^
    "2D DD DE 2E 2D",                                                             // _
    "51 61 94 84 51",                                                             // `
    "44 A4 C6 CC 5C 3A 39 57 B7 B6 A5 45 44, 58 B8 BB 5B 4A 49 58",               // a
    "31 3C AC CA C6 A4 44 41 31, 45 A5 B6 BA AB 4B 45",                           // b
    "C6 A4 54 36 3A 5C AC CA BA AB 5B 4A 46 55 A5 B6 C6",                         // c
    "C1 CC 5C 3A 36 54 B4 B1 C1, B5 55 46 4A 5B BB B5",                           // d
    "C9 C6 A4 54 36 3A 5C BC BB 5B 4A 49 C9, 48 46 55 A5 B6 B8 48",               // e
    "B1 81 63 64 34 35 65 6C 7C 75 A5 A4 74 73 82 B2 B1",                         // f
    "C4 CD AF 4F 4E AE BD BC 5C 3A 36 54 C4, B5 55 46 4A 5B BB B5",               // g
    "31 3C 4C 45 A5 B6 BC CC C6 A4 44 41 31",                                     // h
    "70 80 81 71 70, 54 84 8B AB AC 5C 5B 7B 75 55 54",                           // i
    "80 90 91 81 80, 64 94 9D 7F 4F 4E 7E 8D 85 65 64",                           // j
    "31 41 47 77 A4 B4 87 88 CC BC 78 48 4C 3C 31",                               // k
    "51 81 8A 9B BB BC 9C 7A 72 52 51",                                           // l
    "24 B4 D6 DC CC C6 B5 85 8C 7C 75 35 3C 2C 24",                               // m
    "34 A4 C6 CC BC B6 A5 45 4C 3C 34",                                           // n
    "54 A4 C6 CA AC 5C 3A 36 54, 55 A5 B6 BA AB 5B 4A 46 55",                     // o
    "34 A4 C6 CA AC 4C 4F 3F 34, 45 A5 B6 BA AB 4B 45",                           // p
    "C4 54 36 3A 5C BC BF CF C4, B5 55 46 4A 5B BB B5",                           // q
    "44 94 B6 A6 95 55 5C 4C 44",                                                 // r
    "C4 44 35 37 48 B8 BB 3B 3C BC CB C8 B7 47 45 C5 C4",                         // s
    "51 61 64 B4 B5 65 6A 7B BB BC 7C 5A 55 35 34 54 51",                         // t
    "34 3A 5C CC C4 B4 BB 5B 4A 44 34",                                           // u
    "34 38 7C 8C C8 C4 B4 B8 8B 7B 48 44 34",                                     // v
    "24 2A 4C BC DA D4 C4 CA BB 8B 84 74 7B 4B 3A 34 24",                         // w
    "34 44 77 87 B4 C4 88 CC BC 89 79 4C 3C 78 34",                               // x
    "34 3A 5C BC BD AE 4E 4F AF CD C4 B4 BB 5B 4A 44 34",                         // y
    "34 C4 C5 6B CB CC 3C 3B 5B B5 35 34",                                        // z
    "B1 81 63 64 46 47 69 6A 8C BC BB 8B 7A 79 57 56 74 73 82 B2 B1",             // {
    "71 81 8E 7E 71",                                                             // |
    "41 71 93 94 B6 B7 99 9A 7C 4C 4B 7B 8A 89 A7 A6 84 83 72 42 41",             // }
    "37 55 65 87 A7 C5 C6 A8 88 66 56 38 37",                                     // ~
};

} // namespace

std::string_view mediumGlyph(char character) {
    return glyphOf(glyphs, character);
}

} // namespace velm::paint
