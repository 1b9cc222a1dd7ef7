// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// SAMDRAW, a sample as an oscilloscope shows it: a bar a column, from the centre line to the value. Positive
// values hang below the line, negative ones stand on it, full scale 16-bit nearly fills the picture.
//
//     SAMDRAW* scope = SAMDRAW_new();
//     scope->source = sam, scope->target = screen, scope->last = sam->sample->length - 1;
//     SAMDRAW_draw(scope);
#pragma once

#include "foundation/identity.h"

#include <cstdint>

namespace velm {

struct IMG;
struct SAM;

struct SAMDRAW {
    SAM* source = nullptr;               ///< borrowed; its sample is drawn
    IMG* target = nullptr;               ///< borrowed
    std::uint32_t background = 0x808080; ///< 0x00RRGGBB
    std::uint32_t lineColour = 0xFFFFFF; ///< 0x00RRGGBB, of the bars
    std::uint32_t markColour = 0x000000; ///< 0x00RRGGBB, of the extremes
    std::int32_t first = 0;              ///< index of the first value of the view
    std::int32_t last = 0;               ///< index of the last value of the view
};

extern const IDENTITY SAMDRAW_identity;
extern std::uint8_t SAMDRAW_verbose;

/// A new record. Ends the process with status -1 (reported) when memory runs out: see
/// docs/quirks.md.
SAMDRAW* SAMDRAW_new();

// All three put the view in order first: `first` is raised to 0, `last` lowered to the sample's last index,
// and the two are swapped when they are not in order. A missing source or target is reported.

/// Fills the target with the background and draws the view from the left, in the scale of the whole sample.
/// A missing sample leaves the background (reported).
void SAMDRAW_draw(SAMDRAW* draw);
/// The same with the mean of three neighbours for each value. What lies outside the sample counts as 0, and
/// is reported by SAMPLE.
void SAMDRAW_drawSmooth(SAMDRAW* draw);
/// Draws a bar at the first largest and at the first smallest value, the target's width being the whole
/// sample; no background. A missing or empty sample is reported.
void SAMDRAW_drawExtremes(SAMDRAW* draw);

/// Frees the record and stores nullptr in the handle; source and target stay.
void SAMDRAW_delete(SAMDRAW** handle);

/// Prints "SAMDRAW error." while SAMDRAW_verbose is set.
void SAMDRAW_error();

} // namespace velm
