// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "play/overlay.h"

#include "demo/assets.h"
#include "desktop/desktop.h"
#include "effects/lfont.h"
#include "foundation/asset.h"
#include "foundation/owned.h"
#include "platform/clock.h"
#include "play/keys.h"
#include "vector/obj2d.h"
#include "vector/vec2d.h"

#include <algorithm>
#include <string_view>

namespace velm {

namespace {

constexpr std::int32_t cell = 8;
constexpr std::int32_t lineHeight = 11;
constexpr std::int32_t margin = 6;

bool showsHelp = false;
std::string said;           ///< the last line
std::int64_t saidUntil = 0; ///< CLOCK_now() until which it stands; 0 when it is gone

/// A pen of its own: the demo's have a colour and a place that scenes rely on.
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

/// Darkens the picture behind the lines and draws them, in the middle of its height; a single line at its
/// foot. Draws nothing from chance and touches nothing of the demo's.
void writeOver(IMG& picture, const std::string& text) {
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

/// What is to stand over the picture now.
std::string textNow() {
    return showsHelp ? keysText : CLOCK_now() < saidUntil ? said : "";
}

} // namespace

void OVERLAY_say(const std::string& line) {
    constexpr std::int64_t micros = 1500000;
    said = line;
    saidUntil = CLOCK_now() + micros;
    desktopRedraw();
}

void OVERLAY_toggleHelp() {
    showsHelp = !showsHelp;
    desktopRedraw();
}

const IMG& OVERLAY_over(const IMG& frame) {
    static Owned<IMG_delete> picture;
    const std::string text = textNow();
    if (text.empty()) {
        return frame;
    }
    picture = Owned<IMG_delete>(IMG_clone(&frame));
    if (picture == nullptr) {
        return frame;
    }
    writeOver(*picture, text);
    return *picture;
}

void OVERLAY_refresh() {
    if (saidUntil != 0 && CLOCK_now() >= saidUntil) {
        saidUntil = 0;
        desktopRedraw();
    }
}

} // namespace velm
