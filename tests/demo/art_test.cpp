// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What the scenes need of the drawings; and the fonts: no glyph can be taken for another, and all stand on
// the same lines.
#include "demo/assets.h"
#include "support/owned.h"
#include "vector/objects.h"

#include <map>

namespace velm::test {
namespace {

// The default scene turns a drawing, four times as large, about a point 42 rows below the top edge.
TEST(Art, EveryDrawingHasRoomToTurn) {
    const Objects drawings(assets::drawings.bytes);
    ASSERT_GT(drawings.list->count, 0);
    for (std::int32_t i = 0; i < drawings.list->count; ++i) {
        const OBJ2D* const drawing = drawings[i];
        for (std::int32_t k = 0; k < drawing->points->count; ++k) {
            const auto* const point = static_cast<const VEC2D*>(LIST_get(drawing->points, k));
            const std::int32_t x = 4 * (point->x - 8);
            const std::int32_t y = 4 * (point->y - 8);
            EXPECT_LT(x * x + y * y, 43 * 43) << drawing->name << ": " << point->x << ", " << point->y;
        }
    }
}

/// A font's glyphs as pixels; what its letters share.
struct Face {
    const char* name;
    std::int32_t width;
    std::vector<std::vector<std::uint32_t>> cells; ///< by character code
};

Face lineFace(const char* name, const ASSET& text, std::int32_t size) {
    Face face = {name, size, {}};
    const Objects glyphs(text.bytes);
    for (std::int32_t code = 0; code < glyphs.list->count; ++code) {
        const Picture cell(IMG_newSized(size, size));
        OBJ2D_draw(glyphs[code], cell);
        face.cells.emplace_back(cell->pixels, cell->pixels + size * size);
    }
    return face;
}

Face sheetFace(const char* name, const ASSET& bytes, std::int32_t width, std::int32_t height) {
    Face face = {name, width, {}};
    const Picture sheet(IMG_fromPNM(bytes.bytes, bytes.size));
    for (std::int32_t at = 0; at < sheet->width * sheet->height / height; at += width) {
        const Picture cell(IMG_newSized(width, height));
        IMG_blit(sheet, cell, at % sheet->width, at / sheet->width * height, 0, 0, width, height);
        face.cells.emplace_back(cell->pixels, cell->pixels + width * height);
    }
    return face;
}

struct Extent {
    std::int32_t left = 99;
    std::int32_t right = -1;
    std::int32_t top = 99;
    std::int32_t bottom = -1;
};

Extent extentOf(const Face& face, char character) {
    Extent extent;
    const auto& cell = face.cells[static_cast<unsigned char>(character)];
    for (std::int32_t i = 0; i < static_cast<std::int32_t>(cell.size()); ++i) {
        if (cell[static_cast<std::size_t>(i)] != 0) {
            extent.left = std::min(extent.left, i % face.width);
            extent.right = std::max(extent.right, i % face.width);
            extent.top = std::min(extent.top, i / face.width);
            extent.bottom = std::max(extent.bottom, i / face.width);
        }
    }
    return extent;
}

void expectDistinct(const Face& face, std::size_t first, std::size_t last) {
    std::map<std::vector<std::uint32_t>, std::size_t> seen;
    seen[std::vector<std::uint32_t>(face.cells.at(first).size(), 0)] = ' ';
    for (std::size_t code = first; code <= last; ++code) {
        const auto [twin, isNew] = seen.emplace(face.cells.at(code), code);
        EXPECT_TRUE(isNew || code == ' ') << face.name << ": " << code << " looks like " << twin->second;
    }
}

TEST(Faces, NoGlyphIsEmptyOrLooksLikeAnother) {
    expectDistinct(lineFace("small", assets::font_small, 8), ' ', '~');
    expectDistinct(lineFace("medium", assets::font_medium, 16), ' ', '~');
    expectDistinct(sheetFace("sheet", assets::font_sheet, 16, 16), 0, 255);
    expectDistinct(sheetFace("shaded", assets::font_shaded, 32, 64), 0, 127);
    expectDistinct(sheetFace("digits A", assets::digits_a, 16, 16), 0, 15);
    expectDistinct(sheetFace("digits B", assets::digits_b, 16, 16), 0, 15);
}

TEST(Faces, LettersStandOnCommonLinesAndDigitsAreOfEqualWidth) {
    for (const Face& face :
         {lineFace("small", assets::font_small, 8), lineFace("medium", assets::font_medium, 16),
          sheetFace("sheet", assets::font_sheet, 16, 16)}) {
        const auto expectAll = [&face](std::string_view characters, std::int32_t Extent::*side, char like) {
            for (const char c : characters) {
                EXPECT_EQ(extentOf(face, c).*side, extentOf(face, like).*side) << face.name << c;
            }
        };
        expectAll("ABCDEFGHIJKLMNOPRSTUVWXYZ0123456789", &Extent::top, 'H');
        expectAll("ABCDEFGHIJKLMNOPRSTUVWXYZ0123456789abcdehiklmnorstuvwxz", &Extent::bottom, 'H');
        expectAll("acegmnopqrsuvwyz", &Extent::top, 'x');
        expectAll("123456789", &Extent::left, '0');
        expectAll("123456789", &Extent::right, '0');
        for (const char c : std::string_view("gjpqy")) {
            EXPECT_GT(extentOf(face, c).bottom, extentOf(face, 'H').bottom) << face.name << c << " descends";
        }
    }
}

TEST(Faces, AccentsTakeLittleOfTheirCapitals) {
    const Face face = sheetFace("sheet", assets::font_sheet, 16, 16);
    constexpr std::string_view plain = "AEIOUNY";
    constexpr std::string_view accented = "\xC0\xC9\xCC\xD2\xDA\xD1\xDD";
    for (std::size_t i = 0; i < plain.size(); ++i) {
        const Extent letter = extentOf(face, plain[i]);
        const Extent both = extentOf(face, accented[i]);
        EXPECT_EQ(both.bottom, letter.bottom) << plain[i];
        EXPECT_EQ(both.right - both.left, letter.right - letter.left) << plain[i];
        const auto& cell = face.cells[static_cast<unsigned char>(accented[i])];
        const auto gap = std::find(cell.begin() + 32, cell.begin() + 48, 0xFFFFFF);
        EXPECT_EQ(gap, cell.begin() + 48) << plain[i] << " touches its accent";
        EXPECT_TRUE(std::any_of(gap, gap + 16, [](auto pixel) { return pixel != 0; }))
            << plain[i] << " is low";
    }
}

} // namespace
} // namespace velm::test
