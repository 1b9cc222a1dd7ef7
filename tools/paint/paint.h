// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The painter: every asset file of the demo comes from a function here. Only integers decide what a pixel or
// a coordinate becomes, so the same files come out on every machine.
//
//     Picture logo = paintLogo();
//     writeBitmap("logo.pbm", "logo", *logo, Ink::clearBits);
#pragma once

#include "foundation/owned.h"
#include "image/img.h"

#include <cstdint>
#include <string>

namespace velm::paint {

using Picture = Owned<IMG_delete>;

/// A black picture; ends the program with a message when memory runs out.
Picture makePicture(std::int32_t width, std::int32_t height);

/// How a bitmap file stores what is white in the picture: as set bits, which the demo shows as they are, or
/// as clear bits, for pictures that the demo inverts.
enum class Ink { setBits, clearBits };

// One function a picture; sizes in pixels.
Picture paintLogo();        ///< 128 x 64, black and white
Picture paintPictureA();    ///< 128 x 64
Picture paintPictureB();    ///< 128 x 64
Picture paintPictureWide(); ///< 256 x 128
Picture paintPictureMask(); ///< 256 x 128, white where the wide picture shall shine through
Picture paintFontSheet();   ///< 256 x 256, cell n of 16 x 16 is character code n
Picture paintFontShaded();  ///< 256 x 1024, cell n of 32 x 64 is character code n, greys
Picture paintDigitsA();     ///< 16 x 256, hexadecimal digit n in cell (n + 2) AND 15
Picture paintDigitsB();     ///< 16 x 256, the same order
Picture paintStrip();       ///< 8 x 128, one turn of the hue circle
Picture paintPointer();     ///< 16 x 16, the hot spot is the top left pixel

// One function a text.
std::string writeFontSmall();  ///< line font on a grid of 0 to 7
std::string writeFontMedium(); ///< line font on a grid of 0 to 15
std::string writeDrawings();   ///< line drawings on a grid of 0 to 16, turning about (8, 8)

} // namespace velm::paint
