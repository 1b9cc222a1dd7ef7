// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// paint_assets DIRECTORY: paints every picture and writes every line drawing of the demo into DIRECTORY.
// paint_assets --sheet DIRECTORY: writes contact sheets of all of them instead.
// paint_assets --icons DIRECTORY: writes the program's icon in all sizes instead, and icon.pam for its
// windows.
#include "paint/contact_sheets.h"
#include "paint/files.h"
#include "paint/icon.h"
#include "paint/paint.h"

#include <cstdlib>
#include <iostream>

namespace velm::paint {

namespace {

bool paintBitmaps(const std::string& place) {
    return writeBitmap(place + "logo.pbm", "logo", *paintLogo(), Ink::clearBits) &&
           writeBitmap(place + "picture_mask.pbm", "picture mask", *paintPictureMask(), Ink::clearBits) &&
           writeBitmap(place + "font_sheet.pbm", "font sheet", *paintFontSheet(), Ink::setBits);
}

bool paintColours(const std::string& place) {
    return writeColour(place + "picture_a.ppm", "picture A", *paintPictureA()) &&
           writeColour(place + "picture_b.ppm", "picture B", *paintPictureB()) &&
           writeColour(place + "picture_wide.ppm", "wide picture", *paintPictureWide()) &&
           writeColour(place + "digits_a.ppm", "digits A", *paintDigitsA()) &&
           writeColour(place + "digits_b.ppm", "digits B", *paintDigitsB()) &&
           writeColour(place + "strip.ppm", "colour strip", *paintStrip()) &&
           writeColour(place + "pointer.ppm", "pointer", *paintPointer());
}

bool writeTexts(const std::string& place) {
    return writeFile(place + "font_small.obj2d", writeFontSmall()) &&
           writeFile(place + "font_medium.obj2d", writeFontMedium()) &&
           writeFile(place + "drawings.obj2d", writeDrawings());
}

bool paintAssets(const std::string& directory) {
    const std::string place = directory + "/";
    return paintBitmaps(place) && paintColours(place) && writeTexts(place) &&
           writeGrey(place + "font_shaded.pgm", "shaded font", *paintFontShaded());
}

} // namespace

} // namespace velm::paint

int main(int count, char** arguments) {
    const std::string directory = arguments[count - 1];
    const std::string choice = count == 3 ? arguments[1] : "";
    bool done = false;
    if (count == 2) {
        done = velm::paint::paintAssets(directory);
    } else if (choice == "--sheet") {
        done = velm::paint::writeContactSheets(directory);
    } else if (choice == "--icons") {
        done = velm::paint::writeIcons(directory) && velm::paint::writeIconOfWindows(directory + "/icon.pam");
    } else {
        std::cerr << "usage: paint_assets [--sheet | --icons] DIRECTORY\n";
    }
    return done ? EXIT_SUCCESS : EXIT_FAILURE;
}
