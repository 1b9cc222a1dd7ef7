// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What the tools that run the demo share of their command lines.
//
//     takeScene(*app.add_option("--scene", name, "instead of the schedule: " + sceneNames()), scene);
//     parseOrLeave(app, "velm4030-capture", argc, argv);
#pragma once

#include "demo/scenes.h"

#include <CLI/CLI.hpp> // IWYU pragma: export
#include <charconv>
#include <functional>
#include <optional>
#include <string>

namespace velm {

/// The whole text as a number.
template <typename Number>
std::optional<Number> numberOf(const std::string& text) {
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = error == std::errc() && end == text.data() + text.size() && !text.empty();
    return whole ? std::optional(number) : std::nullopt;
}

/// What nobody who is sensitive to it should come upon unwarned.
inline constexpr const char* flashingText = "Warning: the scene interlude-a flashes, up to five times a "
                                            "second, and nine times at 60 frames per second.";

/// "default, interlude-a, ..., schedule"
std::string sceneNames();

/// The option takes the name of a scene, which is stored.
void takeScene(CLI::Option& option, const SCENE*& scene);

/// The option takes names of scenes, for SCENE_find.
void takeScenes(CLI::Option& option);

/// The option takes a number of frames, 1 or more.
void takeFrames(CLI::Option& option);

/// The option takes a frame rate, 30 or 60.
void takeRate(CLI::Option& option);

/// The option takes decibels, from -60 to 60.
void takeGain(CLI::Option& option);

/// Parses, and lets `check` look at the result. Leaves by itself: with status 0 after --help and --version,
/// with one line on standard error and status 2 after a wrong argument.
void parseOrLeave(
    CLI::App& app, const char* program, int argc, char** argv, const std::function<void()>& check = [] {});

} // namespace velm
