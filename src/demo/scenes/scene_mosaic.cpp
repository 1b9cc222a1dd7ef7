// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Extra scene 8, the mosaic: drawings and words are drawn stroke by stroke, then colour springs up in their
// cells and floods them and the spaces between, one mosaic after the other. Words out of the depth open and
// close it.
#include "demo/scenes/acts.h"
#include "demo/scenes/caption.h"
#include "demo/scenes/curves.h"
#include "effects/fill.h"
#include "effects/line_text.h"
#include "effects/wordzoom.h"
#include "foundation/sine.h"

#include <algorithm>
#include <string_view>

namespace velm {

namespace {

constexpr std::int32_t frames = 750;
constexpr std::uint32_t wall = 0xFFFFFF;
constexpr std::int32_t oneInSixteen = 1 << 12; // in 16.16
constexpr std::int32_t firstMosaic = 84;       // frame of its first stroke
constexpr std::int32_t mosaicFrames = 142;     // from one mosaic's first stroke to the next one's
constexpr std::int32_t drawFrames = 34;        // strokes
constexpr std::int32_t drainFrom = 118;        // the colour runs dry
constexpr std::int32_t mosaics = 4;
constexpr std::int32_t closing = firstMosaic + mosaics * mosaicFrames - 30;

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

/// Calls draw(a, b) with the ends of every stroke of a word, about the middle of the row. It is the small
/// font, whose strokes are single lines: each becomes one side of a body.
template <typename Draw>
void forEachStrokeOf(std::string_view word, std::int32_t y, std::int32_t scale, Draw draw) {
    constexpr std::int32_t cell = 8;
    std::int32_t left = middle - cell * scale * static_cast<std::int32_t>(word.size() - 1) / 2;
    for (const char letter : word) {
        forEachStroke(glyphOf(demo.fontSmall, static_cast<std::uint8_t>(letter)), [&](VEC2D a, VEC2D b) {
            draw(VEC2D{left + a.x * scale, y + a.y * scale, 0},
                 VEC2D{left + b.x * scale, y + b.y * scale, 0});
        });
        left += cell * scale;
    }
}

/// Where the strokes of a letter lead when it gets a body.
constexpr VEC2D depth{14, 18, 0};

/// Calls draw(a, b) with the edges of the sides that a stroke gets when it becomes a body.
template <typename Draw>
void forEachEdge(const VEC2D& a, const VEC2D& b, Draw draw) {
    VEC2D farA = a;
    VEC2D farB = b;
    VEC2D_add(&depth, &farA);
    VEC2D_add(&depth, &farB);
    draw(a, b);
    draw(a, farA);
    draw(b, farB);
    draw(farA, farB);
}

constexpr std::string_view upperWord = "VELM";
constexpr std::string_view lowerWord = "4030";
constexpr std::int32_t letterScale = 7;
constexpr std::int32_t upperY = 56; // the middle of the letters' cells
constexpr std::int32_t lowerY = 164;
constexpr Figure window{"mystic rose", middle, middle, 15}; // twelve corners, each joined to each

/// A maze of slashes, a bit for each of 16 by 16: set, it leans to the right.
constexpr std::uint16_t slashes[16] = {0xE86A, 0xD897, 0x7D4A, 0xCFE4, 0xB73E, 0xDBC2, 0xCEAC, 0xE974,
                                       0xA83A, 0xE77E, 0x860C, 0x122F, 0xA997, 0x2113, 0xC4D7, 0xEEDC};
constexpr std::int32_t slashSize = 16;

/// Sixteen figures in four rows.
constexpr std::string_view gallery[16] = {"heart",    "cat",      "flower",   "gem",    "rocket", "web",
                                          "robot",    "iris",     "globe",    "clover", "leaf",   "cogwheel",
                                          "hexagram", "pinwheel", "carousel", "fir"};
Figure pictureOf(std::int32_t i) {
    return {gallery[i], 32 + i % 4 * 64, 32 + i / 4 * 64, 3};
}

/// Calls draw(a, b) with every stroke of a mosaic, in the order in which they are drawn.
template <typename Draw>
void forEachStrokeIn(std::int32_t mosaic, Draw draw) {
    const auto drawEdges = [&draw](const VEC2D& a, const VEC2D& b) { forEachEdge(a, b, draw); };
    switch (mosaic) {
    case 0:
        forEachStrokeOf(window, draw);
        break;
    case 1:
        forEachStrokeOf(upperWord, upperY, letterScale, drawEdges);
        forEachStrokeOf(lowerWord, lowerY, letterScale, drawEdges);
        break;
    case 2:
        for (std::int32_t i = 0; i < 256; ++i) {
            const std::int32_t left = i % 16 * slashSize;
            const std::int32_t top = i / 16 * slashSize;
            const bool leansRight = (slashes[i / 16] >> (i % 16) & 1) != 0;
            draw(VEC2D{left, leansRight ? top + slashSize : top, 0},
                 VEC2D{left + slashSize, leansRight ? top : top + slashSize, 0});
        }
        break;
    default:
        for (std::int32_t line = 0; line <= 4; ++line) {
            const std::int32_t at = std::min(64 * line, 255);
            draw(VEC2D{0, at, 0}, VEC2D{255, at, 0});
            draw(VEC2D{at, 0, 0}, VEC2D{at, 255, 0});
        }
        for (std::int32_t i = 0; i < 16; ++i) {
            forEachStrokeOf(pictureOf(i), draw);
        }
        break;
    }
}

/// Draws the share of a mosaic that a weight tells on the canvas.
void drawStrokes(IMG* canvas, std::int32_t mosaic, std::int32_t weight) {
    std::int32_t count = 0;
    forEachStrokeIn(mosaic, [&count](const VEC2D&, const VEC2D&) { ++count; });
    const std::int32_t shown = count * weight / curveFull;
    std::int32_t n = 0;
    forEachStrokeIn(mosaic, [&](VEC2D a, VEC2D b) {
        if (n++ < shown) {
            a.colour = wall;
            const SEG2D stroke{&a, &b};
            SEG2D_draw(&stroke, canvas);
        }
    });
}

/// A hue for a direction: sides of a body that face the same way look alike.
std::int32_t hueOfSide(const VEC2D& a, const VEC2D& b) {
    const std::int32_t dx = b.x - a.x;
    const std::int32_t dy = b.y - a.y;
    return dx == 0 ? 1000 : dy == 0 ? 640 : (dx > 0) == (dy > 0) ? 820 : 1200;
}

/// Ring by ring from the middle, every pane in the hue of its ring; the sky around it comes last.
void pourWindow(FILL* fill, std::int32_t age) {
    constexpr std::int32_t panes = 24;
    const std::int32_t radius = 3 * age;
    for (std::int32_t i = 0; i < panes && radius < 112; ++i) {
        const std::int32_t angle = (2 * i + 1) * SINE_tableLength / (2 * panes);
        FILL_pour(fill, middle + SINE_scaled(radius, angle), middle - SINE_cosineScaled(radius, angle),
                  13 * radius + 200 * (i % 2));
    }
    if (age == 44) {
        for (const std::int32_t corner : {0, 255}) {
            FILL_pour(fill, corner, 0, 700);
            FILL_pour(fill, corner, 255, 700);
        }
    }
}

/// A side after the other, then the ground.
void pourLetters(FILL* fill, std::int32_t age) {
    std::int32_t n = 0;
    const auto pourSide = [&](const VEC2D& a, const VEC2D& b) {
        if (n++ == age) {
            FILL_pour(fill, (a.x + b.x + depth.x) / 2, (a.y + b.y + depth.y) / 2, hueOfSide(a, b));
        }
    };
    forEachStrokeOf(upperWord, upperY, letterScale, pourSide);
    n /= 2;
    forEachStrokeOf(lowerWord, lowerY, letterScale, pourSide);
    if (age == 30) {
        FILL_pour(fill, 0, 0, 300);
        FILL_pour(fill, 255, 255, 300);
    }
}

/// Sources here and there between the slashes, where never a wall is; in the end all corridors have one.
void pourMaze(FILL* fill, std::int32_t age) {
    constexpr std::int32_t interval = 3;
    constexpr std::int32_t scatter = 77; // goes through all 256 places
    const auto pourAt = [fill](std::int32_t n) {
        const std::int32_t place = scatter * n & 255;
        FILL_pour(fill, place % 16 * slashSize + slashSize / 2, place / 16 * slashSize, 6 * place);
    };
    if (age < 40 && age % interval == 0) {
        pourAt(age / interval);
    }
    for (std::int32_t n = 4 * (age - 40); age >= 40 && n < 4 * (age - 39); ++n) {
        pourAt(n);
    }
}

/// Picture by picture along the diagonals: the ground of each from a corner, its inside in other hues.
void pourGallery(FILL* fill, std::int32_t age) {
    for (std::int32_t i = 0; i < 16; ++i) {
        const Figure figure = pictureOf(i);
        const std::int32_t since = age - 4 * (i % 4 + i / 4);
        if (since == 0) {
            FILL_pour(fill, figure.x - 28, figure.y - 28, 96 * i);
        }
        for (std::int32_t k = 0; since == 5 && k < 25; ++k) {
            FILL_pour(fill, figure.x + 8 * (k % 5) - 15, figure.y + 8 * (k / 5) - 15,
                      96 * i + 500 + 90 * (k % 3));
        }
    }
}

/// How a mosaic is filled: its seeds, and how the colour flows.
struct Mosaic {
    std::string_view title;
    void (*pour)(FILL* fill, std::int32_t age); ///< called for each frame from the last stroke on
    std::int32_t flow, stretch, speed, ripple;  ///< as in FILL
};
constexpr Mosaic mosaicsInOrder[mosaics] = {{"A ROSE OF GLASS", pourWindow, 800, 6, 10, 130},
                                            {"LETTERS WITH SIDES", pourLetters, 700, 4, 8, 150},
                                            {"A MAZE OF SLASHES", pourMaze, 420, 5, 14, 150},
                                            {"SIXTEEN THINGS", pourGallery, 1500, 6, 9, 120}};

/// The outlines are light on the dark, and dark between the colours.
void paintWalls(const IMG& canvas, std::uint32_t colour) {
    const std::int32_t width = std::min(canvas.width, demo.screen->width);
    for (std::int32_t y = 0; y < std::min(canvas.height, demo.screen->height); ++y) {
        const std::uint32_t* const from = canvas.pixels + std::int64_t{y} * canvas.width;
        std::uint32_t* const to = demo.screen->pixels + std::int64_t{y} * demo.screen->width;
        for (std::int32_t x = 0; x < width; ++x) {
            to[x] = from[x] != 0 ? colour : to[x];
        }
    }
}

/// The title on a plate at the lower edge: it is typed, and taken back from its end when the colour runs dry.
void drawTitle(std::string_view title, std::int32_t age) {
    constexpr std::int32_t cell = 8;
    constexpr std::int32_t y = 246;
    const auto length = static_cast<std::int32_t>(title.size());
    const std::int32_t typed = std::clamp(std::min(age, drainFrom - age), 0, length);
    if (typed > 0) {
        IMG_fillRect(demo.screen, middle - (length + 1) * cell / 2, y - cell, (typed + 1) * cell, 2 * cell,
                     0);
        drawCaption(demo.textSmall, {.text = title, .y = y, .colour = 0xD0F0FF, .typed = typed});
    }
}

void prepareFill(FILL& fill) {
    FILL_setSize(&fill, settings.windowWidth, settings.windowHeight);
    fill.palette = demo.hueRamp;
}

void prepareZoom(WORDZOOM& zoom) {
    zoom.glyphs = demo.fontMedium;
    zoom.palette = demo.hueRamp;
    zoom.loop = 0;
    zoom.hue = 256;
    zoom.growth = oneInSixteen * 5 / 4;
    zoom.interval = 22;
    WORDZOOM_setText(&zoom, "STAY INSIDE THE LINES");
}

struct Studio {
    Owned<FILL_delete> fill{FILL_new(), prepareFill};
    Owned<WORDZOOM_delete> zoom{WORDZOOM_new(), prepareZoom};
    Picture canvas{newWindowPicture()}; ///< the outlines
};

void beginMosaic(const Studio& studio, const Mosaic& mosaic) {
    IMG_fill(studio.canvas, 0);
    FILL_begin(studio.fill, studio.canvas);
    studio.fill->flow = mosaic.flow;
    studio.fill->stretch = mosaic.stretch;
    studio.fill->speed = mosaic.speed;
    studio.fill->ripple = mosaic.ripple;
}

/// One mosaic after the other.
void playMosaics(Studio& studio, std::int32_t frame) {
    const std::int32_t number = (frame - firstMosaic) / mosaicFrames;
    const std::int32_t age = (frame - firstMosaic) % mosaicFrames;
    FILL& fill = *studio.fill;
    if (age == 0) {
        beginMosaic(studio, mosaicsInOrder[number]);
    }
    if (age < drawFrames) {
        drawStrokes(studio.canvas, number, curveRise(age + 1, 0, drawFrames));
    } else {
        mosaicsInOrder[number].pour(&fill, age - drawFrames);
    }
    FILL_advance(&fill);
    const std::int32_t oldest = fill.count > 0 ? fill.spans[fill.count - 1].age + 1 : 0;
    fill.drained = curveBetween(0, oldest, curveRise(age, drainFrom, mosaicFrames - 2));
    FILL_draw(&fill, demo.screen);
    const std::int32_t dark = std::max(curveRise(age, drawFrames, drawFrames + 50) * 7 / 8,
                                       curveRise(age, drainFrom, drainFrom + 20));
    paintWalls(*studio.canvas, curveMix(0xD0F0FF, 0x000000, dark));
    drawTitle(mosaicsInOrder[number].title, age);
}

void playWords(Studio& studio, std::int32_t) {
    WORDZOOM_advance(studio.zoom);
    WORDZOOM_draw(studio.zoom, demo.screen);
}

void beginClosing(Studio& studio) {
    WORDZOOM* const zoom = studio.zoom;
    zoom->growth = oneInSixteen * 3 / 2;
    zoom->interval = 18;
    zoom->hue = 1300;
    WORDZOOM_setText(zoom, "OR RATHER DO NOT");
}

constexpr Act<Studio> acts[] = {{firstMosaic, firstMosaic + mosaics* mosaicFrames, playMosaics},
                                {0, closing, playWords},
                                {closing, frames, playWords, beginClosing}};

} // namespace

void VELM4030_sceneExtra8() {
    VELM4030_fadeOut();
    play({.fadeStep = 0x080808}, frames, acts);
}

} // namespace velm
