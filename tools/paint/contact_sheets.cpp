// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "paint/contact_sheets.h"

#include "foundation/list.h"
#include "foundation/owned.h"
#include "foundation/sine.h"
#include "image/img.h"
#include "image/rgb888.h"
#include "paint/files.h"
#include "paint/paint.h"
#include "paint/shading.h"
#include "vector/obj2d.h"
#include "vector/vec2d.h"

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

namespace velm::paint {

namespace {

constexpr std::int32_t enlargement = 4;
constexpr std::int32_t margin = 8;
constexpr std::uint32_t paper = 0x202028; ///< around the pictures, so that their black edges show

void deleteObjects(LIST** list) {
    for (std::int32_t i = 0; i < (*list)->count; ++i) {
        auto* object = static_cast<OBJ2D*>(LIST_get(*list, i));
        if (object != nullptr) {
            delete[] object->name;
            OBJ2D_deleteSegments(object);
            OBJ2D_delete(&object);
        }
    }
    LIST_delete(list);
}

/// Parsed drawings.
using Objects = Owned<deleteObjects>;

Objects parse(const std::string& text) {
    return Objects(OBJ2D_parse(text.c_str()));
}

/// Every pixel becomes a square.
void drawEnlarged(const IMG& img, IMG& sheet, std::int32_t left, std::int32_t top, std::int32_t factor) {
    for (std::int32_t y = 0; y < img.height; ++y) {
        for (std::int32_t x = 0; x < img.width; ++x) {
            IMG_fillRect(&sheet, left + x * factor, top + y * factor, factor, factor,
                         IMG_getPixel(&img, x, y));
        }
    }
}

/// The picture as it is, and enlarged below.
Picture twice(const IMG& img) {
    Picture sheet =
        makePicture(img.width * enlargement + 2 * margin, img.height * (enlargement + 1) + 3 * margin);
    IMG_fill(sheet, paper);
    drawEnlarged(img, *sheet, margin, margin, 1);
    drawEnlarged(img, *sheet, margin, img.height + 2 * margin, enlargement);
    return sheet;
}

/// A font as the sheets see it: its cell, and how a character gets to (x, y).
struct Face {
    std::int32_t width;
    std::int32_t height;
    std::function<void(IMG&, char, std::int32_t, std::int32_t)> draw;
};

/// Writes a line of text from (x, y) on.
void write(IMG& img, const Face& face, const std::string& text, std::int32_t x, std::int32_t y) {
    for (const char character : text) {
        face.draw(img, character, x, y);
        x += face.width;
    }
}

/// All printable characters, then words.
Picture specimen(const Face& face) {
    const std::vector<std::string> lines = {
        " !\"#$%&'()*+,-./", "0123456789:;<=>?", "@ABCDEFGHIJKLMNO", "PQRSTUVWXYZ[\\]^_",
        "`abcdefghijklmno",  "pqrstuvwxyz{|}~",  "SPHINX OF BLACK",  "QUARTZ, JUDGE MY",
        "vow: pack my box",  "with five dozen",  "liquor jugs! 1Ef",
    };
    constexpr std::int32_t columns = 16;
    Picture img = makePicture(face.width * columns, face.height * static_cast<std::int32_t>(lines.size()));
    std::int32_t y = 0;
    for (const std::string& line : lines) {
        write(*img, face, line, 0, y);
        y += face.height;
    }
    return img;
}

Face lineFace(const LIST* glyphs, std::int32_t size, std::uint32_t colour) {
    return {size, size, [glyphs, colour](IMG& img, char character, std::int32_t x, std::int32_t y) {
                auto* const glyph = static_cast<OBJ2D*>(LIST_get(glyphs, character));
                OBJ2D_setColour(glyph, colour);
                glyph->position->x = x;
                glyph->position->y = y;
                OBJ2D_draw(glyph, &img);
            }};
}

Face bitmapFace(const IMG* sheet, std::int32_t width, std::int32_t height) {
    return {width, height, [=](IMG& img, char character, std::int32_t x, std::int32_t y) {
                const std::int32_t along = width * character;
                IMG_blit(sheet, &img, along % sheet->width, along / sheet->width * height, x, y, width,
                         height);
            }};
}

/// A line of text in each face, to see that they belong together.
Picture family(const std::vector<std::pair<Face, std::string>>& faces) {
    constexpr std::int32_t gap = 6;
    std::int32_t width = 0;
    std::int32_t height = gap;
    for (const auto& [face, text] : faces) {
        width = std::max(width, face.width * static_cast<std::int32_t>(text.size()) + 2 * gap);
        height += face.height + gap;
    }
    Picture img = makePicture(width, height);
    std::int32_t y = gap;
    for (const auto& [face, text] : faces) {
        write(*img, face, text, gap, y);
        y += face.height + gap;
    }
    return img;
}

bool writeFontSheets(const std::string& place) {
    const Objects small = parse(writeFontSmall());
    const Objects medium = parse(writeFontMedium());
    const Picture sheet = paintFontSheet();
    const Picture shaded = paintFontShaded();
    const Picture faces =
        family({{bitmapFace(shaded, 32, 64), "Sphinx 4030"},
                {bitmapFace(sheet, 16, 16), "SPHINX OF BLACK QUARTZ"},
                {bitmapFace(sheet, 16, 16), "Judge my vow: O0 I1l!*"},
                {lineFace(medium, 16, 0x60FFC0), "SPHINX OF BLACK QUARTZ"},
                {lineFace(medium, 16, 0x60FFC0), "Judge my vow: O0 I1l!*"},
                {lineFace(small, 8, 0xFFC060), "SPHINX OF BLACK QUARTZ, judge my vow: 012345"}});
    return writePng(place + "faces.png", *twice(*faces)) &&
           writePng(place + "font_small.png", *twice(*specimen(lineFace(small, 8, 0xFFC060)))) &&
           writePng(place + "font_medium.png", *twice(*specimen(lineFace(medium, 16, 0x60FFC0)))) &&
           writePng(place + "font_sheet.png", *twice(*specimen(bitmapFace(sheet, 16, 16)))) &&
           writePng(place + "font_shaded.png", *twice(*specimen(bitmapFace(shaded, 32, 64)))) &&
           writePng(place + "font_sheet_cells.png", *twice(*sheet)) &&
           writePng(place + "font_shaded_cells.png", *twice(*shaded));
}

/// A column of square cells, side by side.
Picture inRow(const IMG& column) {
    const std::int32_t cell = column.width;
    Picture row = makePicture(column.height, cell);
    for (std::int32_t at = 0; at < column.height; at += cell) {
        IMG_blit(&column, row, 0, at, at, 0, cell, cell);
    }
    return row;
}

/// The picture on its side, the top to the left.
Picture turned(const IMG& img) {
    Picture side = makePicture(img.height, img.width);
    for (std::int32_t i = 0; i < img.width * img.height; ++i) {
        IMG_putPixel(side, i / img.width, i % img.width, img.pixels[i]);
    }
    return side;
}

/// The pointer on black, on its brightest colour and on white.
Picture pointerGrounds() {
    const Picture pointer = paintPointer();
    Picture grounds = makePicture(3 * pointer->width, pointer->height);
    std::int32_t x = 0;
    for (const std::uint32_t ground : {0x000000U, 0x20D0FFU, 0xFFFFFFU}) {
        IMG_fillRect(grounds, x, 0, pointer->width, pointer->height, ground);
        IMG_blit(pointer, grounds, 0, 0, x, 0, pointer->width, pointer->height);
        x += pointer->width;
    }
    return grounds;
}

/// All pictures under each other, small ones side by side.
bool writePictureSheet(const std::string& place) {
    constexpr std::int32_t wide = 256 * enlargement;
    constexpr std::int32_t half = wide / 2;
    constexpr std::int32_t right = half + margin;
    constexpr std::int32_t pair = 2 * (half + margin);         // the row of pictures A and B
    constexpr std::int32_t small = pair + half / 2 + margin;   // the row of the logo
    constexpr std::int32_t digits = small + half / 2 + margin; // the first row of digits
    constexpr std::int32_t digitRow = 16 * enlargement + margin;
    struct Placed {
        Picture picture;
        std::int32_t x;
        std::int32_t y;
    };
    const Placed placed[] = {
        {paintPictureWide(), 0, 0},
        {paintPictureMask(), 0, half + margin},
        {paintPictureA(), 0, pair},
        {paintPictureB(), right, pair},
        {paintLogo(), 0, small},
        {pointerGrounds(), right, small},
        {turned(*paintStrip()), right, small + digitRow},
        {inRow(*paintDigitsA()), 0, digits},
        {inRow(*paintDigitsB()), 0, digits + digitRow},
    };
    Picture sheet = makePicture(right + half + 2 * margin, digits + 2 * digitRow + margin);
    IMG_fill(sheet, paper);
    for (const auto& [picture, x, y] : placed) {
        drawEnlarged(*picture, *sheet, margin + x, margin + y, enlargement);
    }
    return writePng(place + "pictures.png", *sheet);
}

/// Some drawings in two columns, each in a row of eight angles.
Picture angleSheet(const LIST* drawings, std::int32_t first, std::int32_t count) {
    constexpr std::int32_t angles = 8;
    constexpr std::int32_t columns = 2;
    constexpr std::int32_t room = 84; ///< what a turning drawing needs
    constexpr std::int32_t middle = 8;
    Picture sheet = makePicture(columns * angles * room, (count + columns - 1) / columns * room);
    for (std::int32_t i = 0; i < count * angles; ++i) {
        auto* const drawing = static_cast<OBJ2D*>(LIST_get(drawings, first + i / angles));
        if (i % angles == 0) {
            drawing->position->x = drawing->position->y = -middle;
            OBJ2D_applyPosition(drawing);
        }
        drawing->scale->x = drawing->scale->y = enlargement;
        drawing->angle = static_cast<std::uint32_t>(i % angles * SINE_tableLength / angles);
        drawing->position->x = i % (angles * columns) * room + room / 2;
        drawing->position->y = i / (angles * columns) * room + room / 2;
        OBJ2D_setColour(drawing, blended(RGB888_hue((first * angles + i) * 14), 0xFFFFFF, whole / 2));
        OBJ2D_draw(drawing, sheet);
    }
    return sheet;
}

bool writeDrawingSheets(const std::string& place) {
    constexpr std::int32_t drawingsPerSheet = 28;
    const Objects drawings = parse(writeDrawings());
    std::int32_t number = 1;
    for (std::int32_t first = 0; first < drawings->count; first += drawingsPerSheet, ++number) {
        const std::int32_t count = std::min(drawingsPerSheet, drawings->count - first);
        if (!writePng(place + "drawings_" + std::to_string(number) + ".png",
                      *angleSheet(drawings, first, count))) {
            return false;
        }
    }
    return true;
}

} // namespace

bool writeContactSheets(const std::string& directory) {
    const std::string place = directory + "/";
    return writeFontSheets(place) && writePictureSheet(place) && writeDrawingSheets(place);
}

} // namespace velm::paint
