// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The scenes by name, for the tools that run one of them alone.
//
//     if (const SCENE* scene = SCENE_find("interlude-a"); scene != nullptr) {
//         scene->run();
//     }
#pragma once

#include <span>
#include <string_view>

namespace velm {

struct SCENE {
    std::string_view name;
    std::string_view description; ///< one line, for people
    void (*run)();                ///< one run, from its set-up to its clean-up
};

/// Every scene, in the order of the schedule.
std::span<const SCENE> SCENE_all();

/// A pass of the demo's own schedule under a scene's name, "schedule". It is none of SCENE_all.
extern const SCENE SCENE_schedule;

/// The scene of that name, or the schedule, or nullptr.
const SCENE* SCENE_find(std::string_view name);

/// Runs a scene again and again, or for nullptr the schedule. Only Escape ends it.
[[noreturn]] void SCENE_runForEver(const SCENE* scene);

} // namespace velm
