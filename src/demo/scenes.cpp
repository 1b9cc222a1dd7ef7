// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes.h"

#include "demo/velm4030.h"

#include <algorithm>

namespace velm {

namespace {

constexpr SCENE scenes[] = {
    {"default", "dots, a turning figure, the wave scroller and four bobbing letters", VELM4030_sceneDefault},
    {"interlude-a", "balls in a turning light that leave fading trails", VELM4030_sceneInterludeA},
    {"interlude-b", "a waving mesh in moving hues under the hopping word", VELM4030_sceneInterludeB},
};

} // namespace

std::span<const SCENE> SCENE_all() {
    return scenes;
}

const SCENE* SCENE_find(std::string_view name) {
    const auto* const found =
        std::find_if(std::begin(scenes), std::end(scenes), [name](const SCENE& s) { return s.name == name; });
    return found == std::end(scenes) ? nullptr : found;
}

void SCENE_runForEver(const SCENE* scene) {
    for (;;) {
        scene != nullptr ? scene->run() : VELM4030_runSchedule();
    }
}

} // namespace velm
