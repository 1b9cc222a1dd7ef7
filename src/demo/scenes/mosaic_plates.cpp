// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/mosaic_plates.h"

#include "demo/scenes/acts.h"
#include "effects/line_text.h"
#include "foundation/root.h"

#include <algorithm>
#include <iterator>

namespace velm {

namespace {

constexpr std::uint32_t wall = 0xFFFFFF;

/// A drawing on the canvas, by its name among the drawings, about its middle.
struct Figure {
    std::string_view name;
    std::int32_t x, y, scale;
};

/// The drawing of that name, or nullptr.
const OBJ2D* drawingOf(std::string_view name) {
    for (std::int32_t i = 0; i < demo.fontLarge->count; ++i) {
        const auto* const obj = static_cast<const OBJ2D*>(LIST_get(demo.fontLarge, i));
        if (obj != nullptr && obj->name != nullptr && obj->name == name) {
            return obj;
        }
    }
    return nullptr;
}

/// Calls draw(a, b) with the ends of every stroke of a figure as it stands on the canvas.
template <typename Draw>
void forEachStrokeOf(const Figure& figure, Draw draw) {
    forEachStroke(drawingOf(figure.name), [&](const VEC2D& a, const VEC2D& b) {
        draw(VEC2D{figure.x + a.x * figure.scale, figure.y + a.y * figure.scale, 0},
             VEC2D{figure.x + b.x * figure.scale, figure.y + b.y * figure.scale, 0});
    });
}

/// A word about the middle of its row, in the small font, whose strokes are single lines.
struct Word {
    std::string_view text;
    std::int32_t y; ///< the middle of the letters
    std::int32_t scaleX, scaleY;
};

/// Calls draw(a, b) with the ends of every stroke of a word.
template <typename Draw>
void forEachStrokeOf(const Word& word, Draw draw) {
    constexpr std::int32_t cell = 8;
    const std::int32_t pitch = cell * word.scaleX;
    std::int32_t left = middle - pitch * static_cast<std::int32_t>(word.text.size() - 1) / 2;
    for (const char letter : word.text) {
        forEachStroke(glyphOf(demo.fontSmall, static_cast<std::uint8_t>(letter)),
                      [&](const VEC2D& a, const VEC2D& b) {
                          draw(VEC2D{left + a.x * word.scaleX, word.y + a.y * word.scaleY, 0},
                               VEC2D{left + b.x * word.scaleX, word.y + b.y * word.scaleY, 0});
                      });
        left += pitch;
    }
}

void drawLine(IMG* canvas, VEC2D a, VEC2D b, std::uint32_t colour) {
    a.colour = colour;
    const SEG2D stroke{&a, &b};
    SEG2D_draw(&stroke, canvas);
}

/// Draws the share of a plate's strokes that a weight tells. forEach(draw) calls draw(a, b) with each.
template <typename ForEach>
void drawShare(IMG* canvas, std::int32_t weight, ForEach forEach) {
    std::int32_t count = 0;
    forEach([&count](const VEC2D&, const VEC2D&) { ++count; });
    const std::int32_t shown = count * weight / curveFull;
    std::int32_t n = 0;
    forEach([&](const VEC2D& a, const VEC2D& b) {
        if (n++ < shown) {
            drawLine(canvas, a, b, wall);
        }
    });
}

/// Pixels from the picture's middle.
std::int32_t radiusOf(const Pane& pane) {
    const std::int32_t dx = pane.x - middle;
    const std::int32_t dy = pane.y - middle;
    return rootOf(dx * dx + dy * dy);
}

/// Twelve corners, each joined to each; the colour comes ring by ring from the middle, the sky last.
void drawRose(IMG* canvas, std::int32_t weight) {
    drawShare(canvas, weight, [](auto draw) {
        forEachStrokeOf(Figure{"mystic rose", middle, middle, 15}, draw);
    });
}

std::int32_t roseDelay(const Pane& pane) {
    return radiusOf(pane) / 3;
}

std::int32_t roseHue(const Pane& pane) {
    return 13 * radiusOf(pane);
}

/// Every stroke of a letter becomes a side of a body.
void drawLetters(IMG* canvas, std::int32_t weight) {
    constexpr VEC2D depth{10, 14, 0};
    constexpr Word words[] = {{"VELM", 58, 7, 9}, {"4030", 164, 7, 9}};
    drawShare(canvas, weight, [&](auto draw) {
        for (const Word& word : words) {
            forEachStrokeOf(word, [&](const VEC2D& a, const VEC2D& b) {
                VEC2D farA = a;
                VEC2D farB = b;
                VEC2D_add(&depth, &farA);
                VEC2D_add(&depth, &farB);
                draw(a, b);
                draw(a, farA);
                draw(b, farB);
                draw(farA, farB);
            });
        }
    });
}

constexpr std::int32_t groundArea = 8000; ///< what is larger is no part of a letter

std::int32_t lettersDelay(const Pane& pane) {
    return pane.area > groundArea ? 24 : (pane.x + pane.y / 2) / 10;
}

std::int32_t lettersHue(const Pane& pane) {
    return pane.area > groundArea ? 900 : 3 * pane.x + 300 * (pane.y / middle) + 64 * (pane.area % 5);
}

/// A maze of slashes; a corridor after the other takes colour, here and there.
void drawMaze(IMG* canvas, std::int32_t weight) {
    // A bit for each of 16 by 16: set, it leans to the right.
    constexpr std::uint16_t slashes[16] = {0xE86A, 0xD897, 0x7D4A, 0xCFE4, 0xB73E, 0xDBC2, 0xCEAC, 0xE974,
                                           0xA83A, 0xE77E, 0x860C, 0x122F, 0xA997, 0x2113, 0xC4D7, 0xEEDC};
    constexpr std::int32_t size = 16;
    drawShare(canvas, weight, [&](auto draw) {
        for (std::int32_t i = 0; i < 256; ++i) {
            const std::int32_t left = i % 16 * size;
            const std::int32_t top = i / 16 * size;
            const bool leansRight = (slashes[i / 16] >> (i % 16) & 1) != 0;
            draw(VEC2D{left, leansRight ? top + size : top, 0},
                 VEC2D{left + size, leansRight ? top : top + size, 0});
        }
    });
}

std::int32_t mazeDelay(const Pane& pane) {
    return (pane.x * 7 + pane.y * 5) % 32;
}

std::int32_t mazeHue(const Pane& pane) {
    return (pane.x + pane.y) * 5;
}

/// Sixteen figures in four rows; they are filled along the diagonals, the ground of each before its inside.
constexpr std::int32_t frameSize = 64;

void drawGallery(IMG* canvas, std::int32_t weight) {
    constexpr std::string_view names[16] = {
        "heart", "cat",    "flower", "gem",      "rocket",   "web",      "robot",    "iris",
        "globe", "clover", "leaf",   "cogwheel", "hexagram", "pinwheel", "carousel", "fir"};
    drawShare(canvas, weight, [&](auto draw) {
        for (std::int32_t line = 0; line <= 4; ++line) {
            const std::int32_t at = std::min(frameSize * line, 255);
            draw(VEC2D{0, at, 0}, VEC2D{255, at, 0});
            draw(VEC2D{at, 0, 0}, VEC2D{at, 255, 0});
        }
        for (std::int32_t i = 0; i < 16; ++i) {
            const std::int32_t x = frameSize / 2 + i % 4 * frameSize;
            const std::int32_t y = frameSize / 2 + i / 4 * frameSize;
            forEachStrokeOf(Figure{names[i], x, y, 3}, draw);
        }
    });
}

constexpr std::int32_t galleryGround = 1200; ///< pixels that only the ground of a figure has

std::int32_t galleryDelay(const Pane& pane) {
    const std::int32_t diagonal = pane.x / frameSize + pane.y / frameSize;
    return 4 * diagonal + (pane.area > galleryGround ? 0 : 6);
}

std::int32_t galleryHue(const Pane& pane) {
    const std::int32_t ground = 96 * (pane.x / frameSize + pane.y / frameSize * 4);
    return pane.area > galleryGround ? ground : ground + 700 + 60 * (pane.area % 3);
}

/// Words in outlines: every stroke is a band, whose inside is cut out after all bands of the letter.
void drawWords(IMG* canvas, std::int32_t weight) {
    constexpr Word words[] = {
        {"STAY", 32, 7, 6}, {"INSIDE", 90, 5, 6}, {"THE", 148, 9, 6}, {"LINES", 206, 6, 6}};
    const auto drawBands = [&](const Word& word, std::int32_t reach, std::uint32_t colour) {
        forEachStrokeOf(word, [&](VEC2D a, VEC2D b) {
            for (std::int32_t dy = -reach; dy <= reach; ++dy) {
                for (std::int32_t dx = -reach; dx <= reach; ++dx) {
                    drawLine(canvas, {a.x + dx, a.y + dy, 0}, {b.x + dx, b.y + dy, 0}, colour);
                }
            }
        });
    };
    const auto shown =
        static_cast<std::size_t>(std::size(words) * static_cast<std::size_t>(weight) / curveFull);
    for (std::size_t i = 0; i < shown; ++i) {
        const std::int32_t band = std::min(5, words[i].scaleX - 2); // pixels to each side; letters keep apart
        drawBands(words[i], band, wall);
        drawBands(words[i], band - 1, 0);
    }
}

std::int32_t wordsDelay(const Pane& pane) {
    return pane.area > groundArea ? -1 : pane.y / 8 + pane.x / 32;
}

std::int32_t wordsHue(const Pane& pane) {
    return 4 * pane.y + pane.x;
}

constexpr Plate plates[plateCount] = {
    {"A ROSE OF GLASS",
     drawRose,
     roseDelay,
     roseHue,
     {0x1838D0, 0xD01848, 0xFFB838, 0x7020A0},
     800,
     6,
     10,
     130},
    {"LETTERS WITH SIDES",
     drawLetters,
     lettersDelay,
     lettersHue,
     {0x0858A8, 0x20D8C0, 0xFFF0A0, 0xFF5840},
     900,
     4,
     8,
     150},
    {"A MAZE OF SLASHES",
     drawMaze,
     mazeDelay,
     mazeHue,
     {0x2810A0, 0x9820E0, 0xFF48A0, 0x20C8FF},
     600,
     5,
     14,
     150},
    {"SIXTEEN THINGS",
     drawGallery,
     galleryDelay,
     galleryHue,
     {0x18C0A0, 0xFFE860, 0xFF4868, 0x6848F0},
     1500,
     6,
     9,
     120},
    {"", drawWords, wordsDelay, wordsHue, {0xFF1048, 0xFFE000, 0x00E880, 0x2848FF}, 900, 8, 14, 70}};

} // namespace

const Plate& plateAt(std::int32_t number) {
    return plates[number];
}

} // namespace velm
