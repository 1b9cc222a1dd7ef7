// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Extra scene 4, the tunnel: two doors swing open, the way behind them becomes a winding tunnel of neon
// frames, a word hops through it, and at its end the logo comes out of glittering dust.
#include "demo/scenes/acts.h"
#include "demo/scenes/caption.h"
#include "demo/scenes/curves.h"
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
constexpr std::int32_t galaxyBegins = wordEnds - 40;
constexpr std::int32_t tunnelEnds = 660;
constexpr std::int32_t logoBegins = 600;
constexpr std::int32_t logoEnds = 830;
constexpr std::int32_t middleY = 96; // of doors and tunnel; the scroll text has the rows below
constexpr std::int32_t doorWidth = 60;
constexpr std::int32_t doorHeight = 150;
constexpr std::int32_t wordY = 136;   // line about which the word hops
constexpr std::int32_t streamY = 206; // row about which the scroll text waves

/// Frames from cyan over blue to magenta and back, so that they follow each other without a seam.
void colourTunnel(RECT& tunnel) {
    constexpr std::int32_t cyan = 256;
    constexpr std::int32_t hues = 560;
    for (std::int32_t i = 0; i < tunnel.count; ++i) {
        const std::int32_t there = std::min(i, tunnel.count - i);
        tunnel.panes[i].colour = curveHue(cyan + 2 * there * hues / tunnel.count);
    }
}

void prepareTunnel(RECT& tunnel) {
    constexpr std::int32_t count = 56;
    RECT_setCount(&tunnel, count);
    colourTunnel(tunnel);
    tunnel.path = RECT_PATH::tunnel;
    tunnel.height = 2 * middleY;
    tunnel.paneWidth = 2 * doorWidth;
    tunnel.paneHeight = doorHeight;
    tunnel.turnSpeed = 0;
    tunnel.windX.offsetStep = 18;
    tunnel.windY.offsetStep = 13;
}

void prepareDust(FLASHPIX& dust) {
    constexpr std::int32_t sparks = 8000;
    constexpr std::int32_t logoY = 32;
    dust.hues = demo.hueRamp;
    dust.hue = 200;
    dust.lit = 0;
    dust.inShape = 0;
    FLASHPIX_setCount(&dust, sparks);
    const Picture field(newWindowPicture(), [](IMG& made) {
        IMG_blit(demo.pictureMask, &made, 0, 0, 0, logoY, made.width, made.height);
    });
    FLASHPIX_setShape(&dust, field);
}

void prepareWord(LOGOFLY& word) {
    word.pen = demo.textMedium;
    word.target = demo.screen;
    word.text = "SQUARE ONE";
    word.y = wordY;
    word.amplitude = 72;
    word.speed = 11;
    word.letterStep = 24;
}

struct Shaft {
    ScrollText scroll{streamY};
    Owned<RECT_delete> tunnel{RECT_new(), prepareTunnel};
    Owned<FLASHPIX_delete> dust{FLASHPIX_new(), prepareDust};
    Owned<SINEDOTS_delete> galaxy = makeDots(6000);
    Owned<LOGOFLY_delete> word{LOGOFLY_new(), prepareWord};
};

/// One leaf, seen from the side as it turns on its hinge: past a quarter turn its width is negative, and it
/// lies on the wall beside the doorway.
void drawLeaf(std::int32_t hinge, std::int32_t top, std::int32_t width, std::int32_t height,
              std::int32_t swing, std::int32_t weight) {
    const std::int32_t seen = SINE_cosineScaled(width, swing);
    const bool isOpen = (seen < 0) != (width < 0);
    const std::uint32_t rim = curveDim(isOpen ? 0x103860 : 0x2080E0, weight);
    RECT_drawPane(demo.screen, hinge, top, seen, height, curveDim(0x040C20, weight), RECT_MIX::set);
    RECT_drawFrame(demo.screen, hinge, top, seen, height, 1, rim, RECT_MIX::set);
    // Two panels, inset by an eighth of what is seen of the leaf.
    for (const std::int32_t panel : {0, 1}) {
        RECT_drawFrame(demo.screen, hinge + seen / 8, top + height / 16 + panel * height / 2, seen * 3 / 4,
                       height * 3 / 8, 1, rim, RECT_MIX::set);
    }
}

/// The wall with its doorway, which the viewer walks through: it grows until it is wider than the window.
void drawDoors(Shaft&, std::int32_t frame) {
    const std::int32_t weight = curveRise(frame, 0, doorsOpen);
    const std::int32_t walk = curveEase(frame, doorsOpen + 40, doorsPassed);
    const std::int32_t zoom = curveFull + 2 * ((walk * walk) >> 8);
    const std::int32_t width = (doorWidth * zoom) >> 8;
    const std::int32_t height = (doorHeight * zoom) >> 8;
    const std::int32_t left = middle - width;
    const std::int32_t right = middle + width;
    const std::int32_t top = middleY - height / 2;
    IMG* const screen = demo.screen;
    RECT_drawPane(screen, left, 0, -left, screen->height, 0, RECT_MIX::set);
    RECT_drawPane(screen, right, 0, screen->width - right, screen->height, 0, RECT_MIX::set);
    RECT_drawPane(screen, left, top, 2 * width, -screen->height, 0, RECT_MIX::set);
    RECT_drawPane(screen, left, top + height, 2 * width, screen->height, 0, RECT_MIX::set);
    RECT_drawFrame(screen, left - 3, top - 3, 2 * width + 6, height + 6, 2, curveHue(256 + frame, weight),
                   RECT_MIX::add);
    const std::int32_t swing = 2 * curveEase(frame, doorsOpen, doorsOpen + 100);
    drawLeaf(left, top, width, height, swing, weight);
    drawLeaf(right, top, -width, height, swing, weight);
}

/// Straight ahead first, then winding, twisting and ever faster; it slows down when it ends.
void drawTunnel(Shaft& shaft, std::int32_t frame) {
    RECT& tunnel = *shaft.tunnel;
    const std::int32_t winding = curveEase(frame, windsBegin, windsBegin + 170);
    const std::int32_t slowing = curveEase(frame, wordEnds, tunnelEnds);
    tunnel.speed =
        curveBetween(curveBetween(24, 150, curveEase(frame, doorsOpen, doorsOpen + 300)), 20, slowing);
    tunnel.twist = curveBetween(0, 11, winding);
    tunnel.turnSpeed = frame >= glassBegins ? 3 : 0;
    tunnel.reach = curveBetween(0, 110, winding);
    tunnel.face = frame >= glassBegins ? RECT_FACE::both : RECT_FACE::frame;
    tunnel.brightness = curveStay(frame, doorsOpen, tunnelEnds, 70);
    RECT_advance(&tunnel);
    RECT_draw(&tunnel, demo.screen);
}

/// Few stars at first, all of them for the logo, and none in the end.
void drawDust(Shaft& shaft, std::int32_t frame) {
    shaft.dust->lit =
        frame < logoEnds ? curveBetween(8, curveFull, curveEase(frame, logoBegins - 80, logoBegins + 40)) : 0;
    shaft.dust->inShape = curveBetween(0, 250, curveEase(frame, logoBegins, logoBegins + 90)) -
                          curveBetween(0, 250, curveEase(frame, logoEnds - 50, logoEnds - 10));
    FLASHPIX_advance(shaft.dust);
    FLASHPIX_draw(shaft.dust, demo.screen);
}

void drawGalaxy(Shaft& shaft, std::int32_t frame) {
    shaft.galaxy->colour = curveDim(0x100C28, curveStay(frame, galaxyBegins, frames, 60));
    SINEDOTS_advance(shaft.galaxy);
    SINEDOTS_drawAdd(shaft.galaxy, demo.screen);
}

/// The word rises into the tunnel and leaves through the top: two pixels bold, in a dark rim that keeps it
/// apart from the tunnel.
void drawWord(Shaft& shaft, std::int32_t frame) {
    constexpr std::int32_t cell = 16;
    constexpr std::int32_t letters = 10;
    const std::int32_t enter = curveFull - curveEase(frame, wordBegins, wordBegins + 60);
    const std::int32_t leave = curveEase(frame, wordEnds - 60, wordEnds);
    const std::int32_t x = middle - letters * cell / 2 + enter - leave;
    const KeptPen kept(demo.textMedium);
    LOGOFLY* const word = shaft.word;
    const auto write = [word](std::int32_t left, std::int32_t y, std::uint32_t colour) {
        word->x = left;
        word->y = y;
        word->colour = colour;
        LOGOFLY_draw(word);
    };
    LOGOFLY_advance(word);
    for (const std::int32_t rim : {-1, 0, 1, 2}) {
        for (const std::int32_t above : {-1, 0, 1}) {
            write(x + rim, wordY + above, 0);
        }
    }
    const std::uint32_t colour =
        curveDim(curveMix(curveHue(frame * 4), 0xFFFFFF, 160), curveStay(frame, wordBegins, wordEnds, 40));
    for (const std::int32_t bold : {0, 1}) {
        write(x + bold, wordY, colour);
    }
}

constexpr Act<Shaft> acts[] = {{galaxyBegins, frames, drawGalaxy}, {0, tunnelEnds, drawTunnel},
                               {0, doorsPassed, drawDoors},        {windsBegin, frames, drawDust},
                               {wordBegins, wordEnds, drawWord},   {0, frames, playScrollText<frames>}};

} // namespace

void VELM4030_sceneExtra4() {
    play({.glare = 1}, frames, acts);
}

} // namespace velm
