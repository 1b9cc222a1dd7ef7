// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The pond, the portholes and the flight.
#include "demo_run.h"
#include "support/images.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace velm::test {
namespace {

class SceneRingsTest : public testing::Test {
protected:
    void SetUp() override { startDemo(); }
    void TearDown() override { headless.onFrame = nullptr; }

    /// Runs a scene to its end and gives the presentations that it made.
    static std::uint32_t lengthOf(void (*scene)()) {
        const std::uint32_t before = headless.frames;
        scene();
        return headless.frames - before;
    }

    /// A new picture of what a scene shows at a frame; Space ends it there.
    static IMG* frameOf(void (*scene)(), std::uint32_t frame) {
        IMG* shown = nullptr;
        const std::uint32_t wanted = headless.frames + frame;
        headless.onFrame = [&shown, wanted](const IMG& image) {
            if (headless.frames == wanted) {
                shown = IMG_clone(&image);
            }
        };
        pressAt(wanted, ' ');
        std::srand(1); // the scenes draw the ways of their pictures
        scene();
        headless.onFrame = nullptr;
        return shown;
    }
};

TEST_F(SceneRingsTest, LastAsLongAsTheyShouldAndLeaveThePensUpright) {
    EXPECT_EQ(lengthOf(VELM4030_sceneExtra2), 900U);
    EXPECT_EQ(lengthOf(VELM4030_sceneExtra3), 750U);
    EXPECT_EQ(lengthOf(VELM4030_sceneExtra12), 750U);
    for (const LFONT* pen : {demo.textSmall, demo.textMedium}) {
        EXPECT_TRUE(pen->target == demo.screen && pen->scale->x == 1 && pen->scale->y == 1 &&
                    pen->angle == 0);
    }
    EXPECT_TRUE(demo.clearMode == ClearMode::black && settings.fadeOn == 0);
}

TEST_F(SceneRingsTest, ThePortholesShowWhatFlagSChooses) {
    settings.flagS = 1;
    IMG* planets = frameOf(VELM4030_sceneExtra3, 100);
    IMG* again = frameOf(VELM4030_sceneExtra3, 100);
    press('s');
    IMG* sunset = frameOf(VELM4030_sceneExtra3, 100);
    press('s');
    const auto isInside = [](std::int32_t i) { // the first hole, which stands still
        const std::int32_t x = i % 256 - 128;
        const std::int32_t y = i / 256 - 128;
        return x * x + y * y < 70 * 70;
    };
    ASSERT_TRUE(planets != nullptr && again != nullptr && sunset != nullptr);
    EXPECT_EQ(difference(planets, again), "");
    EXPECT_NE(difference(planets, sunset), "");
    bool sameOutside = true;
    for (std::int32_t i = 0; i < 256 * 256; ++i) {
        sameOutside = sameOutside && (isInside(i) || planets->pixels[i] == sunset->pixels[i]);
    }
    EXPECT_TRUE(sameOutside);
    for (IMG** image : {&planets, &again, &sunset}) {
        IMG_delete(image);
    }
}

} // namespace
} // namespace velm::test
