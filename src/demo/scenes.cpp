// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes.h"

#include "demo/scenes/table.h"
#include "demo/velm4030.h"

#include <algorithm>

namespace velm {

const SCENE SCENE_schedule = {"schedule", "the demo's own: the default scene, and now and then an interlude",
                              VELM4030_runSchedule};

std::span<const SCENE> SCENE_all() {
    return scenes;
}

const SCENE* SCENE_find(std::string_view name) {
    const auto* const found =
        std::find_if(std::begin(scenes), std::end(scenes), [name](const SCENE& s) { return s.name == name; });
    if (found != std::end(scenes)) {
        return found;
    }
    return name == SCENE_schedule.name ? &SCENE_schedule : nullptr;
}

void SCENE_runForEver(const SCENE* scene) {
    for (;;) {
        scene != nullptr ? scene->run() : VELM4030_runSchedule();
    }
}

} // namespace velm
