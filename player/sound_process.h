// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The sound device in a process of its own. A sound server that dies can make its client library wait for
// ever, or abort; here that ends a process that nobody misses, and another one tries again.
//
//     SoundProcess sound;
//     if (sound.start(driver) && sound.waitUntilOpen()) {
//         sound.send(block);
//     }
#pragma once

#include "sound_driver.h"

#include <sys/types.h>

namespace velm {

/// One device's process, and the next one when it ends.
class SoundProcess {
public:
    SoundProcess() = default;
    ~SoundProcess() { end(); }
    SoundProcess(const SoundProcess&) = delete;
    SoundProcess& operator=(const SoundProcess&) = delete;

    /// Starts a process that opens the driver's device; false when there can be none.
    bool start(const SoundDriver& soundDriver);

    /// Waits for its answer: true when the device is open.
    bool waitUntilOpen();

    /// Hands over a block without waiting: true when it is on its way. A device that is lost, or takes
    /// nothing for seconds, is opened again, quietly, and until then the blocks are dropped; so are those
    /// that would wait for too long.
    bool send(std::span<const std::int16_t> block);

    /// How far the player is ahead of a device that is as full as it is to be, in microseconds; negative
    /// while the device lacks more than waits.
    [[nodiscard]] std::int64_t aheadMicros() const;

    /// Ends the process, if there is one, and what the device still holds with it.
    void end();

private:
    void hear();
    void lose();
    void watch();

    const SoundDriver* driver = nullptr;
    pid_t process = -1;
    int line = -1;                ///< to the process; -1 while there is none
    bool open = false;            ///< the device has been opened
    std::int64_t waiting = 0;     ///< samples sent that the device has not taken
    std::int64_t lack = 0;        ///< samples that the device lacked when it last told
    std::int64_t toldMicros = 0;  ///< when it last told
    std::int64_t heardMicros = 0; ///< when the process was last heard, or was started
    std::int64_t startMicros = 0; ///< when to start the next process
};

} // namespace velm
