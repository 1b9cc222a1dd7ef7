// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// RECT, rectangles in motion: a fleet that drifts and tumbles, a winding tunnel that the viewer flies
// through, or a nest of rectangles one inside the other; as thin frames or as panes of glass that add up or
// average.
//
//     RECT* rect = RECT_new();
//     rect->path = RECT_PATH::tunnel, rect->twist = 12;
//     RECT_advance(rect), RECT_draw(rect, screen); // each frame
#pragma once

#include "foundation/identity.h"
#include "foundation/sine.h"

#include <cstdint>

namespace velm {

struct IMG;

enum class RECT_PATH : std::uint8_t { drift, tunnel, nest };
enum class RECT_FACE : std::uint8_t { frame, pane, both }; ///< both: see RECT_draw
enum class RECT_MIX : std::uint8_t { set, add, average };

/// Where a rectangle stands: a corner, or its middle where it is turned. Pixels.
struct RECT_BOX {
    std::int32_t x, y;
    std::int32_t w, h; ///< negative: to the left, upwards
};

/// One of the fleet. Tunnels and nests take its colour only.
struct RECT_PANE {
    std::int32_t x, y;           ///< 16.16 pixels from the field's corner; its middle
    std::int32_t speedX, speedY; ///< 16.16 pixels a frame
    std::int32_t width, height;  ///< pixels, within +-16383, negative ones show the back; 16..79
    std::int32_t flip;           ///< 1/1024 turns about its upright axis: its width is seen from the side
    std::int32_t flipSpeed;      ///< added to `flip` a frame; -12..12
    std::int32_t turn;           ///< 1/1024 turns in the plane
    std::int32_t turnSpeed;      ///< added to `turn` a frame; -4..4
    std::uint32_t colour;        ///< 0x00RRGGBB; halved when its back is seen
};

struct RECT {
    std::int32_t x = 0, y = 0;              ///< the field's top left corner, target pixels
    std::int32_t width = 256, height = 256; ///< the field, pixels; what drifts out comes in on the other side
    RECT_PATH path = RECT_PATH::drift;
    RECT_FACE face = RECT_FACE::both;
    RECT_MIX mix = RECT_MIX::add;
    std::int32_t paneWidth = 192;  ///< of a tunnel's frame four steps away, of a nest's outermost, pixels
    std::int32_t paneHeight = 192; ///< the same
    std::int32_t travel = 0;       ///< how far a tunnel or nest has come, 1/256 steps
    std::int32_t speed = 24;       ///< added to `travel` a frame; negative: backwards
    std::int32_t turn = 0;         ///< of the nearest rectangle, 1/1024 turns
    std::int32_t turnSpeed = 2;    ///< added to `turn` a frame
    std::int32_t twist = 16;       ///< further turn from one rectangle to the next
    SINE windX{.speed = 3, .offsetStep = 48}; ///< how a tunnel or nest winds: a frame, and from step to step
    SINE windY{.speed = 2, .offsetStep = 40}; ///< the same up and down
    std::int32_t reach = 64;                  ///< how far it winds, pixels, a tunnel's seen four steps away
    std::int32_t brightness = 256;            ///< of all colours, 0..256
    std::int32_t count = 24;                  ///< rectangles
    RECT_PANE* panes = nullptr;               ///< owned
};

extern const IDENTITY RECT_identity;
extern std::uint8_t RECT_verbose;

/// A fleet (11 draws of chance() a pane), or nullptr (reported).
RECT* RECT_new();

/// Replaces the panes by `count` (>= 0) random ones. On failure it reports and the old ones stay.
void RECT_setCount(RECT* rect, std::int32_t count);

/// Draws every pane anew, 11 numbers of chance() each: x, y, both speeds, both sizes, flip, its speed, turn,
/// its speed, colour.
void RECT_randomize(RECT* rect);

/// One frame of all three paths: fleet, travel, turn and winding.
void RECT_advance(RECT* rect);

/// Draws along `path`, the farthest or innermost first. With both faces a pane has a quarter of its frame's
/// colour; in a tunnel, where all of them overlap, a sixteenth.
void RECT_draw(const RECT* rect, IMG* target);

/// One filled rectangle, the pixels of IMG_fillRect.
void RECT_drawPane(IMG* target, const RECT_BOX& box, std::uint32_t colour, RECT_MIX mix);

/// Its border alone, `thickness` pixels inwards; each pixel is mixed once.
void RECT_drawFrame(IMG* target, const RECT_BOX& box, std::int32_t thickness, std::uint32_t colour,
                    RECT_MIX mix);

/// A rectangle about its middle, turned by `angle` in 1/1024 turns; sizes within +-65535. A frame is four
/// lines of single pixels.
void RECT_drawTurned(IMG* target, const RECT_BOX& box, std::int32_t angle, RECT_FACE face,
                     std::uint32_t colour, RECT_MIX mix);

/// Frees the panes and the record and stores nullptr in the handle.
void RECT_delete(RECT** handle);

/// Prints "RECT error" while RECT_verbose is set.
void RECT_error();

} // namespace velm
