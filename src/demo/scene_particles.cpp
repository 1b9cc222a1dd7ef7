// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The particle scene: water falls through the letters of a word into a bowl, sparks rise from two fires and
// turn what they touch to stone, and in the end the stage is taken away and all of it runs off. The particles
// live in an image of their own, the world; the screen shows it in brighter colours.
#include "demo/scene_curves.h"
#include "demo/scene_frames.h"
#include "demo/state.h"
#include "demo/velm4030.h"
#include "effects/partixel.h"
#include "foundation/sine.h"
#include "image/imgfx.h"
#include "image/rgb888.h"

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

constexpr std::uint32_t water = 0x0000FF;
constexpr std::uint32_t spark = 0xFF0000;
constexpr std::uint32_t stone = 0x808080;
constexpr std::uint32_t stage = 0x010101; // neither water nor spark; shown in hues

struct Particles {
    IMG* world; ///< of the window's size
    IMG* view;  ///< the world in the colours of the screen
    PARTIXEL* water;
    PARTIXEL* sparks;
};

/// Writes a word into the world, every letter three times its size: basins for the water.
void writeWord(IMG* world, std::string_view word) {
    constexpr std::int32_t left = 40;
    constexpr std::int32_t top = 64;
    constexpr std::int32_t pitch = 44;
    LFONT* const pen = demo.textMedium;
    if (pen == nullptr) {
        return;
    }
    LFONT_setColour(pen, stage);
    pen->target = world;
    for (std::size_t i = 0; i < word.size(); ++i) {
        LFONT_place(pen, left + static_cast<std::int32_t>(i) * pitch, top, 3);
        pen->character = static_cast<unsigned char>(word[i]);
        LFONT_drawChar(pen);
    }
    LFONT_place(pen, 0, 0, 1);
    pen->target = demo.screen;
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

/// Lets some water fall from two spouts that swing to and fro, and some sparks rise from the fires.
void feed(const Particles& particles, std::int32_t frame) {
    constexpr std::int32_t fireRow = 254;
    constexpr std::int32_t vent = 231; // row right above the floor of the bowl
    if (frame >= waterBegins && frame < waterEnds) {
        const std::int32_t swing = SINE_scaled(72, 5 * frame);
        for (std::int32_t i = -1; i <= 1; ++i) {
            IMG_putPixel(particles.world, 128 + swing + 2 * i, 0, water);
            IMG_putPixel(particles.world, 128 - swing + 2 * i, 0, water);
        }
    }
    if (frame >= firesBegin && frame < firesEnd) {
        const std::int32_t flicker = (frame * 7) % 5;
        for (std::int32_t i = 0; i < 12; ++i) {
            IMG_putPixel(particles.world, 14 + 2 * i + flicker, fireRow, spark);
            IMG_putPixel(particles.world, 241 - 2 * i - flicker, fireRow, spark);
        }
    }
    if (frame >= volcanoBegins && frame < firesEnd) {
        for (std::int32_t i = 0; i < 3; ++i) {
            IMG_putPixel(particles.world, 118 + (frame * 5 + 7 * i) % 20, vent, spark);
        }
    }
}

/// Takes the next rows of the stage and of the stones away, from the bottom up.
void takeStageAway(IMG* world, std::int32_t frame) {
    constexpr std::int32_t rowsAFrame = 3;
    const std::int32_t last = world->height - 1 - (frame - stageGoes) * rowsAFrame;
    for (std::int32_t y = last; y > last - rowsAFrame && y >= 0 && last < world->height; --y) {
        std::uint32_t* const row = world->pixels + std::int64_t{y} * world->width;
        std::replace(row, row + world->width, stage, 0U);
        std::replace(row, row + world->width, stone, water);
    }
}

/// Moves water three steps a frame, one way and the other, and the sparks one.
void update(const Particles& particles, std::int32_t frame) {
    constexpr std::int32_t stepsAFrame = 3;
    for (std::int32_t i = 0; particles.water != nullptr && i < stepsAFrame; ++i) {
        particles.water->update = ((frame + i) & 1) == 0 ? PARTIXEL_waterRight : PARTIXEL_waterLeft;
        particles.water->update(particles.water);
    }
    if (particles.sparks != nullptr) {
        particles.sparks->update(particles.sparks);
    }
}

/// What the screen shows of a pixel of the world: water lighter at its surface, sparks from yellow to red.
std::uint32_t shown(std::uint32_t pixel, std::uint32_t above, std::uint32_t hue) {
    if (pixel == 0) {
        return 0;
    }
    if (pixel == water) {
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
void drawWorld(const Particles& particles, std::int32_t frame) {
    constexpr std::int32_t glow = 3;
    constexpr std::int32_t reveal = 6; // columns of the stage that appear a frame
    const IMG* const world = particles.world;
    for (std::int32_t x = 0; x < world->width; ++x) {
        const std::uint32_t hue = x < frame * reveal ? curveHue(4 * x - 6 * frame, 256) : 0;
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

Particles VELM4030_sceneParticlesSetup() {
    setLook({});
    Particles particles{};
    particles.world = IMG_newSized(settings.windowWidth, settings.windowHeight);
    particles.view = IMG_newSized(settings.windowWidth, settings.windowHeight);
    if ((particles.water = PARTIXEL_new()) != nullptr) {
        particles.water->colour = water;
        particles.water->image = particles.world;
    }
    if ((particles.sparks = PARTIXEL_new()) != nullptr) {
        particles.sparks->name = "SPARKS";
        particles.sparks->colour = spark;
        particles.sparks->update = PARTIXEL_sparks;
        particles.sparks->image = particles.world;
    }
    return particles;
}

void VELM4030_sceneParticlesCleanup(Particles& particles) {
    PARTIXEL_delete(&particles.sparks);
    PARTIXEL_delete(&particles.water);
    IMG_delete(&particles.view);
    IMG_delete(&particles.world);
}

} // namespace

void VELM4030_sceneParticles() {
    Particles particles = VELM4030_sceneParticlesSetup();
    if (particles.world != nullptr && particles.view != nullptr) {
        writeWord(particles.world, "VELM");
        drawStage(particles.world);
        runFrames(frames, [&particles](std::int32_t frame) {
            feed(particles, frame);
            update(particles, frame);
            if (frame >= stageGoes) {
                takeStageAway(particles.world, frame);
            }
            drawWorld(particles, frame);
            drawPointerAndOverlay();
        });
    }
    VELM4030_sceneParticlesCleanup(particles);
}

} // namespace velm
