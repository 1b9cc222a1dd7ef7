// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/lfont.h"

#include "foundation/chance.h"
#include "foundation/list.h"
#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/wrap.h"
#include "vector/digits.h"
#include "vector/obj2d.h"
#include "vector/vec2d.h"

namespace velm {

const IDENTITY LFONT_identity = makeIdentity("LFONT", "ZENDORAK", "20150521", "C", "CODE");
std::uint8_t LFONT_verbose = 0;

namespace {

constexpr char lineFeed = '\n';

/// Each channel 128..255.
std::uint32_t randomLightColour() {
    return (static_cast<std::uint32_t>(chance()) & 0x7F7F7FU) + 0x808080U;
}

bool isPen(const LFONT* pen) {
    return pen != nullptr && pen->position != nullptr && pen->spacing != nullptr && pen->scale != nullptr;
}

/// The glyph of the current character, or nullptr (reported).
OBJ2D* glyphOf(const LFONT& pen) {
    auto* glyph = static_cast<OBJ2D*>(LIST_get(pen.glyphs, pen.character));
    if (glyph == nullptr) {
        LFONT_error();
    }
    return glyph;
}

/// Poses the glyph as the pen stands, draws it and moves on.
void drawGlyph(LFONT& pen, OBJ2D& glyph) {
    VEC2D_copy(pen.scale, glyph.scale);
    glyph.angle = static_cast<std::uint32_t>(pen.angle);
    VEC2D_copy(pen.position, glyph.position);
    OBJ2D_draw(&glyph, pen.target);
    pen.position->x = wrapAdd(pen.position->x, wrapMul(pen.scale->x, pen.spacing->x));
}

void drawCode(LFONT& pen, std::uint32_t code) {
    pen.character = static_cast<std::int32_t>(code);
    LFONT_drawChar(&pen);
}

/// Draws the lowest `digits` hexadecimal digits of a value, the highest first, or reports.
void drawHex(LFONT* pen, std::uint32_t value, std::int32_t digits) {
    if (refused(pen == nullptr, LFONT_error)) {
        return;
    }
    forEachHexDigit(value, digits, [pen](std::uint32_t character) { drawCode(*pen, character); });
}

/// Colours every glyph with the next colour(), from the last to the first, or reports.
template <typename Colour>
void colourGlyphs(LFONT* pen, Colour colour) {
    if (refused(pen == nullptr || pen->glyphs == nullptr, LFONT_error)) {
        return;
    }
    for (std::int32_t i = pen->glyphs->count - 1; i >= 0; --i) {
        if (auto* glyph = static_cast<OBJ2D*>(LIST_get(pen->glyphs, i)); glyph != nullptr) {
            OBJ2D_setColour(glyph, colour());
        }
    }
}

/// LFONT_deleteLeavesList: one expects the list to go with its glyphs, or to stay whole; it stays allocated
/// with slots that point nowhere. Its owner may still delete it.
void deleteGlyphs(LFONT& pen) {
    const std::int32_t count = pen.glyphs == nullptr ? 0 : pen.glyphs->count;
    for (std::int32_t i = 0; i < count; ++i) {
        if (auto* glyph = static_cast<OBJ2D*>(LIST_get(pen.glyphs, i)); glyph != nullptr) {
            OBJ2D_delete(&glyph);
        }
    }
}

} // namespace

LFONT* LFONT_new() {
    return newRecord<LFONT>(LFONT_error, LFONT_delete, [](LFONT& pen) {
        pen.position = VEC2D_new();
        pen.spacing = VEC2D_new();
        pen.scale = VEC2D_new();
        if (refused(!isPen(&pen), LFONT_error)) {
            return false;
        }
        pen.spacing->x = pen.spacing->y = 16;
        pen.scale->x = pen.scale->y = 1;
        return true;
    });
}

void LFONT_place(LFONT* pen, std::int32_t x, std::int32_t y, std::int32_t scale) {
    if (refused(!isPen(pen), LFONT_error)) {
        return;
    }
    pen->scale->x = pen->scale->y = scale;
    pen->angle = 0;
    pen->position->x = x;
    pen->position->y = y;
}

void LFONT_setColour(LFONT* pen, std::uint32_t colour) {
    colourGlyphs(pen, [colour] { return colour; });
}

void LFONT_randomColours(LFONT* pen) {
    colourGlyphs(pen, randomLightColour);
}

void LFONT_drawChar(LFONT* pen) {
    if (refused(!isPen(pen) || pen->glyphs == nullptr || pen->character < 0 ||
                    pen->character >= pen->glyphs->count,
                LFONT_error)) {
        return;
    }
    if (OBJ2D* glyph = glyphOf(*pen); glyph != nullptr) {
        drawGlyph(*pen, *glyph);
    }
}

void LFONT_drawCharRandomColour(LFONT* pen) {
    if (refused(!isPen(pen) || pen->glyphs == nullptr, LFONT_error)) {
        return;
    }
    // LFONT_randomColourLeavesRangeToList: one expects the range test of LFONT_drawChar; a code out of range
    // gets to the list, whose reporter speaks first.
    if (OBJ2D* glyph = glyphOf(*pen); glyph != nullptr) {
        OBJ2D_setColour(glyph, randomLightColour());
        drawGlyph(*pen, *glyph);
    }
}

void LFONT_drawLine(LFONT* pen, const char* text) {
    if (refused(pen == nullptr || text == nullptr, LFONT_error)) {
        return;
    }
    for (; *text != '\0' && *text != lineFeed; ++text) {
        drawCode(*pen, static_cast<std::uint8_t>(*text));
    }
}

void LFONT_drawText(LFONT* pen, const char* text) {
    if (refused(!isPen(pen) || text == nullptr || pen->glyphs == nullptr || pen->target == nullptr,
                LFONT_error)) {
        return;
    }
    const std::int32_t left = pen->position->x;
    for (; *text != '\0'; ++text) {
        if (*text == lineFeed) {
            pen->position->y = wrapAdd(pen->position->y, wrapMul(pen->scale->y, pen->spacing->y));
            pen->position->x = left;
        } else {
            drawCode(*pen, static_cast<std::uint8_t>(*text));
        }
    }
}

void LFONT_drawHexByte(LFONT* pen, std::uint8_t value) {
    drawHex(pen, value, 2);
}

void LFONT_drawHexWord(LFONT* pen, std::uint16_t value) {
    drawHex(pen, value, 4);
}

void LFONT_drawHexLong(LFONT* pen, std::uint32_t value) {
    drawHex(pen, value, 8);
}

void LFONT_drawDecimal(LFONT* pen, std::uint32_t value) {
    if (refused(pen == nullptr, LFONT_error)) {
        return;
    }
    forEachDecimalDigit(value, [pen](std::uint32_t character) { drawCode(*pen, character); });
}

void LFONT_checkArgs(const void* a, const void* b) {
    if (a == nullptr || b == nullptr) {
        LFONT_error();
    }
}

void LFONT_delete(LFONT** handle) {
    deleteRecord(handle, LFONT_error, deletedBy(VEC2D_delete, &LFONT::position),
                 deletedBy(VEC2D_delete, &LFONT::spacing), deletedBy(VEC2D_delete, &LFONT::scale),
                 deleteGlyphs);
}

void LFONT_error() {
    reportLine(LFONT_verbose, "LFONT Error.");
}

} // namespace velm
