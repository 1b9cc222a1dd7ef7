// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What the effects that write with line fonts share: a text that begins again after its end, the strokes of
// its characters, and the way a stroke reaches the picture.
//
//     moveText(ring, speed, pitch);
//     forEachStroke(glyphOf(font, characterOf(ring, 0)), [&](const VEC2D& a, const VEC2D& b) { ... });
#pragma once

#include "foundation/list.h"
#include "vector/obj2d.h"
#include "vector/seg2d.h"

#include <cstdint>

namespace velm {

struct IMG;

/// A text without an end: after its last character comes the first again.
struct LineText {
    const char* text = nullptr; ///< borrowed; nullptr shows nothing
    std::int32_t length = 0;    ///< characters; 0 shows nothing
    std::int32_t index = 0;     ///< 0..length-1, the first character shown
    std::int32_t offset = 0;    ///< 16.16 pixels into that character, 0 up to its pitch
};

/// Binds a text, which must stay, and goes to its beginning.
void setText(LineText& ring, const char* text);

/// Moves on by `speed` 16.16 pixels, backwards when it is negative; characters stand `pitch` (> 0) apart.
void moveText(LineText& ring, std::int32_t speed, std::int32_t pitch);

/// The place in the text of the character `n` (>= 0) places after the first one shown; 0 without a text.
std::int32_t placeOf(const LineText& ring, std::int32_t n);

/// The character `n` (>= 0) places after the first one shown; 0 without a text.
std::uint8_t characterOf(const LineText& ring, std::int32_t n);

/// 16.16 pixels from character to character, 1.0 at least: glyphs of `cell` font units at a 16.16 scale.
std::int32_t pitchOf(std::int32_t cell, std::int32_t scale);

/// The 16.16 scale at which a text of `length` > 0 characters, `cell` > 0 font units each, is `pixels` long.
std::int32_t scaleToFit(std::int32_t pixels, std::int32_t length, std::int32_t cell);

/// The drawing of a character, or nullptr where the font has none.
const OBJ2D* glyphOf(const LIST* glyphs, std::uint8_t character);

/// Adds a stroke of light between two places; black costs nothing.
void addStroke(IMG* target, const VEC2D& from, const VEC2D& to, std::uint32_t colour);

/// Calls draw(a, b) with the two ends of every stroke, in the drawing's own units.
template <typename Draw>
void forEachStroke(const OBJ2D* glyph, Draw draw) {
    const std::int32_t count = glyph == nullptr || glyph->segments == nullptr ? 0 : glyph->segments->count;
    for (std::int32_t i = 0; i < count; ++i) {
        const auto* segment = static_cast<const SEG2D*>(LIST_get(glyph->segments, i));
        if (segment != nullptr && segment->a != nullptr && segment->b != nullptr) {
            draw(*segment->a, *segment->b);
        }
    }
}

} // namespace velm
