// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What every operation on whole pictures costs, at the size of the window and at those of two screens.
// `memcpy` is the machine's own limit: it reads one picture and writes another.
#include "foundation/owned.h"
#include "image/img.h"
#include "image/imgfx.h"
#include "platform/enlarge.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstddef>
#include <cstring>
#include <random>
#include <sstream>
#include <string>

namespace velm {
namespace {

constexpr std::int32_t blurRadius = 20;
constexpr std::int32_t glareShift = 3;
constexpr std::uint32_t colour = 0x123456;

using Picture = Owned<IMG_delete>;
using Operation = void (*)(IMG* src, IMG* dst);

/// A picture of noise, a fourth of it transparent.
void fillWithNoise(IMG& img, std::uint32_t seed) {
    std::mt19937 engine(seed);
    std::generate_n(img.pixels, std::int64_t{img.width} * img.height, [&engine] {
        const auto word = static_cast<std::uint32_t>(engine());
        return word >> 30 == 0 ? 0 : word & 0xFFFFFF;
    });
}

template <void (*blit)(const IMG*, IMG*, std::int32_t, std::int32_t, std::int32_t, std::int32_t, std::int32_t,
                       std::int32_t)>
void blitWhole(IMG* src, IMG* dst) {
    blit(src, dst, 0, 0, 0, 0, src->width, src->height);
}

/// Four times as large, to the size of `dst`.
void enlargeWhole(IMG* src, IMG* dst) {
    constexpr std::int32_t scale = 4;
    constexpr std::int32_t pixelBytes = 4;
    const IMG part{.width = dst->width / scale, .height = dst->height / scale, .pixels = src->pixels};
    const Raster raster{reinterpret_cast<char*>(dst->pixels), dst->width, dst->height,
                        std::ptrdiff_t{dst->width} * pixelBytes,
                        PixelLayout(pixelBytes, 0xFF0000, 0x00FF00, 0x0000FF)};
    enlarge(part, {scale, 0, 0}, raster);
}

struct Named {
    const char* name;
    Operation run;
};

constexpr Named operations[] = {
    {"memcpy",
     [](IMG* src, IMG* dst) {
         std::memcpy(dst->pixels, src->pixels,
                     sizeof *src->pixels * static_cast<std::size_t>(src->width) *
                         static_cast<std::size_t>(src->height));
     }},
    {"copy", [](IMG* src, IMG* dst) { IMG_copy(src, dst); }},
    {"fill", [](IMG*, IMG* dst) { IMG_fill(dst, colour); }},
    {"fillRect", [](IMG*, IMG* dst) { IMG_fillRect(dst, 0, 0, dst->width, dst->height, colour); }},
    {"blit", blitWhole<IMG_blit>},
    {"opaqueBlit", blitWhole<IMGFX_opaqueBlit>},
    {"addBlit", blitWhole<IMGFX_addBlit>},
    {"averageBlit", blitWhole<IMGFX_averageBlit>},
    {"addColour", [](IMG*, IMG* dst) { IMG_addColour(dst, colour); }},
    {"subColour", [](IMG*, IMG* dst) { IMG_subColour(dst, colour); }},
    {"andMask", [](IMG* src, IMG* dst) { IMG_andMask(src, dst); }},
    {"invert", [](IMG*, IMG* dst) { IMGFX_invert(dst); }},
    {"enlarge", enlargeWhole},
    {"equal", [](IMG*, IMG* dst) { benchmark::DoNotOptimize(IMG_equal(dst, dst)); }},
    {"blur", [](IMG* src, IMG* dst) { IMGFX_blur(src, dst); }},
    {"blur7", [](IMG* src, IMG* dst) { IMGFX_blur7(src, dst); }},
    {"blurRadius", [](IMG* src, IMG* dst) { IMGFX_blurRadius(src, dst, blurRadius); }},
    {"glare", [](IMG* src, IMG* dst) { IMGFX_glare(src, dst, glareShift); }},
    {"glare8", [](IMG* src, IMG* dst) { IMGFX_glare8(src, dst, glareShift); }},
};

void runOperation(benchmark::State& state, Operation operation, std::int32_t width, std::int32_t height) {
    const Picture src(IMG_newSized(width, height));
    const Picture dst(IMG_newSized(width, height));
    fillWithNoise(*src, 1);
    fillWithNoise(*dst, 2);
    for (auto _ : state) {
        operation(src, dst);
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * width * height);
}

/// A picture file of the type '3', '5' or '6'.
std::string pictureFile(char type, std::int32_t width, std::int32_t height) {
    std::ostringstream file;
    file << 'P' << type << '\n' << width << ' ' << height << "\n255\n";
    std::mt19937 engine(1);
    const std::int64_t samples = std::int64_t{width} * height * (type == '5' ? 1 : 3);
    for (std::int64_t i = 0; i < samples; ++i) {
        const auto sample = static_cast<std::uint32_t>(engine() & 255);
        type == '3' ? file << sample << ' ' : file.put(static_cast<char>(sample));
    }
    return file.str();
}

void decode(benchmark::State& state, char type, std::int32_t width, std::int32_t height) {
    const std::string file = pictureFile(type, width, height);
    for (auto _ : state) {
        const Picture img(IMG_fromPNM(file.data(), file.size()));
        benchmark::DoNotOptimize(img->pixels);
    }
    state.SetItemsProcessed(state.iterations() * width * height);
}

[[maybe_unused]] const bool registered = [] {
    struct Size {
        std::int32_t width, height;
    };
    for (const Size size : {Size{256, 256}, Size{1920, 1080}, Size{3840, 2160}}) {
        const auto named = [size](const std::string& name) {
            return name + '/' + std::to_string(size.width) + 'x' + std::to_string(size.height);
        };
        for (const Named& operation : operations) {
            benchmark::RegisterBenchmark(named(operation.name).c_str(), runOperation, operation.run,
                                         size.width, size.height)
                ->Unit(benchmark::kMicrosecond);
        }
        for (const char type : {'3', '5', '6'}) {
            benchmark::RegisterBenchmark(named(std::string("decodeP") + type).c_str(), decode, type,
                                         size.width, size.height)
                ->Unit(benchmark::kMicrosecond);
        }
    }
    return true;
}();

} // namespace
} // namespace velm
