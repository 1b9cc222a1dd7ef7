// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The way of a picture into a window. Under X11 that is the window's own memory, which we enlarge into: a
// tenth of the work of SDL's renderer there. Elsewhere it is the renderer, which the others have in hardware.
// Screens of a layout that SDL has no memory for, those of 30 bits, get the rows by Xlib.
//
//     canvas.open(window);
//     canvas.draw(frame, layoutFor(256, 256, 1920, 1080));
#pragma once

#include "image/img.h"
#include "image/pixel_layout.h"
#include "platform/layout.h"

#include <SDL.h>
#include <optional>
#include <vector>

namespace velm {

class Canvas {
public:
    /// Prepares the drawing into a window; false when SDL has no way.
    bool open(SDL_Window* into);

    /// Lets go of the window, which is about to be destroyed.
    void close();

    /// Shows the frame at its place, black around; false when SDL cannot.
    bool draw(const IMG& frame, const Layout& layout);

    /// Tells that the window holds nothing of what was drawn.
    void forget() { isFresh = true; }

private:
    bool drawSurface(const IMG& frame, const Layout& layout);
    bool drawRows(const IMG& frame, const Layout& layout);
    bool drawTexture(const IMG& frame, const Layout& layout);

    SDL_Window* window = nullptr;
    SDL_Renderer* renderer = nullptr;  ///< nullptr under X11
    SDL_Texture* texture = nullptr;    ///< of the frames' size
    std::optional<PixelLayout> pixels; ///< of a screen that SDL has no surface for
    std::vector<char> rows;            ///< of its window
    std::vector<std::uint32_t> former; ///< the pixels of the frame before; empty where none stands
    Layout last;                       ///< where it stands
    bool isFresh = true;               ///< all of the window has to be painted
};

} // namespace velm
