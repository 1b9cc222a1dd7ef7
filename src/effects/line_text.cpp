// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/line_text.h"

#include "foundation/fixed.h"
#include "foundation/wrap.h"
#include "image/imgfx.h"
#include "vector/vec2d.h"

#include <algorithm>
#include <cstring>

namespace velm {

void setText(LineText& ring, const char* text) {
    constexpr std::size_t longest = 1U << 24;
    ring = {.text = text};
    ring.length = text == nullptr ? 0 : static_cast<std::int32_t>(std::min(std::strlen(text), longest));
}

void moveText(LineText& ring, std::int32_t speed, std::int32_t pitch) {
    if (ring.length <= 0 || pitch <= 0) {
        return;
    }
    const std::int64_t moved = std::int64_t{ring.offset} + speed;
    const std::int64_t places = moved >= 0 ? moved / pitch : -((pitch - 1 - moved) / pitch);
    ring.offset = static_cast<std::int32_t>(moved - places * pitch);
    ring.index = positiveModulo(static_cast<std::int32_t>((ring.index + places) % ring.length), ring.length);
}

std::int32_t placeOf(const LineText& ring, std::int32_t n) {
    return ring.length <= 0 ? 0 : static_cast<std::int32_t>((std::int64_t{ring.index} + n) % ring.length);
}

std::uint8_t characterOf(const LineText& ring, std::int32_t n) {
    if (ring.text == nullptr || ring.length <= 0) {
        return 0;
    }
    return static_cast<std::uint8_t>(ring.text[placeOf(ring, n)]);
}

std::int32_t pitchOf(std::int32_t cell, std::int32_t scale) {
    return static_cast<std::int32_t>(
        std::clamp<std::int64_t>(std::int64_t{cell} * scale, fixedOne, 0x7FFFFFFF));
}

std::int32_t scaleToFit(std::int32_t pixels, std::int32_t length, std::int32_t cell) {
    return static_cast<std::int32_t>(
        std::min<std::int64_t>(toFixed(pixels) / (std::int64_t{length} * cell), 0x7FFFFFFF));
}

const OBJ2D* glyphOf(const LIST* glyphs, std::uint8_t character) {
    if (glyphs == nullptr || character >= glyphs->count) {
        return nullptr;
    }
    return static_cast<const OBJ2D*>(LIST_get(glyphs, character));
}

void addStroke(IMG* target, const VEC2D& from, const VEC2D& to, std::uint32_t colour) {
    if (colour != 0) {
        IMGFX_addLine(target, from.x, from.y, to.x, to.y, colour);
    }
}

} // namespace velm
