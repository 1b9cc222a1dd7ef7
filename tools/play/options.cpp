// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "play/options.h"

#include "common/arguments.h"
#include "desktop/desktop.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <vector>

namespace velm {

namespace {

void listScenes() {
    constexpr int nameWidth = 16;
    const auto list = [](const SCENE& scene) {
        std::printf("%-*s%s\n", nameWidth, std::string(scene.name).c_str(),
                    std::string(scene.description).c_str());
    };
    std::ranges::for_each(SCENE_all(), list);
    list(SCENE_schedule);
}

PROGRAMME programmeOf(const std::vector<std::string>& names, bool isMixed) {
    PROGRAMME programme;
    for (const std::string& name : names) {
        PROGRAMME_append(programme, SCENE_find(name));
    }
    if (names.empty()) {
        PROGRAMME_appendTour(programme);
    }
    if (isMixed) {
        PROGRAMME_shuffle(programme, std::random_device{}() | 1U);
    }
    return programme;
}

std::vector<std::string> soundNames() {
    std::vector<std::string> names = desktopSounds();
    names.insert(names.begin(), "auto");
    names.emplace_back("none");
    return names;
}

} // namespace

PlayOptions parseOptions(int argc, char** argv) {
    PlayOptions options;
    std::vector<std::string> scenes;
    bool list = false;
    bool isMixed = false;
    std::string sound = "auto";
    constexpr int mostScale = 16;
    constexpr int mostVolume = 100;
    CLI::App app("The VELM4030 demo, enlarged or full screen, with sound through what the desktop has.");
    app.set_version_flag("--version", std::string(desktopProgram) + " " VELM_VERSION);
    takeScenes(*app.add_option("SCENE", scenes, "these scenes, again and again; all of them unless given")
                    ->expected(0, PROGRAMME::mostParts));
    app.add_flag("--list", list, "names the scenes and leaves");
    app.add_flag("--shuffle", isMixed, "mixes their order");
    CLI::Option* const scale =
        app.add_option("--scale", options.scale, "enlargement, without smoothing (what suits the screen)")
            ->check(CLI::Range(1, mostScale));
    app.add_flag("--fullscreen", options.fullScreen, "fills the screen, in whole multiples")->excludes(scale);
    app.add_option("--sound", sound, "where the sound goes (auto, the first that answers)")
        ->check(CLI::IsMember(soundNames()));
    app.add_option("--volume", options.volume, "of the sound, per cent (100)")
        ->check(CLI::Range(0, mostVolume));
    takeRate(*app.add_option("--rate", options.rate, "frames per second at the start, 30 or 60 (30)"));
    takeFrames(*app.add_option("--frames", options.frames, "leaves after so many presentations"));
    parseOrLeave(app, desktopProgram, argc, argv);
    if (list) {
        listScenes();
        std::exit(0);
    }
    options.programme = programmeOf(scenes, isMixed);
    options.sound = sound == "auto" ? "" : sound;
    return options;
}

} // namespace velm
