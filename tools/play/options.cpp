// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "play/options.h"

#include "common/arguments.h"
#include "demo/scenes.h"
#include "platform/gain.h"
#include "play/keys.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <vector>

namespace velm {

namespace {

constexpr const char* firstSound = "auto";

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
    std::vector<std::string> names = {firstSound};
    names.insert(names.end(), std::begin(desktopSounds), std::end(desktopSounds));
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

/// What is said beside the options themselves, before it is understood.
struct Words {
    std::vector<std::string> scenes;
    std::string window, sound;
    bool list = false;
    bool isMixed = false;
};

void addScenes(CLI::App& app, Words& words) {
    takeScenes(*app.add_option("SCENE", words.scenes, "the scenes to play, again and again (all)")
                    ->expected(0, PROGRAMME::mostParts));
    app.add_flag("--list", words.list, "lists the scenes and quits");
    app.add_flag("--shuffle", words.isMixed, "plays the scenes in mixed order");
}

void addPlaces(CLI::App& app, Desktop& wanted, Words& words) {
    constexpr int mostScale = 16;
    CLI::Option* const scale =
        app.add_option("--scale", wanted.scale,
                       "size of the window, in multiples of 256 pixels (what suits the screen)")
            ->check(CLI::Range(1, mostScale));
    CLI::Option* const full =
        app.add_flag("--fullscreen", wanted.fullScreen, "fills the screen")->excludes(scale);
    CLI::Option* const root =
        app.add_flag("--root", wanted.root, "draws on the X11 root window, silent unless --sound is given");
    app.add_option("--window-id", words.window, "draws into another program's X11 window, likewise")
        ->check(
            [](const std::string& text) { return windowOf(text) > 0 ? "" : "not a window: '" + text + "'"; })
        ->excludes(scale, full, root);
    root->excludes(scale, full);
}

void addSounds(CLI::App& app, Desktop& wanted, Words& words) {
    constexpr int mostVolume = 100;
    app.add_option("--sound", words.sound, "where the sound goes (auto, the first that answers)")
        ->check(CLI::IsMember(soundNames()));
    app.add_option("--volume", wanted.volume, "volume of the sound, in percent (100)")
        ->check(CLI::Range(0, mostVolume));
    takeGain(*app.add_option("--gain", wanted.gain, "how much louder the sound gets, in decibels (12)"));
}

} // namespace

PlayOptions parseOptions(int argc, char** argv) {
    PlayOptions options;
    Words words;
    Desktop& wanted = options.desktop;
    wanted.gain = GAIN_usual;
    CLI::App app(std::string("The VELM4030 demo, enlarged or full screen, with the desktop's own sound.\n") +
                 flashingText);
    app.footer(std::string("Keys:\n") + keysText);
    app.set_version_flag("--version", std::string(desktopProgram) + " " VELM_VERSION);
    addScenes(app, words);
    addPlaces(app, wanted, words);
    addSounds(app, wanted, words);
    takeRate(*app.add_option("--rate", options.rate, "frames per second at the start, 30 or 60 (30)"));
    takeFrames(*app.add_option("--frames", options.frames, "quits after so many frames"));
    parseOrLeave(app, desktopProgram, argc, argv);
    if (words.list) {
        listScenes();
        std::exit(0);
    }
    options.programme = programmeOf(words.scenes, words.isMixed);
    wanted.foreign = windowOf(words.window);
    takeSaverWindow(wanted);
    const bool isForeign = wanted.foreign != 0 || wanted.root;
    wanted.sound = words.sound.empty() && isForeign ? noSound : words.sound == firstSound ? "" : words.sound;
    return options;
}

} // namespace velm
