// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Extra scene 5, the composition: thick lines divide the ground, panes of colour swing into the fields like
// doors, and through one field after the other something moves: bars, a drawing, dots, the city, the four
// letters. On every bar of the music the lines slide into another order; glass tumbles over it, a polished
// floor mirrors it, and all of it leaves as it came. The ground is the background, the lines are its
// complement.
#include "demo/scenes/acts.h"
#include "demo/scenes/beat.h"
#include "demo/scenes/caption.h"
#include "demo/scenes/composition_lines.h"
#include "demo/scenes/letters.h"
#include "demo/scenes/polished_floor.h"
#include "effects/rect.h"
#include "foundation/sine.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace velm {

namespace {

constexpr std::int32_t frames = 750;
constexpr std::int32_t panesBegin = barFrames / 2;
constexpr std::int32_t windowsBegin = barFrames;
constexpr std::int32_t glassBegins = 4 * barFrames;
constexpr std::int32_t glassEnds = glassBegins + 256; // whole half-turns of every pane of glass
constexpr std::int32_t streamY = 208;                 // row about which the scroll text waves

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
constexpr std::uint32_t darkGround = 0x080810; // on either background

constexpr std::array<Field, 5> fields = {{{1, 1, red, 0, true},
                                          {0, 2, blue, 12, false},
                                          {3, 0, yellow, 24, false},
                                          {2, 0, blue, 34, true},
                                          {0, 0, grey, 44, true}}};

void prepareGlass(RECT& glass) {
    constexpr std::int32_t count = 9;
    constexpr std::array<std::uint32_t, 3> colours = {red, yellow, blue};
    RECT_setCount(&glass, count);
    glass.face = RECT_FACE::pane;
    glass.mix = RECT_MIX::average;
    glass.height = 170;
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
    Lines lines;
    Owned<RECT_delete> glass{RECT_new(), prepareGlass};
    Owned<RASTER_delete> bars{RASTER_new(), prepareBars};     ///< seen through one field
    Owned<SINEDOTS_delete> dots = makeDots(SINE_tableLength); ///< and through another
    Picture barView{IMG_newSized(viewWidth, viewHeight)};     ///< the bars, straight
    Picture dotView{IMG_newSized(viewWidth * 2, viewHeight)}; ///< room for the dots' field
    Picture swayView{IMG_newSized(viewWidth, viewHeight)};    ///< the bars, bent
    Owned<DISTX_delete> sway = makeBend<DISTX_new, DISTX_delete>(barView, 24, 14, 12); ///< bends the bars
    PolishedFloor floor;
};

/// A pane swings in from the far side of its hinge, where its width is negative, over the neighbour. Averaged
/// twice, it is glass of three quarters of its colour.
void drawField(Composition& composition, const Field& field, std::int32_t frame) {
    const std::int32_t in = curveEase(frame, panesBegin + field.begins, panesBegin + field.begins + 70);
    const std::int32_t out =
        curveEase(frame, Lines::leaves - 30 + field.begins / 2, Lines::leaves - 30 + field.begins / 2 + 60);
    if (in == 0 || out == curveFull) {
        return;
    }
    const View view = composition.lines.view(field.column, field.row);
    // From edge-on over lying on the neighbour and edge-on again to closed, and once more edge-on to leave.
    const std::int32_t swing = curveBetween(3 * SINE_quarter, 0, in) + curveBetween(0, SINE_quarter, out);
    const std::int32_t seen = SINE_cosineScaled(view.right - view.left + 1, swing);
    const std::uint32_t colour =
        curveMix(field.colour, 0xFFFFFF, beatWeight(20, frame < Lines::wholeBegins ? 1 : 4) / 7);
    const RECT_BOX pane{field.hingesRight ? view.right : view.left, view.top,
                        field.hingesRight ? -seen : seen, view.bottom - view.top};
    for (std::int32_t coat = 0; coat < 2; ++coat) {
        RECT_drawPane(demo.screen, pane, colour, RECT_MIX::average);
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
    const std::int32_t weight = curveStay(frame, windowsBegin, Lines::leaves + 20, 40);
    if (weight == 0) {
        return;
    }
    if (settings.rastersOn != 0) {
        RASTER_advance(composition.bars);
    }
    RASTER_drawVertical(composition.bars, composition.barView);
    DISTX_draw(composition.sway, composition.swayView);
    DISTX_advance(composition.sway);
    showView(composition.swayView, composition.lines.view(0, 1), weight);
}

/// A figure of dots in the ink's colour, below the middle; it fits its field, whatever that measures.
void drawDots(Composition& composition, std::int32_t frame) {
    constexpr std::int32_t margin = 3;
    const std::int32_t weight = curveStay(frame, windowsBegin + 22, Lines::leaves + 20, 40);
    const View view = composition.lines.view(1, 2);
    const std::int32_t width = view.right - view.left - 2 * margin;
    const std::int32_t height = (((view.bottom - view.top) * weight) >> 8) - 2 * margin;
    if (weight == 0 || width <= 0 || height <= 0) {
        return;
    }
    IMG fitted{.width = width, .height = height, .pixels = composition.dotView->pixels};
    IMG_fill(&fitted, 0);
    // 0 is transparent, so that black ink is nearly black.
    composition.dots->colour = Lines::ink() == 0 ? 0x101010 : Lines::ink();
    SINEDOTS_advance(composition.dots);
    SINEDOTS_draw(composition.dots, &fitted);
    IMG_blit(&fitted, demo.screen, 0, 0, view.left + margin, (view.top + view.bottom - height) / 2, width,
             height);
}

/// All panes that have come and not yet gone.
void drawFields(Composition& composition, std::int32_t frame) {
    for (const Field& field : fields) {
        drawField(composition, field, frame);
    }
}

/// The world outside, through the two right fields: the panorama, swinging to and fro.
void drawOutlook(Composition& composition, std::int32_t frame) {
    constexpr std::int32_t skyline = 66; // row of the panorama that the field's middle shows
    const std::int32_t weight = curveStay(frame, windowsBegin + 44, Lines::leaves + 10, 40);
    if (weight == 0) {
        return;
    }
    const IMG* const panorama = demo.pictureWide;
    const View view = composition.lines.view(2, 1, Lines::count - 1);
    const std::int32_t width = view.right - view.left;
    const std::int32_t height = ((view.bottom - view.top) * weight) >> 8;
    const std::int32_t top = (view.top + view.bottom - height) / 2;
    const std::int32_t spare = std::max(panorama->width - width, 0) / 2;
    RECT_drawPane(demo.screen, {view.left, top, width, height}, 0, RECT_MIX::set);
    IMG_blit(panorama, demo.screen, spare + SINE_scaled(spare, 2 * frame), skyline - height / 2, view.left,
             top, width, height);
}

/// Draws the bobbing letters in the middle of a dark field, in pale hues, of which blue can be read there,
/// too.
void drawLettersIn(const View& field) {
    constexpr std::int32_t belowLine = 19; // what is left below the line that they bounce on
    constexpr std::int32_t paleness = 96;  // of 256
    drawLettersAt((field.left + field.right - lettersWidth) / 2, field.bottom - belowLine);
    for (std::int32_t row = field.top; row < field.bottom; ++row) {
        std::uint32_t* const pixels = rowOf(*demo.screen, row);
        std::transform(pixels + field.left, pixels + field.right, pixels + field.left,
                       [](std::uint32_t pixel) {
                           return pixel == darkGround ? pixel : curveMix(pixel, 0xFFFFFF, paleness);
                       });
    }
}

/// The letters' field, below the outlook. Its shutter covers what it does not yet show.
void drawLetters(Composition& composition, std::int32_t frame) {
    const std::int32_t weight = curveStay(frame, windowsBegin + 66, Lines::leaves + 30, 40);
    if (weight == 0) {
        return;
    }
    const View field = composition.lines.view(2, 2, Lines::count - 1);
    const std::int32_t width = field.right - field.left;
    const std::int32_t height = field.bottom - field.top;
    const std::int32_t shut = (height * (curveFull - weight)) >> 9; // on either side of the shutter
    RECT_drawPane(demo.screen, {field.left, field.top, width, height}, darkGround, RECT_MIX::set);
    drawLettersIn(field);
    RECT_drawPane(demo.screen, {field.left, field.top, width, shut}, demo.background, RECT_MIX::set);
    RECT_drawPane(demo.screen, {field.left, field.bottom, width, -shut}, demo.background, RECT_MIX::set);
}

/// A drawing that turns in the red field, another one in every bar, and a larger one while it has room. Its
/// lines are two pixels wide.
void drawFigure(Composition& composition, std::int32_t frame) {
    const std::int32_t weight = curveStay(frame, windowsBegin + 24, Lines::leaves, 40);
    if (weight == 0) {
        return;
    }
    LFONT* const figure = demo.textLarge;
    const KeptPen kept(figure);
    const View view = composition.lines.view(1, 1);
    const bool hasRoom = frame >= Lines::ordersBegin && frame < Lines::secondOrder;
    figure->character = 1 + (frame / barFrames) % std::max(demo.fontLarge->count - 1, 1);
    LFONT_setColour(figure, curveMix(red, 0xFFFFFF, weight));
    for (const std::int32_t bold : {0, 1}) {
        LFONT_place(figure, (view.left + view.right) / 2 + bold, (view.top + view.bottom) / 2,
                    hasRoom ? 4 : 3);
        figure->angle = 5 * frame;
        LFONT_drawChar(figure);
    }
}

/// A word for every part of the scene, which comes down to its field and goes up again.
void drawWords(Composition& composition, std::int32_t frame) {
    constexpr std::array<std::string_view, 6> words = {"LINES", "PANES", "LIFE", "ORDER", "GLASS", "WHOLE"};
    constexpr std::array<std::int32_t, 7> begins = {
        4,           panesBegin + 20,    windowsBegin + 66, Lines::ordersBegin,
        glassBegins, Lines::wholeBegins, Lines::leaves};
    const View view = composition.lines.view(1, 0);
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (frame >= begins[i] && frame < begins[i + 1]) {
            const std::int32_t arrive = curveFull - curveEase(frame, begins[i], begins[i] + 18);
            const std::int32_t depart = curveEase(frame, begins[i + 1] - 14, begins[i + 1]);
            drawCaption(demo.textMedium, {.text = words[i],
                                          .x = (view.left + view.right) / 2,
                                          .y = (view.top + view.bottom) / 2 - 7 - ((arrive + depart) >> 3),
                                          .colour = Lines::ink()});
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
    LFONT_setColour(demo.textMedium, Lines::ink());
}

constexpr Act<Composition> acts[] = {
    {0, frames, [](Composition& composition, std::int32_t frame) { composition.lines.place(frame); }},
    {0, frames, drawBars},
    {0, frames, drawDots},
    {0, frames, drawFields},
    {0, frames, drawOutlook},
    {windowsBegin, frames, drawLetters},
    {0, frames, [](Composition& composition, std::int32_t frame) { composition.lines.draw(frame); }},
    {0, frames, drawFigure},
    {0, frames, drawWords},
    {glassBegins, glassEnds, drawGlass},
    {0, frames,
     [](Composition& composition, std::int32_t) { composition.floor.draw(composition.lines.foot()); }},
    {0, frames, playScrollText<frames>},
    {0, frames, inkOverlay}};

} // namespace

void VELM4030_sceneExtra5() {
    play({.clearMode = ClearMode::background}, frames, acts);
}

} // namespace velm
