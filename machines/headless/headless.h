// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A machine without a machine: the platform headers implemented with no X server, no sound device and virtual
// time. A sleep moves the clock by what was asked and drawing takes none, so every run gives the same bytes.
// Link velm_headless in place of velm_x11.
//
//     headless.onFrame = [](const IMG& frame) { ... };
//     headless.keys = {{100, ' ', 0}};
//     VELM4030_main();
#pragma once

#include "image/img.h"
#include "platform/dsp.h"
#include "platform/folder_names.h"

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

namespace velm {

/// A key press that reaches the first poll after presentation `frame`.
struct HeadlessKey {
    std::uint32_t frame;
    char text;            ///< 0 for a key that stands for no text, such as an arrow
    std::int32_t keycode; ///< the X keycode
};

/// A pointer movement that reaches the first poll after presentation `frame`. Of two that are due at one poll
/// the first wins, as with the events of a window.
struct HeadlessPointer {
    std::uint32_t frame;
    std::int32_t x, y;    ///< window pixels
    std::int32_t buttons; ///< bits 0, 1, 2: button 1, 2, 3 is held
};

/// The one machine of the process. Set it up before the demo starts.
struct Headless {
    std::vector<HeadlessKey> keys;         ///< in the order of their frames
    std::vector<HeadlessPointer> pointers; ///< in the order of their frames
    std::vector<std::string> listing{FOLDER_sample.begin(), FOLDER_sample.end()}; ///< the names in the folder
    bool hasSound = true;                                                         ///< there is a sound device
    std::int32_t blockBytes =
        0; ///< the block that the sound driver insists on; 0: the one that suits the frame rate
    std::uint32_t frameLimit =
        0; ///< presentations before onLimit is called instead of another; 0 for no limit

    std::function<void(const IMG&)> onFrame; ///< called for every presentation
    std::function<void(std::span<const std::int16_t>)>
        onSound;                          ///< called for every block handed to the device
    std::function<void()> onLimit;        ///< must not return
    std::function<void()> onEndlessPause; ///< no key will ever end the pause; must not return

    std::uint32_t frames = 0;        ///< presentations so far
    std::int64_t micros = 0;         ///< virtual time
    std::int64_t alarmAt = 0;        ///< virtual time of the next alarm, which a sleep raises; 0 for none
    std::uint32_t alarmInterval = 0; ///< microseconds from one alarm to the next; 0 for one alarm
    std::size_t nextKey = 0;
    std::size_t nextPointer = 0;
};

extern Headless headless;

} // namespace velm
