// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The glyph sheet: the 16 x 16 letters written with a broad pen, pictures in the control codes, lines that
// join in the codes from 128, then arrows, shades and notes, and from 160 the letters of western Europe.
#include "image/img.h"
#include "paint/glyph_art.h"
#include "paint/paint.h"
#include "paint/strokes.h"

#include <algorithm>
#include <array>

namespace velm::paint {

namespace {

constexpr std::int32_t cell = 16;
constexpr std::int32_t cellsPerRow = 16;
constexpr std::uint32_t white = 0xFFFFFF;
constexpr std::int32_t firstLetter = 0xC0; ///< letters with accents fill the codes from here to 255

/// Where a glyph goes and the pen that writes it.
struct Cell {
    IMG* sheet;
    std::int32_t x;
    std::int32_t y;
};

struct Pen {
    std::int32_t w;
    std::int32_t h;
};

constexpr Pen broad = {3, 2}; ///< upright stems of 3 pixels, level ones of 2
constexpr Pen fine = {2, 2};  ///< for what has many strokes
constexpr Pen flat = {3, 1};  ///< for slanted accents over capitals
constexpr Pen light = {2, 1}; ///< for their bent accents, and for letters within letters
constexpr Pen hair = {1, 1};

void write(const Cell& at, const Strokes& strokes, Pen pen) {
    Picture glyph = makePicture(cell, cell);
    drawStrokes(*glyph, strokes, 0, 0, pen.w, pen.h, white);
    IMG_blit(glyph, at.sheet, 0, 0, at.x, at.y, cell, cell);
}

template <typename Rule>
void fill(const Cell& at, Rule isLit) {
    for (std::int32_t y = 0; y < cell; ++y) {
        for (std::int32_t x = 0; x < cell; ++x) {
            if (isLit(x, y)) {
                IMG_putPixel(at.sheet, at.x + x, at.y + y, white);
            }
        }
    }
}

void fillArt(const Cell& at, std::int32_t art) {
    fill(at, [art](std::int32_t x, std::int32_t y) { return artPixel(art, x, y); });
}

void writeAscii(const Cell& at, char character) {
    write(at, parseStrokes(skeletonGlyph(character)), isCrowded(character) ? fine : broad);
}

/// Lines from the middle to the edges: bit 0 up, 1 right, 2 down, 3 left.
void writeJoin(const Cell& at, std::uint32_t edges) {
    constexpr std::array<std::string_view, 4> arms = {"70 77", "77 F7", "77 7F", "07 77"};
    write(at, parseStrokes("77"), broad);
    for (std::uint32_t edge = 0; edge < 4; ++edge) {
        if (((edges >> edge) & 1U) != 0) {
            write(at, parseStrokes(arms[edge]), broad);
        }
    }
}

/// Up, then clockwise in steps of 45 degrees.
void writeArrow(const Cell& at, std::size_t direction) {
    constexpr std::array<std::string_view, 8> arrows = {
        "72 7C, 26 71 C6", "B3 3B, 42 B2 BA", "17 C7, 72 C7 7C", "33 BB, 4C BC B4",
        "72 7C, 28 7D C8", "B3 3B, 34 3C AC", "27 D7, 72 27 7C", "33 BB, 3A 32 A2",
    };
    write(at, parseStrokes(arrows[direction]), fine);
}

/// 152 to 155 a quarter, half, three quarters and all; then notes and half blocks.
void fillShade(const Cell& at, std::int32_t code) {
    switch (code) {
    case 152:
        return fill(at, [](auto x, auto y) { return x % 2 == 0 && (x / 2 + y) % 2 == 0; });
    case 153:
        return fill(at, [](auto x, auto y) { return (x + y) % 2 == 0; });
    case 154:
        return fill(at, [](auto x, auto y) { return x % 2 != 0 || (x / 2 + y) % 2 != 0; });
    case 155:
        return fill(at, [](auto, auto) { return true; });
    case 156:
        return fillArt(at, artNote);
    case 157:
        return fillArt(at, artTwoNotes);
    case 158:
        return fill(at, [](auto, auto y) { return y < cell / 2; });
    default:
        return fill(at, [](auto x, auto) { return x < cell / 2; });
    }
}

/// A shorthand and the pen that writes it.
struct Sign {
    std::string_view shorthand;
    Pen pen;
};

/// The signs from 160 to 191.
constexpr std::array<Sign, 32> signs = {{
    {"3A 3C BC BA", fine},                                              // a space that holds
    {"71 72, 75 7B", broad},                                            // inverted !
    {"B6 94 54 36 39 5B 9B B9, 71 74, 7B 7E", fine},                    // cent
    {"B3 91 71 53 5B, 36 86, 3B BB", broad},                            // pound
    {"55 95 99 59 55, 33 55, B3 95, 3B 59, BB 99", fine},               // any money
    {"21 76 C1, 76 7B, 36 B6, 39 B9", fine},                            // yen
    {"70 75, 79 7E", broad},                                            // broken bar
    {"A1 51 42 43 54 94 A5 A7 98 58 47 45 54, 98 A9 AA 9B 4B", fine},   // section
    {"41, 91", broad},                                                  // two dots
    {"41 A1 D4 D9 AC 4C 19 14 41, A5 93 63 54 59 6A 9A A8", light},     // copyright
    {"41 81 92 97 47 44 94, 4A 9A", fine},                              // feminine ordinal
    {"63 27 6B, C3 87 CB", broad},                                      // left quotation
    {"36 B6 B9", broad},                                                // not
    {"47 A7", broad},                                                   // short dash
    {"41 A1 D4 D9 AC 4C 19 14 41, 5A 53 93 A4 A5 96 56, 86 AA", light}, // registered
    {"31 B1", broad},                                                   // level accent
    {"51 81 93 95 86 56 44 43 51", fine},                               // degree
    {"72 7A, 36 B6, 3D BD", broad},                                     // plus or minus
    {"41 81 92 93 57 97", fine},                                        // 2 above
    {"41 81 92 83 63, 83 94 96 87 47", fine},                           // 3 above
    {"94 B2", broad},                                                   // acute
    {"34 3E, 39 5B 8B B8, B4 BB", broad},                               // micro
    {"A1 AC, 71 7C, A1 51 33 35 57 77", fine},                          // paragraph
    {"76 77", broad},                                                   // middle dot
    {"7B 8C 8D 7E 5E", broad},                                          // cedilla
    {"53 71 77, 57 97", fine},                                          // 1 above
    {"51 81 93 95 87 57 45 43 51, 4A 9A", fine},                        // masculine ordinal
    {"23 67 2B, 83 C7 8B", broad},                                      // right quotation
    {"22 31 36, D1 2E, 98 9B DB, B8 BE", light},                        // a quarter
    {"22 31 36, D1 2E, 99 A8 B8 C9 CA 9D 9E CE", light},                // a half
    {"11 31 42 43 34 45 46 37 17, D1 2E, 98 9B DB, B8 BE", light},      // three quarters
    {"B9 9B 5B 39 75, 72 71", broad},                                   // inverted ?
}};

/// Capitals as wide as the others but from row 3, with room for an accent above; "" for what needs none.
std::string_view lowCapital(char letter) {
    switch (letter) {
    case 'A':
        return "2B 26 53 93 C6 CB, 28 C8";
    case 'E':
        return "B3 23 2B BB, 27 97";
    case 'I':
        return "43 A3, 73 7B, 4B AB";
    case 'N':
        return "2B 23 33 BB CB C3";
    case 'O':
        return "53 93 C6 C8 9B 5B 28 26 53";
    case 'U':
        return "23 28 5B 9B C8 C3";
    case 'Y':
        return "23 78 C3, 78 7B";
    default:
        return "";
    }
}

/// An accent in rows 0 to 2 over a small letter, in rows 0 and 1 over a capital.
void writeAccent(const Cell& at, char accent, bool overCapital) {
    const Pen slanted = overCapital ? flat : broad;
    const Pen bent = overCapital ? light : fine;
    switch (accent) {
    case '`':
        return write(at, parseStrokes("50 71"), slanted);
    case '\'':
        return write(at, parseStrokes("71 90"), slanted);
    case '^':
        return write(at, parseStrokes("41 60 80 A1"), bent);
    case '~':
        return write(at, parseStrokes("31 50 71 90"), bent);
    case '"':
        return write(at, parseStrokes("40, 90"), broad);
    case 'o':
        return write(at, parseStrokes(overCapital ? "50 80, 41 42, 91 92" : "60 90, 51, A1, 62 92"),
                     overCapital ? light : hair);
    default:
        return write(at, parseStrokes("7C 8D 7E 5E"), fine);
    }
}

/// The letters that are more than a letter with an accent.
std::string_view specialLetter(std::int32_t code) {
    switch (code) {
    case 0xC6:
        return "D1 41 24 2B, 27 C7, 81 8B DB"; // AE
    case 0xD0:
        return "21 91 C4 C8 9B 2B 21, 06 66"; // Eth
    case 0xD7:
        return "44 AA, A4 4A"; // times
    case 0xD8:
        return "51 91 C4 C8 9B 5B 28 24 51, C1 2B"; // O slash
    case 0xDE:
        return "21 2B, 23 A3 C5 C6 A8 28"; // Thorn
    case 0xDF:
        return "2B 24 51 81 A3 A4 86 A6 C8 C9 AB 6B"; // sharp s
    case 0xE6:
        return "24 54 76 7A 5B 3B 2A 28 37 D7 D6 B4 94 76, 7A 9B DB"; // ae
    case 0xF0:
        return "55 95 B7 B9 9B 5B 39 37 55, B7 B5 71, 74 A1"; // eth
    case 0xF7:
        return "73, 37 B7, 7B"; // divided by
    case 0xF8:
        return "54 94 B6 B9 9B 5B 39 36 54, B4 3B"; // o slash
    case 0xFE:
        return "31 3E, 34 94 B6 B9 9B 3B"; // thorn
    default:
        return "";
    }
}

/// Codes 192 to 255, capitals and then small letters in the same order.
void writeLetter(const Cell& at, std::int32_t code) {
    constexpr std::string_view letters = "AAAAAAACEEEEIIIIDNOOOOOxOUUUUYPsaaaaaaaceeeeiiiidnooooo/ouuuuypy";
    constexpr std::string_view accents =
        "`'^~\"o ,`'^\"`'^\" ~`'^~\"  `'^\"'  `'^~\"o ,`'^\"`'^\" ~`'^~\"  `'^\"' \"";
    const std::string_view special = specialLetter(code);
    if (!special.empty()) {
        constexpr std::string_view roomy = "\xD0\xD7\xDE\xF7\xFE";
        const bool isRoomy = roomy.find(static_cast<char>(code)) != std::string_view::npos;
        return write(at, parseStrokes(special), isRoomy ? broad : fine);
    }
    const auto index = static_cast<std::size_t>(code - firstLetter);
    const char letter = letters[index];
    const char accent = accents[index];
    const bool isLowered = letter < 'a' && accent != ',';
    const std::string_view shorthand = letter == 'i' ? "54 74 7B, 5B 9B"
                                       : isLowered   ? lowCapital(letter)
                                                     : skeletonGlyph(letter);
    write(at, parseStrokes(shorthand), broad);
    writeAccent(at, accent, isLowered);
}

void writeCell(const Cell& at, std::int32_t code) {
    if (code < artControlCodes) {
        fillArt(at, code);
    } else if (code < 127) {
        writeAscii(at, static_cast<char>(code));
    } else if (code == 127) {
        fillArt(at, artHouse);
    } else if (code < 144) {
        writeJoin(at, static_cast<std::uint32_t>(code - 128));
    } else if (code < 152) {
        writeArrow(at, static_cast<std::size_t>(code - 144));
    } else if (code < 160) {
        fillShade(at, code);
    } else if (code < firstLetter) {
        const Sign& sign = signs[static_cast<std::size_t>(code - 160)];
        write(at, parseStrokes(sign.shorthand), sign.pen);
    } else {
        writeLetter(at, code);
    }
}

} // namespace

Picture paintFontSheet() {
    Picture sheet = makePicture(cell * cellsPerRow, cell * cellsPerRow);
    for (std::int32_t code = 0; code < cellsPerRow * cellsPerRow; ++code) {
        writeCell({sheet, code % cellsPerRow * cell, code / cellsPerRow * cell}, code);
    }
    return sheet;
}

} // namespace velm::paint
