// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// How long frames last when the sound device leads.
#include "platform/pace.h"
#include "support/images.h"

namespace velm {
namespace {

/// A device that plays 44100 samples in a second of virtual time, by a clock that differs from the machine's,
/// and takes them in bites; in front of it waits what it cannot hold.
struct VirtualDevice {
    double clockRatio;
    std::int64_t bite; ///< samples

    static constexpr std::int64_t capacity = 8820;
    static constexpr std::int64_t full = capacity + capacity / 8;
    std::int64_t written = capacity; ///< into the device; it starts full of silence
    std::int64_t waiting = full - capacity;
    std::int64_t taken = 0;
    bool ranDry = false;

    [[nodiscard]] std::int64_t heard(std::int64_t micros) const {
        return static_cast<std::int64_t>(static_cast<double>(micros) * clockRatio * 0.0441);
    }
    void fill() {
        const std::int64_t moved = std::min(waiting, capacity - (written - taken));
        written += moved;
        waiting -= moved;
    }
    void passTo(std::int64_t micros) {
        while (taken + bite <= heard(micros)) {
            taken += bite;
            ranDry = ranDry || taken > written;
            fill();
        }
    }
    [[nodiscard]] std::int64_t aheadMicros(std::int64_t micros) const {
        return (waiting + written - heard(micros) - full) * 1000000 / 44100;
    }
};

/// How much the time between a frame and its sound varies in ten minutes, in samples; what is slow now and
/// then has a few seconds to be made up for.
std::int64_t driftOf(VirtualDevice device, std::int32_t rate) {
    test::Images random(30);
    Pace pace;
    std::int64_t now = 0;
    std::int64_t sent = 0;
    std::int64_t least = std::numeric_limits<std::int64_t>::max();
    std::int64_t most = std::numeric_limits<std::int64_t>::min();
    for (std::int32_t frame = 0; frame < 600 * rate; ++frame) {
        const std::int64_t begin = now;
        const bool isSlow = frame % 1000 == 999;
        now += random.number(1000, 7000) + (isSlow ? 70000 : 0);
        device.passTo(now);
        device.waiting += 44100 / rate;
        device.fill();
        sent += 44100 / rate;
        if ((frame < 1000 || frame % 1000 > 200) && !isSlow) {
            least = std::min(least, sent - device.heard(now));
            most = std::max(most, sent - device.heard(now));
        }
        const std::int64_t rest = 1000000 / rate - (now - begin);
        if (rest > 0) {
            now += std::max<std::int64_t>(rest + pace.correction(device.aheadMicros(now)), 0);
            now += random.number(50, 250); // sleeps end late
        }
    }
    EXPECT_FALSE(device.ranDry);
    return most - least;
}

TEST(Pace, TenMinutesStayTogetherWithinAFrameAndTheDeviceNeverRunsDry) {
    std::int64_t worst = 0;
    for (const double clockRatio : {0.9995, 1.0, 1.0005}) {
        for (const std::int64_t bite : {64, 882, 1764}) {
            for (const std::int32_t rate : {30, 60}) {
                const std::int64_t drift = driftOf({clockRatio, bite}, rate);
                EXPECT_LT(drift, 44100 / rate) << clockRatio << ", " << bite << ", " << rate;
                worst = std::max(worst, drift);
            }
        }
    }
    RecordProperty("worstDriftInSamples", static_cast<int>(worst));
}

} // namespace
} // namespace velm
