// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The line fonts and the drawings as texts of named objects.
#include "paint/drawings.h"
#include "paint/paint.h"
#include "paint/strokes.h"

namespace velm::paint {

namespace {

constexpr char firstPrintable = '!';
constexpr char lastPrintable = '~';
constexpr std::int32_t controlCodes = 32;

/// What stands before the objects: comments, then the lines that describe the file.
std::string opening(const char* what, const char* rule, const char* name) {
    return std::string("# ") + what + "\n# " + rule + "\n\nname " + name +
           "\nversion 20150614\nauthor The VELM4030 developers\ntype 2D\n\n";
}

/// "s 3, 0, 3, 4"
std::string spacedSegment(const Segment& segment) {
    return "s " + std::to_string(segment.from.x) + ", " + std::to_string(segment.from.y) + ", " +
           std::to_string(segment.to.x) + ", " + std::to_string(segment.to.y);
}

/// "s 5,0,5,4" where a stroke starts, "segment 5,4 8,9," where it goes on.
std::string wireSegment(const Segment& segment) {
    const std::string from = std::to_string(segment.from.x) + "," + std::to_string(segment.from.y);
    const std::string to = std::to_string(segment.to.x) + "," + std::to_string(segment.to.y);
    return segment.startsStroke ? "s " + from + "," + to : "segment " + from + " " + to + ",";
}

using SegmentWriter = std::string (*)(const Segment&);

/// An object whose segments stand in lines of their own.
std::string object(std::string_view name, std::string_view shorthand, SegmentWriter writeSegment) {
    std::string text = "{\nname " + std::string(name) + "\ncolor $FFFFFF\n";
    for (const Segment& segment : parseStrokes(shorthand)) {
        text += writeSegment(segment) + "\n";
    }
    return text + "}\n";
}

/// The same with the closing brace on the line of the last segment.
std::string wireObject(std::string_view name, std::string_view shorthand) {
    std::string text = object(name, shorthand, wireSegment);
    text.replace(text.size() - 3, 1, " ");
    return text;
}

std::string controlCodeObjects() {
    std::string text = "# the control codes\n";
    for (std::int32_t code = 0; code < controlCodes; ++code) {
        text += "{ }\n";
    }
    return text + "\n# the printable characters\n{\nname space\n}\n";
}

} // namespace

std::string writeFontSmall() {
    std::string text = opening("Line font, 8 by 8: capitals from row 0 to 6, small letters from row 2.",
                               "A segment is s x1, y1, x2, y2.", "font 2D 8x8");
    text += controlCodeObjects();
    for (char c = firstPrintable; c <= lastPrintable; ++c) {
        text += object(std::string(1, c), smallGlyph(c), spacedSegment);
    }
    return text;
}

std::string writeFontMedium() {
    std::string text = opening("Line font, 16 by 16: capitals from row 1 to 12, small letters from row 4.",
                               "A segment is s x1,y1,x2,y2 or segment x1,y1 x2,y2.", "font 16x16 wire");
    text += controlCodeObjects();
    for (char c = firstPrintable; c <= lastPrintable; ++c) {
        text += wireObject(std::string(1, c), mediumGlyph(c));
    }
    return text;
}

std::string writeDrawings() {
    std::string text = opening("Line drawings on a grid of 0 to 16 that turn about its middle (8, 8).",
                               "The demo picks any of them, so every object has segments.", "drawings 16x16");
    for (const Drawing& drawing : drawings()) {
        text += object(drawing.name, drawing.shorthand, spacedSegment);
    }
    return text;
}

} // namespace velm::paint
