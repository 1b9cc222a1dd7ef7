// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// FPS, the frame clock: it sleeps away what is left of a frame's time and never catches up after a slow
// frame.
//
//     FPS_start(fps);
//     ... draw, present, read keys ...
//     FPS_tick(fps);
//     FPS_wait(fps);
#pragma once

#include "foundation/identity.h"

#include <cstdint>

namespace velm {

struct FPS {
    std::int32_t targetRate;    ///< frames per second wanted: 30 or 60
    std::int32_t measuredRate;  ///< 1000000 / elapsedMicros of the last frame; shown nowhere
    std::int32_t shownRate;     ///< shown: targetRate at the last frame that had time to spare
    std::int32_t sleepMicros;   ///< left of the last frame's budget; perhaps negative, or more than all of it
    std::int64_t startMicros;   ///< time at FPS_start
    std::int64_t endMicros;     ///< time at FPS_tick
    std::int64_t elapsedMicros; ///< the time between them, modulo 2^32 (about 35 minutes either way)
    std::uint32_t frameCount;   ///< frames ticked since the record was made; never reset
};

extern const IDENTITY FPS_identity;
extern std::uint8_t FPS_verbose;

/// A zeroed clock, or nullptr.
FPS* FPS_new();

/// The time in microseconds: CLOCK_now.
std::int64_t FPS_now();

/// Notes the time at the top of a frame.
void FPS_start(FPS* fps);

/// Ends the frame's measurement and counts it. Without elapsed time `measuredRate` stays as it was.
void FPS_tick(FPS* fps);

/// Sleeps the rest of the budget of 1000000 / targetRate microseconds, if there is one; never longer than the
/// whole.
void FPS_wait(FPS* fps);

/// Frees the clock and stores nullptr in the handle.
void FPS_delete(FPS** handle);

/// Silent on purpose.
void FPS_error();

} // namespace velm
