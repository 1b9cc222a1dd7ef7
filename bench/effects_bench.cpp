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
#include "foundation/owned.h"
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
    const Owned<IMG_delete> src(IMG_newSized(windowSize, windowSize));
    const Owned<IMG_delete> dst(IMG_newSized(windowSize, windowSize));
    for (std::int32_t i = 0; i < windowSize * windowSize; ++i) {
        src->pixels[i] = static_cast<std::uint32_t>(chance()) & 0xFFFFFF;
    }
    for (auto _ : state) {
        filter(src, dst);
        benchmark::ClobberMemory();
    }
}
BENCHMARK_CAPTURE(filterWindow, blur, IMGFX_blur);
BENCHMARK_CAPTURE(filterWindow, blur7, IMGFX_blur7);
BENCHMARK_CAPTURE(filterWindow, blurRadius, [](IMG* src, IMG* dst) { IMGFX_blurRadius(src, dst, 20); });
BENCHMARK_CAPTURE(filterWindow, glare, [](IMG* src, IMG* dst) { IMGFX_glare(src, dst, 3); });
BENCHMARK_CAPTURE(filterWindow, glare8, [](IMG* src, IMG* dst) { IMGFX_glare8(src, dst, 3); });

void dotsDrawAdd(benchmark::State& state) {
    const Owned<IMG_delete> screen(IMG_newSized(windowSize, windowSize));
    const Owned<SINEDOTS_delete> dots(SINEDOTS_new());
    SINEDOTS_setCount(dots, static_cast<std::int32_t>(state.range(0)));
    dots->colour = 0x000810;
    for (auto _ : state) {
        SINEDOTS_advance(dots);
        SINEDOTS_drawAdd(dots, screen);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(dotsDrawAdd)->Arg(1000)->Arg(16384);

void ballDraw(benchmark::State& state) {
    const Owned<IMG_delete> screen(IMG_newSized(windowSize, windowSize));
    const Owned<BALL3D_delete> ball(BALL3D_new());
    ball->x = ball->y = windowSize / 2;
    ball->radius = static_cast<std::int32_t>(state.range(0));
    ball->light = {.x = 6, .y = -6, .z = 8};
    ball->target = screen;
    for (auto _ : state) {
        BALL3D_draw(ball);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(ballDraw)->Arg(16)->Arg(64)->Arg(127);

void scrollerStepAndDraw(benchmark::State& state) {
    const Owned<IMG_delete> strip(IMG_newSized(stripWidth, cellSize));
    const Owned<FONT_delete> font(FONT_new());
    font->width = font->height = cellSize;
    font->image = IMG_newSized(windowSize, windowSize);
    IMG_fill(font->image, 0xFFFFFF);
    const Owned<SCROLL_delete> scroll(SCROLL_new());
    SCROLL_setup(scroll, "THE QUICK BROWN FOX JUMPS OVER THE LAZY DOG. ", font, strip);
    scroll->speed = 3;
    for (auto _ : state) {
        SCROLL_step(scroll);
        SCROLL_draw(scroll);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(scrollerStepAndDraw);

/// Draws a full strip: nothing of it is transparent.
template <typename Dist>
void drawDistorted(benchmark::State& state, Dist* dist, void (*draw)(Dist*, IMG*), std::int32_t width,
                   std::int32_t height) {
    const Owned<IMG_delete> target(IMG_newSized(width, height));
    const Owned<IMG_delete> strip(IMG_newSized(stripWidth, cellSize));
    IMG_fill(strip, 0xFFFFFF);
    dist->source = strip;
    dist->amplitude = 48;
    dist->wave.offsetStep = 3;
    for (auto _ : state) {
        draw(dist, target);
        SINE_advance(&dist->wave);
        benchmark::ClobberMemory();
    }
}

void distorterRows(benchmark::State& state) {
    const Owned<DISTX_delete> dist(DISTX_new());
    drawDistorted(state, dist.get(), DISTX_draw, stripWidth, cellSize);
}
BENCHMARK(distorterRows);

void distorterColumns(benchmark::State& state) {
    const Owned<DISTY_delete> dist(DISTY_new());
    drawDistorted(state, dist.get(), DISTY_draw, windowSize, windowSize);
}
BENCHMARK(distorterColumns);

void rasterDraw(benchmark::State& state) {
    const Owned<IMG_delete> strip(IMG_newSized(stripWidth, cellSize));
    const Owned<RASTER_delete> bars(RASTER_new());
    for (auto _ : state) {
        RASTER_advance(bars);
        RASTER_draw(bars, strip);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(rasterDraw);

} // namespace
} // namespace velm
