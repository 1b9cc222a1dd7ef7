// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What the page asks of the program while the demo waits for its next frame: plain words, for JavaScript to
// call. Scenes are numbered as SCENE_all has them.
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

/// Where the page writes the name of a key, as browsers have it: the text that it writes, or a word such as
/// "ArrowUp". At most so many bytes, the 0 included.
inline constexpr std::int32_t pageKeyBytes = 32;
char* pageKeyName();
/// Presses that key; 0 when neither the program nor the demo has anything to do with it.
std::int32_t pageKey();

/// 1 while the demo is paused, or its music is off.
std::int32_t pageIsPaused();
std::int32_t pageIsMuted();
/// Frames per second that the demo aims at.
std::int32_t pageRate();

/// The largest enlargement of the picture in a window of so many pixels, and the pixels left and above it.
std::int32_t pageScale(std::int32_t width, std::int32_t height);
std::int32_t pageLeft(std::int32_t width, std::int32_t height);
std::int32_t pageTop(std::int32_t width, std::int32_t height);

/// The pointer is over a pixel of the picture; a button, 1 to 3, is held or let go.
void pagePoint(std::int32_t x, std::int32_t y);
void pageButton(std::int32_t number, std::int32_t isHeld);

/// The speaker's report, see WEB_heard.
void pageHeard(std::int32_t waiting, std::uint32_t received);

/// Samples that are to wait in the speaker before it begins.
std::int32_t pageSamplesAhead();
}
