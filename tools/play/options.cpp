// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "play/options.h"

#include "common/arguments.h"
#include "platform/gain.h"
#include "play/keys.h"

#include <CLI/CLI.hpp>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace velm {

namespace {

constexpr const char* firstSound = "auto";
constexpr const char* noSound = "none";

void listScenes() {
    constexpr int nameWidth = 16;
    for (const SCENE& scene : SCENE_all()) {
        std::printf("%-*s%s\n", nameWidth, std::string(scene.name).c_str(),
                    std::string(scene.description).c_str());
    }
}

std::vector<std::string> soundNames() {
    std::vector<std::string> names = desktopSounds();
    names.insert(names.begin(), firstSound);
    names.emplace_back(noSound);
    return names;
}

/// A window's number, decimal or with 0x before it; 0 for anything else.
std::uint64_t windowOf(const std::string& text) {
    constexpr int anyBase = 0;
    char* end = nullptr;
    const std::uint64_t number = std::strtoull(text.c_str(), &end, anyBase);
    return !text.empty() && *end == '\0' && text[0] != '-' ? number : 0;
}

/// Of the screen saver's window, if one has started us: it says which by a variable.
void takeSaverWindow(Desktop& wanted) {
    const char* const window = std::getenv("XSCREENSAVER_WINDOW");
    if (wanted.foreign == 0 && window != nullptr) {
        wanted.foreign = windowOf(window);
    }
}

} // namespace

PlayOptions parseOptions(int argc, char** argv) {
    PlayOptions options;
    Desktop& wanted = options.desktop;
    std::string scene;
    std::string window;
    std::string sound;
    bool list = false;
    constexpr int mostScale = 16;
    constexpr int mostVolume = 100;
    constexpr double mostGain = 40;
    CLI::App app("The VELM4030 demo, enlarged or full screen, with sound through what the desktop has.");
    app.footer(std::string("Keys:\n") + keysText);
    app.set_version_flag("--version", std::string(desktopProgram) + " " VELM_VERSION);
    takeScene(*app.add_option("SCENE", scene, "this scene again and again instead of the schedule"),
              options.scene);
    app.add_flag("--list", list, "names the scenes and leaves");
    CLI::Option* const scale =
        app.add_option("--scale", wanted.scale, "enlargement, without smoothing (what suits the screen)")
            ->check(CLI::Range(1, mostScale));
    CLI::Option* const full =
        app.add_flag("--fullscreen", wanted.fullScreen, "fills the screen, in whole multiples")
            ->excludes(scale);
    CLI::Option* const root =
        app.add_flag("--root", wanted.root, "draws on the X11 root window, silent unless --sound is given");
    app.add_option("--window-id", window, "draws into this X11 window of another program, likewise")
        ->check(
            [](const std::string& text) { return windowOf(text) > 0 ? "" : "not a window: '" + text + "'"; })
        ->excludes(scale, full, root);
    root->excludes(scale, full);
    app.add_option("--sound", sound, "where the sound goes (auto, the first that answers)")
        ->check(CLI::IsMember(soundNames()));
    app.add_option("--volume", wanted.volume, "of the sound, per cent (100)")
        ->check(CLI::Range(0, mostVolume));
    app.add_option("--gain", wanted.gain, "decibels by which the sound is raised (12; 0 as it is)")
        ->check(CLI::Range(-mostGain, mostGain));
    takeRate(*app.add_option("--rate", options.rate, "frames per second at the start, 30 or 60 (30)"));
    takeFrames(*app.add_option("--frames", wanted.frameLimit, "leaves after so many presentations"));
    parseOrLeave(app, desktopProgram, argc, argv);
    if (list) {
        listScenes();
        std::exit(0);
    }
    wanted.foreign = windowOf(window);
    takeSaverWindow(wanted);
    const bool isForeign = wanted.foreign != 0 || wanted.root;
    wanted.sound = sound.empty() && isForeign ? noSound : sound == firstSound ? "" : sound;
    return options;
}

} // namespace velm
