// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Interlude B: a slanted mesh of 64 by 64 points that two waves lift, drawn mirrored in hue bands that move
// over it, and the hopping word below.
#include "demo/scenes/frames.h"
#include "foundation/chance.h"
#include "foundation/owned.h"
#include "foundation/sine.h"
#include "foundation/wrap.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace velm {

namespace {

/// VELM4030_meshFrames: one expects 500 frames; the count runs down to 0 inclusive, which makes 501.
constexpr std::int32_t frames = 501;
constexpr std::int32_t mostColumns = 256; ///< room of a row of grid points

struct GridPoint {
    std::int32_t x, y;
};

using GridRow = std::array<GridPoint, mostColumns>;

std::int32_t columns() {
    return std::min(settings.meshColumns, mostColumns);
}

SEG2D* segmentOf(const OBJ2D* obj, std::int32_t index) {
    return static_cast<SEG2D*>(LIST_get(obj->segments, index));
}

/// Two segments a cell: its link to the right and its link down. The view poses the mesh's own segments.
void makeMesh() {
    const std::int32_t count = 2 * settings.meshRows * columns();
    demo.mesh = OBJ2D_new();
    for (std::int32_t i = 0; demo.mesh != nullptr && i < count; ++i) {
        Owned<SEG2D_delete> segment(SEG2D_new());
        OBJ2D_addSegment(demo.mesh, segment);
        if (demo.mesh->segments->count == i) {
            return; // there is no room for it
        }
        (void)segment.release(); // the mesh has taken it over
    }
    demo.meshView = demo.mesh == nullptr ? nullptr : OBJ2D_new();
    for (std::int32_t i = 0; demo.meshView != nullptr && i < count; ++i) {
        OBJ2D_addSegment(demo.meshView, segmentOf(demo.mesh, i));
        if (demo.meshView->segments->count == i) {
            OBJ2D_delete(&demo.meshView); // there is no room for it in the view
        }
    }
}

/// Draws a wave anew: each field takes chance() AND its mask, plus its least value.
void drawWave(MeshWave& wave, const MeshWave& masks, const MeshWave& least) {
    wave.phase = (chance() & masks.phase) + least.phase;
    wave.speed = (chance() & masks.speed) + least.speed;
    wave.amplitude = (chance() & masks.amplitude) + least.amplitude;
    wave.frequency = (chance() & masks.frequency) + least.frequency;
}

/// Colours the view in diagonal bands that move 10 hues a frame.
void colourView() {
    // VELM4030_meshHuesStretch: one expects a row's links to share its hue; the rows are counted as if right
    // and down links alternated, while all right links come first, so the bands stretch over the mesh.
    const auto frame = static_cast<std::int32_t>(demo.fps->frameCount);
    const std::int32_t width = columns();
    const std::int32_t height = settings.meshRows;
    std::array<std::uint32_t, mostColumns> colours; // of two rows that follow each other
    for (std::int32_t q = 0; q < 2 * height; ++q) {
        const std::int32_t rowHue = wrapAdd(wrapMul(10, frame), width * (q / 2) / 4);
        for (std::int32_t c = 0; c < width; ++c) {
            std::uint32_t& colour = colours[static_cast<std::size_t>(c)];
            if (q % 2 == 0) {
                const std::int32_t hue = wrapAdd(rowHue, height * c / 4) % hueCount;
                colour = static_cast<std::uint32_t>(SAMPLE_get(demo.hueRamp, hue));
            }
            if (SEG2D* const segment = segmentOf(demo.meshView, width * q + c); segment != nullptr) {
                segment->a->colour = colour;
                segment->b->colour = colour;
            }
        }
    }
}

/// Draws the mesh as the frame before deformed it.
void drawMesh() {
    colourView();
    demo.meshView->position->x =
        settings.windowWidth / 2 + (columns() + settings.meshRows) * settings.meshStepX / 2;
    demo.meshView->position->y = settings.windowHeight / 2 - settings.meshRows * settings.meshStepY / 2;
    demo.meshView->angle = 0;
    demo.meshView->scale->x = -1;
    OBJ2D_draw(demo.meshView, demo.screen);
}

void liftRow(GridRow& points, std::int32_t row) {
    const MeshWave& alongRows = settings.meshWave1;
    const MeshWave& alongColumns = settings.meshWave2;
    const std::int32_t rowLift =
        SINE_entry(alongRows.frequency * row + alongRows.phase) * alongRows.amplitude;
    for (std::int32_t c = 0; c < columns(); ++c) {
        const std::int32_t columnLift =
            SINE_entry(alongColumns.frequency * c + alongColumns.phase) * alongColumns.amplitude;
        points[static_cast<std::size_t>(c)] = {settings.meshStepX * c + settings.meshStepY * row,
                                               settings.meshStepY * row + ((rowLift + columnLift) >> 15)};
    }
}

void joinPoints(std::int32_t index, GridPoint from, GridPoint to) {
    if (SEG2D* const segment = segmentOf(demo.mesh, index); segment != nullptr) {
        segment->a->x = from.x;
        segment->a->y = from.y;
        segment->b->x = to.x;
        segment->b->y = to.y;
    }
}

/// Lays the segments between the lifted points: all links to the right first, then all links down. The last
/// of a row or column links a point to itself.
void deformMesh() {
    const std::int32_t width = columns();
    const std::int32_t rows = settings.meshRows;
    std::array<GridRow, 2> lifted; // this row and the next, in turns
    liftRow(lifted[0], 0);
    for (std::int32_t r = 0; r < rows; ++r) {
        const GridRow& points = lifted[static_cast<std::size_t>(r % 2)];
        GridRow& next = lifted[static_cast<std::size_t>((r + 1) % 2)];
        const bool isLast = r == rows - 1;
        if (!isLast) {
            liftRow(next, r + 1);
        }
        for (std::int32_t c = 0; c < width; ++c) {
            const auto at = static_cast<std::size_t>(c);
            const GridPoint right = points[static_cast<std::size_t>(std::min(c + 1, width - 1))];
            joinPoints(width * r + c, points[at], right);
            joinPoints(width * (rows + r) + c, points[at], isLast ? points[at] : next[at]);
        }
    }
}

/// VELM4030_thirdWaveIsStill: one expects three waves; the third one's phase runs on, but nothing is moved by
/// it.
void advanceWaves() {
    for (MeshWave* const wave : {&settings.meshWave1, &settings.meshWave2, &settings.meshWave3}) {
        wave->phase = (wave->phase + wave->speed) & SINE_tableMask;
    }
}

} // namespace

void VELM4030_sceneInterludeBSetup() {
    VELM4030_fadeOut();
    setLook({.fadeStep = 0x080808});
    if (demo.mesh == nullptr) {
        makeMesh();
    }
    drawWave(settings.meshWave1, {1023, 15, 15, 31}, {0, 3, 12, 24});
    drawWave(settings.meshWave2, {1023, 31, 15, 31}, {0, 3, 12, 24});
    drawWave(settings.meshWave3, {1023, 15, 7, 7}, {0, 1, 1, 1});
}

void VELM4030_sceneInterludeB() {
    VELM4030_sceneInterludeBSetup();
    if (demo.meshView == nullptr) {
        runEmptyFrame();
        return;
    }
    runFrames(frames, [](std::int32_t) {
        VELM4030_meshLayer();
        VELM4030_fpsLayer();
        LOGOFLY_advance(demo.logoFly);
        LOGOFLY_draw(demo.logoFly);
    });
}

void VELM4030_meshLayer() {
    if (demo.meshView != nullptr) {
        drawMesh();
        deformMesh();
        advanceWaves();
    }
}

} // namespace velm
