// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A long chain of lines all over the picture: SDL's software renderer, and cairo without smoothing. Each has
// a rule of its own for half steps, so that a few pixels lie elsewhere. The costs are those of a pixel of a
// line.
#include "foundation/chance.h"
#include "rounds.h"

#include <SDL.h>
#include <algorithm>
#include <cairo.h>
#include <cstdlib>
#include <memory>

namespace velm::peers {

namespace {

constexpr std::uint32_t colour = 0xFF8040;

using Chain = std::vector<SDL_Point>;

Chain chainWithin(Size size) {
    constexpr std::size_t corners = 1001;
    Chain points(corners);
    std::generate(points.begin(), points.end(), [size] {
        return SDL_Point{chance() % size.width, chance() % size.height};
    });
    return points;
}

std::int64_t pixelsOf(const Chain& points) {
    std::int64_t pixels = 0;
    for (std::size_t i = 1; i < points.size(); ++i) {
        pixels +=
            std::max(std::abs(points[i].x - points[i - 1].x), std::abs(points[i].y - points[i - 1].y)) + 1;
    }
    return pixels;
}

void drawOurs(const Chain& points, IMG* picture) {
    for (std::size_t i = 1; i < points.size(); ++i) {
        IMG_drawLine(picture, points[i - 1].x, points[i - 1].y, points[i].x, points[i].y, colour);
    }
}

class Sdl {
public:
    explicit Sdl(Size size)
        : surface(SDL_CreateRGBSurfaceWithFormat(0, size.width, size.height, 32, SDL_PIXELFORMAT_XRGB8888),
                  SDL_FreeSurface) {
        // Lines as such; unless told so, it draws them point by point.
        SDL_SetHint(SDL_HINT_RENDER_LINE_METHOD, "2");
        renderer = {SDL_CreateSoftwareRenderer(surface.get()), SDL_DestroyRenderer};
        SDL_SetRenderDrawColor(renderer.get(), colour >> 16, (colour >> 8) & 0xFF, colour & 0xFF, 0xFF);
    }
    void draw(const Chain& points) {
        SDL_RenderDrawLines(renderer.get(), points.data(), static_cast<int>(points.size()));
        SDL_RenderFlush(renderer.get());
    }
    const void* result() const { return surface->pixels; }

private:
    std::unique_ptr<SDL_Surface, void (*)(SDL_Surface*)> surface;
    std::unique_ptr<SDL_Renderer, void (*)(SDL_Renderer*)> renderer{nullptr, SDL_DestroyRenderer};
};

class Cairo {
public:
    explicit Cairo(Size size)
        : surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, size.width, size.height),
                  cairo_surface_destroy),
          context(cairo_create(surface.get()), cairo_destroy) {
        cairo_set_antialias(context.get(), CAIRO_ANTIALIAS_NONE);
        cairo_set_line_width(context.get(), 1);
        cairo_set_source_rgb(context.get(), 1, 0.5, 0.25);
    }
    /// Line by line: one path of them all takes far longer.
    void draw(const Chain& points) {
        constexpr double middle = 0.5;
        for (std::size_t i = 1; i < points.size(); ++i) {
            cairo_move_to(context.get(), points[i - 1].x + middle, points[i - 1].y + middle);
            cairo_line_to(context.get(), points[i].x + middle, points[i].y + middle);
            cairo_stroke(context.get());
        }
        cairo_surface_flush(surface.get());
    }
    const void* result() const { return cairo_image_surface_get_data(surface.get()); }

private:
    std::unique_ptr<cairo_surface_t, void (*)(cairo_surface_t*)> surface;
    std::unique_ptr<cairo_t, void (*)(cairo_t*)> context;
};

/// How much of what we have drawn, in whole percents rounded up, one of the two has drawn and the other has
/// not.
Agreement mostlyAgree(const IMG& ours, const void* theirs, std::int64_t tolerance) {
    const auto* const words = static_cast<const std::uint32_t*>(theirs);
    std::int64_t drawn = 0;
    std::int64_t elsewhere = 0;
    for (std::int32_t i = 0; i < ours.width * ours.height; ++i) {
        drawn += ours.pixels[i] != 0;
        elsewhere += (ours.pixels[i] != 0) != ((words[i] & 0xFFFFFF) != 0);
    }
    Agreement agreed = agreementWithin((elsewhere * 100 + drawn - 1) / drawn, tolerance);
    agreed.words += agreed.words == "same" ? "" : " %";
    return agreed;
}

} // namespace

void lines(Table& table) {
    const Chain points = chainWithin(table.size);
    const Owned<IMG_delete> picture(IMG_newSized(table.size.width, table.size.height));
    Sdl sdl(table.size);
    Cairo cairo(table.size);
    compare(
        table, "lines", pixelsOf(points),
        {{"ours", [&] { drawOurs(points, picture); }, {}},
         {"SDL2", [&] { sdl.draw(points); }, [&] { return mostlyAgree(*picture, sdl.result(), 2); }},
         {"cairo", [&] { cairo.draw(points); }, [&] { return mostlyAgree(*picture, cairo.result(), 10); }}});
}

} // namespace velm::peers
