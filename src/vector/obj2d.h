// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// OBJ2D, a line drawing: segments with a name, a place, a scale and an angle. Drawings are written in a small
// text format and parsed at start-up; a line font is such a list in the order of the character codes.
//
//     LIST* drawings = OBJ2D_parse("{ name arrow\n color $FF8000\n s 0,0, 9,0 s 6,-3, 9,0 s 6,3, 9,0 }\n");
//     auto* arrow = static_cast<OBJ2D*>(LIST_get(drawings, 0));
//     OBJ2D_draw(arrow, screen);
//
// An object that lacks a vector or a list is reported like a missing object.
#pragma once

#include "foundation/identity.h"

#include <cstdint>

namespace velm {

struct IMG;
struct LIST;
struct SEG2D;
struct VEC2D;

struct OBJ2D {
    char* name = nullptr;     ///< what it shows (in a font: the character); shared with its copies
    char* version = nullptr;  ///< descriptive text, shared
    char* author = nullptr;   ///< descriptive text, shared
    char* type = nullptr;     ///< descriptive text, shared
    VEC2D* position;          ///< owned; pixels, added when drawing; (0, 0) in a new object
    VEC2D* size;              ///< owned; nominal cell, not used by drawing; (16, 16) in a new object
    VEC2D* scale;             ///< owned; factor per axis, applied first when drawing; (1, 1) in a new object
    std::uint32_t angle = 0;  ///< 1/1024 turns, applied between scale and position
    std::uint32_t colour = 0; ///< last colour given to OBJ2D_setColour
    std::int32_t farthest = -1; ///< index into `points` of the second end found farthest from the origin
    LIST* points;   ///< VEC2D, two per segment, the segments' own: changing a point changes its segment
    LIST* segments; ///< SEG2D, in the order they were added
};

extern const IDENTITY OBJ2D_identity;
extern std::uint8_t OBJ2D_verbose;

/// An empty object, or nullptr (reported).
OBJ2D* OBJ2D_new();

/// Reads a text of drawings: a new list of OBJ2D in text order (nullptr elements where a "}" closed nothing),
/// or nullptr (reported) without a text. The caller owns the list and the objects.
///
///     # a comment goes to the end of its line, and so does the name
///     { name arrow
///       color $FF8000
///       s 0, 0, 9, 0
///       s 6, - 3, 9, 0 }
///
/// Commas and semicolons are as good as spaces, keywords may be shortened, and what has no meaning is
/// skipped. The last token needs a byte after it, such as a line feed; a drawing that stays open is lost.
/// The format's oddities are in docs/quirks.md.
LIST* OBJ2D_parse(const char* text);

/// Appends the segment, which the object takes over, and its two points; updates `farthest`.
void OBJ2D_addSegment(OBJ2D* obj, SEG2D* segment);

/// 1 when point `index` (0..points-1, else reported and 0) lies farther from the origin than point
/// `farthest`, or when there is no such point yet.
std::int32_t OBJ2D_isFarther(const OBJ2D* obj, std::int32_t index);

/// Stores `colour` (0x00RRGGBB) in the object and in every point.
void OBJ2D_setColour(OBJ2D* obj, std::uint32_t colour);

/// Adds `position` to every point, once and for good. `position` stays, so drawing adds it again.
void OBJ2D_applyPosition(OBJ2D* obj);

/// Draws the segments, the last one first, each scaled, turned and moved, in the colour of its first point.
/// Changes nothing in the object and allocates nothing.
void OBJ2D_draw(const OBJ2D* obj, IMG* img);

/// Copies all values, point by point; the strings are shared. Different point counts are reported and nothing
/// is copied.
void OBJ2D_copy(const OBJ2D* src, OBJ2D* dst);

/// A new object with its own segments and the values of `src`, the strings shared; nullptr (reported) on
/// failure.
OBJ2D* OBJ2D_clone(const OBJ2D* src);

/// Deletes every segment with its points, so that the object is empty. Only where nobody else holds them.
void OBJ2D_deleteSegments(OBJ2D* obj);

/// Frees the object, its three vectors and its two lists and stores nullptr in the handle. Segments, points
/// and strings stay allocated, as copies and other lists may hold them.
void OBJ2D_delete(OBJ2D** handle);

/// Frees a list from OBJ2D_parse with its objects, their segments and names, and stores nullptr in the
/// handle. Only where nobody else holds any of them.
void OBJ2D_deleteParsed(LIST** handle);

/// Prints "OBJ2D error" while OBJ2D_verbose is set.
void OBJ2D_error();

} // namespace velm
