// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "page/tour.h"

#include "demo/state.h"

#include <algorithm>

namespace velm {

PROGRAMME programme;

void startProgramme(const SCENE* first, bool isAlone) {
    programme = {};
    if (isAlone) {
        PROGRAMME_append(programme, first);
    } else {
        PROGRAMME_appendTour(programme);
        programme.next = std::max(PROGRAMME_placeOf(programme, first), 0);
    }
}

namespace {

const SCENE& sceneOf(std::int32_t number) {
    return SCENE_all()[static_cast<std::size_t>(number)];
}

} // namespace
} // namespace velm

using namespace velm;

std::int32_t pageSceneCount() {
    return static_cast<std::int32_t>(SCENE_all().size());
}

const char* pageSceneName(std::int32_t scene) {
    return sceneOf(scene).name.data();
}

const char* pageSceneText(std::int32_t scene) {
    return sceneOf(scene).description.data();
}

std::int32_t pageScene() {
    const SCENE* const scene = PROGRAMME_at(programme, programme.next - (programme.isPlaying ? 1 : 0));
    const auto all = SCENE_all();
    return scene == &SCENE_schedule || scene == nullptr ? -1 : static_cast<std::int32_t>(scene - all.data());
}

void pageGoTo(std::int32_t scene) {
    if (programme.count == 1) { // one alone: the tour joins it
        const bool isPlaying = programme.isPlaying;
        startProgramme(nullptr, false);
        programme.isPlaying = isPlaying;
    }
    PROGRAMME_goTo(programme, PROGRAMME_placeOf(programme, &sceneOf(scene)));
}

void pagePrevious() {
    PROGRAMME_previous(programme);
}

void pageNext() {
    PROGRAMME_next(programme);
}

std::int32_t pageIsPaused() {
    return demo.paused;
}

std::int32_t pageRate() {
    return demo.fps != nullptr ? demo.fps->targetRate : 0;
}
