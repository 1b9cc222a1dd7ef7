// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What the player computes: where the picture stands, how it is enlarged, and how long a frame lasts.
#include "desktop/enlarge.h"
#include "desktop/layout.h"
#include "desktop/pace.h"
#include "support/images.h"
#include "support/owned.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace velm {
namespace {

TEST(Layout, ThePictureIsAsLargeAsWholePixelsAllowAndCentred) {
    EXPECT_EQ(layoutFor(256, 256, 256, 256), (Layout{1, 0, 0}));
    EXPECT_EQ(layoutFor(256, 256, 1920, 1080), (Layout{4, 448, 28}));
    EXPECT_EQ(layoutFor(256, 256, 1025, 2000), (Layout{4, 0, 488}));
    EXPECT_EQ(layoutFor(256, 256, 1023, 2000), (Layout{3, 127, 616}));
    EXPECT_EQ(layoutFor(256, 256, 200, 101), (Layout{1, -28, -78})) << "never smaller than it is";
    EXPECT_EQ(scaleForScreen(256, 256, 1920, 1080), 3);
    EXPECT_EQ(scaleForScreen(256, 256, 3840, 2160), 7);
    EXPECT_EQ(scaleForScreen(256, 256, 320, 200), 1);
}

TEST(Layout, APlaceInTheWindowIsOneInThePictureAlsoOutside) {
    const Layout layout{3, 10, 20};
    const std::int32_t places[][4] = {{10, 20, 0, 0},  {12, 22, 0, 0},  {13, 23, 1, 1},
                                      {9, 19, -1, -1}, {7, 17, -1, -1}, {6, 787, -2, 255}};
    for (const auto& [windowX, windowY, x, y] : places) {
        std::int32_t seenX = windowX;
        std::int32_t seenY = windowY;
        layout.toPicture(seenX, seenY);
        EXPECT_EQ(seenX, x) << windowX;
        EXPECT_EQ(seenY, y) << windowY;
    }
}

TEST(Enlarge, EveryPixelBecomesASquareInTheScreensLayoutAndNothingElseChanges) {
    test::Images random(4030);
    const test::Owned<IMG_delete> frame(random.image(9, 8));
    const PixelLayout layouts[] = {{1, 0xE0, 0x1C, 0x03},
                                   {2, 0xF800, 0x07E0, 0x001F},
                                   {3, 0x0000FF, 0x00FF00, 0xFF0000},
                                   {4, 0xFF0000, 0x00FF00, 0x0000FF},
                                   {4, 0x3FF00000, 0x000FFC00, 0x000003FF}};
    const Part part{1, 2, 7, 5};
    for (const PixelLayout& layout : layouts) {
        for (std::int32_t scale = 1; scale <= 5; ++scale) {
            const std::ptrdiff_t stride = part.width * scale * layout.bytes + 5;
            constexpr char untouched = -1;
            std::vector<char> to(static_cast<std::size_t>(stride * part.height * scale), untouched);
            enlarge(*frame, part, scale, layout, to.data(), stride);
            for (std::int32_t y = 0; y < part.height * scale; ++y) {
                for (std::int32_t x = 0; x < part.width * scale; ++x) {
                    const char* const seen = &to[static_cast<std::size_t>(y * stride + x * layout.bytes)];
                    const std::uint32_t expected =
                        layout.of(IMG_getPixel(frame, part.x + x / scale, part.y + y / scale));
                    ASSERT_EQ(std::memcmp(seen, &expected, static_cast<std::size_t>(layout.bytes)), 0)
                        << layout.bytes << " bytes, " << scale << " times, at " << x << ", " << y;
                }
                ASSERT_EQ(to[static_cast<std::size_t>((y + 1) * stride - 1)], untouched);
            }
        }
    }
    EXPECT_EQ(layouts[1].of(0xFF8040), 0xFC08U) << "fewer bits drop the low ones";
    EXPECT_EQ(layouts[4].of(0xFF8001), 0x3FF80804U) << "more bits repeat the high ones";
}

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
