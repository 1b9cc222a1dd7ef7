// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// LSCRLXYZ, a scroller in line glyphs on a surface in space: around a cylinder, up a screw, over a disc or
// along a waving ribbon, which turns about three axes. What is near is large and bright; the far side shows
// its letters from behind.
//
//     LSCRLXYZ* scroll = LSCRLXYZ_new();
//     scroll->glyphs = demo.fontMedium, LSCRLXYZ_setText(scroll, "GOING ROUND IN CIRCLES ");
//     scroll->shape = LSCRLXYZ_SHAPE::disc, scroll->radius = 90, LSCRLXYZ_fit(scroll);
//     LSCRLXYZ_advance(scroll), LSCRLXYZ_draw(scroll, screen); // each frame
#pragma once

#include "effects/line_text.h"
#include "foundation/fixed.h"
#include "foundation/identity.h"
#include "foundation/list.h"

#include <cstdint>

namespace velm {

struct IMG;
struct LIST;
struct SAMPLE;

/// What the text lies on. Its middle faces the viewer while all angles are 0.
enum class LSCRLXYZ_SHAPE : std::uint8_t {
    cylinder, ///< once around a standing cylinder
    screw,    ///< `turns` times around, rising by `rise` from turn to turn
    disc,     ///< once around the rim of a disc that faces the viewer, the letters' heads outwards
    ribbon    ///< straight, `radius` to both sides, waving by `rise` to and from the viewer
};

/// One value for each axis: x to the right, y down, z away from the viewer.
struct LSCRLXYZ_AXES {
    std::int32_t x, y, z;
};

struct LSCRLXYZ {
    LineText text;
    const LIST* glyphs = nullptr;    ///< borrowed; a line font
    const SAMPLE* palette = nullptr; ///< borrowed; colours, a ring; nullptr is white
    std::int32_t cell = 16;          ///< width of a glyph, font units
    std::int32_t middle = 8;         ///< where a glyph's middle is, font units within +-4096, both ways
    std::int32_t scale = fixedOne;   ///< 16.16, pixels per font unit at the middle's distance, up to 256.0
    std::int32_t speed = fixedOne;   ///< 16.16 pixels a frame along the surface
    LSCRLXYZ_SHAPE shape = LSCRLXYZ_SHAPE::cylinder;
    std::int32_t radius = 88;      ///< pixels, 1..4096
    std::int32_t turns = 3;        ///< of the screw, 1..64
    std::int32_t across = 0;       ///< pixels from the surface's middle to the line
    std::int32_t rise = 32;        ///< pixels from turn to turn, or of the ribbon's wave
    std::int32_t waves = 256;      ///< 1/1024 turns of the ribbon's wave per 64 pixels, within +-65536
    LSCRLXYZ_AXES angle;           ///< 1/1024 turns, about x first, then y, then z; random
    LSCRLXYZ_AXES spin{3, 5, 2};   ///< added to the angles a frame
    std::int32_t wave = 0;         ///< phase of the ribbon's wave, 1/1024 turns
    std::int32_t waveSpeed = 16;   ///< added to it a frame
    std::int32_t x = 128, y = 128; ///< where the surface's middle is, target pixels
    std::int32_t distance = 320;   ///< from the viewer to the middle, pixels, 1..8192
    std::int32_t hue;              ///< palette entry of the text's first character; random
    std::int32_t hueSpeed = 5;     ///< palette entries a frame
    std::int32_t hueStep = 24;     ///< palette entries from character to character
    std::int32_t dimmest = 40;     ///< brightness of the farthest strokes, 0..256
    std::int32_t light = 256;      ///< brightness of the whole text, 0..256
};

extern const IDENTITY LSCRLXYZ_identity;
extern std::uint8_t LSCRLXYZ_verbose;

/// A scroller without text and font (four draws of chance()), or nullptr (reported).
LSCRLXYZ* LSCRLXYZ_new();

/// Binds a text, which must stay, and goes to its beginning.
void LSCRLXYZ_setText(LSCRLXYZ* scroll, const char* text);

/// Pixels along the surface from the text's beginning to its end; 0 (reported) without a record.
std::int32_t LSCRLXYZ_length(const LSCRLXYZ* scroll);

/// Chooses the scale at which the whole text is as long as the surface: around a cylinder or a disc the last
/// character then meets the first.
void LSCRLXYZ_fit(LSCRLXYZ* scroll);

/// Draws the three angles and the hue: four numbers from chance().
void LSCRLXYZ_randomize(LSCRLXYZ* scroll);

/// One frame: the text moves on, the surface turns and waves, the hues turn.
void LSCRLXYZ_advance(LSCRLXYZ* scroll);

/// Adds the glyphs to the target; a missing font is reported.
void LSCRLXYZ_draw(const LSCRLXYZ* scroll, IMG* target);

/// Frees the record and stores nullptr in the handle; text, font and palette are untouched.
void LSCRLXYZ_delete(LSCRLXYZ** handle);

/// Prints "LSCRLXYZ error" while LSCRLXYZ_verbose is set.
void LSCRLXYZ_error();

} // namespace velm
