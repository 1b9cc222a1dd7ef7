// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A line font to read back: every glyph is a single pixel of the character's own colour.
//
//     const PixelPen pen(8, 4);
//     LFONT_drawLine(pen, "AB");
//     EXPECT_EQ(pen.row(0), "AB......");
#pragma once

#include "effects/lfont.h"
#include "support/owned.h"
#include "vector/objects.h"

namespace velm::test {

/// A pen with a spacing of one pixel over a black target. There are glyphs from ' ' to '`', '?' excepted.
struct PixelPen {
    PixelPen(std::int32_t width, std::int32_t height)
        : target(IMG_newSized(width, height)), font(fontText().c_str()) {
        pen->glyphs = font.list;
        pen->target = target;
        pen->spacing->x = pen->spacing->y = 1;
    }
    ~PixelPen() { pen->glyphs = nullptr; } // the font's own
    PixelPen(const PixelPen&) = delete;
    PixelPen& operator=(const PixelPen&) = delete;
    operator LFONT*() const { return pen; }
    LFONT* operator->() const { return pen; }

    /// What stands in a row of the target, '.' where nothing was drawn.
    [[nodiscard]] std::string row(std::int32_t y) const { return rowText(target, y); }

    Picture target;
    Objects font;
    Owned<LFONT_delete> pen{LFONT_new()};

private:
    static std::string fontText() {
        std::ostringstream text;
        for (std::int32_t code = 0; code <= '`'; ++code) {
            text << (code < ' ' || code == '?' ? "} #" : "{ c $") << std::hex << code << " s 0 0 0 0 }\n";
        }
        return text.str();
    }
};

} // namespace velm::test
