// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/copper_letters.h"

#include "demo/scenes/curves.h"

namespace velm {

namespace {

constexpr std::uint32_t almostBlack = 0x010101; // black itself is transparent

/// The ink of a row of a letter, of `height` rows.
std::uint32_t copperAt(std::int32_t row, std::int32_t height) {
    constexpr std::uint32_t pale = 0xFFF4C0, copper = 0xFF8A48, violet = 0xB050FF;
    return row < height / 2 ? curveMix(pale, copper, curveRise(row, 6, height / 2))
                            : curveMix(copper, violet, curveRise(row, height / 2, height));
}

/// A pen with the shaded sheet, every pixel of it in ink(row of the letter, brightness of the pixel).
template <typename Ink>
Owned<FONT_delete> makePen(Ink ink) {
    return Owned<FONT_delete>(FONT_new(), [ink](FONT& pen) {
        const FONT& shaded = *demo.fontBitmap3;
        pen.width = shaded.width;
        pen.height = shaded.height;
        pen.target = demo.screen;
        pen.image = IMG_clone(shaded.image);
        for (std::int32_t i = 0; pen.image != nullptr && i < pen.image->width * pen.image->height; ++i) {
            std::uint32_t& pixel = pen.image->pixels[i];
            if (pixel != 0) {
                pixel = ink(i / pen.image->width % pen.height, static_cast<std::int32_t>(pixel & 255));
            }
        }
    });
}

} // namespace

CopperLetters::CopperLetters()
    : face(makePen([](std::int32_t row, std::int32_t brightness) {
          return curveDim(copperAt(row, demo.fontBitmap3->height), brightness + 1) | almostBlack;
      })),
      shade(makePen([](std::int32_t, std::int32_t) { return almostBlack; })) {}

void CopperLetters::draw(char letter, std::int32_t x, std::int32_t y) const {
    constexpr struct { std::int32_t x, y; } edge[] = {{-2, 0}, {2, 0}, {0, -2}, {0, 2}, {3, 4}};
    const auto stamp = [&](FONT* pen, std::int32_t dx, std::int32_t dy) {
        pen->x = x + dx;
        pen->y = y + dy;
        pen->character = static_cast<unsigned char>(letter);
        FONT_drawChar(pen);
    };
    for (const auto& at : edge) {
        stamp(shade, at.x, at.y);
    }
    stamp(face, 0, 0);
}

} // namespace velm
