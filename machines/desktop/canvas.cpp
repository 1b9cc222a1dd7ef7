// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "desktop/canvas.h"

#include "desktop/video.h"
#include "desktop/x11.h"
#include "platform/enlarge.h"

namespace velm {

bool Canvas::open(SDL_Window* into) {
    window = into;
    isFresh = true;
    if (isX11()) {
        SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
        if (SDL_GetWindowPixelFormat(window) == SDL_PIXELFORMAT_UNKNOWN) {
            pixels = pixelsOf(window);
            return pixels.has_value();
        }
        return SDL_GetWindowSurface(window) != nullptr;
    }
    renderer = SDL_CreateRenderer(window, -1, 0);
    return renderer != nullptr;
}

void Canvas::close() {
    if (renderer != nullptr) {
        SDL_DestroyRenderer(renderer); // and the texture
    }
    *this = {};
}

bool Canvas::draw(const IMG& frame, const Layout& layout) {
    isFresh = isFresh || layout != last;
    last = layout;
    if (isFresh) {
        former.clear();
    }
    const bool drawn = renderer != nullptr ? drawTexture(frame, layout)
                       : pixels            ? drawRows(frame, layout)
                                           : drawSurface(frame, layout);
    if (isFresh) {
        former.assign(frame.pixels, frame.pixels + std::int64_t{frame.width} * frame.height);
    }
    isFresh = !drawn;
    return drawn;
}

bool Canvas::drawSurface(const IMG& frame, const Layout& layout) {
    SDL_Surface* const surface = SDL_GetWindowSurface(window);
    if (surface == nullptr) {
        return false;
    }
    if (isFresh) {
        SDL_FillRect(surface, nullptr, 0);
    }
    const SDL_PixelFormat& format = *surface->format;
    const PixelLayout surfacePixels(format.BytesPerPixel, format.Rmask, format.Gmask, format.Bmask);
    const Part part = enlarge(
        frame, layout,
        {static_cast<char*>(surface->pixels), surface->w, surface->h, surface->pitch, surfacePixels}, former);
    const SDL_Rect place{part.x, part.y, part.width, part.height};
    return (isFresh ? SDL_UpdateWindowSurface(window) : SDL_UpdateWindowSurfaceRects(window, &place, 1)) == 0;
}

bool Canvas::drawRows(const IMG& frame, const Layout& layout) {
    SDL_Point whole{};
    SDL_GetWindowSizeInPixels(window, &whole.x, &whole.y);
    const std::int32_t pitch = whole.x * pixels->bytes;
    if (isFresh) {
        rows.assign(static_cast<std::size_t>(pitch) * static_cast<std::size_t>(whole.y), '\0');
    }
    enlarge(frame, layout, {rows.data(), whole.x, whole.y, pitch, *pixels}, former);
    return putRows(window, rows.data(), whole);
}

bool Canvas::drawTexture(const IMG& frame, const Layout& layout) {
    SDL_Point size{};
    if (texture != nullptr) {
        SDL_QueryTexture(texture, nullptr, nullptr, &size.x, &size.y);
    }
    if (size.x != frame.width || size.y != frame.height) {
        SDL_DestroyTexture(texture);
        texture = SDL_CreateTexture(renderer, SDL_PIXELFORMAT_RGB888, SDL_TEXTUREACCESS_STREAMING,
                                    frame.width, frame.height);
        SDL_SetTextureScaleMode(texture, SDL_ScaleModeNearest);
    }
    const SDL_Rect place{layout.left, layout.top, frame.width * layout.scale, frame.height * layout.scale};
    const int pitch = frame.width * static_cast<int>(sizeof *frame.pixels);
    const bool drawn = texture != nullptr && SDL_UpdateTexture(texture, nullptr, frame.pixels, pitch) == 0 &&
                       SDL_SetRenderDrawColor(renderer, 0, 0, 0, SDL_ALPHA_OPAQUE) == 0 &&
                       SDL_RenderClear(renderer) == 0 &&
                       SDL_RenderCopy(renderer, texture, nullptr, &place) == 0;
    SDL_RenderPresent(renderer);
    return drawn;
}

} // namespace velm
