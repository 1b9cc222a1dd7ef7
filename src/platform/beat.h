// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A display shows frames at a beat of its own, and a machine that can only wait for the next one sleeps by
// it: up to the beat nearest to the time that was asked for. What that was too early or too late is made up
// for in the sleeps after it, so frames keep their rate on a display of any other, and lock to one that is
// nearly the same.
//
//     for (beat.sleep(CLOCK_now(), micros); !beat.isOver(CLOCK_now());) {
//         waitForDisplay();
//     }
#pragma once

#include <algorithm>
#include <cstdint>

namespace velm {

class Beat {
public:
    /// Asks for a sleep from `now` on.
    void sleep(std::int64_t now, std::int64_t micros) {
        due = now + micros - late;
        last = now;
        beats = 0;
    }

    /// To be asked at the sleep's beginning and at every beat; true at the one that ends it. Every sleep
    /// waits for one at least.
    bool isOver(std::int64_t now) {
        if (beats++ == 0) {
            return false;
        }
        learn(now);
        if (now + period / 2 < due) {
            return false;
        }
        // Most of it is carried on: all of it would have frames stumble on a display that is nearly as fast.
        constexpr std::int64_t kept = 49;
        constexpr std::int64_t of = 50;
        late = std::clamp(now - due, -period, period) * kept / of;
        return true;
    }

private:
    /// The time between two beats of one sleep tells the display's period, unless one was missed.
    void learn(std::int64_t now) {
        constexpr std::int64_t shortest = 2000;
        constexpr std::int64_t weight = 16;
        if (beats > 2 && now - last > shortest && now - last < period * 2) {
            period += (now - last - period) / weight;
        }
        last = now;
    }

    std::int64_t due = 0;        ///< when the sleep is to end
    std::int64_t late = 0;       ///< what the last one has to make up for
    std::int64_t last = 0;       ///< the last beat
    std::int64_t period = 16667; ///< from one beat to the next, microseconds
    std::int32_t beats = 0;      ///< of this sleep
};

} // namespace velm
