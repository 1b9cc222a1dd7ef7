// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The sound drivers by name, in the order in which they are tried. They are used in a process of their own
// only (sound_process.h): there they may wait, complain and fall over.
//
//     if (driver.open()) {
//         const std::int32_t room = driver.write(block);
//     }
#pragma once

#include <cstdint>
#include <span>

namespace velm {

struct SoundDriver {
    const char* name;
    bool (*open)(); ///< false without a device; may wait until it plays
    /// Waits while the device is full; gives the samples that would fit now, or a negative number when it is
    /// lost. A device that does not tell is full.
    std::int32_t (*write)(std::span<const std::int16_t>);
    bool (*idle)(); ///< called now and then while nothing is to be written; false when the device is lost
};

/// Every driver but silence.
std::span<const SoundDriver> soundDrivers();

inline constexpr const char* silentDriver = "none";

bool ossOpen();
std::int32_t ossWrite(std::span<const std::int16_t> samples);
bool ossIdle();
bool alsaOpen();
std::int32_t alsaWrite(std::span<const std::int16_t> samples);
bool alsaIdle();

} // namespace velm
