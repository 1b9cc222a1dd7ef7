// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The seam for today's desktops, on SDL: an enlarged picture in a window that can be resized or fills the
// screen, or in a window of somebody else's, and sound through whatever answers. Link velm_desktop in place
// of velm_x11.
//
//     desktop.fullScreen = true;
//     desktop.onNext = [] { ... };
//     VELM4030_main();
#pragma once

#include "image/img.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace velm {

/// The one desktop of the process. Set it up before the demo starts.
struct Desktop {
    std::int32_t scale = 0;       ///< the window's first enlargement; 0 for the largest that leaves a margin
    bool fullScreen = false;      ///< instead of a window
    std::uint64_t foreign = 0;    ///< the X11 window of another program to draw into; 0 for one of our own
    bool root = false;            ///< draw into the X11 root window, or the one that stands in for it
    std::string sound;            ///< a name of desktopSounds(), "none", or "" for the first that answers
    std::int32_t volume = 100;    ///< per cent, 0..100; `+` and `-` change it
    double gain = 0;              ///< decibels by which the sound is raised before that; it saturates
    std::uint32_t frameLimit = 0; ///< presentations before onLimit is called instead of another; 0 for none
    std::string help;             ///< the lines that H or F1 shows

    std::function<void()> onLimit;                          ///< must not return
    std::function<void()> onPrevious;                       ///< Left
    std::function<void()> onNext;                           ///< Right
    std::function<std::string(const IMG& frame)> onPicture; ///< F12: keeps the frame, returns a line to show
    /// Draws lines of text over a copy of a frame. Without it no text is shown.
    std::function<void(IMG& picture, const std::string& text)> onText;
};

extern Desktop desktop;

/// The sounds that SDL knows, as --sound has them, in the order in which they are tried.
std::vector<std::string> desktopSounds();

/// The program's name, for what it says.
inline constexpr const char* desktopProgram = "velm4030-play";

} // namespace velm
