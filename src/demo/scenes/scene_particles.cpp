// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The particle scene: water falls through the letters of a word into a bowl, sparks rise from two fires and
// turn what they touch to stone, and in the end the stage is taken away and all of it runs off. The particles
// live in an image of their own, the world; the screen shows it in brighter colours.
#include "demo/scenes/acts.h"
#include "demo/scenes/caption.h"
#include "demo/scenes/curves.h"
#include "effects/partixel.h"
#include "foundation/sine.h"
#include "image/imgfx.h"

#include <algorithm>
#include <string_view>

namespace velm {

namespace {

constexpr std::int32_t frames = 900;
constexpr std::int32_t waterBegins = 50;
constexpr std::int32_t firesBegin = 300;
constexpr std::int32_t volcanoBegins = 460; // a third fire, on the floor of the bowl
constexpr std::int32_t waterEnds = 660;
constexpr std::int32_t firesEnd = 730;
constexpr std::int32_t stageGoes = 776; // from here on its lines vanish, row by row
constexpr std::int32_t darkens = 870;

constexpr std::uint32_t waterBlue = 0x0000FF;
constexpr std::uint32_t sparkRed = 0xFF0000;
constexpr std::uint32_t stone = 0x808080;
constexpr std::uint32_t stage = 0x010101; // neither water nor spark; shown in hues

/// Writes a word into the world, every letter three times its size: basins for the water.
void writeWord(IMG* world, std::string_view word) {
    constexpr std::int32_t left = 40;
    constexpr std::int32_t top = 64;
    constexpr std::int32_t pitch = 44;
    LFONT* const pen = demo.textMedium;
    const KeptPen kept(pen);
    LFONT_setColour(pen, stage);
    pen->target = world;
    for (std::size_t i = 0; i < word.size(); ++i) {
        LFONT_place(pen, left + static_cast<std::int32_t>(i) * pitch, top, 3);
        pen->character = static_cast<unsigned char>(word[i]);
        LFONT_drawChar(pen);
    }
}

/// The bowl under the word, and a roof over each fire.
void drawStage(IMG* world) {
    constexpr std::int32_t rim = 168;
    constexpr std::int32_t floor = 232;
    const auto line = [world](std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2) {
        IMG_drawLine(world, x1, y1, x2, y2, stage);
    };
    line(20, rim, 60, floor), line(60, floor, 195, floor), line(195, floor, 235, rim);
    line(88, 150, 120, 142), line(136, 142, 168, 150);
}

struct Particles {
    Picture world{newWindowPicture(), [](IMG& made) {
                      writeWord(&made, "VELM");
                      drawStage(&made);
                  }};
    Picture view{newWindowPicture()}; ///< the world in the colours of the screen
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

/// Lets some water fall from two spouts that swing to and fro.
void pourWater(Particles& particles, std::int32_t frame) {
    const std::int32_t swing = SINE_scaled(72, 5 * frame);
    for (std::int32_t i = -1; i <= 1; ++i) {
        IMG_putPixel(particles.world, middle + swing + 2 * i, 0, waterBlue);
        IMG_putPixel(particles.world, middle - swing + 2 * i, 0, waterBlue);
    }
}

/// Lets some sparks rise from the fires.
void lightFires(Particles& particles, std::int32_t frame) {
    constexpr std::int32_t fireRow = 254;
    const std::int32_t flicker = (frame * 7) % 5;
    for (std::int32_t i = 0; i < 12; ++i) {
        IMG_putPixel(particles.world, 14 + 2 * i + flicker, fireRow, sparkRed);
        IMG_putPixel(particles.world, 241 - 2 * i - flicker, fireRow, sparkRed);
    }
}

void lightVolcano(Particles& particles, std::int32_t frame) {
    constexpr std::int32_t vent = 231; // row right above the floor of the bowl
    for (std::int32_t i = 0; i < 3; ++i) {
        IMG_putPixel(particles.world, 118 + (frame * 5 + 7 * i) % 20, vent, sparkRed);
    }
}

/// Takes the next rows of the stage and of the stones away, from the bottom up.
void takeStageAway(Particles& particles, std::int32_t frame) {
    IMG* const world = particles.world;
    constexpr std::int32_t rowsAFrame = 3;
    const std::int32_t last = world->height - 1 - (frame - stageGoes) * rowsAFrame;
    for (std::int32_t y = last; y > last - rowsAFrame && y >= 0 && last < world->height; --y) {
        std::uint32_t* const row = world->pixels + std::int64_t{y} * world->width;
        std::replace(row, row + world->width, stage, 0U);
        std::replace(row, row + world->width, stone, waterBlue);
    }
}

/// Moves water three steps a frame, one way and the other, and the sparks one.
void update(Particles& particles, std::int32_t frame) {
    constexpr std::int32_t stepsAFrame = 3;
    for (std::int32_t i = 0; i < stepsAFrame; ++i) {
        particles.water->update = ((frame + i) & 1) == 0 ? PARTIXEL_waterRight : PARTIXEL_waterLeft;
        particles.water->update(particles.water);
    }
    particles.sparks->update(particles.sparks);
}

/// What the screen shows of a pixel of the world: water lighter at its surface, sparks from yellow to red.
std::uint32_t shown(std::uint32_t pixel, std::uint32_t above, std::uint32_t hue) {
    if (pixel == 0) {
        return 0;
    }
    if (pixel == waterBlue) {
        return above == 0 ? 0x80E0FF : 0x1458E0;
    }
    if (pixel == stage) {
        return hue;
    }
    if (pixel == stone) {
        return 0x605870;
    }
    const std::uint32_t heat = pixel >> 16;
    return 0xFF0000 | (heat * heat / 256) << 8 | (heat > 200 ? 0x60U : 0U);
}

/// Shows the world, glowing; the stage in hues that move along.
void drawWorld(Particles& particles, std::int32_t frame) {
    constexpr std::int32_t glow = 3;
    constexpr std::int32_t reveal = 6; // columns of the stage that appear a frame
    const IMG* const world = particles.world;
    for (std::int32_t x = 0; x < world->width; ++x) {
        const std::uint32_t hue = x < frame * reveal ? curveHue(4 * x - 6 * frame) : 0;
        std::uint32_t above = 0;
        for (std::int32_t y = 0; y < world->height; ++y) {
            const std::int64_t i = x + std::int64_t{y} * world->width;
            particles.view->pixels[i] = shown(world->pixels[i], above, hue);
            above = world->pixels[i];
        }
    }
    IMGFX_glare8(particles.view, demo.screen, glow);
    if (frame > darkens) {
        const auto step = static_cast<std::uint32_t>(frame - darkens) * 0x050505U;
        IMG_subColour(demo.screen, step);
    }
}

constexpr Act<Particles> acts[] = {
    {waterBegins, waterEnds, pourWater},     {firesBegin, firesEnd, lightFires},
    {volcanoBegins, firesEnd, lightVolcano}, {0, frames, update},
    {stageGoes, frames, takeStageAway},      {0, frames, drawWorld}};

} // namespace

void VELM4030_sceneParticles() {
    play({}, frames, acts);
}

} // namespace velm
