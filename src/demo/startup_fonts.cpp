// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The fonts that start-up makes: six bitmap fonts, one of them a strip of digits that roll into each other,
// and three lists of line drawings with their pens.
#include "demo/assets.h"
#include "demo/state.h"
#include "demo/velm4030.h"
#include "foundation/asset.h"
#include "image/imgfx.h"

namespace velm {

namespace {

constexpr std::int32_t cell = 16; ///< width and height of most glyphs, pixels

FONT* makeFont(std::int32_t width, std::int32_t height, IMG* sheet) {
    FONT* const font = FONT_new();
    if (font != nullptr) {
        font->width = width;
        font->height = height;
        font->image = sheet;
        font->target = demo.screen;
    }
    return font;
}

/// The first row of the glyph sheet over a light blue ground.
IMG* makeLightSheet(const IMG* sheet) {
    constexpr std::int32_t width = 256;
    IMG* const light = IMG_newSized(width, cell);
    IMG_fill(light, 0x44EEFF);
    IMG_blit(sheet, light, 0, 0, 0, 0, width, cell);
    IMG_addColour(light, 0x808080);
    return light;
}

/// Copies cell (i / 2) + firstCell of a column to cell i of `strip`, so that every cell stands twice.
void doubleCells(const IMG* column, IMG* strip, std::int32_t firstCell) {
    for (std::int32_t i = 0; i < strip->height / cell; ++i) {
        IMG_blit(column, strip, 0, (i / 2 + firstCell) * cell, 0, i * cell, cell, cell);
    }
}

/// Blends every second cell half into the one after it, the last into the first.
void blendCells(IMG* strip) {
    const std::int32_t cells = strip->height / cell;
    for (std::int32_t i = 1; i < cells; i += 2) {
        IMGFX_averageBlit(strip, strip, 0, i * cell, 0, (i + 1) % cells * cell, cell, cell);
    }
}

/// Ten digits that dissolve into each other over 80 cells, made in three doublings.
IMG* makeRollingStrip(const IMG* digits) {
    constexpr std::int32_t digitCount = 10;
    constexpr std::int32_t firstDigitCell = 2;
    IMG* const strip = IMG_newSized(cell, 2 * digitCount * cell);
    IMG* between = IMG_newSized(cell, 4 * digitCount * cell);
    if (strip != nullptr && between != nullptr) {
        doubleCells(digits, strip, firstDigitCell);
        blendCells(strip);
        doubleCells(strip, between, 0);
        blendCells(between);
        IMG_setSize(strip, cell, 8 * digitCount * cell);
        doubleCells(between, strip, 0);
        blendCells(strip);
    }
    if (between != nullptr) {
        IMG_delete(&between);
    }
    return strip;
}

/// Parses line drawings and moves each by (offset, offset), from the last to the first.
LIST* parseDrawings(const ASSET& asset, std::int32_t offset) {
    LIST* const list = OBJ2D_parse(asset.bytes);
    if (list == nullptr || offset == 0) {
        return list;
    }
    for (std::int32_t i = list->count - 1; i >= 0; --i) {
        if (auto* const obj = static_cast<OBJ2D*>(LIST_get(list, i)); obj != nullptr) {
            obj->position->x = offset;
            obj->position->y = offset;
            OBJ2D_applyPosition(obj);
        }
    }
    return list;
}

LFONT* makePen(LIST* glyphs, std::int32_t spacing) {
    LFONT* const pen = LFONT_new();
    if (pen != nullptr) {
        pen->spacing->x = spacing;
        pen->spacing->y = spacing;
        pen->glyphs = glyphs;
        pen->target = demo.screen;
    }
    return pen;
}

} // namespace

void VELM4030_bitmapFontSetup() {
    constexpr std::int32_t shadedWidth = 32;
    constexpr std::int32_t shadedHeight = 64;
    IMG* const sheet = assets::decode(assets::font_sheet);
    IMG* const digits = assets::decode(assets::digits_a);
    demo.fontBitmap1 = makeFont(cell, cell, sheet);
    demo.fontBitmap2 = makeFont(cell, cell, makeLightSheet(sheet));
    demo.fontBitmap3 = makeFont(shadedWidth, shadedHeight, assets::decode(assets::font_shaded));
    demo.fontBitmap4 = makeFont(cell, cell, digits);
    demo.fontBitmap5 = makeFont(cell, cell, makeRollingStrip(digits));
    demo.stripImage = assets::decode(assets::strip);
    demo.fontBitmap6 = makeFont(cell, cell, assets::decode(assets::digits_b));
}

void VELM4030_lineFontSetup() {
    constexpr std::int32_t smallSpacing = 8;
    constexpr std::int32_t largeSpacing = 16;
    demo.fontSmall = parseDrawings(assets::font_small, -smallSpacing / 2);
    demo.fontMedium = parseDrawings(assets::font_medium, 0);
    demo.fontLarge = parseDrawings(assets::drawings, -largeSpacing / 2);
    demo.textSmall = makePen(demo.fontSmall, smallSpacing);
    demo.textMedium = makePen(demo.fontMedium, largeSpacing);
    demo.textLarge = makePen(demo.fontLarge, largeSpacing);
}

} // namespace velm
