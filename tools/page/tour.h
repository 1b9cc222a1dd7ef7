// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What the demo's page asks of the demo, beside what any page asks (web/page.h). Scenes are numbered as
// SCENE_all has them.
//
//     module._pageGoTo(3); // in JavaScript
#pragma once

#include "demo/programme.h"
#include "demo/scenes.h"

#include <cstdint>

namespace velm {

/// What plays.
extern PROGRAMME programme;

/// Begins with a scene, or, for nullptr, with the tour's first: alone, or with the tour behind it.
void startProgramme(const SCENE* first, bool isAlone);

} // namespace velm

extern "C" {

/// How many scenes there are; the name and the description of one.
std::int32_t pageSceneCount();
const char* pageSceneName(std::int32_t scene);
const char* pageSceneText(std::int32_t scene);

/// The scene that plays, or comes next while none does; -1 for the schedule.
std::int32_t pageScene();
/// Goes on with a scene, and from there in the order of the tour.
void pageGoTo(std::int32_t scene);
/// Goes on with the scene before or after.
void pagePrevious();
void pageNext();

/// 1 while the demo is paused.
std::int32_t pageIsPaused();
/// Frames per second that the demo aims at.
std::int32_t pageRate();
}
