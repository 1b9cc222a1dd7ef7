// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The platform headers for today's desktops: an enlarged picture in a window that can be resized or fills the
// screen, and sound through whichever driver answers. Link velm_player in place of velm_x11.
//
//     player.fullScreen = true;
//     player.soundDriver = "alsa";
//     VELM4030_main();
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

namespace velm {

/// The one player of the process. Set it up before the demo starts.
struct Player {
    std::int32_t scale = 0;        ///< the window's first enlargement; 0 for the largest that leaves a margin
    bool fullScreen = false;       ///< instead of a window
    std::string_view soundDriver;  ///< a name of the table of drivers; "" for the first that answers
    std::int32_t volume = 100;     ///< per cent, 0..100
    std::uint32_t frameLimit = 0;  ///< presentations before onLimit is called instead of another; 0 for none
    std::function<void()> onLimit; ///< must not return
};

/// Read whenever a window, a sound device or a picture is asked for.
extern Player player;

/// The program's name, for what it says.
inline constexpr const char* playerName = "velm4030-play";

} // namespace velm
