// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo_run.h"

namespace velm::test {
namespace {

class KeysTest : public testing::Test {
protected:
    void SetUp() override { startDemo(); }
};

TEST_F(KeysTest, EveryCommandReachesItsTargetAndTakesItBack) {
    const struct {
        char key;
        std::uint8_t* target;
        int change;
    } toggles[] = {{'1', &settings.scrollOn, 1},  {'2', &settings.flag2, 1},  {'3', &settings.flag3, 1},
                   {'4', &settings.rastersOn, 1}, {'7', &settings.flag3, 4},  {'8', &demo.overlay, 1},
                   {'9', &demo.overlay, 2},       {'0', &demo.muted, 1},      {'b', &demo.blur, 1},
                   {'g', &demo.glare, 1},         {'f', &settings.fadeOn, 1}, {'s', &settings.flagS, 1}};
    for (const auto& [key, target, change] : toggles) {
        const std::uint8_t before = *target;
        press(key);
        EXPECT_EQ(*target, before ^ change) << key;
        press(key);
        EXPECT_EQ(*target, before) << key;
    }
    press('6');
    EXPECT_EQ(demo.fps->targetRate, 60);
    press('5');
    EXPECT_EQ(demo.fps->targetRate, 30);
    press('q');
    EXPECT_EQ(demo.background, 0xFFFFFFU);
    press('q');
    EXPECT_EQ(demo.background, 0U);
    for (const int mode : {1, 2, 3, 0}) {
        press('w');
        EXPECT_EQ(static_cast<int>(demo.clearMode), mode);
    }
    EXPECT_EQ(demo.keyboard->text[0], 0) << "a press is acted on once";
    EXPECT_EQ(demo.keyboard->keycode, 0);
}

TEST_F(KeysTest, CapitalsAndUnknownKeysDoNothing) {
    const DemoState before = demo;
    for (const char key : {'B', 'W', 'Q', 'P', 'x', '\r', '\x7F', '\xE4'}) {
        press(key);
    }
    EXPECT_EQ(demo.blur, before.blur);
    EXPECT_EQ(demo.clearMode, before.clearMode);
    EXPECT_EQ(demo.background, before.background);
    EXPECT_EQ(demo.control, before.control);
}

TEST_F(KeysTest, TheSelectionStaysInsideTheListing) {
    dropListing(); // another test's
    demo.dirSelection = 0;
    press('e');
    press('\0', 98);
    EXPECT_EQ(demo.dirSelection, 0);
    press('d');
    press('\0', 104);
    EXPECT_EQ(demo.dirSelection, 0) << "there is no listing";
    demo.dirListing = DIR_new();
    for (const char* name : {"a", "b", "c"}) {
        LIST_append(demo.dirListing->names, const_cast<char*>(name));
    }
    for (const int selected : {1, 2, 2}) {
        press('d');
        EXPECT_EQ(demo.dirSelection, selected);
    }
    press('\0', 98);
    EXPECT_EQ(demo.dirSelection, 1);
    LIST_delete(&demo.dirListing->names);
    DIR_delete(&demo.dirListing);
}

TEST_F(KeysTest, APauseHoldsTheFrameAndKeysWorkInIt) {
    const std::uint32_t frames = headless.frames;
    const std::int64_t micros = headless.micros;
    for (const char key : {'g', ' ', 'p'}) {
        pressAt(frames, key);
    }
    press('p');
    EXPECT_EQ(demo.paused, 0);
    EXPECT_EQ(demo.glare, 1);
    EXPECT_EQ(headless.frames, frames);
    EXPECT_EQ(headless.micros, micros);
    const std::uint32_t counted = demo.fps->frameCount;
    EXPECT_FALSE(VELM4030_endFrame()) << "Space during the pause ends the scene after it";
    EXPECT_EQ(demo.fps->frameCount, counted) << "the last frame of a scene is not counted";
    EXPECT_TRUE(VELM4030_endFrame()) << "and the request is taken back";
    press('g');
}

TEST_F(KeysTest, VELM4030_fadeOutIsLong) {
    const std::uint32_t frames = headless.frames;
    std::vector<std::uint32_t> corner;
    headless.onFrame = [&](const IMG& frame) { corner.push_back(frame.pixels[0]); };
    IMG_fill(demo.screen, 0xFF8001);
    VELM4030_fadeOut();
    EXPECT_EQ(headless.frames, frames + 32);
    EXPECT_EQ(corner[0], 0x7F0000U);
    EXPECT_EQ(corner[1], 0U);
    headless.onFrame = nullptr;
}

} // namespace
} // namespace velm::test
