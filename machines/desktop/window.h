// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The one window, what stands in it and what happens to it. The demo presents into it.
//
//     playerWindow.takeEvents();
//     const SDL_Point place = playerWindow.inPicture({motion.x, motion.y});
#pragma once

#include "desktop/canvas.h"
#include "foundation/owned.h"
#include "image/img.h"
#include "platform/layout.h"

namespace velm {

struct PlayerWindow {
    SDL_Window* window = nullptr; ///< nullptr while none is open
    bool isForeign = false;       ///< another program's, whose input is none of ours
    bool isFull = false;          ///< it fills the screen
    Canvas canvas;
    Owned<IMG_delete> frame; ///< the last one as it came; none before

    /// Takes all that has happened since the last call, and draws the window anew where it has to be. Keys
    /// and pointer wait for the demo's polls; the program's own keys and what happens to the window act at
    /// once.
    void takeEvents();

    /// Where the picture stands in the window now.
    [[nodiscard]] Layout layout() const;

    /// A place in the window as one in the picture.
    [[nodiscard]] SDL_Point inPicture(SDL_Point place) const;
};

extern PlayerWindow playerWindow;

} // namespace velm
