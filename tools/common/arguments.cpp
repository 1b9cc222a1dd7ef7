// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "common/arguments.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace velm {

std::string sceneNames() {
    std::string names;
    for (const SCENE& scene : SCENE_all()) {
        names += std::string(scene.name) + ", ";
    }
    return names + std::string(SCENE_schedule.name);
}

void takeScene(CLI::Option& option, const SCENE*& scene) {
    takeScenes(option);
    option.each([&scene](const std::string& name) { scene = SCENE_find(name); });
}

void takeScenes(CLI::Option& option) {
    option.check([](const std::string& name) {
        return SCENE_find(name) == nullptr ? "no such scene: '" + name + "'; there are " + sceneNames() : "";
    });
}

void takeFrames(CLI::Option& option) {
    option.check([](const std::string& text) {
        return numberOf<std::uint32_t>(text).value_or(0) > 0 ? "" : "not a number of frames: '" + text + "'";
    });
}

void takeRate(CLI::Option& option) {
    option.check([](const std::string& text) {
        return text == "30" || text == "60" ? "" : "neither 30 nor 60: '" + text + "'";
    });
}

void takeGain(CLI::Option& option) {
    option.check([](const std::string& text) {
        constexpr double most = 60;
        const bool isSensible = std::abs(numberOf<double>(text).value_or(2 * most)) <= most;
        return isSensible ? "" : "not decibels from -60 to 60: '" + text + "'";
    });
}

void parseOrLeave(CLI::App& app, const char* program, int argc, char** argv,
                  const std::function<void()>& check) {
    constexpr int statusWrongArgument = 2;
    app.name(program);
    try {
        app.parse(argc, argv);
        check();
    } catch (const CLI::Success& success) {
        std::exit(app.exit(success));
    } catch (const CLI::ParseError& error) {
        std::fprintf(stderr, "%s: %s\n", program, error.what());
        std::exit(statusWrongArgument);
    }
}

} // namespace velm
