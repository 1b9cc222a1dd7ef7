// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The one time of picture and sound: frames wait for the display, and the speaker leads them.
#pragma once

#include <cstdint>

namespace velm {

/// To be called before a picture is shown: waits for the display where nothing has waited since the last one.
void waitBeforePicture();

/// Microseconds to add to a frame's sleep for the picture to stay with the sound: 0 for a frame that has
/// given the speaker nothing.
std::int32_t speakerCorrection();

} // namespace velm
