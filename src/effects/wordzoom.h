// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// WORDZOOM, words out of the depth: the words of a text, one after the other, start as a spark at the
// vanishing point, grow, light up, stand before the viewer and fly past. Every word drags dimmer copies of
// itself behind, which give it a body.
//
//     WORDZOOM* zoom = WORDZOOM_new();
//     zoom->glyphs = demo.fontMedium, WORDZOOM_setText(zoom, "OUT OF THE BLUE");
//     WORDZOOM_advance(zoom), WORDZOOM_draw(zoom, screen); // each frame
#pragma once

#include "foundation/fixed.h"
#include "foundation/identity.h"

#include <cstdint>

namespace velm {

struct IMG;
struct LIST;
struct RANDOM;
struct SAMPLE;

inline constexpr std::int32_t WORDZOOM_flights = 8; ///< at most so many words fly at the same time

/// A word on its way.
struct WORDZOOM_FLIGHT {
    const char* word;            ///< borrowed, within the text; nullptr while nothing flies
    std::int32_t length;         ///< characters
    std::int32_t scale;          ///< 16.16, target pixels per unit of the font
    std::int32_t hue;            ///< palette entry
    std::int32_t driftX, driftY; ///< pixels that it has left the vanishing point by at scale 1.0
    std::int32_t twist;          ///< 1/1024 turns that it still has to turn at scale 0; upright at 1.0
};

struct WORDZOOM {
    const char* text = nullptr;          ///< borrowed; words between spaces and line feeds
    std::int32_t next = 0;               ///< byte of the text where the search for the next word begins
    std::int32_t loop = 1;               ///< 1: the first word follows the last one; 0: no word does
    const LIST* glyphs = nullptr;        ///< borrowed; a line font
    const SAMPLE* palette = nullptr;     ///< borrowed; the words' colours, a ring; nullptr is white
    std::int32_t cell = 16;              ///< width and height of a glyph, font units within +-4096
    std::int32_t middle = 8;             ///< where a glyph's middle is, font units within +-4096, both ways
    std::int32_t x = 128, y = 128;       ///< vanishing point, target pixels
    std::int32_t growth = fixedOne / 20; ///< 16.16, what a frame adds to a scale, as a share of it
    std::int32_t interval = 30;          ///< frames from word to word
    std::int32_t wait = 0;               ///< frames until the next word starts
    std::int32_t spread = 12;            ///< drifts are drawn from -spread..spread, pixels up to 4096
    std::int32_t hueStep = 200;          ///< palette entries from word to word
    std::int32_t hue;                    ///< palette entry of the next word; random
    std::int32_t echoes = 3;             ///< copies behind each word, 0..8
    RANDOM* random;                      ///< owned; decides drifts and twists
    WORDZOOM_FLIGHT flights[WORDZOOM_flights];
};

extern const IDENTITY WORDZOOM_identity;
extern std::uint8_t WORDZOOM_verbose;

/// An empty sky (two draws of chance()), or nullptr (reported).
WORDZOOM* WORDZOOM_new();

/// Binds a text, which must stay. Words that fly are gone; the first one of the new text starts at once.
void WORDZOOM_setText(WORDZOOM* zoom, const char* text);

/// Draws the first word's hue and a new counter for the generator of drifts and twists: two numbers from
/// chance().
void WORDZOOM_randomize(WORDZOOM* zoom);

/// One frame: words grow, those that have passed are gone, and the next one starts when it is due if there is
/// a free place.
void WORDZOOM_advance(WORDZOOM* zoom);

/// Adds the words to the target; a missing font is reported.
void WORDZOOM_draw(const WORDZOOM* zoom, IMG* target);

/// Frees the generator and the record and stores nullptr in the handle; text, font and palette are untouched.
void WORDZOOM_delete(WORDZOOM** handle);

/// Prints "WORDZOOM error" while WORDZOOM_verbose is set.
void WORDZOOM_error();

} // namespace velm
