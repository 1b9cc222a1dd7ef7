// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Extra scene 5, the composition: thick lines divide the ground, panes of colour swing into the fields like
// doors, and through one field after the other something moves. The lines breathe, glass tumbles over them,
// and all of it leaves as it came. The ground is the background, the lines are its complement.
#include "demo/scene_curves.h"
#include "demo/scene_frames.h"
#include "demo/state.h"
#include "demo/velm4030.h"
#include "effects/rect.h"
#include "foundation/sine.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace velm {

namespace {

constexpr std::int32_t frames = 750;
constexpr std::int32_t panesBegin = 90;
constexpr std::int32_t windowsBegin = 190;
constexpr std::int32_t breathBegins = 260;
constexpr std::int32_t glassBegins = 410;
constexpr std::int32_t glassFrames = 256; ///< whole half-turns of every pane of glass fit into them
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
    std::size_t left, right, top, bottom; ///< lines
    std::uint32_t colour;
    std::int32_t begins; ///< frames after panesBegin
    bool hingesRight;    ///< else about its left side
};

constexpr std::uint32_t red = 0xF01810;
constexpr std::uint32_t blue = 0x1030D8;
constexpr std::uint32_t yellow = 0xFFD000;
constexpr std::uint32_t grey = 0x808890;

constexpr std::array<Field, 5> fields = {{{1, 2, 1, 2, red, 0, true},
                                          {0, 1, 2, 3, blue, 24, false},
                                          {3, 4, 0, 1, yellow, 48, false},
                                          {3, 4, 2, 3, red, 66, false},
                                          {0, 1, 0, 1, grey, 84, true}}};

struct Composition {
    RECT* glass;
    RASTER* bars;   ///< seen through one field
    SINEDOTS* dots; ///< and through another
    DISTX* sway;    ///< bends the bars by rows
    IMG* barView;   ///< the bars, straight
    IMG* swayView;  ///< the bars, bent
    IMG* dotView;
    std::array<std::int32_t, uprights.size()> x; ///< where the lines stand in this frame
    std::array<std::int32_t, levels.size()> y;
};

std::uint32_t ink() {
    return demo.background ^ 0xFFFFFF;
}

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

/// A line grows from one edge and leaves through the other; every second one goes the opposite way, with a
/// negative length. The uprights end on the lowest level.
void drawLines(const Composition& composition, std::int32_t frame) {
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
void drawField(const Composition& composition, const Field& field, std::int32_t frame) {
    const std::int32_t in = curveEase(frame, panesBegin + field.begins, panesBegin + field.begins + 70);
    const std::int32_t out =
        curveEase(frame, leaves - 30 + field.begins / 2, leaves - 30 + field.begins / 2 + 60);
    if (in == 0 || out == curveFull) {
        return;
    }
    const std::int32_t left = composition.x[field.left] + thickness;
    const std::int32_t right = composition.x[field.right];
    const std::int32_t top = composition.y[field.top] + thickness;
    const std::int32_t height = composition.y[field.bottom] - top;
    // From lying on the neighbour (half a turn) over edge-on to closed, and edge-on again to leave.
    const std::int32_t swing = curveBetween(400, 0, in) + curveBetween(0, SINE_quarter, out);
    const std::int32_t seen = SINE_cosineScaled(right - left + 1, swing);
    for (std::int32_t coat = 0; coat < 2; ++coat) {
        RECT_drawPane(demo.screen, field.hingesRight ? right : left, top, field.hingesRight ? -seen : seen,
                      height, field.colour, RECT_MIX::average);
    }
}

/// Shows a picture in a field whose shutter opens from the middle.
void showView(const IMG* view, std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom,
              std::int32_t share) {
    const std::int32_t height = ((bottom - top) * share) >> 8;
    const std::int32_t from = top + (bottom - top - height) / 2;
    IMG_blit(view, demo.screen, 0, from - top, left, from, right - left, height);
}

/// Raster bars that sway, upper left of the middle.
void drawBars(const Composition& composition, std::int32_t frame) {
    const std::int32_t share = curveStay(frame, windowsBegin, leaves + 20, 40);
    if (share == 0 || composition.bars == nullptr || composition.sway == nullptr ||
        composition.swayView == nullptr) {
        return;
    }
    if (settings.rastersOn != 0) {
        RASTER_advance(composition.bars);
    }
    RASTER_drawVertical(composition.bars, composition.barView);
    DISTX_draw(composition.sway, composition.swayView);
    DISTX_advance(composition.sway);
    showView(composition.swayView, composition.x[0] + thickness, composition.y[1] + thickness,
             composition.x[1], composition.y[2], share);
}

/// A figure of dots in the ink's colour, below the middle.
void drawDots(const Composition& composition, std::int32_t frame) {
    const std::int32_t share = curveStay(frame, windowsBegin + 30, leaves + 30, 40);
    if (share == 0 || composition.dots == nullptr || composition.dotView == nullptr) {
        return;
    }
    IMG_fill(composition.dotView, 0);
    // 0 is transparent, so that black ink is nearly black.
    composition.dots->colour = ink() == 0 ? 0x101010 : ink();
    SINEDOTS_advance(composition.dots);
    SINEDOTS_draw(composition.dots, composition.dotView);
    showView(composition.dotView, composition.x[1] + thickness, composition.y[2] + thickness,
             composition.x[2], composition.y[3], share);
}

/// The world outside, through the two right fields: the panorama, swinging to and fro.
void drawOutlook(const Composition& composition, std::int32_t frame) {
    const std::int32_t share = curveStay(frame, windowsBegin + 60, leaves + 10, 40);
    const IMG* const panorama = demo.pictureWide;
    if (share == 0 || panorama == nullptr) {
        return;
    }
    const std::int32_t left = composition.x[2] + thickness;
    const std::int32_t top = composition.y[1] + thickness;
    const std::int32_t width = demo.screen->width - left;
    const std::int32_t height = ((composition.y[2] - top) * share) >> 8;
    const std::int32_t middle = (top + composition.y[2]) / 2;
    const std::int32_t spare = std::max(panorama->width - width, 0) / 2;
    RECT_drawPane(demo.screen, left, middle - height / 2, width, height, 0, RECT_MIX::set);
    IMG_blit(panorama, demo.screen, spare + SINE_scaled(spare, 2 * frame), 30, left, middle - height / 2,
             width, height);
}

/// The ground of the scroll text is dark on either background, so that all hues can be read on it.
void drawFooting(const Composition& composition, std::int32_t frame) {
    const std::int32_t height = demo.screen->height - composition.y[levels.size() - 2];
    const std::int32_t share = curveStay(frame, 20, frames - 10, 60);
    RECT_drawPane(demo.screen, 0, demo.screen->height, demo.screen->width, -((height * share) >> 8), 0x080810,
                  RECT_MIX::set);
}

/// A drawing that turns in the red field, and the captions.
void drawWriting(const Composition& composition, std::int32_t frame) {
    LFONT* const figure = demo.textLarge;
    const std::int32_t share = curveStay(frame, windowsBegin, leaves, 50);
    if (figure != nullptr && share > 0 && demo.fontLarge != nullptr) {
        constexpr std::int32_t framesPerFigure = 77;
        figure->character = 1 + (frame / framesPerFigure) % std::max(demo.fontLarge->count - 1, 1);
        LFONT_setColour(figure, RGB888_mix(red, 0xFFFFFF, static_cast<std::uint32_t>(share)));
        figure->angle = 5 * frame;
        figure->scale->x = figure->scale->y = 3;
        figure->position->x = (composition.x[1] + composition.x[2]) / 2 + 2;
        figure->position->y = (composition.y[1] + composition.y[2]) / 2 + 2;
        LFONT_drawChar(figure);
    }
    constexpr std::array<const char*, 4> captions = {"LINES", "PANES", "LIFE", "GLASS"};
    constexpr std::array<std::int32_t, 5> begins = {50, panesBegin + 50, windowsBegin + 50, glassBegins,
                                                    leaves};
    LFONT* const pen = demo.textMedium;
    for (std::size_t i = 0; i < captions.size() && pen != nullptr; ++i) {
        if (frame < begins[i] || frame >= begins[i + 1]) {
            continue;
        }
        const std::int32_t arrive = curveFull - curveEase(frame, begins[i], begins[i] + 24);
        const std::int32_t depart = curveEase(frame, begins[i + 1] - 20, begins[i + 1]);
        LFONT_setColour(pen, ink());
        pen->scale->x = pen->scale->y = 1;
        pen->angle = 0;
        pen->position->x = composition.x[1] + thickness + 6;
        pen->position->y = composition.y[1] - 24 - ((arrive + depart) >> 3);
        LFONT_drawLine(pen, captions[i]);
    }
}

/// Panes that begin and end edge-on, so that they come out of nothing and go back.
void drawGlass(RECT* glass, std::int32_t frame) {
    if (glass == nullptr || frame < glassBegins || frame >= glassBegins + glassFrames) {
        return;
    }
    RECT_draw(glass, demo.screen);
    RECT_advance(glass);
}

RECT* makeGlass() {
    constexpr std::int32_t count = 9;
    constexpr std::array<std::uint32_t, 3> colours = {red, yellow, blue};
    RECT* const glass = RECT_new();
    if (glass == nullptr) {
        return nullptr;
    }
    RECT_setCount(glass, count);
    glass->face = RECT_FACE::pane;
    glass->mix = RECT_MIX::average;
    glass->height = 180;
    for (std::int32_t i = 0; i < glass->count; ++i) {
        RECT_PANE& pane = glass->panes[i];
        pane.flip = SINE_quarter;
        pane.flipSpeed = 2 * (1 + i % 3); // times glassFrames: whole half-turns
        pane.turnSpeed = i % 2 == 0 ? 2 : -2;
        pane.colour = colours[static_cast<std::size_t>(i) % colours.size()];
    }
    return glass;
}

RASTER* makeBars() {
    constexpr std::int32_t hueStep = hueCount / 64;
    RASTER* const bars = RASTER_new();
    if (bars != nullptr) {
        RASTER_setCount(bars, 64);
        for (std::int32_t i = 0; i < bars->count; ++i) {
            bars->colours[i] = i % 8 < 6 ? curveHue(i * hueStep, curveFull) : 0x000001;
        }
        bars->speed = 0x8000;
    }
    return bars;
}

Composition VELM4030_sceneExtra5Setup() {
    constexpr std::int32_t viewWidth = 128;
    constexpr std::int32_t viewHeight = 96;
    setLook({.clearMode = ClearMode::background});
    VELM4030_rasterSetup();
    VELM4030_scrollSetup();
    VELM4030_placeScroll(streamY);
    Composition composition{};
    composition.glass = makeGlass();
    composition.bars = makeBars();
    composition.dots = SINEDOTS_new();
    SINEDOTS_setCount(composition.dots, SINE_tableLength);
    composition.barView = IMG_newSized(viewWidth, viewHeight);
    composition.swayView = IMG_newSized(viewWidth, viewHeight);
    composition.dotView = IMG_newSized(viewWidth - 16, viewHeight - 36);
    if ((composition.sway = DISTX_new()) != nullptr) {
        composition.sway->source = composition.barView;
        composition.sway->amplitude = 24;
        composition.sway->wave.speed = 14;
        composition.sway->wave.offsetStep = 12;
    }
    return composition;
}

void VELM4030_sceneExtra5Cleanup(Composition& composition) {
    RECT_delete(&composition.glass);
    RASTER_delete(&composition.bars);
    SINEDOTS_delete(&composition.dots);
    DISTX_delete(&composition.sway);
    IMG_delete(&composition.barView);
    IMG_delete(&composition.swayView);
    IMG_delete(&composition.dotView);
    VELM4030_placeScroll(VELM4030_scrollY);
    if (demo.textLarge != nullptr) {
        demo.textLarge->scale->x = demo.textLarge->scale->y = 1;
        demo.textLarge->angle = 0;
    }
}

} // namespace

void VELM4030_sceneExtra5() {
    Composition composition = VELM4030_sceneExtra5Setup();
    runFrames(frames, [&composition](std::int32_t frame) {
        placeLines(composition, frame);
        drawBars(composition, frame);
        drawDots(composition, frame);
        for (const Field& field : fields) {
            drawField(composition, field, frame);
        }
        drawOutlook(composition, frame);
        drawFooting(composition, frame);
        drawLines(composition, frame);
        drawWriting(composition, frame);
        drawGlass(composition.glass, frame);
        drawScrollText();
        LFONT_setColour(demo.textMedium, ink()); // the overlay's, to be seen on either background
        VELM4030_mouseLayer();
        VELM4030_fpsLayer();
    });
    VELM4030_sceneExtra5Cleanup(composition);
}

} // namespace velm
