// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/theatre_house.h"

#include "effects/rect.h"
#include "foundation/root.h"
#include "foundation/sine.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace velm {

namespace {

constexpr std::int32_t foldColours = 1024; // across one half of the curtain
constexpr std::int32_t fine = 16;          // parts of a frame
constexpr std::int32_t openSteps = 4096;   // from shut to open
constexpr std::int32_t pixel = 256;        // parts of one: where an edge runs between two
constexpr std::uint32_t gold = 0xC89838;

/// Red velvet: folds of unlike widths, dark in their depths, with a sheen on their backs.
void prepareFolds(RASTER& raster) {
    constexpr std::int32_t folds = 8;
    colourRaster(raster, foldColours, [](std::int32_t i) {
        const std::int32_t angle = folds * i + SINE_scaled(150, 3 * i) + SINE_scaled(90, 5 * i + 300);
        const std::int32_t light = 132 + SINE_scaled(100, angle);
        return RGB888_add(curveDim(0xC8101C, light), curveDim(0x705038, 2 * light - 300)) | 1;
    });
}

/// How far along a scallop a column is, as an arch that is 0 between two of them and 256 in the middle.
std::int32_t arch(std::int32_t x, std::int32_t width) {
    return std::abs(SINE_entry(x * (SINE_tableLength / 2) / width)) >> 7;
}

/// Swags over the stage, with a fringe of gold.
void hangPelmet(IMG& hall) {
    constexpr std::int32_t swagWidth = 32;
    constexpr std::int32_t top = 5;
    constexpr std::int32_t fringe = 4;
    for (std::int32_t x = top; x < hall.width - top; ++x) {
        const std::int32_t deep = 15 + arch(x, swagWidth) * 10 / curveFull;
        for (std::int32_t y = top; y < deep; ++y) {
            // Its folds follow the arch.
            const std::int32_t fold = SINE_scaled(70, (y * 256 - (deep - 15) * (y - top) * 16) / 3);
            const std::uint32_t velvet = curveDim(0xB0101C, 120 + fold + arch(x, swagWidth) / 4) | 1;
            const bool isFringe = y >= deep - fringe;
            const std::uint32_t thread = curveDim(gold, x % 2 == 0 ? 256 : 170);
            IMG_putPixel(&hall, x, y, isFringe ? thread : velvet);
        }
    }
}

/// The apron of the stage and the dark of the house below it.
void layApron(IMG& hall) {
    for (std::int32_t y = stageHeight; y < hall.height; ++y) {
        const std::int32_t down = curveRise(y, stageHeight + 6, hall.height);
        const std::uint32_t colour = curveMix(0x401020, 0x1C0818, down);
        IMG_fillRect(&hall, 0, y, hall.width, 1, y < stageHeight + 2 ? 0x705020 : colour);
    }
}

/// The S of curveEase over a curtain's move, as one of `openSteps`: a weight would move the cloth in jerks.
std::int32_t easeFinely(std::int32_t time, std::int32_t first) {
    constexpr std::int32_t length = curtainFrames * fine;
    constexpr std::int64_t whole = openSteps;
    const std::int64_t t = whole * std::clamp(time - first, 0, length) / length;
    return static_cast<std::int32_t>(t * t * (3 * whole - 2 * t) / whole / whole);
}

/// How far the curtain is open, 0..openSteps, at a time in parts of a frame.
std::int32_t openAt(const Opening& opening, std::int32_t time) {
    const std::int32_t closes = (opening.ends - curtainFrames) * fine;
    return std::min(easeFinely(time, opening.begins * fine), openSteps - easeFinely(time, closes));
}

std::int32_t opened(std::int32_t shut, std::int32_t open, std::int32_t share) {
    return shut + (open - shut) * share / openSteps;
}

/// How wide one half hangs in a row, in parts of a pixel. The cloth follows its rail, the hem comes last.
std::int32_t halfWidth(const Opening& opening, std::int32_t frame, std::int32_t y) {
    constexpr std::int32_t shut = 129 * pixel;
    constexpr std::int32_t gathered = 26 * pixel;
    constexpr std::int32_t waist = 118; // row
    const std::int32_t late = y * 6 * fine / stageHeight;
    const std::int32_t open = openAt(opening, frame * fine - late);
    switch (opening.way) {
    case Drape::parts:
        return opened(shut, gathered, open);
    case Drape::swags: {
        const std::int32_t above = curveFull - curveEase(y, 0, waist);
        const std::int32_t below = curveEase(y, waist, stageHeight);
        return opened(shut, gathered + (30 * above + 14 * below) * pixel / curveFull, open);
    }
    case Drape::rises:
        break;
    }
    return shut;
}

/// The row of the hem in a column: the cloth is drawn up in scallops.
std::int32_t hemOf(const Opening& opening, std::int32_t frame, std::int32_t x) {
    constexpr std::int32_t drawnUp = 30; // row
    constexpr std::int32_t scallop = 43; // columns
    if (opening.way != Drape::rises) {
        return stageHeight;
    }
    const std::int32_t open = openAt(opening, frame * fine);
    const std::int32_t sag = arch(x, scallop) * std::min(2 * open, openSteps) / openSteps * 16 / curveFull;
    return opened(stageHeight, drawnUp - 14, open) + sag;
}

/// The cloth, `along` it in its own colours and `step` of them to a pixel.
std::uint32_t velvetAt(const House& house, std::int32_t along, std::int32_t step) {
    const auto at = [&](std::int32_t i) { return house.folds->colours[i & (foldColours - 1)]; };
    return RGB888_average(at(along - step / 4), at(along + step / 4));
}

/// One row of one half, whose folds spread over its width; its edge is smooth.
void drawHalfRow(const House& house, std::int32_t frame, const Opening& opening, std::int32_t y,
                 bool isRight) {
    const std::int32_t width = halfWidth(opening, frame, y);
    const std::int32_t step = foldColours * pixel / width; // colours a pixel
    const std::int32_t sway = SINE_scaled(6 + y / 10, 3 * y + 9 * frame + (isRight ? 400 : 0));
    const std::int32_t light = 150 + curveRise(y, 10, 60) * 100 / curveFull;
    const std::int32_t last = std::min(width / pixel, middle);
    for (std::int32_t i = 0; i <= last; ++i) {
        const std::int32_t x = isRight ? demo.screen->width - 1 - i : i;
        const std::int32_t fromHem = hemOf(opening, frame, x) - y;
        if (fromHem <= 0 || x < 0 || x >= demo.screen->width) {
            continue;
        }
        std::uint32_t colour =
            curveDim(velvetAt(house, (i * pixel + pixel / 2) * foldColours / width + sway, step), light);
        const bool isBraid = fromHem < 20 && (fromHem > 8 ? fromHem < 16 : fromHem < 7 && fromHem > 4);
        colour = isBraid ? RGB888_average(colour, gold) : colour;
        std::uint32_t& to = demo.screen->pixels[x + std::int64_t{y} * demo.screen->width];
        to = curveMix(to, colour, std::min(width - i * pixel, curveFull));
    }
}

} // namespace

House::House()
    : folds(RASTER_new(), prepareFolds), hall(newWindowPicture(), [](IMG& made) {
          hangPelmet(made);
          layApron(made);
      }) {}

void drawCurtain(const House& house, std::int32_t frame, const Opening& opening) {
    for (std::int32_t y = 0; y < stageHeight; ++y) {
        drawHalfRow(house, frame, opening, y, false);
        drawHalfRow(house, frame, opening, y, true);
    }
}

void drawFloor() {
    constexpr std::int32_t back = 146; // row
    constexpr std::int32_t board = 26; // pixels in front
    for (std::int32_t y = back; y < stageHeight; ++y) {
        const std::int32_t depth = 40 + (y - back) * 2;
        const std::uint32_t wood = curveMix(0x180C14, 0x50301C, curveRise(y, back, stageHeight));
        IMG_fillRect(demo.screen, 0, y, demo.screen->width, 1, wood);
        for (std::int32_t i = -10; i <= 10; ++i) {
            RECT_drawPane(demo.screen, {middle + i * board * depth / 92, y, 1, 1}, 0x100810,
                          RECT_MIX::average);
        }
    }
}

void drawBeam(std::int32_t fromX, std::int32_t toX, std::uint32_t colour) {
    constexpr std::int32_t lamp = 4;    // half the width of the light up there
    constexpr std::int32_t spread = 26; // and by how much more it is wide down here
    constexpr std::int32_t poolRow = 160;
    constexpr std::int32_t poolHeight = 10;
    for (std::int32_t y = 0; y < stageHeight; ++y) {
        const std::int32_t centre = pixel * fromX + (toX - fromX) * pixel * y / poolRow;
        const std::int32_t half = pixel * lamp + spread * pixel * y / poolRow;
        const std::int32_t fromPool = std::abs(y - poolRow);
        const std::int32_t pool = fromPool < poolHeight ? 140 - 14 * fromPool : 0;
        const std::int32_t power = std::max(230 - y, 0) + pool;
        const std::int32_t first = std::max((centre - half) / pixel, 0);
        const std::int32_t last = std::min((centre + half) / pixel, demo.screen->width - 1);
        std::uint32_t* const row = rowOf(*demo.screen, y);
        for (std::int32_t x = first; x <= last; ++x) {
            const std::int32_t off = (x * pixel + pixel / 2 - centre) * curveFull / half;
            const std::int32_t soft = std::max(curveFull - off * off / curveFull, 0);
            row[x] = RGB888_add(row[x], curveDim(colour, (soft * soft >> 8) * power >> 8));
        }
    }
}

void drawHall(const House& house, std::int32_t frame, std::int32_t footlights) {
    constexpr std::array<std::uint32_t, 6> frameColours = {0x402808, 0x906018, 0xE0B048,
                                                           0xFFE898, 0xB08028, 0x402808};
    IMG_draw(house.hall, demo.screen);
    for (std::int32_t inset = 0; inset < 6; ++inset) {
        const std::int32_t shine = 196 + SINE_scaled(60, 11 * frame - 90 * inset);
        const RECT_BOX box{inset, inset, demo.screen->width - 2 * inset, stageHeight - 2 * inset};
        RECT_drawFrame(demo.screen, box, 1, curveDim(frameColours[static_cast<std::size_t>(inset)], shine),
                       RECT_MIX::set);
    }
    // A wave of light runs along the footlights.
    constexpr std::int32_t lamps = 16;
    for (std::int32_t i = 0; i < lamps; ++i) {
        const std::int32_t light =
            std::min(148 + SINE_scaled(108, 11 * frame - 128 * i) + footlights, curveFull);
        const std::uint32_t colour = curveDim(0xFFC860, light);
        for (std::int32_t halo = 1; halo <= 3; ++halo) {
            const RECT_BOX glow{8 + 16 * i - 3 * halo, stageHeight + 3 - 2 * halo, 6 * halo, 4 * halo};
            RECT_drawPane(demo.screen, glow, curveDim(colour, 60 / halo), RECT_MIX::add);
        }
        RECT_drawPane(demo.screen, {6 + 16 * i, stageHeight + 2, 4, 2}, colour, RECT_MIX::set);
    }
}

void drawAudience(std::int32_t frame, std::int32_t jump) {
    constexpr std::int32_t seats = 13;
    constexpr std::int32_t pitch = 21;
    constexpr std::int32_t head = 6; // radius
    for (std::int32_t i = 0; i < seats; ++i) {
        const std::int32_t x = 2 + i * pitch + SINE_scaled(3, 9 * frame + 300 * i);
        const std::int32_t crown = 238 + i * 7 % 5 - (i % 2 == 0 ? jump : jump / 2);
        for (std::int32_t y = crown; y < demo.screen->height; ++y) {
            const std::int32_t down = y - crown;
            const std::int32_t square = down * (2 * head - down);
            const bool isHead = down <= 2 * head - 2;
            const std::int32_t reach = isHead ? rootOf(square) : std::min(4 + (down - 2 * head + 2) * 2, 10);
            IMG_fillRect(demo.screen, x - reach, y, 2 * reach + 1, 1, down < 2 ? 0x703044 : 0x0C0408);
        }
    }
}

} // namespace velm
