// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A garden that chance arranges: every season a generator of its own draws new curves of dots, new hues, new
// waves for the pictures that bend and for the ribbons that braid; what was fades while what comes grows. The
// generator starts the same each time, so the garden is always this one, and the music's choices stay.
#include "demo/scene_curves.h"
#include "demo/scene_frames.h"
#include "demo/state.h"
#include "demo/velm4030.h"
#include "foundation/sine.h"
#include "image/rgb888.h"

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

/// Clouds that were drawn together.
struct Bed {
    SINEDOTS* clouds[cloudCount];
    std::int32_t hue[cloudCount];
};

/// A wave on its way to what chance has drawn for it.
struct Sway {
    std::int32_t amplitude; ///< 1/16 of what the distorters call it
    std::int32_t wanted;
};

struct Garden {
    RANDOM* random;
    Bed beds[bedCount];
    IMG* across;  ///< ribbonLength by ribbonWidth, the ribbon that lies
    IMG* upright; ///< ribbonWidth by ribbonLength, the one that stands
    std::int32_t ribbonHue[ribbonLength];
    std::int32_t ribbonStep; ///< 1/1024 turns of its wave per pixel
    DISTY* lying[ribbonCount];
    DISTX* standing[ribbonCount];
    IMG* picture; ///< 256 by pictureHeight, as bright as it is to be
    IMG* bent;    ///< the same, bent by rows
    DISTX* rows;
    DISTY* columns;
    Sway rowSway, columnSway, ribbonSway;
    std::int32_t shown; ///< which picture
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
        SINEDOTS& cloud = *bed.clouds[i];
        bed.hue[i] = hue + i * apart;
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

/// Paints a ribbon, round by its shading, so bright, lying or upright.
void paintRibbon(const Garden& garden, IMG* ribbon, std::int32_t light) {
    const bool lies = ribbon->width > ribbon->height;
    for (std::int32_t x = 0; x < ribbonLength; ++x) {
        const std::uint32_t colour = curveHue(garden.ribbonHue[x], static_cast<std::uint32_t>(light));
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

void copyDimmed(const IMG* from, IMG* to, std::int32_t left, std::int32_t top, std::int32_t light) {
    for (std::int32_t y = 0; from != nullptr && y < from->height; ++y) {
        for (std::int32_t x = 0; x < from->width; ++x) {
            IMG_putPixel(to, left + x, top + y, curveDim(IMG_getPixel(from, x, y), light));
        }
    }
}

/// The picture of the season, bent by rows, then by columns, behind everything.
void drawPicture(Garden& garden, std::int32_t light) {
    constexpr std::int32_t half = 128;
    IMG_fill(garden.picture, 0);
    IMG_fill(garden.bent, 0);
    if (garden.shown % 2 == 0) {
        copyDimmed(demo.pictureWide, garden.picture, 0, 0, light);
    } else {
        copyDimmed(demo.pictureA, garden.picture, 0, 0, light);
        copyDimmed(demo.pictureB, garden.picture, half, 0, light);
        copyDimmed(demo.pictureB, garden.picture, 0, pictureHeight / 2, light);
        copyDimmed(demo.pictureA, garden.picture, half, pictureHeight / 2, light);
    }
    garden.rows->amplitude = garden.rowSway.amplitude / 16;
    garden.columns->amplitude = garden.columnSway.amplitude / 16;
    DISTX_draw(garden.rows, garden.bent);
    DISTY_draw(garden.columns, demo.screen);
}

/// Three ribbons a third of a turn apart braid each other; they begin as one straight dark one.
template <typename Dist>
void drawRibbons(const Garden& garden, Dist* const (&ribbons)[ribbonCount], void (*drawOne)(Dist*, IMG*),
                 std::int32_t grown) {
    if (grown == 0) {
        return;
    }
    paintRibbon(garden, ribbons[0]->source, grown);
    for (Dist* const ribbon : ribbons) {
        ribbon->amplitude = garden.ribbonSway.amplitude / 16 * grown / curveFull;
        ribbon->wave.offsetStep = garden.ribbonStep;
        drawOne(ribbon, demo.screen);
    }
}

/// A cloud with its own past behind it, ever dimmer.
void drawCloud(SINEDOTS& cloud, std::uint32_t colour, std::int32_t light) {
    constexpr std::int32_t moments = 7;
    constexpr std::int32_t lag = 3; // frames
    SINEDOTS_AXES phases[SINEDOTS_waveCount];
    std::copy_n(cloud.phase, SINEDOTS_waveCount, phases);
    for (std::int32_t k = 0; k < moments; ++k) {
        for (std::int32_t wave = 0; wave < SINEDOTS_waveCount; ++wave) {
            cloud.phase[wave].x = phases[wave].x - k * lag * cloud.speed[wave].x;
            cloud.phase[wave].y = phases[wave].y - k * lag * cloud.speed[wave].y;
        }
        cloud.colour = curveDim(colour, light * (moments - k) / (2 * moments));
        SINEDOTS_drawAdd(&cloud, demo.screen);
    }
    std::copy_n(phases, SINEDOTS_waveCount, cloud.phase);
}

/// Both beds: the one of this season as it grows, the one before as it fades.
void drawClouds(Garden& garden, std::int32_t frame, std::int32_t light) {
    const std::int32_t season = frame / seasonFrames;
    const std::int32_t grown = curveRise(frame % seasonFrames, 0, growFrames);
    for (std::int32_t age = 0; age < bedCount && age <= season; ++age) {
        Bed& bed = garden.beds[(season - age) % bedCount];
        const std::int32_t bedLight = (age == 0 ? grown : curveFull - grown) * light / curveFull;
        for (std::int32_t i = 0; i < plan[season - age].clouds; ++i) {
            SINEDOTS_advance(bed.clouds[i]);
            if (bedLight > 0) {
                drawCloud(*bed.clouds[i], curveHue(bed.hue[i] + frame, curveFull), bedLight);
            }
        }
    }
}

void drawFrame(Garden& garden, std::int32_t frame) {
    constexpr std::int32_t leadOut = 70;
    if (frame % seasonFrames == 0) {
        beginSeason(garden, frame / seasonFrames);
    }
    const std::int32_t light = curveFull - curveRise(frame, frames - leadOut, frames - 6);
    if (frame % seasonFrames == growFrames / 2) {
        changePicture(garden);
    }
    for (Sway* const sway : {&garden.rowSway, &garden.columnSway, &garden.ribbonSway}) {
        sway->amplitude += (sway->wanted - sway->amplitude) / 32;
    }
    if (const std::int32_t pictureLight = pictureLightAt(frame) * 2 / 3; pictureLight > 0) {
        drawPicture(garden, pictureLight);
    }
    drawRibbons(garden, garden.lying, DISTY_draw, grownAt(frame, &Season::lying));
    drawRibbons(garden, garden.standing, DISTX_draw, grownAt(frame, &Season::standing));
    drawClouds(garden, frame, light);
    DISTX_advance(garden.rows);
    DISTY_advance(garden.columns);
    for (std::int32_t i = 0; i < ribbonCount; ++i) {
        DISTY_advance(garden.lying[i]);
        DISTX_advance(garden.standing[i]);
    }
}

template <typename Dist>
Dist* prepared(Dist* dist, IMG* source, std::int32_t x, std::int32_t y, std::int32_t phase,
               std::int32_t speed) {
    if (dist != nullptr) {
        dist->source = source;
        dist->x = x;
        dist->y = y;
        dist->wave.phase = phase;
        dist->wave.speed = speed;
    }
    return dist;
}

void makeGarden(Garden& garden) {
    const std::int32_t width = settings.windowWidth;
    const std::int32_t height = settings.windowHeight;
    const std::int32_t top = (height - pictureHeight) / 2;
    garden.random = RANDOM_new();
    if (garden.random != nullptr) {
        garden.random->counter = seed;
    }
    for (Bed& bed : garden.beds) {
        for (SINEDOTS*& cloud : bed.clouds) {
            cloud = SINEDOTS_new();
            SINEDOTS_setCount(cloud, SINE_tableLength);
        }
    }
    garden.across = IMG_newSized(ribbonLength, ribbonWidth);
    garden.upright = IMG_newSized(ribbonWidth, ribbonLength);
    garden.picture = IMG_newSized(width, pictureHeight);
    garden.bent = IMG_newSized(width, pictureHeight);
    garden.rows = prepared(DISTX_new(), garden.picture, 0, 0, 0, 9);
    garden.columns = prepared(DISTY_new(), garden.bent, 0, top, 0, 7);
    for (std::int32_t i = 0; i < ribbonCount; ++i) {
        const std::int32_t phase = i * SINE_tableLength / ribbonCount;
        garden.lying[i] = prepared(DISTY_new(), garden.across, 0, (height - ribbonWidth) / 2, phase, 8);
        garden.standing[i] = prepared(DISTX_new(), garden.upright, (width - ribbonWidth) / 2, 0, phase, 8);
    }
}

bool isWhole(const Garden& garden) {
    const auto isThere = [](const void* record) { return record != nullptr; };
    const auto areThere = [isThere](const auto& records) {
        return std::all_of(std::begin(records), std::end(records), isThere);
    };
    return isThere(garden.random) && areThere(garden.beds[0].clouds) && areThere(garden.beds[1].clouds) &&
           isThere(garden.across) && isThere(garden.upright) && isThere(garden.picture) &&
           isThere(garden.bent) && isThere(garden.rows) && isThere(garden.columns) &&
           areThere(garden.lying) && areThere(garden.standing);
}

void deleteGarden(Garden& garden) {
    RANDOM_delete(&garden.random);
    for (Bed& bed : garden.beds) {
        for (SINEDOTS*& cloud : bed.clouds) {
            SINEDOTS_delete(&cloud);
        }
    }
    for (IMG** const img : {&garden.across, &garden.upright, &garden.picture, &garden.bent}) {
        IMG_delete(img);
    }
    DISTX_delete(&garden.rows);
    DISTY_delete(&garden.columns);
    for (std::int32_t i = 0; i < ribbonCount; ++i) {
        DISTY_delete(&garden.lying[i]);
        DISTX_delete(&garden.standing[i]);
    }
}

void VELM4030_sceneExtra9Setup() {
    VELM4030_fadeOut();
    setLook({.fadeStep = 0x080808, .glare = 1});
}

} // namespace

void VELM4030_sceneExtra9() {
    VELM4030_sceneExtra9Setup();
    Garden garden{};
    makeGarden(garden);
    const bool isComplete = isWhole(garden);
    runFrames(frames, [&](std::int32_t frame) {
        if (isComplete) {
            drawFrame(garden, frame);
        }
        drawPointerAndOverlay();
    });
    deleteGarden(garden);
}

} // namespace velm
