// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Extra scene 1, the drum: the names in the working folder on a turning drum, the one in front large and
// bold, and where the drum's hub would be the bar of music that is playing as a ring of rays. Until the keys
// e and d or the arrows turn it, the drum plays by itself, in rounds of eight bars: it unfolds, rolls in,
// goes on by a name on every half bar, spins and stops on a winner, and folds up again.
#include "demo/scenes/acts.h"
#include "demo/scenes/beat.h"
#include "demo/scenes/caption.h"
#include "demo/scenes/letters.h"
#include "demo/scenes/name_drum.h"
#include "demo/scenes/readable.h"
#include "effects/lradial.h"
#include "effects/sineline.h"
#include "foundation/sine.h"
#include "image/imgfx.h"
#include "platform/folder.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string_view>

namespace velm {

namespace {

constexpr std::int32_t untilSpace = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t fewestPlates = 8; // a shorter folder leaves some of them blank
constexpr std::int32_t hubX = 44;        // where the ring turns, column

// A round of the drum by itself, in frames.
constexpr std::int32_t rollIn = barFrames;
constexpr std::int32_t spinBegin = 6 * barFrames;
constexpr std::int32_t winner = 7 * barFrames; // the spin is over
constexpr std::int32_t foldUp = winner + 40;
constexpr std::int32_t roundFrames = 8 * barFrames;
// And in plates.
constexpr std::int32_t platesIn = 16;
constexpr std::int32_t platesStepped = 2 * (spinBegin - rollIn) / barFrames;
constexpr std::int32_t platesSpun = 24;

/// What a folder says of itself and of the one above it.
bool isDots(const char* name) {
    return std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0;
}

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
    for (std::int32_t i = names->count - 1; i >= 0; --i) {
        if (auto* const name = static_cast<char*>(LIST_get(names, i)); isDots(name)) {
            LIST_remove(names, i);
            delete[] name;
        }
    }
    std::sort(names->items, names->items + names->count, [](const void* a, const void* b) {
        return std::strcmp(static_cast<const char*>(a), static_cast<const char*>(b)) < 0;
    });
}

std::int32_t nameCount() {
    return demo.dirListing != nullptr ? demo.dirListing->names->count : 0;
}

std::int32_t plateCount() {
    return std::max(nameCount(), fewestPlates);
}

/// The name on a plate, which is empty where the folder has fewer than the drum.
std::string_view nameOf(std::int32_t plate) {
    const std::int32_t index = positiveModulo(plate, plateCount());
    return index < nameCount() ? static_cast<const char*>(LIST_get(demo.dirListing->names, index)) : "";
}

void prepareShades(SAMPLE& shades) {
    constexpr std::int32_t twoThirds = 170;
    for (std::int32_t i = 0; i < shades.length; ++i) {
        SAMPLE_set(&shades, i, static_cast<std::int32_t>(curveHue(i, twoThirds)));
    }
}

void prepareLine(SINELINE& line) {
    line.colour = 0x082038;
    line.echoColour = 0x180830;
    line.wave[0].reach = 84;
    line.wave[1].reach = 40;
}

struct Browser {
    Browser() { listFolder(); }

    Owned<SAMPLE_delete> shades{SAMPLE_clone(demo.hueRamp), prepareShades}; ///< the ring's
    Owned<LRADIAL_delete> ring{LRADIAL_new(), [this](LRADIAL& made) {
                                   constexpr std::int32_t rays = 128;
                                   LRADIAL_setCount(&made, rays);
                                   made.colours = shades;
                                   made.x = hubX;
                                   made.spin = 1;
                               }};
    Owned<SINELINE_delete> line{SINELINE_new(), prepareLine}; ///< breathes behind everything
    Picture glow{IMG_clone(demo.screen)};                     ///< the frame before, blurred
    NameDrum drum;
    bool byItself = true;   ///< no key has turned the drum
    std::int32_t first = 0; ///< plate on which the round of now rolls in
    std::int32_t still = 0; ///< frames since the selection changed
    std::int32_t shown = 0; ///< the selection of the frame before
};

/// Plates that the drum by itself has turned since the first one of its round, 24.8.
std::int32_t turnedBy(std::int32_t frame) {
    constexpr std::int32_t half = barFrames / 2, wait = 25;
    constexpr std::int32_t one = NameDrum::one;
    if (frame < rollIn) {
        const std::int32_t left = rollIn - frame;
        return -platesIn * one * left / rollIn * left / rollIn;
    }
    if (frame < spinBegin) {
        const std::int32_t step = (frame - rollIn) / half;
        return step * one + curveEase((frame - rollIn) % half, wait, half);
    }
    return platesStepped * one + platesSpun * curveEase(frame, spinBegin, winner);
}

/// The drum shows itself: its round, from unfolding to folding up.
void playRound(Browser& browser, std::int32_t frame) {
    constexpr std::int32_t unfold = 50;
    const std::int32_t now = frame % roundFrames;
    if (now == 0 && frame > 0) { // the next one goes on where this one ended
        browser.first = (browser.first + platesStepped + platesSpun + platesIn) % plateCount();
    }
    browser.drum.place = browser.first * NameDrum::one + turnedBy(now);
    browser.drum.open = curveEase(now, 0, unfold) - curveEase(now, foldUp, roundFrames);
    const std::int32_t plate = (browser.drum.place + NameDrum::one / 2) >> 8;
    demo.dirSelection = std::min(positiveModulo(plate, plateCount()), std::max(nameCount() - 1, 0));
}

/// The drum follows the selection, a fifth of the way a frame, along the shorter way round.
void followKeys(Browser& browser) {
    constexpr std::int32_t unfold = 6;
    NameDrum& drum = browser.drum;
    const std::int32_t round = plateCount() * NameDrum::one;
    const std::int32_t way =
        positiveModulo(demo.dirSelection * NameDrum::one - drum.place + round / 2, round) - round / 2;
    drum.place += std::abs(way) < 5 ? way : way / 5;
    drum.open = std::min(drum.open + unfold, curveFull);
}

/// How far the name in front has run to the left: a long one waits, runs to its end, waits and runs back.
std::int32_t runOf(std::int32_t overhang, std::int32_t still) {
    constexpr std::int32_t wait = 45;
    if (overhang <= 0) {
        return 0;
    }
    const std::int32_t step = still % (2 * (overhang + wait));
    const std::int32_t there = std::clamp(step - wait, 0, overhang);
    return step < overhang + wait ? there : overhang - std::clamp(step - overhang - 2 * wait, 0, overhang);
}

void runName(Browser& browser) {
    NameDrum& drum = browser.drum;
    const bool isSettled = (drum.place & (NameDrum::one - 1)) == 0;
    browser.still = isSettled ? browser.still + 1 : 0;
    const std::int32_t overhang =
        (countLetters(nameOf(drum.place >> 8)) - NameDrum::frontLetters) * NameDrum::letterWidth;
    drum.run = isSettled ? runOf(overhang, browser.still) : drum.run * 3 / 4;
}

void turnDrum(Browser& browser, std::int32_t frame) {
    browser.byItself = browser.byItself && demo.dirSelection == browser.shown;
    if (browser.byItself) {
        playRound(browser, frame);
    } else {
        followKeys(browser);
    }
    browser.shown = demo.dirSelection;
    runName(browser);
}

/// 256 when the drum by itself stops on its winner, 0 again half a bar later.
std::int32_t winnerWeight(const Browser& browser, std::int32_t frame) {
    const std::int32_t now = frame % roundFrames;
    return browser.byItself && now >= winner ? curveFull - curveRise(now, winner, winner + barFrames / 2) : 0;
}

/// From the winner light runs over all plates, one after the other.
std::int32_t waveOf(const Browser& browser, std::int32_t frame) {
    constexpr std::int32_t rowsAFrame = 8;
    const std::int32_t since = frame % roundFrames - winner;
    return browser.byItself && since > 0 ? since * rowsAFrame * NameDrum::one : 0;
}

/// The ring: a low wave, and over it rays as long as the next twelfth of a second of the music is loud.
void drawRing(Browser& browser, std::int32_t frame) {
    constexpr std::int32_t inner = 27;
    constexpr std::int32_t waveReach = 7, winnerReach = 9;
    constexpr std::int32_t soundReach = 16;
    constexpr std::int32_t samplesPerRay = 29;
    constexpr std::int32_t quiet = 6; // bits that a sample is shifted down to a length in pixels
    LRADIAL* const ring = browser.ring;
    ring->inner = inner * browser.drum.open >> 8;
    LRADIAL_advance(ring);
    ring->reach = waveReach + (winnerReach * winnerWeight(browser, frame) >> 8);
    LRADIAL_setWaveLengths(ring);
    LRADIAL_draw(ring, demo.screen);
    if (demo.music != nullptr && demo.sound != nullptr) {
        ring->reach = soundReach;
        LRADIAL_setSoundLengths(ring, demo.music->bar, demo.sound->position, samplesPerRay, quiet);
        LRADIAL_draw(ring, demo.screen);
    }
}

/// The number of the name in front, in the hub, and how many there are.
void drawCount(const Browser& browser) {
    constexpr std::int32_t up = 5, down = 12;
    char text[16];
    const std::int32_t weight = browser.drum.open;
    std::snprintf(text, sizeof text, "%d", demo.dirSelection + 1);
    drawCaption(demo.textSmall, {.text = text, .x = hubX, .y = middle - up, .scale = 2, .weight = weight});
    std::snprintf(text, sizeof text, "of %d", nameCount());
    drawCaption(demo.textSmall, {.text = text, .x = hubX, .y = middle + down, .weight = weight * 3 / 4});
}

void drawEmpty(std::int32_t frame) {
    const std::int32_t weight = 160 + SINE_scaled(90, wrapMul(12, frame));
    drawCaption(demo.textSmall, {.text = "NOTHING TO READ HERE", .weight = weight});
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
    constexpr std::int32_t flareFrames = 20;
    if (nameCount() == 0) {
        drawEmpty(frame);
        return;
    }
    turnDrum(browser, frame);
    browser.drum.hue = 512 + SINE_scaled(200, frame);
    browser.drum.flare = std::max(beatWeight(flareFrames, 2) / 2, winnerWeight(browser, frame));
    browser.drum.wave = waveOf(browser, frame);
    browser.drum.draw(demo.screen, nameOf);
    drawCount(browser);
}

/// The four letters, down where the drum leaves room.
void drawLetters(Browser&, std::int32_t) {
    constexpr std::int32_t x = 2, y = 216;
    drawLettersAt(x, y);
}

constexpr Act<Browser> acts[] = {{0, untilSpace, spreadGlow},
                                 {0, untilSpace, drawLine},
                                 {0, untilSpace, drawNames},
                                 {0, untilSpace, drawRing},
                                 {0, untilSpace, drawLetters}};

} // namespace

void VELM4030_sceneExtra1() {
    play({.fadeStep = 0x181818, .fadeOn = 1, .clearMode = ClearMode::fade}, untilSpace, acts);
}

} // namespace velm
