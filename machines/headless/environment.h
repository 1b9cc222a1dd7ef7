// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// How a finished program is run without a screen: what nobody has set up in the code, the environment does.
//
//     VELM_FRAMES=300 VELM_VIDEO=frames.rgb VELM_AUDIO=sound.s16 ./demo
//
// VELM_FRAMES   the program ends with status 0 after so many presentations
// VELM_VIDEO    a file for all frames: three bytes a pixel, red, green and blue
// VELM_AUDIO    a file for the sound: signed 16-bit mono, low byte first, 44100 a second
// VELM_KEYS     key presses, FRAME:CHARACTER or FRAME:=KEYCODE, with spaces between them
// VELM_POINTER  pointer movements, FRAME:X:Y:BUTTONS, with spaces between them
#pragma once

namespace velm {

/// Takes the variables over into `headless`, unless the code has set up who gets the frames. A file that
/// cannot be written ends the program with one line and status 1.
void takeEnvironment();

} // namespace velm
