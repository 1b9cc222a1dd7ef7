// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Picture and sound go through two clocks, the machine's and the sound device's. The device leads: the player
// is kept as far ahead of a device that is full as it was at first, by frames that last longer while it
// is too far ahead and shorter while it is not enough. So the device never runs dry, and the sound stays with
// the picture from the first second on.
//
//     sleep(rest + pace.correction(aheadMicros));
#pragma once

#include <algorithm>
#include <cstdint>

namespace velm {

/// The player's clock.
class Pace {
public:
    /// Microseconds to add to the sleep of a frame that gave the device a block. A difference is made up for
    /// within a second or so, unseen.
    std::int32_t correction(std::int64_t aheadMicros) {
        if (framesSeen < framesToLearn) {
            ++framesSeen;
            sum += aheadMicros;
            target = std::clamp(sum / framesToLearn, leastAhead, mostAhead);
            return 0;
        }
        constexpr std::int64_t framesToMakeUp = 16;
        constexpr std::int64_t most = 4000;
        return static_cast<std::int32_t>(std::clamp((aheadMicros - target) / framesToMakeUp, -most, most));
    }

private:
    static constexpr std::int64_t framesToLearn = 36;
    /// Of a device that does not tell what it lacks, only what waits in front shows that it is full.
    static constexpr std::int64_t leastAhead = 10000;
    static constexpr std::int64_t mostAhead = 80000;

    std::int64_t framesSeen = 0;
    std::int64_t sum = 0;    ///< microseconds ahead in the first frames
    std::int64_t target = 0; ///< microseconds ahead to be kept, after these
};

} // namespace velm
