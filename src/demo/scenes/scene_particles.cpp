// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The particle scene: letter by letter, a bar each, water fills four vessels that spell a word, and runs over
// into a pool. Fires are lit below them; their embers climb through the water and turn it to stone. Then the
// glass breaks, and the word of stone stands.
#include "demo/scenes/acts.h"
#include "demo/scenes/beat.h"
#include "demo/scenes/vessels.h"
#include "demo/scenes/world_view.h"
#include "effects/partixel.h"
#include "foundation/chance.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace velm {

namespace {

constexpr std::int32_t frames = 900;
constexpr std::int32_t firesBegin = 5 * barFrames;
constexpr std::int32_t embersBegin = 6 * barFrames;
constexpr std::int32_t embersEnd = 690;
constexpr std::int32_t glassBreaks = 8 * barFrames;
constexpr std::int32_t firesEnd = 880;
constexpr std::int32_t darkens = 864;

/// Where water comes from: above the mouths of a letter, which it fills in a bar, and above the pool's banks.
struct Tap {
    std::int32_t x, width;     ///< its middle; pixels of water a step
    std::int32_t begins, ends; ///< frames
};
constexpr std::array<Tap, 8> taps = {{{23, 4, 1 * barFrames, 2 * barFrames + 6},
                                      {58, 4, 1 * barFrames, 2 * barFrames + 6},
                                      {92, 9, 2 * barFrames, 3 * barFrames},
                                      {134, 6, 3 * barFrames, 4 * barFrames},
                                      {186, 6, 4 * barFrames, 5 * barFrames + 8},
                                      {232, 6, 4 * barFrames, 5 * barFrames + 8},
                                      {7, 2, 24, firesBegin},
                                      {249, 2, 24, firesBegin}}};
constexpr std::int32_t tapRow = 15;

constexpr std::array<std::int32_t, 4> hearths = {40, 94, 148, 209}; // columns of their middles
constexpr std::int32_t hearthRow = 178;
constexpr std::int32_t hearthReach = 17; // columns to either side

/// A pool with some water in it, and above the pool a bowl for each fire.
void buildPool(IMG* world) {
    constexpr std::int32_t floor = 252;
    constexpr std::int32_t level = 238;
    constexpr std::int32_t bank = 3;
    constexpr std::int32_t bowlHeight = 8;
    IMG_fillRect(world, 0, level, world->width, floor - level, waterBlue);
    IMG_fillRect(world, 0, floor, world->width, world->height - floor, rockPixel);
    IMG_fillRect(world, 0, poolTop, bank, floor - poolTop, rockPixel);
    IMG_fillRect(world, world->width - bank, poolTop, bank, floor - poolTop, rockPixel);
    for (const std::int32_t x : hearths) {
        for (std::int32_t down = 0; down < bowlHeight; ++down) {
            const std::int32_t reach = hearthReach + 2 - down * down / 5;
            IMG_fillRect(world, x - reach, hearthRow + down, 2 * reach + 1, 1, rockPixel);
        }
    }
}

/// The pillars of the bowls stand behind the water.
void buildPillars(IMG* wall) {
    constexpr std::int32_t reach = 6;
    for (const std::int32_t x : hearths) {
        for (std::int32_t i = -reach; i <= reach; ++i) {
            const std::uint32_t colour = curveDim(0x585068, 230 - 24 * std::abs(i + 2));
            IMG_fillRect(wall, x + i, hearthRow, 1, wall->height - hearthRow, colour);
        }
    }
}

struct Particles {
    Picture world{newWindowPicture(), [](IMG& made) { buildPool(&made); }};
    Picture vessels{newWindowPicture(), [this](IMG& made) { blowGlass(world, &made); }};
    WorldView view{buildPillars};
    Owned<PARTIXEL_delete> water{PARTIXEL_new(), [this](PARTIXEL& made) {
                                     made.colour = waterBlue;
                                     made.image = world;
                                 }};
    Owned<PARTIXEL_delete> sparks{PARTIXEL_new(), [this](PARTIXEL& made) {
                                      made.name = "SPARKS";
                                      made.colour = sparkRed;
                                      made.update = PARTIXEL_sparks;
                                      made.image = world;
                                  }};
};

bool isRunning(const Tap& tap, std::int32_t frame) {
    return frame >= tap.begins && frame < tap.ends;
}

/// Moves water three steps a frame, one way and the other, while the taps run.
void runWater(Particles& particles, std::int32_t frame) {
    constexpr std::int32_t stepsAFrame = 3;
    for (std::int32_t i = 0; i < stepsAFrame; ++i) {
        for (const Tap& tap : taps) {
            if (isRunning(tap, frame)) {
                IMG_fillRect(particles.world, tap.x - tap.width / 2, tapRow, tap.width, 1, waterBlue);
            }
        }
        particles.water->update = ((frame + i) & 1) == 0 ? PARTIXEL_waterRight : PARTIXEL_waterLeft;
        particles.water->update(particles.water);
    }
}

void lightFires(Particles& particles, std::int32_t) {
    constexpr std::int32_t sparksAFire = 11;
    for (const std::int32_t x : hearths) {
        for (std::int32_t i = 0; i < sparksAFire; ++i) {
            const std::int32_t at = x + chance() % hearthReach - chance() % hearthReach;
            IMG_putPixel(particles.world, at, hearthRow - 1, sparkRed);
        }
    }
}

/// The row up to which the water has turned to stone.
std::int32_t emberRow(std::int32_t frame) {
    return wordBottom - (wordBottom - wordTop) * (frame - embersBegin) / (embersEnd - embersBegin);
}

/// Below the embers all that is in the letters has set; no hole is left.
void setStone(Particles& particles, std::int32_t frame) {
    constexpr std::int32_t behind = 14; // rows
    IMG* const world = particles.world;
    for (std::int32_t y = std::max(emberRow(frame) + behind, wordTop); y <= wordBottom; ++y) {
        const std::int64_t row = std::int64_t{y} * world->width;
        for (std::int64_t i = row; i < row + world->width; ++i) {
            world->pixels[i] = particles.vessels->pixels[i] != 0 ? stoneGrey : world->pixels[i];
        }
    }
}

/// Lets embers into the water of the letters, higher and higher up.
void lightEmbers(Particles& particles, std::int32_t frame) {
    constexpr std::int32_t tries = 64;
    constexpr std::int32_t layer = 7; // rows
    for (std::int32_t i = 0; i < tries; ++i) {
        const std::int32_t x = chance() % particles.world->width;
        const std::int32_t y = emberRow(frame) + chance() % layer;
        if (IMG_getPixel(particles.vessels, x, y) != 0 && IMG_getPixel(particles.world, x, y) == waterBlue) {
            IMG_putPixel(particles.world, x, y, sparkRed);
        }
    }
}

/// What a spark has made grey outside the letters rises, a row a frame, and fades away.
void raiseSteam(Particles& particles, std::int32_t frame) {
    constexpr std::uint32_t fading = 0x040404;
    IMG* const world = particles.world;
    for (std::int32_t y = 0; y < world->height; ++y) {
        for (std::int32_t x = 0; x < world->width; ++x) {
            const std::int64_t i = x + std::int64_t{y} * world->width;
            const std::uint32_t pixel = world->pixels[i];
            if (pixel == 0 || !isSteam(pixel) || particles.vessels->pixels[i] != 0) {
                continue;
            }
            world->pixels[i] = 0;
            const std::int32_t toX = x + (x * 5 + y * 3 + frame / 4) % 3 - 1;
            if (y > 0 && IMG_getPixel(world, toX, y - 1) == 0 && isSteam(pixel - fading)) {
                IMG_putPixel(world, toX, y - 1, pixel - fading);
            }
        }
    }
}

/// Water that lies on hot stone boils away.
void boil(Particles& particles, std::int32_t) {
    constexpr std::int32_t rarity = 6;
    IMG* const world = particles.world;
    for (std::int32_t y = wordTop; y < wordBottom; ++y) {
        std::uint32_t* const row = world->pixels + std::int64_t{y} * world->width;
        for (std::int32_t x = 0; x < world->width; ++x) {
            if (row[x] == waterBlue && row[x + world->width] == stoneGrey && chance() % rarity == 0) {
                row[x] = stoneGrey;
            }
        }
    }
}

void moveSparks(Particles& particles, std::int32_t) {
    particles.sparks->update(particles.sparks);
}

/// All at once the glass comes down, as drops.
void breakGlass(Particles& particles) {
    IMG* const world = particles.world;
    setStone(particles, frames);
    std::replace(world->pixels, rowOf(*world, world->height), glassPixel, waterBlue);
}

/// The pipe that the taps hang from; a tap that fills its letter shines.
void drawPipe(Particles&, std::int32_t frame) {
    constexpr std::uint32_t copper[] = {0x301810, 0x804828, 0xD08850, 0xFFD0A0,
                                        0xC07840, 0x905028, 0x602C18, 0x281008};
    for (std::int32_t i = 0; i < 8; ++i) {
        IMG_fillRect(demo.screen, 0, 2 + i, demo.screen->width, 1, copper[i]);
    }
    for (const Tap& tap : taps) {
        const std::int32_t width = tap.width + 4;
        for (std::int32_t i = 0; i < width; ++i) {
            const std::uint32_t colour = copper[1 + i * 6 / width];
            IMG_fillRect(demo.screen, tap.x - width / 2 + i, 6, 1, tapRow - 6, colour);
        }
        const std::uint32_t lamp = isRunning(tap, frame) ? 0x80FFFF : 0x401810;
        IMG_fillRect(demo.screen, tap.x - 1, 5, 3, 2, lamp);
    }
}

void drawWorld(Particles& particles, std::int32_t frame) {
    constexpr std::int32_t reveal = 5; // columns of the glass a frame
    constexpr std::int32_t shineSpeed = 4;
    shadeWorld(particles.view, *particles.world, *particles.vessels,
               {.frame = frame,
                .revealed = frame * reveal,
                .firelight = curveStay(frame, firesBegin, firesEnd, 40),
                .glowRow = emberRow(frame),
                .shineX = (frame - glassBreaks) % barFrames * shineSpeed});
}

constexpr Act<Particles> acts[] = {{0, frames, runWater},
                                   {firesBegin, firesEnd, lightFires},
                                   {embersBegin, embersEnd, lightEmbers},
                                   {embersBegin, glassBreaks, setStone},
                                   {firesBegin, frames, moveSparks},
                                   {glassBreaks, frames, boil},
                                   {firesBegin, frames, raiseSteam},
                                   {glassBreaks, frames, drawWorld, breakGlass},
                                   {0, glassBreaks, drawWorld},
                                   {0, frames, drawPipe},
                                   {0, frames, playDark<darkens, 8>}};

} // namespace

void VELM4030_sceneParticles() {
    play({}, frames, acts);
}

} // namespace velm
