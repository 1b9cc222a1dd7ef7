// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/name_drum.h"

#include "demo/scenes/caption.h"
#include "demo/scenes/readable.h"
#include "foundation/root.h"
#include "foundation/sine.h"

#include <cstdlib>
#include <utility>

namespace velm {

namespace {

constexpr std::int32_t stroke = 2;    // pixels that the letters' lines are wide
constexpr std::int32_t margin = 4;    // pixels before a name
constexpr std::int32_t letterTop = 5; // row of a plate where the pen's glyphs begin
constexpr std::int32_t lens = 12;     // pixels above and below the middle that stand at full size
constexpr std::int32_t lensEdge = 4;  // pixels over which the size goes down to a half
constexpr std::int32_t hueStep = 20;  // of the ramp, from plate to plate

/// How far a mark of the font has to go up to stand above a letter, pixels.
std::int32_t liftOf(const ReadableLetter& letter) {
    constexpr std::int32_t dot = 11, wave = 5, overCapital = 4;
    const bool isCapital = letter.base >= 'A' && letter.base <= 'Z';
    switch (letter.mark) {
    case '-':
    case ',':
    case '/':
        return 0;
    default:
        return (letter.mark == '.' ? dot : letter.mark == '~' ? wave : 0) + (isCapital ? overCapital : 0);
    }
}

void drawBold(char character, std::int32_t x, std::int32_t y) {
    for (std::int32_t i = 0; i < stroke * stroke; ++i) {
        LFONT_place(demo.textMedium, x + i % stroke, y + i / stroke, 1);
        demo.textMedium->character = static_cast<unsigned char>(character);
        LFONT_drawChar(demo.textMedium);
    }
}

/// A letter in the cell whose top left corner is (x, y).
void drawLetter(const ReadableLetter& letter, IMG* target, std::int32_t x, std::int32_t y) {
    constexpr std::int32_t boxX = 3, boxY = 2, boxWidth = 9, boxHeight = 11;
    if (letter.base == 0) {
        IMG_fillRect(target, x + boxX, y + boxY, boxWidth, boxHeight, 0xFFFFFF);
        IMG_fillRect(target, x + boxX + stroke, y + boxY + stroke, boxWidth - 2 * stroke,
                     boxHeight - 2 * stroke, 0);
        return;
    }
    drawBold(letter.base, x, y);
    if (letter.mark != ' ') {
        drawBold(letter.mark, x, y - liftOf(letter));
    }
}

/// The light on a row of a plate: a round bar between two dark gaps.
std::int32_t barLight(std::int32_t row, std::int32_t rows) {
    constexpr std::int32_t gap = 2, least = 50, most = 130;
    if (row < gap || row >= rows - gap) {
        return 0;
    }
    return least + SINE_scaled(most - least, (row - gap) * (SINE_tableLength / 2) / (rows - 2 * gap));
}

} // namespace

NameDrum::NameDrum() : names(IMG_newSized(2 * width, rows * kept)) {
    constexpr std::int32_t front = 92; // left edge of the plate in front, column
    constexpr std::int32_t curve = 46; // pixels by which the drum's ends lie further to the left
    constexpr std::int32_t radius = half + 1;
    std::int32_t v = 0;
    for (std::int32_t y = 0; y <= half; ++y) {
        const std::int32_t square = radius * radius - y * y;
        const std::int32_t away = rootOf(std::int64_t{square} << 16) / radius; // 8 bits
        const std::int32_t clear = curveFull - curveEase(y, lens - 1, lens + lensEdge - 1);
        const Row row = {.v = v,
                         .left = front - curve + ((curve * away) >> 8),
                         .step = 2 * one - (clear * one >> 8),
                         .light = away,
                         .front = clear};
        shape[half + y] = row;
        shape[half - y] = row;
        shape[half - y].v = -v;
        v += row.step * one / away;
    }
    reach = v / (rows * one) + 1;
}

void NameDrum::write(std::int32_t plate, std::string_view name) {
    const std::int32_t slot = positiveModulo(plate, kept);
    const std::int32_t shift = plate == (place + one / 2) >> 8 ? run : 0;
    Written& now = written[slot];
    if (now.is && now.plate == plate && now.run == shift) {
        return;
    }
    now = {.plate = plate, .run = shift, .is = true};
    IMG_fillRect(names, 0, slot * rows, names->width, rows, 0);
    const KeptPen keeper(demo.textMedium);
    LFONT_setColour(demo.textMedium, 0xFFFFFF);
    demo.textMedium->target = names;
    for (std::int32_t x = margin - shift; !name.empty() && x + letterWidth < names->width; x += letterWidth) {
        const ReadableLetter letter = takeLetter(name);
        if (x > -letterWidth) {
            drawLetter(letter, names, x, slot * rows + letterTop);
        }
    }
}

void NameDrum::drawRows(IMG* target) const {
    constexpr std::int32_t rim = 3; // pixels by which the lens is wider than the drum
    const std::int32_t seen = half * open >> 8;
    for (std::int32_t y = -seen; y < seen; ++y) {
        const std::int32_t at = half + y * curveFull / open;
        const Row& row = shape[at];
        const Row& next = shape[at + 1];
        drawRow(row, next, rowOf(*target, middle + y));
    }
    for (const std::int32_t y : {-lens - 1, lens + 1}) { // the rim of the lens
        const Row& row = shape[half + y];
        IMG_blendHLine(target, curveMix(curveHue(hue), 0xFFFFFF, curveFull / 2),
                       middle + y * open / curveFull, row.left - rim, row.left + width - 1 + rim,
                       static_cast<std::uint32_t>(open * 3 / 4));
    }
}

void NameDrum::drawRow(const Row& row, const Row& next, std::uint32_t* pixels) const {
    constexpr std::int32_t edge = 14; // pixels over which a name that is too long fades
    constexpr std::int32_t waveWidth = 2 * rows * one;
    const auto cell = [this](std::int32_t v) { // the row of `names` that lies v rows below the front
        const std::int32_t below = (place & 255) * rows + v + rows * one / 2;
        const std::int32_t plate = (place >> 8) + (below - positiveModulo(below, rows * one)) / (rows * one);
        return std::pair(plate, positiveModulo(plate, kept) * rows + positiveModulo(below, rows * one) / one);
    };
    const std::int32_t height = next.v - row.v;
    const auto [plate, line] = cell(row.v + height / 4);
    const std::int32_t second = cell(row.v + height * 3 / 4).second;
    const std::uint32_t* const upper = rowOf(*names, line);
    const std::uint32_t* const lower = rowOf(*names, second);

    // A plate under the lens is darker, for the name to stand out, until light falls on it.
    constexpr std::int32_t frontDimmed = 160, flareGain = 650, waveGain = 220, paleness = 150;
    const std::int32_t profile = barLight(line % rows, rows);
    const std::int32_t passing =
        wave == 0 ? 0 : curveFull - curveRise(std::abs(std::abs(row.v) - wave), 0, waveWidth);
    const std::int32_t glow =
        profile * ((row.front * flare >> 8) * flareGain + (passing * row.light >> 8) * waveGain) >> 16;
    const std::int32_t light = row.light * (curveFull + open) >> 9;
    const std::uint32_t colour = curveHue(hue + hueStep * plate);
    const std::uint32_t body = curveDim(
        colour, (profile * light >> 8) * (curveFull - (frontDimmed * row.front >> 8)) / curveFull + glow);
    const std::uint32_t ink =
        curveDim(curveMix(curveMix(colour, 0xFFFFFF, paleness), 0xFFFFFF, row.front), light);
    for (std::int32_t x = 0; x < width; ++x) {
        const std::int32_t u = x * row.step;
        const std::int32_t left = u >> 8, right = (u + row.step / 2) >> 8;
        const std::int32_t hits = static_cast<std::int32_t>((upper[left] & 1) + (upper[right] & 1) +
                                                            (lower[left] & 1) + (lower[right] & 1));
        const std::int32_t fade = std::min(curveFull, (width - x) * curveFull / edge);
        pixels[row.left + x] = hits == 0 ? body : curveMix(body, ink, hits * fade / 4);
    }
}

} // namespace velm
