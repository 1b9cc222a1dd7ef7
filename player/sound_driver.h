// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The sound drivers by name, in the order in which they are tried. They are used in a process of their own
// only (sound_process.h): there they may wait, complain and fall over.
//
//     if (driver.open()) {
//         driver.write(block);
//     }
#pragma once

#include <cstdint>
#include <span>

namespace velm {

struct SoundDriver {
    const char* name;
    bool (*open)();                               ///< false without a device
    bool (*write)(std::span<const std::int16_t>); ///< waits while the device is full; false when it is lost
};

/// Every driver but silence.
std::span<const SoundDriver> soundDrivers();

inline constexpr const char* silentDriver = "none";

bool ossOpen();
bool ossWrite(std::span<const std::int16_t> samples);
bool alsaOpen();
bool alsaWrite(std::span<const std::int16_t> samples);

} // namespace velm
