// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What stands over the picture, in the demo's own small line font: a line that was said, for a while, or the
// keys. The demo's frame stays as it is.
//
//     OVERLAY_say("volume 80 %");
//     draw(OVERLAY_over(frame));
#pragma once

#include "image/img.h"

#include <string>

namespace velm {

/// Shows a line at the picture's foot for a second or so.
void OVERLAY_say(const std::string& line);

/// Shows the keys, or hides them.
void OVERLAY_toggleHelp();

/// The frame, or a copy with what is to stand over it; the copy lasts until the next call.
const IMG& OVERLAY_over(const IMG& frame);

/// Draws the picture without the line that was said when its time is over; to be called while no frames come.
void OVERLAY_refresh();

} // namespace velm
