// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The files of demo/assets/, built into the program. Each constant is named after its file; to add one, put
// the file there and name it here.
//
//     IMG* logo = IMG_fromPNM(assets::logo.bytes, assets::logo.size);
#pragma once

#include "foundation/asset.h"
#include "image/img.h"

namespace velm::assets {

extern const ASSET logo;         ///< P4 128 x 64
extern const ASSET picture_a;    ///< P6 128 x 64
extern const ASSET picture_b;    ///< P6 128 x 64
extern const ASSET picture_mask; ///< P4 256 x 128
extern const ASSET picture_wide; ///< P6 256 x 128
extern const ASSET font_sheet;   ///< P4 256 x 256, glyphs 16 x 16, cell n is character code n
extern const ASSET font_shaded;  ///< P5 256 x 1024, glyphs 32 x 64
extern const ASSET digits_a;     ///< P6 16 x 256, a column of 16 x 16 cells, of which 2 to 11 roll
extern const ASSET digits_b;     ///< P6 16 x 256, one column of 16 x 16 cells
extern const ASSET strip;        ///< P6 8 x 128
extern const ASSET pointer;      ///< P6 16 x 16, the hot spot is the top left pixel
extern const ASSET font_small;   ///< line font on a grid of 0 to 7
extern const ASSET font_medium;  ///< line font on a grid of 0 to 15
extern const ASSET drawings;     ///< line drawings on a grid of 0 to 16
extern const ASSET scroll_text;  ///< what the scroller shows

/// The picture of a file, or nullptr (reported).
inline IMG* decode(const ASSET& picture) {
    return IMG_fromPNM(picture.bytes, picture.size);
}

} // namespace velm::assets
