// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "vector/font.h"

#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/wrap.h"
#include "image/img.h"
#include "image/imgfx.h"
#include "vector/digits.h"

namespace velm {

const IDENTITY FONT_identity = makeIdentity("FONT", "C", "ZENDORAK", "20150522", "CODE");
std::uint8_t FONT_verbose = 0;

namespace {

constexpr char lineFeed = '\n';

struct Corner {
    std::int32_t x, y;
};

bool canDraw(const FONT* font) {
    return font != nullptr && font->image != nullptr && font->image->width > 0;
}

/// Where the cell of the current character begins: cells stand side by side on a strip that wraps at the
/// sheet's width.
Corner cellOf(const FONT& font) {
    const std::int32_t along = wrapMul(font.width, font.character);
    return {.x = along % font.image->width, .y = wrapMul(along / font.image->width, font.height)};
}

/// Draws the current cell with a rectangle copy and moves the pen, or reports.
template <typename Copy>
void drawWith(FONT* font, Copy copy) {
    if (refused(!canDraw(font), FONT_error)) {
        return;
    }
    const Corner cell = cellOf(*font);
    copy(font->image, font->target, cell.x, cell.y, font->x, font->y, font->width, font->height);
    font->x = wrapAdd(font->x, font->width);
}

/// Draws one character code after another. The caller has checked the pen.
void drawCode(FONT& font, std::uint32_t code) {
    font.character = static_cast<std::int32_t>(code);
    FONT_drawChar(&font);
}

/// Draws the lowest `digits` hexadecimal digits of a value, the highest first, or reports.
void drawHex(FONT* font, std::uint32_t value, std::int32_t digits) {
    if (refused(!canDraw(font), FONT_error)) {
        return;
    }
    forEachHexDigit(value, digits, [font](std::uint32_t character) { drawCode(*font, character); });
}

} // namespace

FONT* FONT_new() {
    return newRecord<FONT>(FONT_error);
}

void FONT_drawChar(FONT* font) {
    drawWith(font, IMG_blit);
}

void FONT_drawCharVariant1(FONT* font) {
    drawWith(font, IMGFX_opaqueBlit);
}

void FONT_drawCharVariant2(FONT* font) {
    drawWith(font, IMGFX_addBlit);
}

void FONT_drawHexByte(FONT* font, std::uint8_t value) {
    drawHex(font, value, 2);
}

void FONT_drawHexWord(FONT* font, std::uint16_t value) {
    drawHex(font, value, 4);
}

void FONT_drawHexLong(FONT* font, std::uint32_t value) {
    drawHex(font, value, 8);
}

void FONT_drawDecimal(FONT* font, std::uint32_t value) {
    if (refused(!canDraw(font), FONT_error)) {
        return;
    }
    forEachDecimalDigit(value, [font](std::uint32_t character) { drawCode(*font, character); });
}

void FONT_drawString(FONT* font, const char* text) {
    if (refused(!canDraw(font) || text == nullptr, FONT_error)) {
        return;
    }
    for (; *text != '\0' && *text != lineFeed; ++text) {
        drawCode(*font, static_cast<std::uint8_t>(*text));
    }
}

void FONT_drawText(FONT* font, const char* text) {
    if (refused(!canDraw(font) || text == nullptr, FONT_error)) {
        return;
    }
    const std::int32_t left = font->x;
    for (; *text != '\0'; ++text) {
        if (*text == lineFeed) {
            font->x = left;
            font->y = wrapAdd(font->y, font->height);
        } else {
            font->character = static_cast<std::uint8_t>(*text);
            FONT_drawCharVariant1(font);
        }
    }
}

void FONT_drawBig(FONT* big, FONT* small) {
    if (refused(!canDraw(big) || big->target == nullptr || !canDraw(small), FONT_error)) {
        return;
    }
    small->target = big->target;
    const Corner cell = cellOf(*big);
    for (std::int32_t row = 0; row < big->height; ++row) {
        for (std::int32_t column = 0; column < big->width; ++column) {
            if (IMG_getPixel(big->image, wrapAdd(cell.x, column), wrapAdd(cell.y, row)) != 0) {
                small->x = wrapAdd(big->x, wrapMul(column, small->width));
                small->y = wrapAdd(big->y, wrapMul(row, small->height));
                FONT_drawChar(small);
            }
        }
    }
    big->x = wrapAdd(big->x, wrapMul(big->width, small->width));
}

void FONT_delete(FONT** handle) {
    deleteRecord(handle, FONT_error, deletedBy(IMG_delete, &FONT::image));
}

void FONT_error() {
    reportLine(FONT_verbose, "FONT Error.");
}

} // namespace velm
