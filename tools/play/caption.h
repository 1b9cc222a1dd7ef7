// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Text over a picture, in the demo's own small line font.
//
//     drawCaption(picture, "volume 80 %");
#pragma once

#include "image/img.h"

#include <string>

namespace velm {

/// Darkens the picture behind the lines and draws them, in the middle of its height; a single line at its
/// foot. Draws nothing from chance and touches nothing of the demo's.
void drawCaption(IMG& picture, const std::string& text);

} // namespace velm
