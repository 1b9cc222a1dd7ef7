// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Extra scene 5, the composition: thick lines divide the ground, panes of colour swing into the fields like
// doors, and through one field after the other something moves. The lines breathe, glass tumbles over them,
// and all of it leaves as it came. The ground is the background, the lines are its complement.
#include "demo/scenes/acts.h"
#include "demo/scenes/caption.h"
#include "demo/scenes/curves.h"
#include "effects/rect.h"
#include "foundation/sine.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace velm {

namespace {

constexpr std::int32_t frames = 750;
constexpr std::int32_t panesBegin = 90;
constexpr std::int32_t windowsBegin = 190;
constexpr std::int32_t breathBegins = 260;
constexpr std::int32_t glassBegins = 410;
constexpr std::int32_t glassEnds = glassBegins + 256; // whole half-turns of every pane of glass
constexpr std::int32_t leaves = 650;
constexpr std::int32_t thickness = 5; // of the lines, pixels
constexpr std::int32_t streamY = 206; // row about which the scroll text waves

/// Where a line of the composition stands, and how it breathes.
struct Bar {
    std::int32_t at;    ///< pixels
    std::int32_t reach; ///< pixels
    std::int32_t speed; ///< 1/1024 turns a frame
};

// The window's edges count as lines that nobody sees.
constexpr std::array<Bar, 5> uprights = {{{-4, 0, 0}, {60, 9, 5}, {158, 12, 4}, {216, 7, 7}, {255, 0, 0}}};
constexpr std::array<Bar, 5> levels = {{{-4, 0, 0}, {34, 6, 6}, {106, 10, 5}, {166, 4, 8}, {255, 0, 0}}};

/// A pane between two upright and two level lines, which swings in about one of its sides.
struct Field {
    std::size_t column, row; ///< its left and its upper line
    std::uint32_t colour;
    std::int32_t begins; ///< frames after panesBegin
    bool hingesRight;    ///< else about its left side
};

constexpr std::uint32_t red = 0xF01810;
constexpr std::uint32_t blue = 0x1030D8;
constexpr std::uint32_t yellow = 0xFFD000;
constexpr std::uint32_t grey = 0x808890;

constexpr std::array<Field, 5> fields = {{{1, 1, red, 0, true},
                                          {0, 2, blue, 24, false},
                                          {3, 0, yellow, 48, false},
                                          {3, 2, red, 66, false},
                                          {0, 0, grey, 84, true}}};

std::uint32_t ink() {
    return demo.background ^ 0xFFFFFF;
}

void prepareGlass(RECT& glass) {
    constexpr std::int32_t count = 9;
    constexpr std::array<std::uint32_t, 3> colours = {red, yellow, blue};
    RECT_setCount(&glass, count);
    glass.face = RECT_FACE::pane;
    glass.mix = RECT_MIX::average;
    glass.height = 180;
    for (std::int32_t i = 0; i < glass.count; ++i) {
        RECT_PANE& pane = glass.panes[i];
        pane.flip = SINE_quarter;
        pane.flipSpeed = 2 * (1 + i % 3); // from glassBegins to glassEnds: whole half-turns
        pane.turnSpeed = i % 2 == 0 ? 2 : -2;
        pane.colour = colours[static_cast<std::size_t>(i) % colours.size()];
    }
}

void prepareBars(RASTER& bars) {
    constexpr std::int32_t count = 64;
    constexpr std::int32_t hueStep = hueCount / count;
    colourRaster(bars, count, [](std::int32_t i) { return i % 8 < 6 ? curveHue(i * hueStep) : 0x000001; });
    bars.speed = 0x8000;
}

constexpr std::int32_t viewWidth = 128;
constexpr std::int32_t viewHeight = 96;

struct Composition {
    ScrollText scroll{streamY};
    Owned<RECT_delete> glass{RECT_new(), prepareGlass};
    Owned<RASTER_delete> bars{RASTER_new(), prepareBars};     ///< seen through one field
    Owned<SINEDOTS_delete> dots = makeDots(SINE_tableLength); ///< and through another
    Picture barView{IMG_newSized(viewWidth, viewHeight)};     ///< the bars, straight
    Picture swayView{IMG_newSized(viewWidth, viewHeight)};    ///< the bars, bent
    Picture dotView{IMG_newSized(viewWidth - 16, viewHeight - 36)};
    Owned<DISTX_delete> sway{DISTX_new(), [this](DISTX& made) {
                                 made.source = barView;
                                 made.amplitude = 24;
                                 made.wave.speed = 14;
                                 made.wave.offsetStep = 12;
                             }};                   ///< bends the bars by rows
    std::array<std::int32_t, uprights.size()> x{}; ///< where the lines stand in this frame
    std::array<std::int32_t, levels.size()> y{};
};

/// The lines' places: still at first, breathing later.
void placeLines(Composition& composition, std::int32_t frame) {
    const std::int32_t breath = curveStay(frame, breathBegins, leaves, 80);
    const auto place = [=](const Bar& bar, std::int32_t phase) {
        return bar.at + SINE_scaled((bar.reach * breath) >> 8, (frame - breathBegins) * bar.speed + phase);
    };
    for (std::size_t i = 0; i < uprights.size(); ++i) {
        composition.x[i] = place(uprights[i], 0);
        composition.y[i] = place(levels[i], SINE_quarter);
    }
}

/// What lies between two upright and two level lines.
struct View {
    std::int32_t left, top, right, bottom; ///< pixels; right and bottom belong to the lines
};

View viewOf(const Composition& composition, std::size_t column, std::size_t row) {
    return {composition.x[column] + thickness, composition.y[row] + thickness, composition.x[column + 1],
            composition.y[row + 1]};
}

/// A line grows from one edge and leaves through the other; every second one goes the opposite way, with a
/// negative length. The uprights end on the lowest level.
void drawLines(Composition& composition, std::int32_t frame) {
    IMG* const screen = demo.screen;
    for (std::size_t i = 1; i + 1 < uprights.size(); ++i) {
        const auto order = static_cast<std::int32_t>(i);
        const std::int32_t in = curveEase(frame, 12 * order, 12 * order + 50);
        const std::int32_t out = curveEase(frame, leaves + 30 + 8 * order, leaves + 30 + 8 * order + 40);
        const std::int32_t from = curveBetween(0, screen->width, out);
        const std::int32_t length = curveBetween(0, screen->width, in) - from;
        const std::int32_t foot = composition.y[levels.size() - 2];
        const std::int32_t upFrom = curveBetween(0, foot, out);
        const std::int32_t upLength = curveBetween(0, foot, in) - upFrom;
        const bool flips = i % 2 == 0;
        RECT_drawPane(screen, flips ? screen->width - from : from, composition.y[i], flips ? -length : length,
                      thickness, ink(), RECT_MIX::set);
        RECT_drawPane(screen, composition.x[i], flips ? foot - upFrom : upFrom, thickness,
                      flips ? -upLength : upLength, ink(), RECT_MIX::set);
    }
}

/// A pane swings in from the far side of its hinge, where its width is negative, over the neighbour. Averaged
/// twice, it is glass of three quarters of its colour.
void drawField(Composition& composition, const Field& field, std::int32_t frame) {
    const std::int32_t in = curveEase(frame, panesBegin + field.begins, panesBegin + field.begins + 70);
    const std::int32_t out =
        curveEase(frame, leaves - 30 + field.begins / 2, leaves - 30 + field.begins / 2 + 60);
    if (in == 0 || out == curveFull) {
        return;
    }
    const View view = viewOf(composition, field.column, field.row);
    // From lying on the neighbour (half a turn) over edge-on to closed, and edge-on again to leave.
    const std::int32_t swing = curveBetween(400, 0, in) + curveBetween(0, SINE_quarter, out);
    const std::int32_t seen = SINE_cosineScaled(view.right - view.left + 1, swing);
    for (std::int32_t coat = 0; coat < 2; ++coat) {
        RECT_drawPane(demo.screen, field.hingesRight ? view.right : view.left, view.top,
                      field.hingesRight ? -seen : seen, view.bottom - view.top, field.colour,
                      RECT_MIX::average);
    }
}

/// Shows a picture in a field whose shutter opens from the middle.
void showView(const IMG* picture, const View& view, std::int32_t weight) {
    const std::int32_t height = ((view.bottom - view.top) * weight) >> 8;
    const std::int32_t from = view.top + (view.bottom - view.top - height) / 2;
    IMG_blit(picture, demo.screen, 0, from - view.top, view.left, from, view.right - view.left, height);
}

/// Raster bars that sway, upper left of the middle.
void drawBars(Composition& composition, std::int32_t frame) {
    const std::int32_t weight = curveStay(frame, windowsBegin, leaves + 20, 40);
    if (weight == 0) {
        return;
    }
    if (settings.rastersOn != 0) {
        RASTER_advance(composition.bars);
    }
    RASTER_drawVertical(composition.bars, composition.barView);
    DISTX_draw(composition.sway, composition.swayView);
    DISTX_advance(composition.sway);
    showView(composition.swayView, viewOf(composition, 0, 1), weight);
}

/// A figure of dots in the ink's colour, below the middle.
void drawDots(Composition& composition, std::int32_t frame) {
    const std::int32_t weight = curveStay(frame, windowsBegin + 30, leaves + 30, 40);
    if (weight == 0) {
        return;
    }
    IMG_fill(composition.dotView, 0);
    // 0 is transparent, so that black ink is nearly black.
    composition.dots->colour = ink() == 0 ? 0x101010 : ink();
    SINEDOTS_advance(composition.dots);
    SINEDOTS_draw(composition.dots, composition.dotView);
    showView(composition.dotView, viewOf(composition, 1, 2), weight);
}

/// All panes that have come and not yet gone.
void drawFields(Composition& composition, std::int32_t frame) {
    for (const Field& field : fields) {
        drawField(composition, field, frame);
    }
}

/// The world outside, through the two right fields: the panorama, swinging to and fro.
void drawOutlook(Composition& composition, std::int32_t frame) {
    const std::int32_t weight = curveStay(frame, windowsBegin + 60, leaves + 10, 40);
    if (weight == 0) {
        return;
    }
    const IMG* const panorama = demo.pictureWide;
    const std::int32_t left = composition.x[2] + thickness;
    const std::int32_t top = composition.y[1] + thickness;
    const std::int32_t width = demo.screen->width - left;
    const std::int32_t height = ((composition.y[2] - top) * weight) >> 8;
    const std::int32_t level = (top + composition.y[2]) / 2;
    const std::int32_t spare = std::max(panorama->width - width, 0) / 2;
    RECT_drawPane(demo.screen, left, level - height / 2, width, height, 0, RECT_MIX::set);
    IMG_blit(panorama, demo.screen, spare + SINE_scaled(spare, 2 * frame), 30, left, level - height / 2,
             width, height);
}

/// The ground of the scroll text is dark on either background, so that all hues can be read on it.
void drawFooting(Composition& composition, std::int32_t frame) {
    const std::int32_t height = demo.screen->height - composition.y[levels.size() - 2];
    const std::int32_t weight = curveStay(frame, 20, frames - 10, 60);
    RECT_drawPane(demo.screen, 0, demo.screen->height, demo.screen->width, -((height * weight) >> 8),
                  0x080810, RECT_MIX::set);
}

/// A drawing that turns in the red field.
void drawFigure(Composition& composition, std::int32_t frame) {
    constexpr std::int32_t framesPerFigure = 77;
    const std::int32_t weight = curveStay(frame, windowsBegin, leaves, 50);
    if (weight == 0) {
        return;
    }
    LFONT* const figure = demo.textLarge;
    const KeptPen kept(figure);
    LFONT_place(figure, (composition.x[1] + composition.x[2]) / 2 + 2,
                (composition.y[1] + composition.y[2]) / 2 + 2, 3);
    figure->angle = 5 * frame;
    figure->character = 1 + (frame / framesPerFigure) % std::max(demo.fontLarge->count - 1, 1);
    LFONT_setColour(figure, curveMix(red, 0xFFFFFF, weight));
    LFONT_drawChar(figure);
}

/// A word for every part of the scene, which comes down to its line and goes up again.
void drawWords(Composition& composition, std::int32_t frame) {
    constexpr std::int32_t cell = 16;
    constexpr std::array<std::string_view, 4> words = {"LINES", "PANES", "LIFE", "GLASS"};
    constexpr std::array<std::int32_t, 5> begins = {50, panesBegin + 50, windowsBegin + 50, glassBegins,
                                                    leaves};
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (frame >= begins[i] && frame < begins[i + 1]) {
            const std::int32_t arrive = curveFull - curveEase(frame, begins[i], begins[i] + 24);
            const std::int32_t depart = curveEase(frame, begins[i + 1] - 20, begins[i + 1]);
            const std::int32_t left = composition.x[1] + thickness + 6;
            drawCaption(demo.textMedium, {.text = words[i],
                                          .x = left + static_cast<std::int32_t>(words[i].size()) * cell / 2,
                                          .y = composition.y[1] - 24 - ((arrive + depart) >> 3),
                                          .colour = ink()});
        }
    }
}

/// Panes that begin and end edge-on, so that they come out of nothing and go back.
void drawGlass(Composition& composition, std::int32_t) {
    RECT_draw(composition.glass, demo.screen);
    RECT_advance(composition.glass);
}

/// The overlay is to be seen on either background.
void inkOverlay(Composition&, std::int32_t) {
    LFONT_setColour(demo.textMedium, ink());
}

constexpr Act<Composition> acts[] = {{0, frames, placeLines},
                                     {0, frames, drawBars},
                                     {0, frames, drawDots},
                                     {0, frames, drawFields},
                                     {0, frames, drawOutlook},
                                     {0, frames, drawFooting},
                                     {0, frames, drawLines},
                                     {0, frames, drawFigure},
                                     {0, frames, drawWords},
                                     {glassBegins, glassEnds, drawGlass},
                                     {0, frames, playScrollText<frames>},
                                     {0, frames, inkOverlay}};

} // namespace

void VELM4030_sceneExtra5() {
    play({.clearMode = ClearMode::background}, frames, acts);
}

} // namespace velm
