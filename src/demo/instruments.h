// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The instruments of the tune. There is no stored sound: 120 recipes of waves, noise and fades make the bank
// at start-up.
//
//     demo.music = VELM4030_buildMusic();
#pragma once

#include "audio/music.h"

namespace velm {

/// A new tune of period 360 with its 120 instruments, or nullptr. Draws its noise from chance(), so the bank
/// is the same whenever the draws before it are.
MUSIC* VELM4030_buildMusic();

} // namespace velm
