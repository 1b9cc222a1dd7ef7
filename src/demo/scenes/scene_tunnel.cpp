// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Extra scene 4, the tunnel: two doors swing open, and within a bar the viewer is through. The way behind
// them is a tunnel of neon frames, thick with dust, which begins to wind while a word hops through it. The
// frames go out, their dust flies on, and out of it comes the logo; it stands for three bars, then bursts.
#include "demo/scenes/acts.h"
#include "demo/scenes/beat.h"
#include "demo/scenes/caption.h"
#include "demo/scenes/tunnel_dust.h"
#include "effects/flashpix.h"
#include "effects/rect.h"
#include "foundation/sine.h"

namespace velm {

namespace {

constexpr std::int32_t frames = 900;
constexpr std::int32_t doorsOpen = 24;
constexpr std::int32_t doorsPassed = barFrames;
constexpr std::int32_t windsBegin = 120;
constexpr std::int32_t wordBegins = 2 * barFrames;
constexpr std::int32_t glassBegins = 3 * barFrames;
constexpr std::int32_t wordEnds = 5 * barFrames;
constexpr std::int32_t logoBegins = wordEnds + 20;
constexpr std::int32_t tunnelEnds = 6 * barFrames + 20;
constexpr std::int32_t logoBursts = 9 * barFrames;
constexpr std::int32_t allGone = frames - 9; // the galaxy and the last dust
constexpr std::int32_t middleY = 96;         // of doors and tunnel; the scroll text has the rows below
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
        tunnel.panes[i].colour = curveMix(curveHue(cyan + 2 * there * hues / tunnel.count), 0xFFFFFF, 48);
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
    constexpr std::int32_t sparks = 14000;
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
    TunnelDust motes{tunnel};
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
    const RECT_BOX leaf{hinge, top, seen, height};
    RECT_drawPane(demo.screen, leaf, curveDim(0x040C20, weight), RECT_MIX::set);
    RECT_drawFrame(demo.screen, leaf, 1, rim, RECT_MIX::set);
    // Two panels, inset by an eighth of what is seen of the leaf.
    for (const std::int32_t panel : {0, 1}) {
        const std::int32_t panelTop = top + height / 16 + panel * height / 2;
        RECT_drawFrame(demo.screen, {hinge + seen / 8, panelTop, seen * 3 / 4, height * 3 / 8}, 1, rim,
                       RECT_MIX::set);
    }
}

/// The doorway's neon, again and again on the wall, ever fainter.
void drawEchoes(std::int32_t width, std::int32_t height, std::int32_t frame, std::int32_t weight) {
    constexpr std::int32_t echoes = 7;
    constexpr std::int32_t apart = 18;
    for (std::int32_t i = 0; i < echoes; ++i) {
        const std::int32_t out = i * apart + frame % apart;
        const std::int32_t left = curveFull * (echoes * apart - out) / (echoes * apart);
        const RECT_BOX echo{middle - width - out, middleY - height / 2 - out, 2 * (width + out),
                            height + 2 * out};
        RECT_drawFrame(demo.screen, echo, 1, curveHue(256 + 4 * (frame - out), (weight * left) >> 9),
                       RECT_MIX::add);
    }
}

/// The wall with its doorway, which the viewer walks through: it grows until it is wider than the window.
void drawDoors(Shaft&, std::int32_t frame) {
    const std::int32_t weight = curveRise(frame, 0, doorsOpen);
    const std::int32_t walk = curveEase(frame, doorsOpen + 16, doorsPassed);
    const std::int32_t zoom = curveFull + 2 * ((walk * walk) >> 8);
    const std::int32_t width = (doorWidth * zoom) >> 8;
    const std::int32_t height = (doorHeight * zoom) >> 8;
    const std::int32_t left = middle - width;
    const std::int32_t right = middle + width;
    const std::int32_t top = middleY - height / 2;
    IMG* const screen = demo.screen;
    RECT_drawPane(screen, {left, 0, -left, screen->height}, 0, RECT_MIX::set);
    RECT_drawPane(screen, {right, 0, screen->width - right, screen->height}, 0, RECT_MIX::set);
    RECT_drawPane(screen, {left, top, 2 * width, -screen->height}, 0, RECT_MIX::set);
    RECT_drawPane(screen, {left, top + height, 2 * width, screen->height}, 0, RECT_MIX::set);
    drawEchoes(width, height, frame, weight);
    RECT_drawFrame(screen, {left - 3, top - 3, 2 * width + 6, height + 6}, 2, curveHue(256 + frame, weight),
                   RECT_MIX::add);
    const std::int32_t swing = 2 * curveEase(frame, doorsOpen, doorsPassed - 16);
    drawLeaf(left, top, width, height, swing, weight);
    drawLeaf(right, top, -width, height, swing, weight);
}

/// Straight ahead first, then winding, twisting and ever faster, with a lurch on every bar. It is never so
/// fast that its frames seem to run backwards.
void moveTunnel(RECT& tunnel, std::int32_t frame) {
    const std::int32_t winding = curveEase(frame, windsBegin, windsBegin + 170);
    const std::int32_t faster = curveEase(frame, doorsOpen, glassBegins);
    tunnel.speed = curveBetween(20, 66, faster) + curveBetween(0, 30, beatWeight(40));
    tunnel.twist = curveBetween(0, 11, winding);
    tunnel.turnSpeed = frame >= glassBegins ? 3 : 0;
    tunnel.reach = curveBetween(0, 110, winding);
    RECT_advance(&tunnel);
}

/// The tunnel's frames once, a little ahead of where they are.
void drawSlice(RECT& tunnel, std::int32_t ahead, RECT_FACE face, std::int32_t brightness) {
    if (brightness > 0) {
        tunnel.face = face;
        tunnel.brightness = brightness;
        tunnel.travel += ahead;
        RECT_draw(&tunnel, demo.screen);
        tunnel.travel -= ahead;
    }
}

/// Each frame is three, close together, so that it is deep like that of a door; the foremost one gets glass.
void drawTunnel(Shaft& shaft, std::int32_t frame) {
    constexpr std::int32_t apart = 9; // 1/256 steps of the way
    constexpr std::int32_t behind = 80;
    constexpr std::int32_t foremost = 200;
    RECT& tunnel = *shaft.tunnel;
    moveTunnel(tunnel, frame);
    const std::int32_t weight = curveStay(frame, doorsOpen, tunnelEnds, 70);
    const std::int32_t glass = (foremost * curveEase(frame, glassBegins, glassBegins + 60)) >> 8;
    drawSlice(tunnel, 0, RECT_FACE::frame, (behind * weight) >> 8);
    drawSlice(tunnel, apart, RECT_FACE::frame, (behind * weight) >> 8);
    drawSlice(tunnel, 2 * apart, RECT_FACE::frame, ((foremost - glass) * weight) >> 8);
    drawSlice(tunnel, 2 * apart, RECT_FACE::both, (glass * weight) >> 8);
}

/// The tunnel's dust flies on when the frames have gone out.
void drawMotes(Shaft& shaft, std::int32_t frame) {
    if (frame >= tunnelEnds) {
        moveTunnel(*shaft.tunnel, frame);
    }
    const std::int32_t present = curveStay(frame, doorsOpen, allGone, 60);
    const std::int32_t behind =
        curveEase(frame, logoBegins, tunnelEnds) - curveEase(frame, logoBursts, logoBursts + 30);
    const std::int32_t weight = curveBetween(present, present / 3, behind);
    shaft.motes.draw(*shaft.tunnel, demo.screen, weight);
}

/// The sparks fly apart, the outer ones faster; what does not make a whole pixel is rounded by turns.
void burst(FLASHPIX& dust, std::int32_t frame) {
    constexpr std::int32_t pull = 9; // 1/256 of the way from the middle a frame
    for (std::int32_t i = 0; i < dust.count; ++i) {
        const std::int32_t turn = (i * 97 + frame * 57) & 255;
        FLASHPIX_SPARK& spark = dust.sparks[i];
        spark.x += ((spark.x - middle) * pull + turn) >> 8;
        spark.y += ((spark.y - middleY) * pull + turn) >> 8;
    }
}

/// Few sparks at first, all of them for the logo, which bobs, shines and puffs on the bar, and none in the
/// end.
void drawDust(Shaft& shaft, std::int32_t frame) {
    FLASHPIX& dust = *shaft.dust;
    dust.lit = frame < logoBursts
                   ? curveBetween(4, curveFull, curveEase(frame, logoBegins - 20, logoBegins + 60))
                   : 0;
    dust.inShape = curveBetween(0, 250, curveEase(frame, logoBegins, logoBegins + 50)) *
                   curveBetween(curveFull, 140, beatWeight(24)) / curveFull;
    dust.brightness = (curveRise(frame, 0, 20) * curveBetween(200, curveFull, beatWeight(40))) >> 8;
    if (frame >= logoBursts - 50) { // what bursts shines for longer
        dust.shortest = 40;
        dust.longest = 80;
    }
    dust.y = frame >= logoBegins ? SINE_scaled(6, 11 * (frame - logoBegins)) : 0;
    FLASHPIX_advance(&dust);
    if (frame >= logoBursts) {
        burst(dust, frame);
    }
    FLASHPIX_draw(&dust, demo.screen);
}

void drawGalaxy(Shaft& shaft, std::int32_t frame) {
    constexpr std::uint32_t faint = 0x0C0A20;
    constexpr std::uint32_t bright = 0x241C48;
    shaft.galaxy->colour = curveDim(curveMix(faint, bright, curveEase(frame, logoBursts, logoBursts + 30)),
                                    curveStay(frame, logoBegins, allGone, 40));
    SINEDOTS_advance(shaft.galaxy);
    SINEDOTS_drawAdd(shaft.galaxy, demo.screen);
}

/// The word comes in from the right and leaves to the left, in a dark rim that keeps it apart from the
/// tunnel.
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
    for (const std::int32_t rim : {-1, 0, 1}) {
        for (const std::int32_t above : {-1, 0, 1}) {
            write(x + rim, wordY + above, 0);
        }
    }
    const std::uint32_t colour =
        curveDim(curveMix(curveHue(frame * 4), 0xFFFFFF, 160), curveStay(frame, wordBegins, wordEnds, 40));
    write(x, wordY, colour);
}

constexpr Act<Shaft> acts[] = {
    {logoBegins, allGone, drawGalaxy},  {0, tunnelEnds, drawTunnel}, {0, allGone, drawMotes},
    {0, doorsPassed, drawDoors},        {0, frames, drawDust},       {wordBegins, wordEnds, drawWord},
    {0, frames, playScrollText<frames>}};

} // namespace

void VELM4030_sceneExtra4() {
    play({.glare = 1}, frames, acts);
}

} // namespace velm
