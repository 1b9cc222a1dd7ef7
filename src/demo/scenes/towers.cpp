// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/towers.h"

#include "demo/scenes/beat.h"
#include "demo/scenes/curves.h"
#include "effects/rect.h"

#include <algorithm>
#include <cstdlib>

namespace velm {

namespace {

constexpr std::int32_t windowWidth = 4;
constexpr std::int32_t windowHeight = 3;
constexpr std::int32_t windowPitch = 7; // pixels from window to window, both ways
constexpr std::int32_t wall = 3;        // pixels around the windows
constexpr std::int32_t townMiddle = 128;

/// The far row, then the near one, last the landmark.
constexpr std::array<Tower, towerCount> site = {{{2, 3, 10, false},
                                                 {37, 2, 13, false},
                                                 {62, 3, 11, false},
                                                 {92, 3, 9, false},
                                                 {141, 3, 11, false},
                                                 {166, 2, 9, false},
                                                 {186, 3, 13, false},
                                                 {208, 2, 10, false},
                                                 {225, 3, 12, false},
                                                 {-12, 4, 6, true},
                                                 {18, 2, 8, true},
                                                 {52, 4, 7, true},
                                                 {84, 3, 5, true},
                                                 {148, 3, 6, true},
                                                 {172, 4, 8, true},
                                                 {212, 3, 6, true},
                                                 {239, 4, 7, true},
                                                 {113, 4, 14, true}}};

constexpr std::int32_t widthOf(const Tower& tower) {
    return tower.columns * windowPitch + wall;
}

constexpr std::int32_t heightOf(const Tower& tower) {
    return tower.floors * windowPitch + wall;
}

/// True for a window that the screen's edge or a nearer tower would cut or hide.
bool isHidden(const Tower& tower, std::int32_t x, std::int32_t y, std::int32_t ground) {
    const bool isOutside = x < 0 || x + windowWidth > settings.windowWidth;
    return isOutside || std::any_of(site.begin(), site.end(), [&](const Tower& other) {
               return other.isNear && !tower.isNear && x + windowWidth >= other.x &&
                      x <= other.x + widthOf(other) && y + windowHeight >= ground - heightOf(other);
           });
}

/// Decides about one window; the landmark's are lit first when the light comes back.
Window makeWindow(RANDOM* random, const TowerPlan& plan, std::int32_t x, std::int32_t y) {
    constexpr std::array<std::uint32_t, 8> lights = {0xFFD060, 0xFFA030, 0xFFF0B0, 0xFFC050,
                                                     0xFFB040, 0xFFE090, 0x60C0FF, 0xFF6080};
    const std::uint32_t colour = lights[static_cast<std::size_t>(RANDOM_below(random, lights.size()))];
    const std::int32_t away = std::abs(x - townMiddle) / 2 + (plan.ground - y) / 4;
    return {.x = x,
            .y = y,
            .colour = colour,
            .on = plan.firstLight + RANDOM_below(random, plan.lastLight - plan.firstLight),
            .again = plan.again + away + RANDOM_below(random, 8),
            .out = plan.firstOut + RANDOM_below(random, plan.lastOut - plan.firstOut)};
}

/// The light of a window: it comes on white and finds its colour, and on each bar a wave of brighter light
/// runs outwards through the town.
std::uint32_t lightOf(const Window& window, const TowerPlan& plan, std::int32_t frame) {
    constexpr std::uint32_t white = 0xFFFFFF;
    constexpr std::int32_t waveWidth = 24;
    const bool isLate = frame >= plan.again;
    const std::int32_t since = frame - (isLate ? window.again : window.on);
    if (since < 0 || frame >= window.out || (frame >= plan.strike && !isLate)) {
        return 0;
    }
    const std::int32_t wave = 4 * framesIntoBar() - std::abs(window.x - townMiddle);
    const std::int32_t crest =
        isLate ? curveFull - std::min(std::abs(wave) * curveFull / waveWidth, curveFull) : 0;
    return curveMix(window.colour, white, std::max(curveFull - since * 24, crest * 3 / 4));
}

/// How far a tower has come out of the ground, those in the middle first.
std::int32_t grownOf(const Tower& tower, std::int32_t frame) {
    constexpr std::int32_t growFrames = 60;
    const std::int32_t begins = std::abs(tower.x + widthOf(tower) / 2 - townMiddle) / 4;
    return heightOf(tower) * curveEase(frame, begins, begins + growFrames) / curveFull;
}

/// A dark body in a rim of light, and on every other roof a smaller storey.
void drawBody(const Tower& tower, std::int32_t ground, std::int32_t grown, std::int32_t flash) {
    const std::uint32_t body = curveMix(tower.isNear ? 0x06050E : 0x120C20, 0x302C48, flash);
    const std::uint32_t rim = curveMix(tower.isNear ? 0x2868A8 : 0x1C3464, 0xC0D0FF, flash);
    const std::int32_t width = widthOf(tower);
    if (tower.floors % 2 == 0) {
        const RECT_BOX storey{tower.x + 5, ground - grown - 5, width - 10, 6};
        RECT_drawPane(demo.screen, storey, body, RECT_MIX::set);
        RECT_drawFrame(demo.screen, storey, 1, rim, RECT_MIX::set);
    }
    RECT_drawPane(demo.screen, {tower.x, ground - grown, width, grown}, body, RECT_MIX::set);
    RECT_drawFrame(demo.screen, {tower.x, ground - grown, width, grown + 1}, 1, rim, RECT_MIX::set);
}

/// What is left to see of the rest of the town: roofs in the haze.
void drawHaze(std::int32_t ground, std::int32_t grown, std::int32_t flash) {
    constexpr std::int32_t pitch = 13;
    const std::uint32_t body = curveMix(0x22122C, 0x484068, flash);
    for (std::int32_t i = 0; i * pitch < settings.windowWidth; ++i) {
        const std::int32_t height = 54 + (7 * i * i + 13 * i) % 37;
        const std::int32_t rows = height * grown / curveFull;
        RECT_drawPane(demo.screen, {i * pitch - 2, ground - rows, pitch, rows}, body, RECT_MIX::set);
    }
}

} // namespace

Towers::Towers(RANDOM* random, const TowerPlan& wanted) : plan(wanted) {
    for (const Tower& tower : site) {
        for (std::int32_t floor = 0; floor < tower.floors; ++floor) {
            for (std::int32_t column = 0; column < tower.columns; ++column) {
                const std::int32_t x = tower.x + wall + column * windowPitch;
                const std::int32_t y = plan.ground - heightOf(tower) + wall + floor * windowPitch;
                if (!isHidden(tower, x, y, plan.ground) && RANDOM_below(random, 8) != 0 &&
                    windowCount < mostWindows) {
                    windows[windowCount++] = makeWindow(random, plan, x, y);
                }
            }
        }
    }
}

std::int32_t mastX() {
    return site[landmark].x + widthOf(site[landmark]) / 2;
}

std::int32_t mastTop(const Towers& towers) {
    return towers.plan.ground - heightOf(site[landmark]) - 5 - mastHeight;
}

void drawTowers(const Towers& towers, std::int32_t frame, std::int32_t flash) {
    const std::int32_t ground = towers.plan.ground;
    drawHaze(ground, curveEase(frame, 0, 60), flash);
    const std::int32_t sunk =
        curveBetween(heightOf(site[landmark]) + mastHeight + 6, 0,
                     grownOf(site[landmark], frame) * curveFull / heightOf(site[landmark]));
    IMG_drawVLine(demo.screen, curveMix(0x305080, 0xFFFFFF, flash), mastX(), mastTop(towers) + sunk, ground);
    for (const Tower& tower : site) {
        const std::int32_t grown = grownOf(tower, frame);
        if (grown > 0) {
            drawBody(tower, ground, grown, flash);
        }
    }
    for (std::size_t i = 0; i < towers.windowCount; ++i) {
        const Window& window = towers.windows[i];
        const std::uint32_t light = lightOf(window, towers.plan, frame);
        if (light != 0) {
            RECT_drawPane(demo.screen, {window.x, window.y, windowWidth, windowHeight}, light, RECT_MIX::set);
        }
    }
    RECT_drawPane(demo.screen, {mastX() - 1, mastTop(towers) + sunk, 3, 2},
                  curveMix(0x601010, 0xFF4040, beatWeight(30, 2)), RECT_MIX::set);
}

} // namespace velm
