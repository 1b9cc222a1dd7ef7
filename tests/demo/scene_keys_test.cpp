// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What the keys s and q change in the scenes that read their settings.
#include "demo_run.h"
#include "foundation/chance.h"
#include "support/owned.h"

#include <gtest/gtest.h>
#include <tuple>

namespace velm::test {
namespace {

class SceneKeysTest : public testing::Test {
protected:
    void SetUp() override {
        startDemo();
        demo.muted = 1; // scenes follow the beat, which goes on from run to run
    }
    void TearDown() override {
        headless.onFrame = nullptr;
        demo.muted = 0;
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
        chanceSeed(1);            // the scenes draw the ways of their pictures
        demo.fps->frameCount = 0; // and their letters bounce by it
        scene();
        headless.onFrame = nullptr;
        return shown;
    }
};

TEST_F(SceneKeysTest, ThePortholesShowWhatFlagSChooses) {
    settings.flagS = 1;
    const Picture planets(frameOf(VELM4030_sceneExtra3, 100));
    const Picture again(frameOf(VELM4030_sceneExtra3, 100));
    press('s');
    const Picture sunset(frameOf(VELM4030_sceneExtra3, 100));
    press('s');
    const auto isInside = [](std::int32_t i) { // the first hole, which stands still
        const std::int32_t x = i % 256 - 128;
        const std::int32_t y = i / 256 - 128;
        return x * x + y * y < 70 * 70;
    };
    EXPECT_EQ(difference(planets, again), "");
    EXPECT_NE(difference(planets, sunset), "");
    bool sameOutside = true;
    for (std::int32_t i = 0; i < 256 * 256; ++i) {
        sameOutside = sameOutside && (isInside(i) || planets->pixels[i] == sunset->pixels[i]);
    }
    EXPECT_TRUE(sameOutside);
}

TEST_F(SceneKeysTest, TheJourneyReadsFlagSAndTheCityReadsTheBackground) {
    VELM4030_scrollSetup(); // draws numbers the first time
    settings.scrollOn = 0;  // its text runs on from scene to scene
    const std::tuple<void (*)(), std::uint32_t, char> readers[] = {{VELM4030_sceneExtra10, 300, 's'},
                                                                   {VELM4030_sceneExtra11, 300, 'q'}};
    for (const auto& [scene, frame, key] : readers) {
        const Picture before(frameOf(scene, frame));
        const Picture again(frameOf(scene, frame));
        press(key);
        const Picture after(frameOf(scene, frame));
        press(key);
        EXPECT_EQ(difference(before, again), "");
        std::int32_t changed = 0;
        for (std::int32_t i = 0; i < 256 * 256; ++i) {
            changed += before->pixels[i] != after->pixels[i] ? 1 : 0;
        }
        EXPECT_GT(changed, 5000) << key;
    }
    settings.scrollOn = 1;
}

} // namespace
} // namespace velm::test
