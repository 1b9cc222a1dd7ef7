// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Extra scene 1, the drum: the names in the working folder on a turning drum, the selected one large before
// the others, and around it the bar of music that is playing as a ring of rays. The keys e and d or the
// arrows turn the drum.
#include "demo/scenes/acts.h"
#include "demo/scenes/caption.h"
#include "demo/scenes/curves.h"
#include "effects/lradial.h"
#include "effects/sineline.h"
#include "foundation/sine.h"
#include "foundation/wrap.h"
#include "image/imgfx.h"
#include "platform/folder.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <limits>

namespace velm {

namespace {

constexpr std::int32_t untilSpace = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t drumRadius = 100; // pixels
constexpr std::int32_t drumStep = 44;    // 1/1024 turns between names
constexpr std::int32_t namesBeyond = 5;  // names on either side of the selected one; the next would be behind
constexpr std::int32_t nameX = 24;       // left edge of the selected name
constexpr std::int32_t cell = 8;         // of the small font, pixels
constexpr std::int32_t hueStep = 48;     // of the ramp from name to name
constexpr std::int32_t firstPlace = -12; // names before the first one, where the drum begins to turn
constexpr std::int32_t one = 1 << 8;     // 1.0 of a place on the drum

/// Lists the folder anew, in the order of the bytes of the names. One that cannot be read leaves an empty
/// list.
void listFolder() {
    demo.dirSelection = 0;
    if (demo.dirListing == nullptr && (demo.dirListing = DIR_new()) == nullptr) {
        return;
    }
    LIST* const names = demo.dirListing->names;
    while (names->count > 0) {
        delete[] static_cast<char*>(LIST_pop(names));
    }
    FOLDER_read(demo.dirListing);
    std::sort(names->items, names->items + names->count, [](const void* a, const void* b) {
        return std::strcmp(static_cast<const char*>(a), static_cast<const char*>(b)) < 0;
    });
}

std::int32_t nameCount() {
    return demo.dirListing != nullptr ? demo.dirListing->names->count : 0;
}

std::int32_t selection() {
    return std::clamp(demo.dirSelection, 0, std::max(nameCount() - 1, 0));
}

std::uint32_t hueOf(std::int32_t index, std::int32_t weight = curveFull) {
    return curveHue(wrapMul(index, hueStep), weight);
}

void prepareShades(SAMPLE& shades) {
    constexpr std::int32_t twoThirds = 170;
    for (std::int32_t i = 0; i < shades.length; ++i) {
        SAMPLE_set(&shades, i, static_cast<std::int32_t>(curveHue(i, twoThirds)));
    }
}

void prepareLine(SINELINE& line) {
    constexpr std::int32_t right = 160; // where short names leave room
    line.x = right;
    line.colour = 0x081828;
    line.echoColour = 0x100828;
    line.wave[0].reach = 48;
    line.wave[1].reach = 24;
}

struct Browser {
    Browser() { listFolder(); }

    Owned<SAMPLE_delete> shades{SAMPLE_clone(demo.hueRamp), prepareShades}; ///< the ring's
    Owned<LRADIAL_delete> ring{LRADIAL_new(), [this](LRADIAL& made) {
                                   constexpr std::int32_t rays = 128;
                                   LRADIAL_setCount(&made, rays);
                                   made.colours = shades;
                                   made.spin = 1;
                               }};
    Owned<SINELINE_delete> line{SINELINE_new(), prepareLine}; ///< breathes behind the names
    Picture glow{IMG_clone(demo.screen)};                     ///< the frame before, blurred
    std::int32_t place = firstPlace * one; ///< 24.8; the name that faces the viewer; it follows the selection
    std::int32_t still = 0;                ///< frames since the selection changed
    std::int32_t shown = 0;                ///< the selection of the frame before
};

/// The ring: a low wave, and over it rays as long as the next twelfth of a second of the music is loud.
void drawRing(Browser& browser, std::int32_t frame) {
    constexpr std::int32_t inner = 98;
    constexpr std::int32_t growth = 2; // pixels a frame while the ring comes up
    constexpr std::int32_t waveReach = 14;
    constexpr std::int32_t soundReach = 64;
    constexpr std::int32_t samplesPerRay = 29;
    constexpr std::int32_t quiet = 4; // bits that a sample is shifted down to a length in pixels
    LRADIAL* const ring = browser.ring;
    ring->inner = std::min(frame > inner ? inner : frame * growth, inner);
    LRADIAL_advance(ring);
    ring->reach = waveReach;
    LRADIAL_setWaveLengths(ring);
    LRADIAL_draw(ring, demo.screen);
    if (demo.music != nullptr && demo.sound != nullptr) {
        ring->reach = soundReach;
        LRADIAL_setSoundLengths(ring, demo.music->bar, demo.sound->position, samplesPerRay, quiet);
        LRADIAL_draw(ring, demo.screen);
    }
}

/// What the line font has for a byte of a name.
char printable(char byte) {
    return byte >= ' ' && byte <= '~' ? byte : '?';
}

/// Writes what can be seen of a name from column x on. A name that the right edge would cut ends in '>' where
/// `cut` is set.
void drawName(const char* name, std::int32_t x, std::int32_t y, std::int32_t scale, std::uint32_t colour,
              bool cut) {
    constexpr std::int32_t most = 40; // more than a row of the window takes
    const std::int32_t width = cell * scale;
    const std::int32_t first = std::max(-x / width - 1, 0);
    char seen[most];
    std::int32_t count = 0;
    for (bool last = false; !last && count < most; ++count) {
        const std::int32_t i = first + count;
        if (name[i] == '\0' || x + i * width >= demo.screen->width) {
            break;
        }
        last = cut && name[i + 1] != '\0' && x + (i + 2) * width > demo.screen->width;
        seen[count] = last ? '>' : printable(name[i]);
    }
    drawCaption(demo.textSmall, {.text = {seen, static_cast<std::size_t>(count)},
                                 .x = x + first * width + count * width / 2,
                                 .y = y,
                                 .scale = scale,
                                 .colour = colour});
}

/// A name on the drum, `turned` 1/1024 turns from the viewer.
void drawDrumName(std::int32_t index, std::int32_t turned) {
    constexpr std::int32_t depthX = 40; // pixels that the drum recedes to the right
    const std::int32_t facing = SINE_cosineScaled(256, turned);
    if (turned <= -SINE_quarter || turned >= SINE_quarter) {
        return;
    }
    const std::int32_t y = middle + SINE_scaled(drumRadius, turned);
    drawName(static_cast<const char*>(LIST_get(demo.dirListing->names, index)),
             nameX + (((256 - facing) * depthX) >> 8), y, 1, hueOf(index, facing * 3 / 4), true);
}

/// How far the selected name has run to the left: a long one waits, runs to its end, waits and runs back.
std::int32_t runOf(std::int32_t overhang, std::int32_t still) {
    constexpr std::int32_t wait = 30;
    if (overhang <= 0) {
        return 0;
    }
    const std::int32_t step = still % (2 * (overhang + wait));
    const std::int32_t there = std::clamp(step - wait, 0, overhang);
    return step < overhang + wait ? there : overhang - std::clamp(step - overhang - 2 * wait, 0, overhang);
}

/// The selected name between two lines, in white and twice as large as the others.
void drawSelected(const Browser& browser) {
    constexpr std::int32_t scale = 2;
    constexpr std::int32_t half = 13; // pixels from the middle to each line
    const auto* name = static_cast<const char*>(LIST_get(demo.dirListing->names, selection()));
    const auto width = static_cast<std::int32_t>(std::strlen(name)) * cell * scale;
    const std::int32_t overhang = width + 2 * nameX - demo.screen->width;
    for (const std::int32_t y : {middle - half, middle + half}) {
        IMG_drawHLine(demo.screen, hueOf(selection()), y, nameX, demo.screen->width - 1 - nameX);
    }
    drawName(name, nameX - runOf(overhang, browser.still), middle, scale, 0xFFFFFF, false);
}

/// The number of the selected name and how many there are.
void drawCount() {
    constexpr std::int32_t y = 7;
    char text[32];
    std::snprintf(text, sizeof text, "%d/%d", selection() + 1, nameCount());
    drawCaption(demo.textSmall, {.text = text, .y = y, .colour = hueOf(selection(), 160)});
}

void drawEmpty(std::int32_t frame) {
    const std::int32_t weight = 160 + SINE_scaled(90, wrapMul(12, frame));
    drawCaption(demo.textSmall, {.text = "NOTHING TO READ HERE", .weight = weight});
}

/// The place follows the selection, a fifth of the way a frame.
void turnDrum(Browser& browser) {
    const std::int32_t goal = selection() * one;
    const std::int32_t way = goal - browser.place;
    browser.place = std::abs(way) < 5 ? goal : browser.place + way / 5;
    browser.still = browser.shown == demo.dirSelection ? browser.still + 1 : 0;
    browser.shown = demo.dirSelection;
}

void drawDrum(Browser& browser) {
    turnDrum(browser);
    const std::int32_t first = std::max((browser.place >> 8) - namesBeyond, 0);
    const std::int32_t last = std::min((browser.place >> 8) + 1 + namesBeyond, nameCount() - 1);
    const bool settled = browser.place == selection() * one;
    for (std::int32_t i = first; i <= last; ++i) {
        if (!settled || i != selection()) {
            drawDrumName(i, ((i * one - browser.place) * drumStep) >> 8);
        }
    }
    if (settled) {
        drawSelected(browser);
    }
}

/// Lets the frame before shine on: a little wider, then, by the clear mode, a little darker.
void spreadGlow(Browser& browser, std::int32_t) {
    IMGFX_blur7(demo.screen, browser.glow);
    IMG_copy(browser.glow, demo.screen);
}

void drawLine(Browser& browser, std::int32_t) {
    SINELINE_advance(browser.line);
    SINELINE_draw(browser.line, demo.screen);
}

void drawNames(Browser& browser, std::int32_t frame) {
    if (nameCount() > 0) {
        drawDrum(browser);
        drawCount();
    } else {
        drawEmpty(frame);
    }
}

constexpr Act<Browser> acts[] = {{0, untilSpace, spreadGlow},
                                 {0, untilSpace, drawRing},
                                 {0, untilSpace, drawLine},
                                 {0, untilSpace, drawNames}};

} // namespace

void VELM4030_sceneExtra1() {
    play({.fadeStep = 0x181818, .fadeOn = 1, .clearMode = ClearMode::fade}, untilSpace, acts);
}

} // namespace velm
