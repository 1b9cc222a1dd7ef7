// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The table of scenes. A new scene needs its own file, scenes/scene_SUBJECT.cpp, and here its declaration and
// its row: that is how the tools, the player, the benchmark and the tests find it.
#pragma once

#include "demo/scenes.h"

namespace velm {

// What the schedule plays. Each run is set up anew.
void VELM4030_sceneDefault();         ///< 3000 frames
void VELM4030_sceneDefaultSetup();    ///< draws its dots, its fade and its figure
void VELM4030_sceneDefaultCleanup();  ///< deletes the dots
void VELM4030_sceneInterludeA();      ///< 750 frames
void VELM4030_sceneInterludeASetup(); ///< makes the ball the first time, and places it
void VELM4030_sceneInterludeB();      ///< 501 frames
void VELM4030_sceneInterludeBSetup(); ///< makes the mesh the first time, and draws its waves

// What the schedule leaves out.
void VELM4030_sceneExtra1();    ///< until Space
void VELM4030_sceneExtra2();    ///< 900 frames
void VELM4030_sceneExtra3();    ///< 750 frames
void VELM4030_sceneExtra4();    ///< 900 frames
void VELM4030_sceneExtra5();    ///< 750 frames
void VELM4030_sceneExtra6();    ///< 1000 frames
void VELM4030_sceneExtra7();    ///< 1000 frames
void VELM4030_sceneExtra8();    ///< 750 frames
void VELM4030_sceneExtra9();    ///< 1500 frames
void VELM4030_sceneExtra10();   ///< 750 frames
void VELM4030_sceneExtra11();   ///< 750 frames
void VELM4030_sceneExtra12();   ///< 750 frames
void VELM4030_sceneParticles(); ///< 900 frames

inline constexpr SCENE scenes[] = {
    {"default", "dots, a turning figure, the wave scroller and four bobbing letters", VELM4030_sceneDefault,
     "default"},
    {"interlude-a", "balls in a turning light that leave fading trails", VELM4030_sceneInterludeA,
     "interlude_a"},
    {"interlude-b", "a waving mesh in moving hues under the hopping word", VELM4030_sceneInterludeB,
     "interlude_b"},
    {"extra-1", "the names in this folder on a drum, in a ring of sound", VELM4030_sceneExtra1, "drum"},
    {"extra-2", "a word hops over a pond, and its rings meet, cross and run home", VELM4030_sceneExtra2,
     "pond"},
    {"extra-3", "portholes that open on another world, over a city without end", VELM4030_sceneExtra3,
     "portholes"},
    {"extra-4", "through two doors and a tunnel of neon frames to a logo of glittering dust",
     VELM4030_sceneExtra4, "tunnel"},
    {"extra-5", "a composition of lines and panes swings into place, and comes alive", VELM4030_sceneExtra5,
     "composition"},
    {"extra-6", "a red curtain parts for a twister, a rubber landscape and a flag in confetti",
     VELM4030_sceneExtra6, "theatre"},
    {"extra-7", "a play of words that are what they say: a point, a line, a wave, a circle, and on",
     VELM4030_sceneExtra7, "words"},
    {"extra-8", "outlines that colour floods, mosaic by mosaic, and words out of the depth",
     VELM4030_sceneExtra8, "mosaic"},
    {"extra-9", "a garden that chance arranges: curves of dots, bent pictures, braided ribbons",
     VELM4030_sceneExtra9, "garden"},
    {"extra-10", "a journey through the panorama, over water, with a leaping figure", VELM4030_sceneExtra10,
     "journey"},
    {"extra-11", "rain falls on a city, and window after window lights up", VELM4030_sceneExtra11, "city"},
    {"extra-12", "a flight through stars and a winding tunnel of hoops", VELM4030_sceneExtra12, "flight"},
    {"particles", "water falls through the letters, and sparks turn it to stone", VELM4030_sceneParticles,
     "particles"},
};

} // namespace velm
