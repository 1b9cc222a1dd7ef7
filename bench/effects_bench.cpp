// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What the effects of one frame cost, at the sizes that the scenes use.
#include "effects/ball3d.h"
#include "effects/distx.h"
#include "effects/disty.h"
#include "effects/raster.h"
#include "effects/scroll.h"
#include "effects/sinedots.h"
#include "foundation/chance.h"
#include "image/img.h"
#include "image/imgfx.h"
#include "vector/font.h"

#include <benchmark/benchmark.h>

namespace velm {
namespace {

constexpr std::int32_t windowSize = 256;
constexpr std::int32_t stripWidth = 512;
constexpr std::int32_t cellSize = 16;

/// A filter over a whole window of noise.
template <typename Filter>
void filterWindow(benchmark::State& state, Filter filter) {
    IMG* src = IMG_newSized(windowSize, windowSize);
    IMG* dst = IMG_newSized(windowSize, windowSize);
    for (std::int32_t i = 0; i < windowSize * windowSize; ++i) {
        src->pixels[i] = static_cast<std::uint32_t>(chance()) & 0xFFFFFF;
    }
    for (auto _ : state) {
        filter(src, dst);
        benchmark::ClobberMemory();
    }
    IMG_delete(&src);
    IMG_delete(&dst);
}
BENCHMARK_CAPTURE(filterWindow, blur, IMGFX_blur);
BENCHMARK_CAPTURE(filterWindow, blur7, IMGFX_blur7);
BENCHMARK_CAPTURE(filterWindow, blurRadius, [](IMG* src, IMG* dst) { IMGFX_blurRadius(src, dst, 20); });
BENCHMARK_CAPTURE(filterWindow, glare, [](IMG* src, IMG* dst) { IMGFX_glare(src, dst, 3); });
BENCHMARK_CAPTURE(filterWindow, glare8, [](IMG* src, IMG* dst) { IMGFX_glare8(src, dst, 3); });

void dotsDrawAdd(benchmark::State& state) {
    IMG* screen = IMG_newSized(windowSize, windowSize);
    SINEDOTS* dots = SINEDOTS_new();
    SINEDOTS_setCount(dots, static_cast<std::int32_t>(state.range(0)));
    dots->colour = 0x000810;
    for (auto _ : state) {
        SINEDOTS_advance(dots);
        SINEDOTS_drawAdd(dots, screen);
        benchmark::ClobberMemory();
    }
    SINEDOTS_delete(&dots);
    IMG_delete(&screen);
}
BENCHMARK(dotsDrawAdd)->Arg(1000)->Arg(16384);

void ballDraw(benchmark::State& state) {
    IMG* screen = IMG_newSized(windowSize, windowSize);
    BALL3D* ball = BALL3D_new();
    ball->x = ball->y = windowSize / 2;
    ball->radius = static_cast<std::int32_t>(state.range(0));
    ball->light = {.x = 6, .y = -6, .z = 8};
    ball->target = screen;
    for (auto _ : state) {
        BALL3D_draw(ball);
        benchmark::ClobberMemory();
    }
    BALL3D_delete(&ball);
    IMG_delete(&screen);
}
BENCHMARK(ballDraw)->Arg(16)->Arg(64)->Arg(127);

void scrollerStepAndDraw(benchmark::State& state) {
    IMG* strip = IMG_newSized(stripWidth, cellSize);
    FONT* font = FONT_new();
    font->width = font->height = cellSize;
    font->image = IMG_newSized(windowSize, windowSize);
    IMG_fill(font->image, 0xFFFFFF);
    SCROLL* scroll = SCROLL_new();
    SCROLL_setup(scroll, "THE QUICK BROWN FOX JUMPS OVER THE LAZY DOG. ", font, strip);
    scroll->speed = 3;
    for (auto _ : state) {
        SCROLL_step(scroll);
        SCROLL_draw(scroll);
        benchmark::ClobberMemory();
    }
    SCROLL_delete(&scroll);
    FONT_delete(&font);
    IMG_delete(&strip);
}
BENCHMARK(scrollerStepAndDraw);

/// Draws a full strip: nothing of it is transparent.
template <typename Dist>
void drawDistorted(benchmark::State& state, Dist* dist, void (*draw)(Dist*, IMG*), IMG* target) {
    IMG* strip = IMG_newSized(stripWidth, cellSize);
    IMG_fill(strip, 0xFFFFFF);
    dist->source = strip;
    dist->amplitude = 48;
    dist->wave.offsetStep = 3;
    for (auto _ : state) {
        draw(dist, target);
        SINE_advance(&dist->wave);
        benchmark::ClobberMemory();
    }
    IMG_delete(&strip);
    IMG_delete(&target);
}

void distorterRows(benchmark::State& state) {
    DISTX* dist = DISTX_new();
    drawDistorted(state, dist, DISTX_draw, IMG_newSized(stripWidth, cellSize));
    DISTX_delete(&dist);
}
BENCHMARK(distorterRows);

void distorterColumns(benchmark::State& state) {
    DISTY* dist = DISTY_new();
    drawDistorted(state, dist, DISTY_draw, IMG_newSized(windowSize, windowSize));
    DISTY_delete(&dist);
}
BENCHMARK(distorterColumns);

void rasterDraw(benchmark::State& state) {
    IMG* strip = IMG_newSized(stripWidth, cellSize);
    RASTER* bars = RASTER_new();
    for (auto _ : state) {
        RASTER_advance(bars);
        RASTER_draw(bars, strip);
        benchmark::ClobberMemory();
    }
    RASTER_delete(&bars);
    IMG_delete(&strip);
}
BENCHMARK(rasterDraw);

} // namespace
} // namespace velm
