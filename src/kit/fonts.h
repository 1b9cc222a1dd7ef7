// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The fonts of the demo, built into the library. KIT_new makes a pen of each.
//
//     LIST* glyphs = OBJ2D_parse(assets::kit_font_medium.bytes);
#pragma once

#include "foundation/asset.h"

namespace velm::assets {

extern const ASSET kit_font_small;  ///< line font, 8 by 8, for OBJ2D_parse
extern const ASSET kit_font_medium; ///< line font, 16 by 16, for OBJ2D_parse
extern const ASSET kit_font_sheet;  ///< P4 256 x 256, cell n is character code n, 16 by 16, white on black

} // namespace velm::assets
