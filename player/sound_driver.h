// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The sound drivers by name, in the order in which they are tried. They are used in a process of their own
// only (sound_process.h): there they may wait, complain and fall over.
//
//     if (driver.open()) {
//         const std::optional<std::int32_t> lacks = driver.write(block);
//     }
#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace velm {

/// A way to a sound device.
struct SoundDriver {
    const char* name; ///< as the command line has it
    bool (*open)();   ///< false without a device; may wait until it plays
    /// Waits while the device is full; gives the samples that it then lacks to be as full as it is to be,
    /// negative when it holds more, or nothing when it is lost. A device that does not tell lacks none.
    std::optional<std::int32_t> (*write)(std::span<const std::int16_t>);
    bool (*idle)(); ///< called now and then while nothing is to be written; false when the device is lost
};

/// Every driver but silence.
std::span<const SoundDriver> soundDrivers();

/// The driver that is none.
inline constexpr const char* silentDriver = "none";

/// Opens "/dev/dsp" for the demo's sound; false without one, or with one that refuses.
bool ossOpen();
/// As SoundDriver::write. A device that ran dry gets a silence first.
std::optional<std::int32_t> ossWrite(std::span<const std::int16_t> samples);
/// True: the device waits in silence by itself.
bool ossIdle();

/// Opens ALSA's default device and fills it with silence; false without one.
bool alsaOpen();
/// As SoundDriver::write. A device that ran dry is filled with silence first.
std::optional<std::int32_t> alsaWrite(std::span<const std::int16_t> samples);
/// As SoundDriver::idle: keeps the device from running dry.
bool alsaIdle();

} // namespace velm
