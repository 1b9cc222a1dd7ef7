// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The seam for today's desktops, on SDL: an enlarged picture in a window that can be resized or fills the
// screen, or in a window of somebody else's, and sound through whatever answers. Link velm_desktop in place
// of velm_x11.
//
//     desktop.fullScreen = true;
//     desktop.onKey = [](const std::string& key) { return key == "F12" && keep(*desktopFrame()); };
//     VELM4030_main();
#pragma once

#include "image/img.h"

#include <cstdint>
#include <functional>
#include <string>

namespace velm {

/// The one desktop of the process. Set it up before the demo starts.
struct Desktop {
    std::int32_t scale = 0;    ///< the window's first enlargement; 0 for the largest that leaves a margin
    bool fullScreen = false;   ///< instead of a window
    std::uint64_t foreign = 0; ///< the X11 window of another program to draw into; 0 for one of our own
    bool root = false;         ///< draw into the X11 root window, or the one that stands in for it
    std::string sound;         ///< one of desktopSounds, noSound, or "" for the first that answers
    std::int32_t volume = 100; ///< per cent, 0..100
    double gain = 0;           ///< decibels by which the sound is raised before that; it saturates

    std::function<void()> onPresent = [] {}; ///< before each presentation
    std::function<void()> onRest = [] {};    ///< now and then while the demo is paused
    /// A key press comes here first: true keeps it from the demo. Keys have SDL's names ("F11",
    /// "Alt+Return"), those that write are the text that they write ("h", "+").
    std::function<bool(const std::string& key)> onKey = [](const std::string&) { return false; };
    /// What is drawn for a frame: itself, or another one of its size.
    std::function<const IMG&(const IMG& frame)> onDraw = [](const IMG& frame) -> const IMG& { return frame; };
    /// A sound was taken, or noSound. A thread of its own calls it.
    std::function<void(const std::string& sound)> onSound = [](const std::string&) {};
};

extern Desktop desktop;

/// The last frame that was presented, or nullptr.
const IMG* desktopFrame();

/// Draws the last frame once more, by onDraw.
void desktopRedraw();

/// From the window to the full screen, and back.
void desktopToggleFullScreen();

/// The sounds that SDL knows, as --sound has them, in the order in which they are tried.
inline constexpr const char* desktopSounds[] = {"pipewire", "pulseaudio", "alsa", "oss"};

/// What is in their place where there is none.
inline constexpr const char* noSound = "none";

/// The demo's program on this machine.
inline constexpr const char* desktopProgram = "velm4030-play";

/// The menu entry's name, by which Wayland's desktops find the icon.
inline constexpr const char* desktopEntry = "org.velm4030.velm4030";

} // namespace velm
