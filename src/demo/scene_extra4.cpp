// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Extra scene 4, the shaft: two doors swing open, the way behind them becomes a winding tunnel of neon
// frames, a word hops through it, and at its end the logo comes out of glittering dust.
#include "demo/scene_curves.h"
#include "demo/scene_frames.h"
#include "demo/state.h"
#include "demo/velm4030.h"
#include "effects/flashpix.h"
#include "effects/rect.h"
#include "foundation/sine.h"

namespace velm {

namespace {

constexpr std::int32_t frames = 900;
constexpr std::int32_t doorsOpen = 50;
constexpr std::int32_t doorsPassed = 190;
constexpr std::int32_t windsBegin = 230;
constexpr std::int32_t wordBegins = 270;
constexpr std::int32_t glassBegins = 400;
constexpr std::int32_t wordEnds = 560;
constexpr std::int32_t tunnelEnds = 660;
constexpr std::int32_t logoBegins = 600;
constexpr std::int32_t logoEnds = 830;
constexpr std::int32_t middleX = 128;
constexpr std::int32_t middleY = 96; // of doors and tunnel; the scroll text has the rows below
constexpr std::int32_t doorWidth = 60;
constexpr std::int32_t doorHeight = 150;
constexpr std::int32_t streamY = 206; // row about which the scroll text waves

struct Shaft {
    RECT* tunnel;
    FLASHPIX* dust;
    SINEDOTS* galaxy;
    LOGOFLY* word;
};

/// Frames from cyan over blue to magenta and back, so that they follow each other without a seam.
void colourTunnel(RECT& tunnel) {
    constexpr std::int32_t cyan = 256;
    constexpr std::int32_t hues = 560;
    for (std::int32_t i = 0; i < tunnel.count; ++i) {
        const std::int32_t there = std::min(i, tunnel.count - i);
        tunnel.panes[i].colour = curveHue(cyan + 2 * there * hues / tunnel.count, curveFull);
    }
}

RECT* makeTunnel() {
    constexpr std::int32_t count = 56;
    RECT* const tunnel = RECT_new();
    if (tunnel != nullptr) {
        RECT_setCount(tunnel, count);
        colourTunnel(*tunnel);
        tunnel->path = RECT_PATH::tunnel;
        tunnel->height = 2 * middleY;
        tunnel->paneWidth = 2 * doorWidth;
        tunnel->paneHeight = doorHeight;
        tunnel->turnSpeed = 0;
        tunnel->windX.offsetStep = 18;
        tunnel->windY.offsetStep = 13;
    }
    return tunnel;
}

FLASHPIX* makeDust() {
    constexpr std::int32_t sparks = 8000;
    FLASHPIX* const dust = FLASHPIX_new();
    if (dust != nullptr) {
        dust->hues = demo.hueRamp;
        dust->hue = 200;
        dust->lit = 0;
        dust->inShape = 0;
        FLASHPIX_setCount(dust, sparks);
    }
    return dust;
}

LOGOFLY* makeWord() {
    constexpr std::int32_t y = 136;
    constexpr std::int32_t hop = 72;
    LOGOFLY* const word = LOGOFLY_new();
    if (word != nullptr) {
        word->pen = demo.textMedium;
        word->target = demo.screen;
        word->text = "SQUARE ONE";
        word->y = y;
        word->amplitude = hop;
        word->speed = 11;
        word->letterStep = 24;
    }
    return word;
}

/// One leaf, seen from the side as it turns on its hinge: past a quarter turn its width is negative, and it
/// lies on the wall beside the doorway.
void drawLeaf(std::int32_t hinge, std::int32_t top, std::int32_t width, std::int32_t height,
              std::int32_t swing, std::int32_t share) {
    const std::int32_t seen = SINE_cosineScaled(width, swing);
    const bool isOpen = (seen < 0) != (width < 0);
    const std::uint32_t rim = curveDim(isOpen ? 0x103860 : 0x2080E0, share);
    RECT_drawPane(demo.screen, hinge, top, seen, height, curveDim(0x040C20, share), RECT_MIX::set);
    RECT_drawFrame(demo.screen, hinge, top, seen, height, 1, rim, RECT_MIX::set);
    // Two panels, inset by an eighth of what is seen of the leaf.
    for (const std::int32_t panel : {0, 1}) {
        RECT_drawFrame(demo.screen, hinge + seen / 8, top + height / 16 + panel * height / 2, seen * 3 / 4,
                       height * 3 / 8, 1, rim, RECT_MIX::set);
    }
}

/// The wall with its doorway, which the viewer walks through: it grows until it is wider than the window.
void drawDoors(std::int32_t frame) {
    if (frame >= doorsPassed) {
        return;
    }
    const std::int32_t share = curveRise(frame, 0, doorsOpen);
    const std::int32_t walk = curveEase(frame, doorsOpen + 40, doorsPassed);
    const std::int32_t zoom = curveFull + 2 * ((walk * walk) >> 8);
    const std::int32_t width = (doorWidth * zoom) >> 8;
    const std::int32_t height = (doorHeight * zoom) >> 8;
    const std::int32_t left = middleX - width;
    const std::int32_t right = middleX + width;
    const std::int32_t top = middleY - height / 2;
    IMG* const screen = demo.screen;
    RECT_drawPane(screen, left, 0, -left, screen->height, 0, RECT_MIX::set);
    RECT_drawPane(screen, right, 0, screen->width - right, screen->height, 0, RECT_MIX::set);
    RECT_drawPane(screen, left, top, 2 * width, -screen->height, 0, RECT_MIX::set);
    RECT_drawPane(screen, left, top + height, 2 * width, screen->height, 0, RECT_MIX::set);
    RECT_drawFrame(screen, left - 3, top - 3, 2 * width + 6, height + 6, 2,
                   curveDim(curveHue(256 + frame, curveFull), share), RECT_MIX::add);
    const std::int32_t swing = 2 * curveEase(frame, doorsOpen, doorsOpen + 100);
    drawLeaf(left, top, width, height, swing, share);
    drawLeaf(right, top, -width, height, swing, share);
}

/// Straight ahead first, then winding, twisting and ever faster; it slows down when it ends.
void drawTunnel(RECT* tunnel, std::int32_t frame) {
    if (tunnel == nullptr || frame >= tunnelEnds) {
        return;
    }
    const std::int32_t winding = curveEase(frame, windsBegin, windsBegin + 170);
    const std::int32_t slowing = curveEase(frame, wordEnds, tunnelEnds);
    tunnel->speed =
        curveBetween(curveBetween(24, 150, curveEase(frame, doorsOpen, doorsOpen + 300)), 20, slowing);
    tunnel->twist = curveBetween(0, 11, winding);
    tunnel->turnSpeed = frame >= glassBegins ? 3 : 0;
    tunnel->reach = curveBetween(0, 110, winding);
    tunnel->face = frame >= glassBegins ? RECT_FACE::both : RECT_FACE::frame;
    tunnel->brightness = curveStay(frame, doorsOpen, tunnelEnds, 70);
    RECT_advance(tunnel);
    RECT_draw(tunnel, demo.screen);
}

/// Few stars at first, all of them for the logo, and none in the end.
void drawDust(FLASHPIX* dust, std::int32_t frame) {
    if (dust == nullptr || frame < windsBegin) {
        return;
    }
    dust->lit =
        frame < logoEnds ? curveBetween(8, curveFull, curveEase(frame, logoBegins - 80, logoBegins + 40)) : 0;
    dust->inShape = curveBetween(0, 250, curveEase(frame, logoBegins, logoBegins + 90)) -
                    curveBetween(0, 250, curveEase(frame, logoEnds - 50, logoEnds - 10));
    FLASHPIX_advance(dust);
    FLASHPIX_draw(dust, demo.screen);
}

void drawGalaxy(SINEDOTS* galaxy, std::int32_t frame) {
    if (galaxy != nullptr && frame >= wordEnds - 40) {
        galaxy->colour = curveDim(0x100C28, curveStay(frame, wordEnds - 40, frames, 60));
        SINEDOTS_advance(galaxy);
        SINEDOTS_drawAdd(galaxy, demo.screen);
    }
}

/// The word rises into the tunnel and leaves through the top.
void drawWord(LOGOFLY* word, std::int32_t frame) {
    if (word == nullptr || frame < wordBegins || frame >= wordEnds) {
        return;
    }
    constexpr std::int32_t cell = 16;
    constexpr std::int32_t letters = 10;
    const std::int32_t enter = curveFull - curveEase(frame, wordBegins, wordBegins + 60);
    const std::int32_t leave = curveEase(frame, wordEnds - 60, wordEnds);
    const std::int32_t x = middleX - letters * cell / 2 + enter - leave;
    const std::int32_t y = word->y;
    LOGOFLY_advance(word);
    // Two pixels bold, in a dark rim that keeps it apart from the tunnel.
    word->colour = 0;
    for (const std::int32_t rim : {-1, 0, 1, 2}) {
        word->x = x + rim;
        for (const std::int32_t above : {-1, 0, 1}) {
            word->y = y + above;
            LOGOFLY_draw(word);
        }
    }
    word->y = y;
    word->colour = curveDim(RGB888_mix(curveHue(frame * 4, curveFull), 0xFFFFFF, 160),
                            curveStay(frame, wordBegins, wordEnds, 40));
    for (const std::int32_t bold : {0, 1}) {
        word->x = x + bold;
        LOGOFLY_draw(word);
    }
}

Shaft VELM4030_sceneExtra4Setup() {
    constexpr std::int32_t dots = 6000;
    constexpr std::int32_t logoX = 0;
    constexpr std::int32_t logoY = 32;
    setLook({.glare = 1});
    VELM4030_rasterSetup();
    VELM4030_scrollSetup();
    VELM4030_placeScroll(streamY);
    Shaft shaft = {makeTunnel(), makeDust(), SINEDOTS_new(), makeWord()};
    SINEDOTS_setCount(shaft.galaxy, dots);
    if (IMG* field = IMG_newSized(settings.windowWidth, settings.windowHeight); field != nullptr) {
        IMG_blit(demo.pictureMask, field, 0, 0, logoX, logoY, field->width, field->height);
        FLASHPIX_setShape(shaft.dust, field);
        IMG_delete(&field);
    }
    return shaft;
}

void VELM4030_sceneExtra4Cleanup(Shaft& shaft) {
    RECT_delete(&shaft.tunnel);
    FLASHPIX_delete(&shaft.dust);
    SINEDOTS_delete(&shaft.galaxy);
    LOGOFLY_delete(&shaft.word);
    VELM4030_placeScroll(VELM4030_scrollY);
}

} // namespace

void VELM4030_sceneExtra4() {
    Shaft shaft = VELM4030_sceneExtra4Setup();
    runFrames(frames, [&shaft](std::int32_t frame) {
        drawGalaxy(shaft.galaxy, frame);
        drawTunnel(shaft.tunnel, frame);
        drawDoors(frame);
        drawDust(shaft.dust, frame);
        drawWord(shaft.word, frame);
        drawScrollText();
        drawPointerAndOverlay();
    });
    VELM4030_sceneExtra4Cleanup(shaft);
}

} // namespace velm
