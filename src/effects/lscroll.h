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

#include "audio/sample.h"
#include "effects/line_text.h"
#include "foundation/identity.h"
#include "foundation/sine.h"

#include <cstdint>

namespace velm {

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
    const LIST* glyphs;        ///< borrowed; a line font; nullptr
    const SAMPLE* palette;     ///< borrowed; colours; nullptr is white
    std::int32_t cell;         ///< width of a glyph, font units; 16
    std::int32_t middle;       ///< where a glyph's middle is, font units, both ways; 8
    std::int32_t scale;        ///< 16.16, target pixels per font unit; 1.0
    std::int32_t speed;        ///< 16.16 pixels a frame, against the path's direction when positive; 1.5
    LSCROLL_STATION* stations; ///< owned; the path, pixel by pixel
    std::int32_t length;       ///< stations, 1 or more; a line from left to right, 256
    SINE lift;                 ///< off the path: `speed` 12 a frame, `offsetStep` 60 a glyph, in 1/1024 turns
    std::int32_t liftHeight;   ///< the most that a glyph is lifted, pixels; 10
    SINE swing;                ///< of each glyph: `speed` 9 a frame, `offsetStep` 45 a glyph
    std::int32_t swingAngle;   ///< the most that a glyph swings, 1/1024 turns; 40
    std::int32_t hue;          ///< palette entry of the path's beginning; random
    std::int32_t hueSpeed;     ///< palette entries a frame; 5
    std::int32_t hueStep;      ///< palette entries from glyph to glyph; 24
    std::int32_t fade;         ///< pixels over which glyphs come and go at the path's ends; 0 for none; 24
    std::int32_t light;        ///< brightness of it all, 0..256; 256
};

extern const IDENTITY LSCROLL_identity;
extern std::uint8_t LSCROLL_verbose;

/// A scroller with the defaults above (three draws of chance()), or nullptr (reported).
LSCROLL* LSCROLL_new();

/// Binds a text, which must stay, and goes to its beginning.
void LSCROLL_setText(LSCROLL* scroll, const char* text);

/// Leads the path from one point to another, in pixels -8192..8192. On failure it reports and the path
/// stays; so do the others.
void LSCROLL_setLine(LSCROLL* scroll, std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2);

/// Leads the path along a closed curve.
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
