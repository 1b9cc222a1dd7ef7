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
    {"extra-1", "the names in this folder on a drum, in a ring of sound", VELM4030_sceneExtra1},
    {"extra-2", "a word hops over a pond, and its rings meet, cross and run home", VELM4030_sceneExtra2},
    {"extra-3", "portholes that open on another world, over a city without end", VELM4030_sceneExtra3},
    {"extra-4", "through two doors and a tunnel of neon frames to a logo of glittering dust",
     VELM4030_sceneExtra4},
    {"extra-5", "a composition of lines and panes swings into place, and comes alive", VELM4030_sceneExtra5},
    {"extra-6", "a red curtain parts for a twister, a rubber landscape and a flag in confetti",
     VELM4030_sceneExtra6},
    {"extra-7", "a play of words that are what they say: a point, a line, a wave, a circle, and on",
     VELM4030_sceneExtra7},
    {"extra-8", "outlines that colour floods, mosaic by mosaic, and words out of the depth",
     VELM4030_sceneExtra8},
    {"extra-9", "a garden that chance arranges: curves of dots, bent pictures, braided ribbons",
     VELM4030_sceneExtra9},
    {"extra-10", "a journey through the panorama, over water, with a leaping figure", VELM4030_sceneExtra10},
    {"extra-11", "rain falls on a city, and window after window lights up", VELM4030_sceneExtra11},
    {"extra-12", "a flight through stars and a winding tunnel of hoops", VELM4030_sceneExtra12},
    {"particles", "water falls through the letters, and sparks turn it to stone", VELM4030_sceneParticles},
};

} // namespace

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
