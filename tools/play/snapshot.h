// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Frames kept as pictures: velm4030-1.png and on, in the user's folder for pictures.
//
//     const std::string said = keepSnapshot(*frame); // "Pictures/velm4030-3.png"
#pragma once

#include "image/img.h"

#include <string>

namespace velm {

/// The folder that the desktop has for pictures, as $XDG_CONFIG_HOME/user-dirs.dirs names it; the current one
/// where it has none.
std::string picturesFolder();

/// Writes a frame under the first number that is free, tells on standard output where, and returns a short
/// line about it.
std::string keepSnapshot(const IMG& frame);

} // namespace velm
