// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// LSCRLXYZ, a scroller in line glyphs on a surface in space: around a cylinder, up a screw, over a disc or
// along a waving ribbon, which turns about three axes. What is near is large and bright; the far side shows
// its letters from behind.
//
//     LSCRLXYZ* scroll = LSCRLXYZ_new();
//     scroll->glyphs = demo.fontMedium, LSCRLXYZ_setText(scroll, "GOING ROUND IN CIRCLES ");
//     scroll->shape = LSCRLXYZ_SHAPE::cylinder, scroll->radius = 90, LSCRLXYZ_fit(scroll);
//     LSCRLXYZ_advance(scroll), LSCRLXYZ_draw(scroll, screen); // each frame
#pragma once

#include "audio/sample.h"
#include "effects/line_text.h"
#include "foundation/identity.h"

#include <cstdint>

namespace velm {

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
    const LIST* glyphs;     ///< borrowed; a line font; nullptr
    const SAMPLE* palette;  ///< borrowed; colours; nullptr is white
    std::int32_t cell;      ///< width of a glyph, font units; 16
    std::int32_t middle;    ///< where a glyph's middle is, font units within +-4096, both ways; 8
    std::int32_t scale;     ///< 16.16, pixels per font unit at the middle's distance, to 256.0; 1.0
    std::int32_t speed;     ///< 16.16 pixels a frame along the surface; 1.0
    LSCRLXYZ_SHAPE shape;   ///< cylinder
    std::int32_t radius;    ///< pixels, 1..4096; 88
    std::int32_t turns;     ///< of the screw, 1..64; 3
    std::int32_t across;    ///< pixels that the line lies beside the surface's middle; 0
    std::int32_t rise;      ///< pixels from turn to turn, or of the ribbon's wave; 32
    std::int32_t waves;     ///< 1/1024 turns of the ribbon's wave per 64 pixels, within +-65536; 256
    LSCRLXYZ_AXES angle;    ///< 1/1024 turns, about x first, then y, then z; random
    LSCRLXYZ_AXES spin;     ///< added to the angles a frame; 3, 5, 2
    std::int32_t wave;      ///< phase of the ribbon's wave, 1/1024 turns; 0
    std::int32_t waveSpeed; ///< added to it a frame; 16
    std::int32_t x, y;      ///< where the surface's middle is, target pixels; 128, 128
    std::int32_t distance;  ///< from the viewer to the middle, pixels, 1..8192; 320
    std::int32_t hue;       ///< palette entry of the text's first character; random
    std::int32_t hueSpeed;  ///< palette entries a frame; 5
    std::int32_t hueStep;   ///< palette entries from character to character; 24
    std::int32_t dimmest;   ///< brightness of the farthest strokes, 0..256; 40
    std::int32_t light;     ///< brightness of it all, 0..256; 256
};

extern const IDENTITY LSCRLXYZ_identity;
extern std::uint8_t LSCRLXYZ_verbose;

/// A scroller with the defaults above (four draws of chance()), or nullptr (reported).
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
