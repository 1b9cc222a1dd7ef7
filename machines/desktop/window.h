// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The one window and what stands in it. The events act on it; the demo presents into it.
//
//     playerWindow.say("volume 80 %");
//     playerWindow.redraw();
#pragma once

#include "desktop/canvas.h"
#include "desktop/layout.h"
#include "image/img.h"

#include <SDL.h>
#include <cstdint>
#include <string>

namespace velm {

struct PlayerWindow {
    SDL_Window* window = nullptr; ///< nullptr while none is open
    bool isForeign = false;       ///< another program's, whose input is none of ours
    bool isHidden = false;        ///< minimised: nothing is drawn
    bool isFull = false;          ///< it fills the screen
    Canvas canvas;
    IMG* frame = nullptr;       ///< the last one as it came; nullptr before
    std::uint32_t frames = 0;   ///< presentations so far
    bool showsHelp = false;     ///< the keys stand over the picture
    std::string text;           ///< what was said last
    std::int64_t textUntil = 0; ///< CLOCK_now() until which it stands over the picture

    /// Draws the last frame as the window stands now, and what is to stand over it.
    void redraw();

    /// Shows a line over the picture for a second or so.
    void say(const std::string& line);

    void toggleHelp();
    void toggleFullScreen();

    /// Where the picture stands in the window now.
    [[nodiscard]] Layout layout() const;

    /// A place in the window as one in the picture.
    [[nodiscard]] SDL_Point inPicture(SDL_Point place) const;
};

extern PlayerWindow playerWindow;

} // namespace velm
