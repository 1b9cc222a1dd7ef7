// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What scenes write: a line of text about its middle, scaled, dimmed and typed. The pens are the demo's, so
// whoever writes puts them back as they were.
//
//     drawCaption(demo.textMedium, {.text = "HELLO", .y = 64, .weight = curveStay(frame, 0, 90, 20)});
#pragma once

#include "demo/scenes/curves.h"

#include <cstdint>
#include <limits>
#include <span>
#include <string_view>

namespace velm {

struct Caption {
    std::string_view text;
    std::int32_t x = 128; ///< its middle, pixels
    std::int32_t y = 128; ///< as LFONT counts it, pixels
    std::int32_t scale = 1;
    std::uint32_t colour = 0xFFFFFF;
    std::int32_t weight = curveFull; ///< of the colour; from 0 down nothing is drawn
    /// Characters from here up to and without `typed` are drawn, each in its place.
    std::int32_t first = 0;
    std::int32_t typed = std::numeric_limits<std::int32_t>::max();
};

/// Writes the caption with the small or the medium pen.
void drawCaption(LFONT* pen, const Caption& caption);

/// The same in strokes twice as wide, with a dark edge: it stays legible over anything. At a scale of 1 the
/// strokes of the small pen take two pixels.
void drawBoldCaption(LFONT* pen, const Caption& caption);

/// Twice as large and in pale colours, typed from frame `begin` on, a letter in two frames, and taken away
/// from frame `end` on, a letter a frame.
struct TypedCaption {
    std::string_view text;
    std::int32_t y, begin, end;
    std::int32_t hue = 0; ///< to be added to that of the frame
};
void typeCaptions(std::span<const TypedCaption> captions, std::int32_t frame, std::int32_t hue);

/// For as long as it lives a pen may be changed: afterwards it stands as before, and writes all glyphs in the
/// colour of the first that has one. nullptr is no pen.
class KeptPen {
public:
    explicit KeptPen(LFONT* kept);
    ~KeptPen();
    KeptPen(const KeptPen&) = delete;
    KeptPen& operator=(const KeptPen&) = delete;

private:
    LFONT* pen;
    LFONT before{};
    VEC2D position{};
    VEC2D scale{};
    std::uint32_t colour = 0xFFFFFF;
};

} // namespace velm
