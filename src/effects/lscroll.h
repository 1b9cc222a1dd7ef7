// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// LSCROLL, a scroller in line glyphs that follows a path: a straight line, a ring, a figure of eight, any
// Lissajous curve. Every glyph stands across the path, is lifted off it and swings by a sine of its own.
//
//     LSCROLL* scroll = LSCROLL_new();
//     scroll->glyphs = demo.fontMedium, LSCROLL_setText(scroll, "ROUND AND ROUND ");
//     LSCROLL_setCurve(scroll, {128, 128, 90, 90, 1, 1, 256}), LSCROLL_fit(scroll);
//     LSCROLL_advance(scroll), LSCROLL_draw(scroll, screen); // each frame
#pragma once

#include "effects/line_text.h"
#include "foundation/fixed.h"
#include "foundation/identity.h"
#include "foundation/list.h"
#include "foundation/sine.h"

#include <cstdint>

namespace velm {

struct IMG;
struct LIST;
struct SAMPLE;

/// One pixel of the way along a path.
struct LSCROLL_STATION {
    std::int32_t x, y;  ///< 16.16 target pixels
    std::int32_t angle; ///< where the path leads, 1/1024 turns; 0 is to the right, 256 down
};

/// x = centreX + radiusX * sin(turnsX * t + phase), y = centreY - radiusY * cos(turnsY * t), t a whole turn.
/// One turn of each and a phase of 0 make a ring, walked clockwise from its top; 1 and 2 a figure of eight.
struct LSCROLL_CURVE {
    std::int32_t centreX, centreY; ///< target pixels
    std::int32_t radiusX, radiusY; ///< pixels, up to 4096
    std::int32_t turnsX, turnsY;
    std::int32_t phase; ///< 1/1024 turns
};

struct LSCROLL {
    LineText text;
    const LIST* glyphs = nullptr;          ///< borrowed; a line font
    const SAMPLE* palette = nullptr;       ///< borrowed; colours, a ring; nullptr is white
    std::int32_t cell = 16;                ///< width of a glyph, font units
    std::int32_t middle = 8;               ///< where a glyph's middle is, font units, both ways
    std::int32_t scale = fixedOne;         ///< 16.16, target pixels per font unit
    std::int32_t speed = fixedOne * 3 / 2; ///< 16.16 pixels a frame; positive: against the path's direction
    LSCROLL_STATION* stations = nullptr;   ///< owned; the path, pixel by pixel
    std::int32_t length = 256; ///< stations, 1 or more; the first path is a line from left to right
    SINE lift{.speed = 12, .offsetStep = 60}; ///< off the path, a frame and from glyph to glyph, 1/1024 turns
    std::int32_t liftHeight = 10;             ///< the most that a glyph is lifted, pixels
    SINE swing{.speed = 9, .offsetStep = 45}; ///< of each glyph, in the same units
    std::int32_t swingAngle = 40;             ///< the most that a glyph swings, 1/1024 turns
    std::int32_t hue;                         ///< palette entry of the path's beginning; random
    std::int32_t hueSpeed = 5;                ///< palette entries a frame
    std::int32_t hueStep = 24;                ///< palette entries from glyph to glyph
    std::int32_t fade = 24;   ///< pixels over which glyphs come and go at the path's ends; 0 for none
    std::int32_t light = 256; ///< brightness of the whole text, 0..256
};

extern const IDENTITY LSCROLL_identity;
extern std::uint8_t LSCROLL_verbose;

/// A scroller without text and font (three draws of chance()), or nullptr (reported).
LSCROLL* LSCROLL_new();

/// Binds a text, which must stay, and goes to its beginning.
void LSCROLL_setText(LSCROLL* scroll, const char* text);

/// Leads the path from one point to another, in pixels -8192..8192. On failure it reports and the path stays.
void LSCROLL_setLine(LSCROLL* scroll, std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2);

/// Leads the path along a closed curve, with the same bounds and failures.
void LSCROLL_setCurve(LSCROLL* scroll, const LSCROLL_CURVE& curve);

/// Chooses the scale at which the whole text is as long as the path: on a closed path the last character
/// then meets the first. The ends no longer fade.
void LSCROLL_fit(LSCROLL* scroll);

/// Draws the phases of lift and swing and the hue: three numbers from chance().
void LSCROLL_randomize(LSCROLL* scroll);

/// One frame: the text moves on, the waves run, the hues turn.
void LSCROLL_advance(LSCROLL* scroll);

/// Adds the glyphs to the target; a missing font is reported.
void LSCROLL_draw(const LSCROLL* scroll, IMG* target);

/// Frees the path and the record and stores nullptr in the handle; text, font and palette are untouched.
void LSCROLL_delete(LSCROLL** handle);

/// Prints "LSCROLL error" while LSCROLL_verbose is set.
void LSCROLL_error();

} // namespace velm
