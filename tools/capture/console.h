// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Standard error: messages, each a line, and on a terminal one line of progress that is rewritten.
//
//     showProgress(64, 400);
//     say("cannot write frames.raw: No space left on device");
#pragma once

#include <cstdint>
#include <string>

namespace velm {

/// Rewrites the progress line, every 64th frame and for the last one. Nothing but a terminal gets one.
void showProgress(std::uint32_t frames, std::uint32_t allFrames);

/// Ends the progress line, if there is one.
void endProgress();

/// Ends the progress line and prints "velm4030-capture: " and the text as a line.
void say(const std::string& text);

} // namespace velm
