// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The demo program: start-up, the schedule, the scenes, the layers that they share, and the keys. All of it
// works on the state and the settings of demo/state.h.
//
//     VELM4030_init();
//     VELM4030_sceneDefault();
//
// A scene is a loop of frames, and every frame takes the same road: FPS_start, the scene's own drawing and
// its layers into `screen`, VELM4030_postLayer, VELM4030_musicLayer, VELM4030_endFrame.
#pragma once

#include "foundation/identity.h"
#include "platform/xkbd.h"

#include <cstdint>

namespace velm {

extern const IDENTITY VELM4030_identity;

/// The process's entry: start-up, then the schedule for ever. Only Escape ends it.
[[noreturn]] void VELM4030_main();

/// Start-up: opens the devices, shows the logo, decodes and builds everything that the scenes share.
void VELM4030_init();

/// One pass of the schedule: the default scene, then perhaps interlude A, then perhaps interlude B.
void VELM4030_runSchedule();

/// Makes `hueRamp`.
void VELM4030_hueRampSetup();
/// Makes the raster bars and the palette where they are missing, resets the bars' speed and draws a new bar
/// count.
void VELM4030_rasterSetup();
/// Makes bitmap fonts 1 to 6 and decodes the colour strip between the last two.
void VELM4030_bitmapFontSetup();
/// Parses the line fonts and the drawings and makes their pens.
void VELM4030_lineFontSetup();

/// 3000 frames of dots, a turning figure, the wave scroller, the pointer and four bobbing letters.
void VELM4030_sceneDefault();
void VELM4030_sceneDefaultSetup();
void VELM4030_sceneDefaultCleanup();
/// 750 frames of shaded balls that leave fading trails under the logo.
void VELM4030_sceneInterludeA();
void VELM4030_sceneInterludeASetup();
/// 501 frames of a waving mesh in moving hues under the hopping word.
void VELM4030_sceneInterludeB();
void VELM4030_sceneInterludeBSetup();

/// The scenes that the schedule leaves out. Each takes what it needs from the shared state, makes its own
/// effects and deletes them at its end.
/// The names in the working folder on a drum, in a ring of sound; until Space.
void VELM4030_sceneExtra1();
/// 900 frames of rings on a pond, from where a hopping word lands.
void VELM4030_sceneExtra2();
/// 750 frames of portholes into another picture.
void VELM4030_sceneExtra3();
/// 900 frames through two doors and a winding tunnel of neon frames to a logo of glittering dust.
void VELM4030_sceneExtra4();
/// 750 frames of lines and panes of colour that compose a picture, swing, breathe and leave.
void VELM4030_sceneExtra5();
/// 1000 frames in a theatre: a curtain parts for a twister, a rubber picture and a flag.
void VELM4030_sceneExtra6();
/// 1000 frames of line text that is what it says: a point, a line, a wave, a circle, and on.
void VELM4030_sceneExtra7();
/// 750 frames of drawings that colour floods, and of words out of the depth.
void VELM4030_sceneExtra8();
/// 1500 frames that chance arranges: clouds of dots, bent pictures, braided ribbons.
void VELM4030_sceneExtra9();
/// 750 frames of a journey along the panorama, over water, with a leaping figure.
void VELM4030_sceneExtra10();
/// 750 frames of rain over a city whose windows light up.
void VELM4030_sceneExtra11();
/// 750 frames of flight through stars, hoops and polygons.
void VELM4030_sceneExtra12();
/// 900 frames of water that falls through a word, and of sparks that turn it to stone.
void VELM4030_sceneParticles();

/// Makes the scroller's records where they are missing.
void VELM4030_scrollSetup();
/// Row about which the scroll text waves, unless a scene places it elsewhere for its time.
inline constexpr std::int32_t VELM4030_scrollY = 160;
/// Places the scroll text about another row, once it has been set up.
void VELM4030_placeScroll(std::int32_t y);
/// Moves the raster bars and draws them into `rasterTarget`.
void VELM4030_rasterLayer();
/// The scroll text in the colours of the raster bars, bent by rows, then by columns.
void VELM4030_scrollLayer();
/// Moves the dot cloud and adds it to `screen`.
void VELM4030_dotsLayer();
/// Draws the mesh as the frame before left it, then lays it out anew for the next one.
void VELM4030_meshLayer();
/// Reads the pointer and draws its picture.
void VELM4030_mouseLayer();
/// The frame rate and the frame count in hexadecimal, while the overlay is on.
void VELM4030_fpsLayer();
/// Four letters that bounce at the lower right in the hues of the ramp.
void VELM4030_logoLettersLayer();
/// Filters and presents `screen`, then prepares it for the next frame.
void VELM4030_postLayer();
/// Composes and plays, unless muted.
void VELM4030_musicLayer();

/// Acts on the key press in the record, if there is one, and clears it.
void VELM4030_handleKey(XKBD* keyboard);
/// Paces the frames, 30 or 60 a second, and has the sound device follow.
void VELM4030_setFrameRate(std::int32_t framesPerSecond);
/// 32 passes of darkening `screen`, each presented.
void VELM4030_fadeOut();
/// Polls and handles keys, and does nothing else, until the pause is over.
void VELM4030_pauseLoop();
/// Moves the selection of the directory listing, staying inside it.
void VELM4030_selectPrevious();
void VELM4030_selectNext();

/// What ends every frame: reads and handles one key, then waits for the next frame's time. False, without
/// waiting, when the scene is to end, by a key or because its `framesLeft` are over; the request is then taken
/// back.
bool VELM4030_endFrame();

} // namespace velm
