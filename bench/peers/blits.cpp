// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Whole pictures onto others: pixman, SDL's surfaces and OpenCV. Their pixels are 32-bit words as ours are;
// where black is transparent, theirs have it in their alpha, their colour key or their mask.
#include "image/imgfx.h"
#include "rounds.h"

#include <SDL.h>
#include <cstring>
#include <memory>
#include <opencv2/core.hpp>
#include <pixman.h>

namespace velm::peers {

namespace {

constexpr std::uint32_t opaque = 0xFF;
constexpr std::uint32_t half = 0x80;

/// The bytes of a picture, the pixels that are not black with this alpha.
Owned<IMG_delete> withAlpha(const IMG& picture, std::uint32_t alpha) {
    Owned<IMG_delete> copy(IMG_clone(&picture));
    for (std::int32_t i = 0; i < picture.width * picture.height; ++i) {
        copy->pixels[i] |= picture.pixels[i] != 0 ? alpha << 24 : 0;
    }
    return copy;
}

std::size_t bytesOf(const IMG& picture) {
    return std::size_t{4} * static_cast<std::size_t>(picture.width) *
           static_cast<std::size_t>(picture.height);
}

struct Ours {
    Owned<IMG_delete> from, to;
    Ours(const IMG& src, const IMG& dst) : from(IMG_clone(&src)), to(IMG_clone(&dst)) {}
    template <typename Blit>
    void run(Blit blit) {
        blit(from, to, 0, 0, 0, 0, from->width, from->height);
    }
};

struct Pixman {
    struct Unref {
        void operator()(pixman_image_t* image) const { pixman_image_unref(image); }
    };
    using Image = std::unique_ptr<pixman_image_t, Unref>;
    Image from, to, mask;

    static Image image(pixman_format_code_t format, const IMG& picture) {
        Image made(pixman_image_create_bits(format, picture.width, picture.height, nullptr, 0));
        std::memcpy(pixman_image_get_data(made.get()), picture.pixels, bytesOf(picture));
        return made;
    }
    Pixman(const IMG& src, pixman_format_code_t srcFormat, const IMG& dst, pixman_format_code_t dstFormat)
        : from(image(srcFormat, src)), to(image(dstFormat, dst)) {}
    void run(pixman_op_t operation) {
        pixman_image_composite32(operation, from.get(), mask.get(), to.get(), 0, 0, 0, 0, 0, 0,
                                 pixman_image_get_width(to.get()), pixman_image_get_height(to.get()));
    }
    const void* result() const { return pixman_image_get_data(to.get()); }
};

struct Sdl {
    struct Free {
        void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
    };
    using Surface = std::unique_ptr<SDL_Surface, Free>;
    Surface from, to;

    static Surface surface(SDL_PixelFormatEnum format, const IMG& picture) {
        Surface made(SDL_CreateRGBSurfaceWithFormat(0, picture.width, picture.height, 32, format));
        std::memcpy(made->pixels, picture.pixels, bytesOf(picture));
        return made;
    }
    Sdl(const IMG& src, SDL_PixelFormatEnum srcFormat, const IMG& dst, SDL_BlendMode mode)
        : from(surface(srcFormat, src)), to(surface(SDL_PIXELFORMAT_XRGB8888, dst)) {
        SDL_SetSurfaceBlendMode(from.get(), mode);
    }
    void run() { SDL_BlitSurface(from.get(), nullptr, to.get(), nullptr); }
    const void* result() const { return to->pixels; }
};

struct OpenCv {
    cv::Mat from, to;

    static cv::Mat matrix(const IMG& picture) {
        return cv::Mat(picture.height, picture.width, CV_8UC4, picture.pixels).clone();
    }
    OpenCv(const IMG& src, const IMG& dst) : from(matrix(src)), to(matrix(dst)) {}
};

/// Copies the bytes of the picture, and nothing else: as fast as this machine's memory lets anybody be.
Contender limit(const Ours& ours, const Owned<IMG_delete>& copy) {
    return {"memcpy", [&] { std::memcpy(copy->pixels, ours.from->pixels, bytesOf(*copy)); }, {}};
}

void opaqueBlit(Table& table, const IMG& src, const IMG& dst) {
    Ours ours(src, dst);
    Pixman pixman(src, PIXMAN_x8r8g8b8, dst, PIXMAN_x8r8g8b8);
    Sdl sdl(src, SDL_PIXELFORMAT_XRGB8888, dst, SDL_BLENDMODE_NONE);
    OpenCv openCv(src, dst);
    const Owned<IMG_delete> copy(IMG_clone(&dst));
    compare(table, "opaque blit",
            {{"ours", [&] { ours.run(IMGFX_opaqueBlit); }, {}},
             {"pixman", [&] { pixman.run(PIXMAN_OP_SRC); },
              [&] { return agreement(*ours.to, pixman.result(), 0); }},
             {"SDL2", [&] { sdl.run(); }, [&] { return agreement(*ours.to, sdl.result(), 0); }},
             {"OpenCV", [&] { openCv.from.copyTo(openCv.to); },
              [&] { return agreement(*ours.to, openCv.to.data, 0); }},
             limit(ours, copy)});
}

void additiveBlit(Table& table, const IMG& src, const IMG& dst) {
    Ours ours(src, dst);
    Pixman pixman(src, PIXMAN_a8r8g8b8, dst, PIXMAN_a8r8g8b8);
    Sdl sdl(src, SDL_PIXELFORMAT_XRGB8888, dst, SDL_BLENDMODE_ADD);
    OpenCv openCv(src, dst);
    const Owned<IMG_delete> copy(IMG_clone(&dst));
    compare(table, "additive blit",
            {{"ours", [&] { ours.run(IMGFX_addBlit); }, {}},
             {"pixman", [&] { pixman.run(PIXMAN_OP_ADD); },
              [&] { return agreement(*ours.to, pixman.result(), 0); }},
             {"SDL2", [&] { sdl.run(); }, [&] { return agreement(*ours.to, sdl.result(), 0); }},
             {"OpenCV", [&] { cv::add(openCv.to, openCv.from, openCv.to); },
              [&] { return agreement(*ours.to, openCv.to.data, 0); }},
             limit(ours, copy)});
}

void averageBlit(Table& table, const IMG& src, const IMG& dst) {
    Ours ours(src, dst);
    Pixman pixman(*withAlpha(src, opaque), PIXMAN_a8r8g8b8, dst, PIXMAN_x8r8g8b8);
    constexpr pixman_color_t halfOpaque = {0, 0, 0, 0x8080};
    pixman.mask.reset(pixman_image_create_solid_fill(&halfOpaque));
    Sdl sdl(*withAlpha(src, half), SDL_PIXELFORMAT_ARGB8888, dst, SDL_BLENDMODE_BLEND);
    const Owned<IMG_delete> copy(IMG_clone(&dst));
    compare(table, "average blit",
            {{"ours", [&] { ours.run(IMGFX_averageBlit); }, {}},
             {"pixman", [&] { pixman.run(PIXMAN_OP_OVER); },
              [&] { return agreement(*ours.to, pixman.result(), 2); }},
             {"SDL2", [&] { sdl.run(); }, [&] { return agreement(*ours.to, sdl.result(), 2); }},
             limit(ours, copy)});
}

void maskedBlit(Table& table, const IMG& src, const IMG& dst) {
    Ours ours(src, dst);
    Pixman pixman(*withAlpha(src, opaque), PIXMAN_a8r8g8b8, dst, PIXMAN_x8r8g8b8);
    Sdl sdl(src, SDL_PIXELFORMAT_XRGB8888, dst, SDL_BLENDMODE_NONE);
    SDL_SetColorKey(sdl.from.get(), SDL_TRUE, 0);
    OpenCv openCv(src, dst);
    cv::Mat mask;
    cv::inRange(openCv.from, cv::Scalar::all(0), cv::Scalar::all(0), mask);
    cv::bitwise_not(mask, mask);
    const Owned<IMG_delete> copy(IMG_clone(&dst));
    compare(table, "masked blit",
            {{"ours", [&] { ours.run(IMG_blit); }, {}},
             {"pixman", [&] { pixman.run(PIXMAN_OP_OVER); },
              [&] { return agreement(*ours.to, pixman.result(), 0); }},
             {"SDL2", [&] { sdl.run(); }, [&] { return agreement(*ours.to, sdl.result(), 0); }},
             {"OpenCV", [&] { openCv.from.copyTo(openCv.to, mask); },
              [&] { return agreement(*ours.to, openCv.to.data, 0); }},
             limit(ours, copy)});
}

} // namespace

void blits(Table& table) {
    const Owned<IMG_delete> src = noise(table.size);
    const Owned<IMG_delete> withHoles = noise(table.size, true);
    const Owned<IMG_delete> dst = noise(table.size);
    opaqueBlit(table, *src, *dst);
    additiveBlit(table, *src, *dst);
    averageBlit(table, *withHoles, *dst);
    maskedBlit(table, *withHoles, *dst);
}

} // namespace velm::peers
