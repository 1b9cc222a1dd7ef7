// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "play/keys.h"

#include "desktop/desktop.h"
#include "image/img.h"
#include "play/overlay.h"
#include "play/snapshot.h"

#include <algorithm>
#include <functional>
#include <map>

namespace velm {

namespace {

constexpr std::int32_t volumeStep = 5;

void changeVolume(std::int32_t by) {
    constexpr std::int32_t most = 100;
    desktop.volume = std::clamp(desktop.volume + by, 0, most);
    OVERLAY_say("volume " + std::to_string(desktop.volume) + " %");
}

void keepPicture() {
    if (const IMG* const frame = desktopFrame(); frame != nullptr) {
        OVERLAY_say(keepSnapshot(*frame));
    }
}

} // namespace

bool actOnKey(PROGRAMME& programme, const std::string& key) {
    const std::map<std::string, std::function<void()>> actions = {
        {"Left", [&] { PROGRAMME_previous(programme); }},
        {"Right", [&] { PROGRAMME_next(programme); }},
        {"F1", OVERLAY_toggleHelp},
        {"h", OVERLAY_toggleHelp},
        {"H", OVERLAY_toggleHelp},
        {"F11", desktopToggleFullScreen},
        {"Alt+Return", desktopToggleFullScreen},
        {"F12", keepPicture},
        {"+", [] { changeVolume(volumeStep); }},
        {"=", [] { changeVolume(volumeStep); }},
        {"-", [] { changeVolume(-volumeStep); }},
    };
    const auto found = actions.find(key);
    if (found == actions.end()) {
        return false;
    }
    found->second();
    return true;
}

} // namespace velm
