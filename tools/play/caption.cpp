// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "play/caption.h"

#include "demo/assets.h"
#include "effects/lfont.h"
#include "vector/obj2d.h"
#include "vector/vec2d.h"

#include <algorithm>
#include <string_view>

namespace velm {

namespace {

constexpr std::int32_t cell = 8;
constexpr std::int32_t lineHeight = 11;
constexpr std::int32_t margin = 6;

/// A pen of the caption's own: the demo's have a colour and a place that scenes rely on.
LFONT* makePen() {
    LFONT* const pen = LFONT_new();
    if (pen != nullptr) {
        constexpr std::uint32_t colour = 0xFFFFFF;
        pen->glyphs = OBJ2D_parse(assets::font_small.bytes);
        pen->spacing->x = cell;
        pen->spacing->y = lineHeight;
        LFONT_setColour(pen, colour);
    }
    return pen;
}

/// Takes three quarters of the light from the rows of a picture.
void darken(IMG& picture, std::int32_t top, std::int32_t bottom) {
    constexpr std::uint32_t quarter = 0x3F3F3F;
    for (std::int32_t i = std::max(top, 0) * picture.width;
         i < std::min(bottom, picture.height) * picture.width; ++i) {
        picture.pixels[i] = picture.pixels[i] >> 2 & quarter;
    }
}

} // namespace

void drawCaption(IMG& picture, const std::string& text) {
    static LFONT* const pen = makePen();
    if (pen == nullptr) {
        return;
    }
    const auto ends = static_cast<std::int32_t>(std::count(text.begin(), text.end(), '\n'));
    const std::int32_t height = std::max(ends, 1) * lineHeight;
    const std::int32_t top = ends == 0 ? picture.height - height - margin : (picture.height - height) / 2;
    darken(picture, top - margin, top + height + margin);
    pen->target = &picture;
    LFONT_place(pen, margin, top, 1);
    LFONT_drawText(pen, text.c_str());
}

} // namespace velm
