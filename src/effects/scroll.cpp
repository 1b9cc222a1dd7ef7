// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/scroll.h"

#include "foundation/memory.h"
#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/wrap.h"
#include "image/img.h"
#include "vector/cursor.h"
#include "vector/font.h"

#include <cstring>

namespace velm {

const IDENTITY SCROLL_identity = makeIdentity("SCROLL", "CODE", "C", "20150628", "ZENDORAK");
std::uint8_t SCROLL_verbose = 0;

namespace {

constexpr char defaultText[] = "A scroll's default text. ";
constexpr std::int32_t edgeCharacters = 2; ///< the partial ones at both ends of the view

/// A cursor over the bytes of a text, or nullptr (reported by CURSOR).
CURSOR* newCursorOver(const char* text) {
    CURSOR* cursor = CURSOR_new();
    if (cursor != nullptr) {
        CURSOR_set(cursor, text, static_cast<std::int32_t>(std::strlen(text)), 1, 1);
    }
    return cursor;
}

bool canMove(const SCROLL* scroll) {
    return scroll != nullptr && scroll->text != nullptr && scroll->cursor != nullptr &&
           scroll->cursor->count > 0 && scroll->font != nullptr && scroll->font->width > 0;
}

/// Goes on by some characters, back when negative. The cursor keeps that step.
void moveBy(SCROLL& scroll, std::int32_t characters) {
    scroll.cursor->step = characters;
    CURSOR_advance(scroll.cursor);
}

void drawWith(SCROLL* scroll, void (*drawChar)(FONT*)) {
    if (refused(!canMove(scroll) || scroll->target == nullptr, SCROLL_error)) {
        return;
    }
    FONT* const font = scroll->font;
    CURSOR* const cursor = scroll->cursor;
    font->x = wrapSub(scroll->x, scroll->offset);
    font->y = scroll->y;
    font->target = scroll->target;
    CURSOR_save(cursor);
    cursor->step = 1; // also when the view is too narrow for anything to be walked
    for (std::int32_t i = wrapAdd(scroll->viewWidth / font->width, edgeCharacters); i > 0; --i) {
        // SCROLL_bytesAreSigned: one expects codes 0..255; bytes from 128 on count as negative, for which a
        // sheet has no cell, and leave a gap.
        font->character = signedByte(scroll->text[cursor->index]);
        drawChar(font);
        CURSOR_advance(cursor);
    }
    CURSOR_restore(cursor);
}

} // namespace

SCROLL* SCROLL_new() {
    // SCROLL_newFailsSilently: one expects a report when memory runs out; this constructor makes none of its
    // own.
    SCROLL* scroll = allocateRecord<SCROLL>();
    if (scroll != nullptr) {
        scroll->cursor = newCursorOver(defaultText);
        if (scroll->cursor == nullptr) {
            SCROLL_delete(&scroll);
        }
    }
    return scroll;
}

void SCROLL_setup(SCROLL* scroll, const char* text, FONT* font, IMG* target) {
    const bool complete = scroll != nullptr && text != nullptr && font != nullptr && target != nullptr;
    CURSOR* const cursor = complete ? newCursorOver(text) : nullptr;
    if (refused(cursor == nullptr, SCROLL_error)) {
        return;
    }
    CURSOR_delete(&scroll->cursor);
    scroll->cursor = cursor;
    scroll->text = text;
    scroll->font = font;
    scroll->target = target;
    scroll->x = scroll->y = scroll->z = 0;
    scroll->viewWidth = target->width;
    scroll->charHeight = font->height;
    scroll->fontField = font->character;
}

void SCROLL_step(SCROLL* scroll) {
    if (refused(!canMove(scroll), SCROLL_error)) {
        return;
    }
    const std::int32_t width = scroll->font->width;
    scroll->offset = wrapAdd(scroll->offset, scroll->speed);
    if (scroll->offset >= width) {
        moveBy(*scroll, scroll->offset / width);
        scroll->offset %= width;
    } else if (scroll->offset < 0) {
        // SCROLL_wholeCellBackwards: one expects an offset of 0..width-1; after whole cells backwards it is
        // the width itself, one character further back. It shows the same picture and is reduced by the next
        // step.
        moveBy(*scroll, wrapSub(scroll->offset / width, 1));
        scroll->offset = scroll->offset % width + width;
    }
}

void SCROLL_draw(SCROLL* scroll) {
    drawWith(scroll, FONT_drawChar);
}

void SCROLL_drawOpaque(SCROLL* scroll) {
    drawWith(scroll, FONT_drawCharVariant1);
}

void SCROLL_delete(SCROLL** handle) {
    deleteRecord(handle, SCROLL_error, deletedBy(CURSOR_delete, &SCROLL::cursor));
}

void SCROLL_error() {
    reportLine(SCROLL_verbose, "SCROLL error");
}

} // namespace velm
