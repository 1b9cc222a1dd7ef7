// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Extra scene 8, the mosaic: outlines are drawn stroke by stroke, then colour springs up in every pane
// between them, and runs dry while the next plate is drawn over it. The last plate asks to stay inside the
// lines; there the lines give way, and the colour takes the whole picture.
#include "demo/scenes/acts.h"
#include "demo/scenes/beat.h"
#include "demo/scenes/caption.h"
#include "demo/scenes/mosaic_plates.h"
#include "effects/fill.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace velm {

namespace {

constexpr std::int32_t frames = 750;
constexpr std::int32_t plateFrames = 3 * barFrames / 2; // from one plate's first stroke to the next one's
constexpr std::int32_t drawFrames = 30;                 // strokes
constexpr std::int32_t drainFrames = 40;                // the colour runs dry, over the next plate's strokes
constexpr std::int32_t lastPlate = (plateCount - 1) * plateFrames;
constexpr std::int32_t outbreak = lastPlate + barFrames; // the lines give way
constexpr std::int32_t leave = frames - 72;

constexpr std::uint32_t fresh = 0xE0F4FF; // outlines before there is colour

/// A plate at work: its outlines, and the colour between them.
struct Easel {
    Owned<SAMPLE_delete> palette{SAMPLE_new(), [](SAMPLE& made) { SAMPLE_setLength(&made, hueCount); }};
    Owned<FILL_delete> fill{FILL_new(), [this](FILL& made) {
                                FILL_setSize(&made, settings.windowWidth, settings.windowHeight);
                                made.palette = palette;
                            }};
    Picture canvas{newWindowPicture()};
    Pane panes[1024] = {};
    std::int32_t paneCount = 0;
};

/// Two by turns: while one dries, the next is drawn.
struct Studio {
    Easel easels[2];
};

/// The pane that these spans fill. The widest spans would do for a bowl; the one nearest to the mean is
/// inside of a ring, too.
Pane paneOf(const FILL_SPAN* spans, std::int32_t count) {
    std::int64_t area = 0;
    std::int64_t sumX = 0;
    std::int64_t sumY = 0;
    const auto middleOf = [](const FILL_SPAN& span) { return (span.left + span.right) / 2; };
    for (std::int32_t i = 0; i < count; ++i) {
        const std::int64_t width = spans[i].right - spans[i].left + 1;
        area += width;
        sumX += width * middleOf(spans[i]);
        sumY += width * spans[i].row;
    }
    const auto distanceOf = [&](const FILL_SPAN& span) {
        const std::int64_t dx = middleOf(span) - sumX / area;
        const std::int64_t dy = span.row - sumY / area;
        return dx * dx + dy * dy;
    };
    const FILL_SPAN& nearest =
        *std::min_element(spans, spans + count, [&](const FILL_SPAN& a, const FILL_SPAN& b) {
            return distanceOf(a) < distanceOf(b);
        });
    return {middleOf(nearest), nearest.row, static_cast<std::int32_t>(area)};
}

/// Finds every pane by filling it, so that each has one spring, inside of it.
void findPanes(Easel& easel) {
    FILL& fill = *easel.fill;
    FILL_begin(&fill, easel.canvas);
    fill.flow = fill.width * fill.height; // to the end
    easel.paneCount = 0;
    for (std::int32_t i = 0; i < fill.flow && easel.paneCount < std::ssize(easel.panes); ++i) {
        const std::int32_t first = fill.count;
        if (FILL_pour(&fill, i % fill.width, i / fill.width, 0)) {
            FILL_advance(&fill);
            easel.panes[easel.paneCount++] = paneOf(fill.spans + first, fill.count - first);
        }
    }
}

/// Leads the colours into each other, and the last one into the first.
void mixPalette(SAMPLE& palette, const Plate& plate) {
    constexpr std::int32_t part = hueCount / Plate::colourCount;
    for (std::int32_t i = 0; i < palette.length; ++i) {
        const std::int32_t k = i / part % Plate::colourCount;
        const std::uint32_t colour = curveMix(plate.colours[k], plate.colours[(k + 1) % Plate::colourCount],
                                              i % part * curveFull / part);
        SAMPLE_set(&palette, i, static_cast<std::int32_t>(colour));
    }
}

/// All outlines stand: the panes are known, and dry.
void beginColour(Easel& easel, const Plate& plate) {
    mixPalette(*easel.palette, plate);
    findPanes(easel);
    FILL& fill = *easel.fill;
    FILL_begin(&fill, easel.canvas);
    fill.phase = 0;
    fill.flow = plate.flow;
    fill.stretch = plate.stretch;
    fill.speed = plate.speed;
    fill.ripple = plate.ripple;
}

/// Draws, and later pours, frame `age` of a plate.
void workAt(Easel& easel, const Plate& plate, std::int32_t age) {
    if (age == 0) {
        IMG_fill(easel.canvas, 0);
        FILL_begin(easel.fill, easel.canvas);
    }
    if (age <= drawFrames) {
        plate.draw(easel.canvas, curveRise(age + 1, 0, drawFrames));
    }
    if (age == drawFrames) {
        beginColour(easel, plate);
    }
    for (std::int32_t i = 0; age >= drawFrames && i < easel.paneCount; ++i) {
        const Pane& pane = easel.panes[i];
        if (plate.delay(pane) == age - drawFrames) {
            FILL_pour(easel.fill, pane.x, pane.y, plate.hue(pane));
        }
    }
}

/// The outlines let the colour out: each of their pixels becomes a spring.
void breakOut(Easel& easel, const Plate& plate) {
    constexpr std::int32_t torrent = 2000; // spans a frame
    IMG& canvas = *easel.canvas;
    for (std::int32_t y = 0; y < canvas.height; ++y) {
        for (std::int32_t x = 0; x < canvas.width; ++x) {
            if (std::uint32_t& pixel = canvas.pixels[x + std::int64_t{y} * canvas.width]; pixel != 0) {
                pixel = 0;
                FILL_pour(easel.fill, x, y, plate.hue({x, y, 1}) + hueCount / 2);
            }
        }
    }
    easel.fill->flow = torrent;
}

/// Lets the colour run dry from its springs on, so that a weight tells how much of its area is gone.
void drain(FILL& fill, std::int32_t weight) {
    constexpr std::int32_t agesTold = 1024; // what is older goes with the oldest of these
    std::int32_t areaOf[agesTold] = {};
    std::int64_t total = 0;
    for (std::int32_t i = 0; weight > 0 && i < fill.count; ++i) {
        const FILL_SPAN& span = fill.spans[i];
        areaOf[std::min(span.age, agesTold - 1)] += span.right - span.left + 1;
        total += span.right - span.left + 1;
    }
    std::int64_t gone = total * weight / curveFull;
    fill.drained = 0;
    while (fill.drained < agesTold && gone > 0) {
        gone -= areaOf[fill.drained++];
    }
    if (weight >= curveFull) {
        fill.drained = fill.width * fill.height; // no age is beyond
    }
}

/// Outlines of two pixels, light on the dark, and dark between the colours.
void paintWalls(const IMG& canvas, std::uint32_t colour) {
    const std::int32_t width = std::min(canvas.width, demo.screen->width);
    for (std::int32_t y = 1; y < std::min(canvas.height, demo.screen->height); ++y) {
        const std::uint32_t* const from = rowOf(canvas, y);
        const std::uint32_t* const above = from - canvas.width;
        std::uint32_t* const to = rowOf(*demo.screen, y);
        for (std::int32_t x = 0; x < width; ++x) {
            to[x] = (from[x] | above[x]) != 0 ? colour : to[x];
        }
    }
}

void showEasel(Easel& easel, std::int32_t age) {
    FILL_advance(easel.fill);
    easel.fill->phase += beatWeight(16, 4) / 16; // a surge on every beat
    FILL_draw(easel.fill, demo.screen);
    const std::int32_t dark = curveRise(age, drawFrames, drawFrames + 40);
    paintWalls(*easel.canvas, curveMix(fresh, 0x000000, dark));
}

/// One plate after the other; the one before runs dry below.
void playPlates(Studio& studio, std::int32_t frame) {
    const std::int32_t number = std::min(frame / plateFrames, plateCount - 1);
    const std::int32_t age = frame - number * plateFrames;
    Easel& before = studio.easels[(number + 1) % 2];
    if (number > 0 && age < drainFrames) {
        drain(*before.fill, curveRise(age, 0, drainFrames));
        showEasel(before, plateFrames + age);
    }
    Easel& easel = studio.easels[number % 2];
    if (frame < outbreak) {
        workAt(easel, plateAt(number), age);
    } else if (frame == outbreak) {
        breakOut(easel, plateAt(number));
    }
    drain(*easel.fill, curveRise(frame, leave, frames - 2));
    showEasel(easel, age);
}

/// A caption on a plate at the lower edge: typed, and taken back from its end.
void drawTitle(std::string_view title, std::int32_t age, std::int32_t end) {
    constexpr std::int32_t cell = 8;
    constexpr std::int32_t y = 244;
    const auto length = static_cast<std::int32_t>(title.size());
    const std::int32_t typed = std::clamp(std::min(age, end - age), 0, length);
    if (typed > 0) {
        IMG_fillRect(demo.screen, middle - (length + 1) * cell / 2, y - cell, (typed + 1) * cell + 1,
                     2 * cell, 0);
        for (std::int32_t x = middle; x <= middle + 1; ++x) { // bold
            drawCaption(demo.textSmall, {.text = title, .x = x, .y = y, .colour = fresh, .typed = typed});
        }
    }
}

void playTitles(Studio&, std::int32_t frame) {
    if (frame < lastPlate) {
        drawTitle(plateAt(frame / plateFrames).title, frame % plateFrames, plateFrames);
    }
    drawTitle("OR RATHER DO NOT", frame - outbreak, frames - 30 - outbreak);
}

constexpr Act<Studio> acts[] = {{0, frames, playPlates}, {0, frames, playTitles}};

} // namespace

void VELM4030_sceneExtra8() {
    VELM4030_fadeOut();
    play({.fadeStep = 0x080808}, frames, acts);
}

} // namespace velm
