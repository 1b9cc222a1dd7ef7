// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The player's own keys, and what its help says about all of them: over the picture and after --help.
//
//     if (!actOnKey(programme, "F12")) { ... } // the demo's
#pragma once

#include "demo/programme.h"

#include <string>

namespace velm {

/// Does what a key of the player's own stands for, by SDL's name or the text that it writes; false for the
/// demo's keys.
bool actOnKey(PROGRAMME& programme, const std::string& key);

/// Lines of at most 31 characters, as many as fit on a picture.
inline constexpr const char* keysText = "Escape     fades out and quits\n"
                                        "Space      next part\n"
                                        "Left Right scene before, after\n"
                                        "F11        full screen\n"
                                        "F12        saves the picture\n"
                                        "+ -        volume\n"
                                        "h F1       these keys\n"
                                        "p          pause\n"
                                        "0          music\n"
                                        "1          scroll text\n"
                                        "4          raster bars\n"
                                        "5 6        30 or 60 frames\n"
                                        "8          the frame rate\n"
                                        "b g        blur, glare\n"
                                        "w f        clear mode, fade\n"
                                        "q          black or white\n"
                                        "s          another view\n"
                                        "e d        turn the name drum\n";

} // namespace velm
