// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/caption.h"

namespace velm {

void drawCaption(LFONT* pen, const Caption& caption) {
    if (pen == nullptr || caption.weight <= 0) {
        return;
    }
    const KeptPen kept(pen);
    const std::int32_t cell = pen->spacing->x * caption.scale;
    const auto length = static_cast<std::int32_t>(caption.text.size());
    const std::int32_t origin = pen == demo.textSmall ? cell / 2 : 0; // small glyphs stand about their middle
    LFONT_setColour(pen, curveDim(caption.colour, caption.weight));
    LFONT_place(pen, caption.x - length * cell / 2 + caption.first * cell + origin, caption.y, caption.scale);
    for (std::int32_t i = caption.first; i < std::min(caption.typed, length); ++i) {
        pen->character = static_cast<unsigned char>(caption.text[static_cast<std::size_t>(i)]);
        LFONT_drawChar(pen);
    }
}

void drawBoldCaption(LFONT* pen, const Caption& caption) {
    if (caption.weight <= 0) {
        return;
    }
    const auto drawAt = [&](std::int32_t dx, std::int32_t dy, std::uint32_t colour) {
        Caption moved = caption;
        moved.x += dx;
        moved.y += dy;
        moved.colour = colour;
        drawCaption(pen, moved);
    };
    constexpr std::int32_t width = 2; // of a stroke, pixels
    for (std::int32_t k = -1; k <= width; ++k) {
        for (const std::int32_t edge : {-1, width}) {
            drawAt(k, edge, 0);
            drawAt(edge, k, 0);
        }
    }
    for (std::int32_t k = 0; k < width * width; ++k) {
        drawAt(k % width, k / width, caption.colour);
    }
}

void typeCaptions(std::span<const TypedCaption> captions, std::int32_t frame, std::int32_t hue) {
    constexpr std::int32_t framesOfLetter = 2;
    for (const TypedCaption& line : captions) {
        const std::int32_t first = std::max(frame - line.end, 0);
        const std::int32_t typed = (frame - line.begin) / framesOfLetter;
        if (first < std::min(typed, static_cast<std::int32_t>(line.text.size()))) {
            drawBoldCaption(demo.textSmall, {.text = line.text,
                                             .y = line.y,
                                             .scale = 2,
                                             .colour = RGB888_average(curveHue(hue + line.hue), 0xFFFFFF),
                                             .first = first,
                                             .typed = typed});
        }
    }
}

KeptPen::KeptPen(LFONT* kept) : pen(kept) {
    if (pen == nullptr) {
        return;
    }
    before = *pen;
    position = *pen->position;
    scale = *pen->scale;
    for (std::int32_t i = 0; pen->glyphs != nullptr && i < pen->glyphs->count; ++i) {
        const auto* const glyph = static_cast<const OBJ2D*>(LIST_get(pen->glyphs, i));
        if (glyph != nullptr && glyph->points->count > 0) {
            colour = static_cast<const VEC2D*>(LIST_get(glyph->points, 0))->colour;
            break;
        }
    }
}

KeptPen::~KeptPen() {
    if (pen != nullptr) {
        *pen = before;
        *pen->position = position;
        *pen->scale = scale;
        LFONT_setColour(pen, colour);
    }
}

} // namespace velm
