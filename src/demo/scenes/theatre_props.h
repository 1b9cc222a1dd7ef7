// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What the numbers of the theatre show and throw: pictures that are made once, and confetti.
//
//     fireConfetti(*confetti);                                // on the beat
//     dropConfetti(*confetti), RECT_draw(confetti, screen); // each frame after it
#pragma once

#include "effects/raster.h"
#include "effects/rect.h"
#include "image/img.h"

namespace velm {

/// Picture B above its mirror image, 128 by 128, so that a column has no seam, and a rim on either side.
void prepareTapestry(IMG& tapestry);

/// Picture A at twice its size, smooth, in a golden frame; 272 by 144.
void preparePoster(IMG& poster);

/// How much of each pixel the mask with the name covers, 0..255, at any size.
void prepareCover(IMG& cover);

/// From magenta through the reds and back again, rolling upwards.
void prepareFlagBars(RASTER& bars);

/// A dusk that rolls slowly behind it all.
void prepareBackdrop(RASTER& backdrop);

/// 120 small panes from red over gold to green.
void prepareConfetti(RECT& confetti);

/// Two cannons in the wings load every pane and fire. Two draws of chance() a pane.
void fireConfetti(RECT& confetti);

/// One frame of its flight: up, and slowly down again.
void dropConfetti(RECT& confetti);

} // namespace velm
