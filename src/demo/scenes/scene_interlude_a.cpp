// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Interlude A: balls of random colour, place and size, one a frame, each under a light that has turned a
// little, and each leaving a fading trail; the logo stands above them.
#include "demo/scenes/frames.h"
#include "foundation/chance.h"
#include "foundation/sine.h"

namespace velm {

namespace {

constexpr std::int32_t frames = 750;

void makeBall() {
    constexpr std::int32_t light = 10;
    demo.ball = BALL3D_new();
    if (demo.ball != nullptr) {
        demo.ball->target = demo.screen;
        demo.ball->light = {light, light, light};
    }
}

void throwBall() {
    demo.ball->colour = static_cast<std::uint32_t>(chance()) & 0x7F7F7F;
    demo.ball->x = chance() % settings.windowWidth;
    demo.ball->y = chance() % settings.windowHeight;
    demo.ball->radius = chance() % settings.windowWidth / 2;
    BALL3D_draw(demo.ball);
}

/// Turns the light for the next frame; each component stays within about +-10.
void turnLight(std::int32_t left) {
    const auto component = [](std::int32_t angle) { return (SINE_entry(angle) * 5) >> 14; };
    demo.ball->light = {component(5 * left), component(3 * left), component(7 * left)};
}

void drawLogo() {
    constexpr std::int32_t y = 64;
    if (demo.logoImage != nullptr) {
        IMG_blit(demo.logoImage, demo.screen, 0, 0, (demo.screen->width - demo.logoImage->width) / 2, y,
                 demo.logoImage->width, demo.logoImage->height);
    }
}

} // namespace

void VELM4030_sceneInterludeASetup() {
    IMG_fill(demo.screen, static_cast<std::uint32_t>(chance()) & 0x1F1F1F);
    setLook({.fadeStep = (static_cast<std::uint32_t>(chance()) & 15) * 0x010101 + 0x080808,
             .fadeOn = 1,
             .clearMode = ClearMode::fade});
    if (demo.ball == nullptr) {
        makeBall();
    }
}

void VELM4030_sceneInterludeA() {
    VELM4030_sceneInterludeASetup();
    if (demo.ball == nullptr) {
        runEmptyFrame();
        return;
    }
    runFrames(frames, [](std::int32_t frame) {
        throwBall();
        turnLight(frames - frame);
        drawLogo();
        VELM4030_mouseLayer();
        VELM4030_fpsLayer();
    });
}

} // namespace velm
