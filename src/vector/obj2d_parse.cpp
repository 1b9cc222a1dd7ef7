// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The drawings' text format, read as a stream of tokens. Lines matter only to comments and to the four
// keywords that take the rest of theirs. Nothing is an error: what has no meaning is skipped.
#include "foundation/list.h"
#include "foundation/report.h"
#include "foundation/text.h"
#include "vector/obj2d.h"
#include "vector/seg2d.h"
#include "vector/vec2d.h"

#include <algorithm>
#include <string_view>

namespace velm {

namespace {

constexpr std::size_t longestWord = 255;

struct Parser {
    const char* at;        ///< next byte; never moves past the closing NUL
    LIST* objects;         ///< the result
    OBJ2D* open;           ///< the object between its braces, or nullptr
    SEG2D* segment;        ///< the segment that numbers go to, or nullptr
    std::int32_t ordinate; ///< which of x1, y1, x2, y2 the next number is, 0..3
    std::uint32_t colour;  ///< for the points to come; goes on from object to object
    bool awaitsColour;     ///< the next hexadecimal number is a colour
    bool negates;          ///< the next number is negated
};

bool isControl(char c) {
    return static_cast<std::uint8_t>(c) <= ' ';
}

bool isSeparator(char c) {
    return isControl(c) || static_cast<std::uint8_t>(c) >= 0x7F || c == ',' || c == ';';
}

/// The digit's value, or -1 when it is none.
std::int32_t hexDigit(char c) {
    if (isDigit(c)) {
        return c - '0';
    }
    if ('a' <= c && c <= 'f') {
        return c - 'a' + 10;
    }
    return 'A' <= c && c <= 'F' ? c - 'A' + 10 : -1;
}

char lower(char c) {
    return 'A' <= c && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// A printable byte that is neither a digit nor a letter.
bool isPunctuation(char c) {
    return !isControl(c) && static_cast<std::uint8_t>(c) < 0x7F && !isDigit(c) &&
           (lower(c) < 'a' || lower(c) > 'z');
}

/// True when the word, in whatever case, is the beginning of the keyword.
bool abbreviates(std::string_view word, std::string_view keyword) {
    return word.size() <= keyword.size() && std::equal(word.begin(), word.end(), keyword.begin(),
                                                       [](char a, char b) { return lower(a) == b; });
}

void skipSeparators(Parser& parser) {
    while (*parser.at != '\0' && isSeparator(*parser.at)) {
        ++parser.at;
    }
}

/// The bytes up to the line feed or the end of the text.
std::string_view restOfLine(Parser& parser) {
    const char* const begin = parser.at;
    while (*parser.at != '\0' && *parser.at != '\n') {
        ++parser.at;
    }
    return {begin, static_cast<std::size_t>(parser.at - begin)};
}

/// Reads the next token: one punctuation character, or a word. OBJ2D_lastTokenNeedsAByte: one expects the
/// last token to count; it does not when the text ends right after it, so every text closes with a line feed.
bool nextToken(Parser& parser, std::string_view& token) {
    skipSeparators(parser);
    const char* const begin = parser.at;
    if (isPunctuation(*parser.at)) {
        ++parser.at;
    } else {
        std::size_t length = 0;
        while (length < longestWord && *parser.at != '\0' && !isSeparator(*parser.at)) {
            ++parser.at;
            ++length;
        }
    }
    token = {begin, static_cast<std::size_t>(parser.at - begin)};
    return !token.empty() && *parser.at != '\0';
}

/// Applies and uses up a "-". OBJ2D_signWaitsForANumber: one expects it to belong to what follows; it waits
/// for the next number of any kind, wherever that stands and whether or not it is of use.
std::uint32_t withSign(Parser& parser, std::uint32_t value) {
    const bool negates = parser.negates;
    parser.negates = false;
    return negates ? 0 - value : value;
}

/// Appends the finished segment to the open object. Where no object is open it is dropped.
void finishSegment(Parser& parser) {
    const std::int32_t before = parser.open != nullptr ? parser.open->segments->count : 0;
    if (parser.open != nullptr) {
        OBJ2D_addSegment(parser.open, parser.segment);
    }
    if (parser.open == nullptr || parser.open->segments->count == before) {
        SEG2D_delete(&parser.segment);
    }
    parser.segment = nullptr;
}

/// Stores the next coordinate of the segment being filled. Without one the number is dropped.
void takeCoordinate(Parser& parser, std::int32_t value) {
    if (parser.segment == nullptr) {
        return;
    }
    VEC2D& end = parser.ordinate < 2 ? *parser.segment->a : *parser.segment->b;
    if (parser.ordinate % 2 == 0) {
        end.x = value;
    } else {
        end.y = value;
        end.colour = parser.colour;
    }
    if (parser.ordinate == 3) {
        finishSegment(parser);
    }
    parser.ordinate = (parser.ordinate + 1) % 4;
}

void readDecimal(Parser& parser, std::string_view digits) {
    std::uint32_t value = 0;
    for (const char c : digits) {
        if (!isDigit(c)) {
            break;
        }
        value = value * 10 + static_cast<std::uint32_t>(c - '0');
    }
    takeCoordinate(parser, static_cast<std::int32_t>(withSign(parser, value)));
}

void readHexadecimal(Parser& parser, std::string_view digits) {
    std::uint32_t value = 0;
    for (const char c : digits) {
        if (hexDigit(c) < 0) {
            break;
        }
        value = value * 16 + static_cast<std::uint32_t>(hexDigit(c));
    }
    value = withSign(parser, value);
    if (parser.awaitsColour) {
        parser.colour = value;
        parser.awaitsColour = false;
    }
}

/// "$" takes the next word as its digits. Punctuation is left to be read as itself.
void readDollar(Parser& parser) {
    const char* const afterDollar = parser.at;
    std::string_view token;
    if (!nextToken(parser, token)) {
        return;
    }
    if (isPunctuation(token.front())) {
        parser.at = afterDollar;
    } else {
        readHexadecimal(parser, token);
    }
}

/// The rest of the line names the open object. OBJ2D_nameCrossesLines: one expects an empty "name" to name
/// nothing; the blanks that are skipped before the name may hold line feeds, so the next line that is not
/// blank becomes the name.
void readName(Parser& parser) {
    while (*parser.at != '\0' && isControl(*parser.at)) {
        ++parser.at;
    }
    const std::string_view line = restOfLine(parser);
    if (parser.open == nullptr) {
        return; // it names the file
    }
    char* const name = line.empty() ? nullptr : newText(line);
    if (refused(name == nullptr && !line.empty(), OBJ2D_error)) {
        return;
    }
    delete[] parser.open->name;
    parser.open->name = name;
}

/// "version", "author" and "type" describe the file. OBJ2D_stringsInBracesAreLost: one expects them inside
/// braces to describe the object; they only replace a value that is set, which a new object's never is, so
/// they are skipped.
void skipDescription(Parser& parser) {
    skipSeparators(parser);
    restOfLine(parser);
}

/// Frees an object that never came to the list, with all that was read into it.
void discard(OBJ2D* obj) {
    delete[] obj->name;
    OBJ2D_deleteSegments(obj);
    OBJ2D_delete(&obj);
}

/// Appends the open object. OBJ2D_strayBraceCounts: one expects a "}" that closes nothing to be skipped; it
/// appends a nullptr, and in a font that shifts the codes of all later characters.
void closeObject(Parser& parser) {
    const std::int32_t before = parser.objects->count;
    LIST_append(parser.objects, parser.open);
    if (parser.objects->count == before && parser.open != nullptr) {
        discard(parser.open);
    }
    parser.open = nullptr;
}

void actOnPunctuation(Parser& parser, char c) {
    switch (c) {
    case '#':
        restOfLine(parser);
        break;
    case '{':
        if (parser.open == nullptr) {
            parser.open = OBJ2D_new();
        }
        break;
    case '}':
        closeObject(parser);
        break;
    case '-':
        parser.negates = true;
        break;
    case '$':
        readDollar(parser);
        break;
    default:
        break;
    }
}

void actOnWord(Parser& parser, std::string_view word) {
    const char first = lower(word.front());
    if (abbreviates(word, "name")) {
        readName(parser);
    } else if (abbreviates(word, "version") || abbreviates(word, "author") || abbreviates(word, "type")) {
        skipDescription(parser);
    } else if (isDigit(first)) {
        // OBJ2D_zeroXIsDecimal: one expects "0xFF" to be hexadecimal; a leading digit makes it the decimal 0.
        readDecimal(parser, word);
    } else if (first == 'x' || first == 'h') {
        readHexadecimal(parser, word.substr(1));
    } else if (first == 'c') {
        parser.awaitsColour = true;
    } else if (first == 's' && parser.segment == nullptr) {
        // OBJ2D_segmentOutlivesItsObject: one expects "}" to end an unfinished segment; it is filled on in
        // the next object, and an "s" in between changes nothing.
        parser.segment = SEG2D_new();
    }
}

} // namespace

LIST* OBJ2D_parse(const char* text) {
    if (refused(text == nullptr, OBJ2D_error)) {
        return nullptr;
    }
    Parser parser{};
    parser.at = text;
    parser.objects = LIST_new();
    if (refused(parser.objects == nullptr, OBJ2D_error)) {
        return nullptr;
    }
    for (std::string_view token; nextToken(parser, token);) {
        if (isPunctuation(token.front())) {
            actOnPunctuation(parser, token.front());
        } else {
            actOnWord(parser, token);
        }
    }
    if (parser.segment != nullptr) {
        SEG2D_delete(&parser.segment);
    }
    if (parser.open != nullptr) {
        discard(parser.open);
    }
    return parser.objects;
}

} // namespace velm
