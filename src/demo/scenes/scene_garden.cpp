// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Extra scene 9, a garden that chance arranges: every season a generator of its own draws new curves of dots,
// new hues, new waves for the pictures that bend and for the ribbons that braid; what was fades while what
// comes grows. The generator starts the same each time, so the garden is always this one, and the music's
// choices stay.
#include "demo/scenes/acts.h"
#include "demo/scenes/curves.h"
#include "foundation/sine.h"

#include <algorithm>
#include <cstdlib>

namespace velm {

namespace {

constexpr std::int32_t frames = 1500;
constexpr std::int32_t seasonFrames = 150;
constexpr std::int32_t seasons = frames / seasonFrames;
constexpr std::int32_t growFrames = 50;
constexpr std::int32_t bedCount = 2; // one grows while the other fades
constexpr std::int32_t cloudCount = 3;
constexpr std::int32_t ribbonCount = 3;
constexpr std::int32_t ribbonWidth = 14;
constexpr std::int32_t ribbonLength = 256;
constexpr std::int32_t pictureHeight = 128;
constexpr std::uint32_t seed = 0x20150614;

struct Cloud {
    Owned<SINEDOTS_delete> dots = makeDots(SINE_tableLength);
    std::int32_t hue = 0;
};

/// Clouds that were drawn together.
struct Bed {
    Cloud clouds[cloudCount];
};

/// A wave on its way to what chance has drawn for it.
struct Sway {
    std::int32_t amplitude = 0; ///< 1/16 of what the distorters call it
    std::int32_t wanted = 0;
};

/// Three ribbons a third of a turn apart, which braid each other. They show one picture.
template <auto Make, auto Delete>
struct Braid {
    Braid(std::int32_t width, std::int32_t height) : thread(IMG_newSized(width, height)) {
        for (std::int32_t i = 0; i < ribbonCount; ++i) {
            ribbons[i] = Owned<Delete>(Make(), [&](auto& made) {
                made.source = thread;
                made.x = width > height ? 0 : (settings.windowWidth - width) / 2;
                made.y = width > height ? (settings.windowHeight - height) / 2 : 0;
                made.wave.phase = i * SINE_tableLength / ribbonCount;
                made.wave.speed = 8;
            });
        }
    }

    Picture thread; ///< of the ribbon's size
    Owned<Delete> ribbons[ribbonCount];
};

struct Garden {
    Owned<RANDOM_delete> random{RANDOM_new(), [](RANDOM& made) { made.counter = seed; }};
    Bed beds[bedCount];
    std::int32_t ribbonHue[ribbonLength] = {};
    std::int32_t ribbonStep = 0; ///< 1/1024 turns of its wave per pixel
    Braid<DISTY_new, DISTY_delete> lying{ribbonLength, ribbonWidth};
    Braid<DISTX_new, DISTX_delete> standing{ribbonWidth, ribbonLength};
    Picture picture{IMG_newSized(settings.windowWidth, pictureHeight)}; ///< as bright as it is to be
    Picture bent{IMG_newSized(settings.windowWidth, pictureHeight)};    ///< the same, bent by rows
    Owned<DISTX_delete> rows{DISTX_new(), [this](DISTX& made) {
                                 made.source = picture;
                                 made.wave.speed = 9;
                             }};
    Owned<DISTY_delete> columns{DISTY_new(), [this](DISTY& made) {
                                    made.source = bent;
                                    made.y = (settings.windowHeight - pictureHeight) / 2;
                                    made.wave.speed = 7;
                                }};
    Sway rowSway, columnSway, ribbonSway;
    std::int32_t shown = 0; ///< which picture
};

/// What grows in which season: 1 for yes.
struct Season {
    std::uint8_t clouds; ///< how many
    std::uint8_t lying, standing, picture;
};
constexpr Season plan[seasons] = {{1, 0, 0, 0}, {2, 0, 0, 0}, {2, 1, 0, 0}, {2, 1, 0, 1}, {3, 0, 0, 1},
                                  {2, 0, 1, 1}, {2, 1, 1, 0}, {3, 0, 0, 1}, {3, 1, 0, 1}, {3, 0, 0, 0}};

/// A number least..most.
std::int32_t draw(const Garden& garden, std::int32_t least, std::int32_t most) {
    return least + RANDOM_below(garden.random, most - least + 1);
}

/// A number least..most with either sign.
std::int32_t drawSigned(const Garden& garden, std::int32_t least, std::int32_t most) {
    const std::int32_t size = draw(garden, least, most);
    return (draw(garden, 0, 1) << 1) * size - size;
}

/// New curves and hues that go together. Small steps make lines of the dots, each wave finer than the one
/// before.
void plantBed(const Garden& garden, Bed& bed) {
    const std::int32_t hue = draw(garden, 0, hueCount - 1);
    const std::int32_t apart = draw(garden, 90, 320);
    for (std::int32_t i = 0; i < cloudCount; ++i) {
        SINEDOTS& cloud = *bed.clouds[i].dots;
        bed.clouds[i].hue = hue + i * apart;
        for (std::int32_t wave = 0; wave < SINEDOTS_waveCount; ++wave) {
            cloud.step[wave] = {drawSigned(garden, 1, 2 + 2 * wave), drawSigned(garden, 1, 2 + 2 * wave), 0};
            cloud.speed[wave] = {drawSigned(garden, 1, 4), drawSigned(garden, 1, 4), 0};
            cloud.phase[wave] = {draw(garden, 0, SINE_tableMask), draw(garden, 0, SINE_tableMask), 0};
        }
    }
}

/// Spins a new ribbon: the hue turns along it, now faster, now slower, now back.
void spinRibbon(Garden& garden) {
    std::int32_t hue = draw(garden, 0, hueCount - 1);
    std::int32_t turn = 0;
    for (std::int32_t x = 0; x < ribbonLength; ++x) {
        if (x % 16 == 0) {
            turn = draw(garden, -16, 16);
        }
        hue += turn;
        garden.ribbonHue[x] = hue;
    }
    garden.ribbonStep = draw(garden, 3, 8);
}

/// Paints a ribbon, lying or upright, round by its shading.
void paintRibbon(const Garden& garden, IMG* ribbon, std::int32_t weight) {
    const bool lies = ribbon->width > ribbon->height;
    for (std::int32_t x = 0; x < ribbonLength; ++x) {
        const std::uint32_t colour = curveHue(garden.ribbonHue[x], weight);
        for (std::int32_t thread = 0; thread < ribbonWidth; ++thread) {
            const std::int32_t bright = SINE_entry((2 * thread + 1) * SINE_quarter / ribbonWidth) >> 7;
            // Never quite black: the edge of a ribbon sets it off from what lies behind.
            const std::uint32_t shaded = curveDim(colour, bright * bright / curveFull) | 0x010101;
            IMG_putPixel(ribbon, lies ? x : thread, lies ? thread : x, shaded);
        }
    }
}

/// A season begins: chance draws all that is new in it.
void beginSeason(Garden& garden, std::int32_t season) {
    const auto hasRibbons = [](const Season& some) { return some.lying + some.standing != 0; };
    plantBed(garden, garden.beds[season % bedCount]);
    if (season > 0 && hasRibbons(plan[season]) && !hasRibbons(plan[season - 1])) {
        spinRibbon(garden);
    }
    garden.rowSway.wanted = 16 * draw(garden, 16, 70);
    garden.columnSway.wanted = 16 * draw(garden, 16, 90);
    garden.ribbonSway.wanted = 16 * draw(garden, 90, 190);
}

/// Another picture and the waves that bend it, while none is to be seen.
void changePicture(Garden& garden) {
    garden.rows->wave.offsetStep = draw(garden, 3, 9);
    garden.columns->wave.offsetStep = draw(garden, 2, 6);
    garden.shown += draw(garden, 1, 3);
}

/// How far something has grown that the plan has in some seasons: it grows at a season's beginning and fades
/// when the next one begins without it.
std::int32_t grownAt(std::int32_t frame, std::uint8_t Season::*kind) {
    const std::int32_t season = frame / seasonFrames;
    const std::int32_t now = plan[season].*kind != 0 ? 1 : 0;
    const std::int32_t before = season > 0 && plan[season - 1].*kind != 0 ? 1 : 0;
    const std::int32_t change = curveEase(frame % seasonFrames, 0, growFrames);
    return curveBetween(before * curveFull, now * curveFull, change);
}

/// The light of the picture: where one follows another, the first has to go before the second may come.
std::int32_t pictureLightAt(std::int32_t frame) {
    const std::int32_t season = frame / seasonFrames;
    const bool follows = season > 0 && plan[season].picture != 0 && plan[season - 1].picture != 0;
    const std::int32_t change = curveRise(frame % seasonFrames, 0, growFrames);
    return follows ? std::abs(curveBetween(-curveFull, curveFull, change)) : grownAt(frame, &Season::picture);
}

void copyDimmed(const IMG* from, IMG* to, std::int32_t left, std::int32_t top, std::int32_t weight) {
    for (std::int32_t y = 0; y < from->height; ++y) {
        for (std::int32_t x = 0; x < from->width; ++x) {
            IMG_putPixel(to, left + x, top + y, curveDim(IMG_getPixel(from, x, y), weight));
        }
    }
}

/// The picture of the season, bent by rows, then by columns, behind everything.
void drawPicture(Garden& garden, std::int32_t frame) {
    constexpr std::int32_t half = 128;
    if (frame % seasonFrames == growFrames / 2) {
        changePicture(garden);
    }
    const std::int32_t weight = pictureLightAt(frame) * 2 / 3;
    if (weight <= 0) {
        return;
    }
    IMG_fill(garden.picture, 0);
    IMG_fill(garden.bent, 0);
    if (garden.shown % 2 == 0) {
        copyDimmed(demo.pictureWide, garden.picture, 0, 0, weight);
    } else {
        copyDimmed(demo.pictureA, garden.picture, 0, 0, weight);
        copyDimmed(demo.pictureB, garden.picture, half, 0, weight);
        copyDimmed(demo.pictureB, garden.picture, 0, pictureHeight / 2, weight);
        copyDimmed(demo.pictureA, garden.picture, half, pictureHeight / 2, weight);
    }
    garden.rows->amplitude = garden.rowSway.amplitude / 16;
    garden.columns->amplitude = garden.columnSway.amplitude / 16;
    DISTX_draw(garden.rows, garden.bent);
    DISTY_draw(garden.columns, demo.screen);
}

/// Three ribbons braid each other; they begin as one straight dark one.
template <typename Braided, typename Draw>
void drawRibbons(const Garden& garden, const Braided& braid, Draw drawOne, std::int32_t weight) {
    if (weight == 0) {
        return;
    }
    paintRibbon(garden, braid.thread, weight);
    for (const auto& ribbon : braid.ribbons) {
        ribbon->amplitude = garden.ribbonSway.amplitude / 16 * weight / curveFull;
        ribbon->wave.offsetStep = garden.ribbonStep;
        drawOne(ribbon, demo.screen);
    }
}

void drawBraids(Garden& garden, std::int32_t frame) {
    drawRibbons(garden, garden.lying, DISTY_draw, grownAt(frame, &Season::lying));
    drawRibbons(garden, garden.standing, DISTX_draw, grownAt(frame, &Season::standing));
}

/// A cloud, trailed by its own past, ever dimmer.
void drawCloud(SINEDOTS& cloud, std::uint32_t colour, std::int32_t weight) {
    constexpr std::int32_t moments = 7;
    constexpr std::int32_t lag = 3; // frames
    SINEDOTS_AXES phases[SINEDOTS_waveCount];
    std::copy_n(cloud.phase, SINEDOTS_waveCount, phases);
    for (std::int32_t k = 0; k < moments; ++k) {
        for (std::int32_t wave = 0; wave < SINEDOTS_waveCount; ++wave) {
            cloud.phase[wave].x = phases[wave].x - k * lag * cloud.speed[wave].x;
            cloud.phase[wave].y = phases[wave].y - k * lag * cloud.speed[wave].y;
        }
        cloud.colour = curveDim(colour, weight * (moments - k) / (2 * moments));
        SINEDOTS_drawAdd(&cloud, demo.screen);
    }
    std::copy_n(phases, SINEDOTS_waveCount, cloud.phase);
}

/// Both beds: the one of this season as it grows, the one before as it fades.
void drawClouds(Garden& garden, std::int32_t frame) {
    constexpr std::int32_t leadOut = 70;
    const std::int32_t light = curveFull - curveRise(frame, frames - leadOut, frames - 6);
    const std::int32_t season = frame / seasonFrames;
    const std::int32_t grown = curveRise(frame % seasonFrames, 0, growFrames);
    for (std::int32_t age = 0; age < bedCount && age <= season; ++age) {
        const Bed& bed = garden.beds[(season - age) % bedCount];
        const std::int32_t weight = (age == 0 ? grown : curveFull - grown) * light / curveFull;
        for (std::int32_t i = 0; i < plan[season - age].clouds; ++i) {
            const Cloud& cloud = bed.clouds[i];
            SINEDOTS_advance(cloud.dots);
            if (weight > 0) {
                drawCloud(*cloud.dots, curveHue(cloud.hue + frame), weight);
            }
        }
    }
}

/// What chance has drawn for a season comes slowly.
void growSeason(Garden& garden, std::int32_t frame) {
    if (frame % seasonFrames == 0) {
        beginSeason(garden, frame / seasonFrames);
    }
    for (Sway* const sway : {&garden.rowSway, &garden.columnSway, &garden.ribbonSway}) {
        sway->amplitude += (sway->wanted - sway->amplitude) / 32;
    }
}

void moveWaves(Garden& garden, std::int32_t) {
    DISTX_advance(garden.rows);
    DISTY_advance(garden.columns);
    for (std::int32_t i = 0; i < ribbonCount; ++i) {
        DISTY_advance(garden.lying.ribbons[i]);
        DISTX_advance(garden.standing.ribbons[i]);
    }
}

constexpr Act<Garden> acts[] = {{0, frames, growSeason},
                                {0, frames, drawPicture},
                                {0, frames, drawBraids},
                                {0, frames, drawClouds},
                                {0, frames, moveWaves}};

} // namespace

void VELM4030_sceneExtra9() {
    VELM4030_fadeOut();
    play({.fadeStep = 0x080808, .glare = 1}, frames, acts);
}

} // namespace velm
