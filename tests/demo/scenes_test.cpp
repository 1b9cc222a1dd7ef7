// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "audio/sample.h"
#include "demo/scenes.h"
#include "demo/scenes/shared.h"
#include "demo_run.h"
#include "effects/lfont.h"
#include "foundation/chance.h"
#include "foundation/list.h"
#include "foundation/sine.h"
#include "foundation/wide.h"
#include "image/rgb888.h"
#include "support/flashes.h"
#include "support/owned.h"
#include "vector/vec2d.h"

#include <map>
#include <numeric>
#include <set>

namespace velm {

/// The name of a scene, in what a failed test says; GoogleTest finds it.
void PrintTo(const SCENE& scene, std::ostream* out) {
    *out << scene.name;
}

namespace test {
namespace {

class ScenesTest : public testing::Test {
protected:
    void SetUp() override { startDemo(); }
    void TearDown() override { headless.onFrame = nullptr; }

    /// Runs a scene until Space ends it after so many further presentations.
    static void runFor(std::uint32_t presentations, void (*scene)()) {
        pressAt(headless.frames + presentations, ' ');
        scene();
    }
};

TEST_F(ScenesTest, TheWidestRegistersDrawTheSame) {
    const auto watch = [](void (*scene)()) { // a checksum a frame, of all above the text, which goes on
        *demo.random = startDemo().generator;
        chanceSeed(1);
        std::vector<std::uint32_t> sums;
        headless.onFrame = [&sums](const IMG& frame) {
            sums.push_back(std::accumulate(frame.pixels, frame.pixels + 256 * 160, 1U,
                                           [](auto sum, auto pixel) { return sum * 31 + pixel; }));
        };
        runFor(480, scene);
        headless.onFrame = nullptr;
        return sums;
    };
    const bool isWide = wideRegisters;
    demo.muted = 1; // the beat goes on, too
    for (void (*const scene)() : {VELM4030_sceneExtra2, VELM4030_sceneParticles}) {
        runFor(2, scene); // makes the text once for all
        const std::vector<std::uint32_t> wide = watch(scene);
        wideRegisters = false;
        EXPECT_TRUE(watch(scene) == wide);
        wideRegisters = isWide;
        EXPECT_EQ(wide.size(), 480);
    }
    demo.muted = 0;
}

TEST_F(ScenesTest, VELM4030_meshFrames) {
    constexpr std::uint32_t fade = 32;
    const std::uint32_t before = headless.frames;
    VELM4030_sceneInterludeB();
    EXPECT_EQ(headless.frames - before, fade + 501);
    const OBJ2D* mesh = demo.mesh;
    EXPECT_EQ(mesh->segments->count, 8192);
    VELM4030_sceneInterludeBSetup();
    EXPECT_EQ(demo.mesh, mesh) << "a second run uses the same mesh";
}

TEST_F(ScenesTest, VELM4030_meshHuesStretch) {
    runFor(34, VELM4030_sceneInterludeB);
    const auto frame = static_cast<std::int32_t>(demo.fps->frameCount);
    const auto hueOf = [](std::int32_t segment) {
        return static_cast<const SEG2D*>(LIST_get(demo.meshView->segments, segment))->a->colour;
    };
    const auto hue = [frame](std::int32_t band) {
        return static_cast<std::uint32_t>(SAMPLE_get(demo.hueRamp, (10 * frame + band) % 1536));
    };
    EXPECT_EQ(hueOf(0), hue(0));
    EXPECT_EQ(hueOf(64), hue(0)) << "the second row of right links takes the first row's hue";
    EXPECT_EQ(hueOf(2 * 64 + 5), hue(16 + 5 * 16));
    EXPECT_EQ(hueOf(64 * 64), hue(32 * 16))
        << "the first down link, hues away from the right link at its point";
    EXPECT_EQ(hueOf(127 * 64 + 63), hue(63 * 16 + 63 * 16));
}

TEST_F(ScenesTest, VELM4030_thirdWaveIsStill) {
    const auto meshAfter = [](std::int32_t amplitude, std::int32_t frequency) {
        VELM4030_sceneInterludeBSetup();
        settings.meshWave1 = {100, 5, 20, 30};
        settings.meshWave2 = {200, 6, 25, 40};
        settings.meshWave3 = {300, 7, amplitude, frequency};
        VELM4030_meshLayer();
        VELM4030_meshLayer();
        std::vector<std::int32_t> heights;
        for (std::int32_t i = 0; i < demo.mesh->points->count; ++i) {
            heights.push_back(static_cast<const VEC2D*>(LIST_get(demo.mesh->points, i))->y);
        }
        return heights;
    };
    const auto still = meshAfter(0, 0);
    EXPECT_EQ(meshAfter(500, 77), still);
    EXPECT_EQ(settings.meshWave3.phase, 314) << "only its phase runs";
}

TEST_F(ScenesTest, ASceneResetsTheFiltersAndKeepsTheLayers) {
    for (const char key : {'b', 'g', 'f', 'w', '1', '4', '8', '6'}) {
        press(key);
    }
    runFor(40, VELM4030_sceneDefault);
    EXPECT_EQ(demo.blur, 0);
    EXPECT_EQ(demo.glare, 0);
    EXPECT_EQ(settings.fadeOn, 0);
    EXPECT_EQ(demo.clearMode, ClearMode::black);
    EXPECT_EQ(settings.scrollOn, 0);
    EXPECT_EQ(settings.rastersOn, 0);
    EXPECT_EQ(demo.overlay, 1);
    EXPECT_EQ(demo.fps->targetRate, 60);
    for (const char key : {'1', '4', '8', '5'}) {
        press(key);
    }
}

TEST_F(ScenesTest, VELM4030_rateInHex) {
    LFONT_setColour(demo.textMedium, 0xFFFFFF);
    const Picture expected(IMG_newSized(256, 256));
    LFONT* pen = demo.textMedium;
    pen->target = expected;
    pen->position->x = pen->position->y = 0;
    LFONT_drawLine(pen, "3Cfps");
    pen->position->x = 128;
    LFONT_drawLine(pen, "000001AF");
    IMG_fill(demo.screen, 0);
    demo.fps->shownRate = 60;
    demo.fps->frameCount = 0x1AF;
    demo.overlay = 0;
    VELM4030_fpsLayer();
    EXPECT_EQ(demo.screen->pixels[0], 0U) << "the overlay is off";
    demo.overlay = overlayRate;
    VELM4030_fpsLayer();
    EXPECT_EQ(difference(demo.screen, expected), "");
    demo.overlay = 0;
}

TEST_F(ScenesTest, VELM4030_lettersBounce) {
    for (demo.fps->frameCount = 0; demo.fps->frameCount < 1024; ++demo.fps->frameCount) {
        IMG_fill(demo.screen, 0);
        VELM4030_logoLettersLayer();
        for (std::int32_t i = 0; i < 256 * 256; ++i) {
            const bool allowed = i % 256 >= 176 && i % 256 < 240 && i / 256 >= 240 - 31;
            ASSERT_TRUE(allowed || demo.screen->pixels[i] == 0) << demo.fps->frameCount << " at " << i;
        }
    }
}

TEST_F(ScenesTest, TheBrowserListsAnyFolder) {
    headless.listing = {std::string(255, 'w'), "..", "\x01\x80\xFF", ".", "-", " ", "z"};
    for (std::uint32_t i = 0; i < 18; ++i) {
        pressAt(headless.frames + 20 + 4 * i, i < 9 ? 'd' : 'e');
    }
    std::vector<std::int32_t> selected;
    headless.onFrame = [&selected](const IMG&) { selected.push_back(demo.dirSelection); };
    runFor(100, VELM4030_sceneExtra1);
    ASSERT_EQ(demo.dirListing->names->count, 5) << "neither the folder itself nor the one above";
    EXPECT_STREQ(static_cast<const char*>(LIST_get(demo.dirListing->names, 0)), "\x01\x80\xFF");
    EXPECT_STREQ(static_cast<const char*>(LIST_get(demo.dirListing->names, 4)), "z");
    EXPECT_EQ(*std::max_element(selected.begin(), selected.end()), 4);
    EXPECT_EQ(selected.back(), 0);

    headless.listing.clear();
    pressAt(headless.frames + 5, 'd');
    runFor(20, VELM4030_sceneExtra1);
    EXPECT_EQ(demo.dirListing->names->count, 0);
}

/// What holds for every scene in the table, also for one that nobody here knows yet.
class EveryScene : public testing::TestWithParam<SCENE> {
protected:
    static constexpr std::uint32_t fade = 32; ///< presentations

    void SetUp() override { startDemo(); }
    void TearDown() override { headless.onFrame = nullptr; }

    const SCENE& scene = GetParam();
    const std::set<std::string_view> fades = {"default", "interlude-b", "extra-7", "extra-8", "extra-9"};
    /// Of the scenes that fade the picture before them out.
    const std::uint32_t begin = fades.contains(scene.name) ? fade : 0;

    /// Runs the scene, which Space would end after so many presentations; how many it showed.
    [[nodiscard]] std::uint32_t presentations(std::uint32_t untilSpace) const {
        const std::uint32_t before = headless.frames;
        runUntil(scene, before + untilSpace);
        return headless.frames - before;
    }

    /// All that a scene has made for later ones.
    static void dropAll() {
        dropShared();
        dropListing();
    }
};

INSTANTIATE_TEST_SUITE_P(, EveryScene, testing::ValuesIn(SCENE_all().begin(), SCENE_all().end()),
                         [](const auto& made) {
                             std::string name(made.param.name);
                             std::ranges::replace(name, '-', '_');
                             return name;
                         });

TEST_P(EveryScene, EndsAtOnceWithoutTheMemoryThatItNeeds) {
    demo.muted = 1; // composing allocates, too
    VEC2D_verbose = 0;
    settings.meshColumns = settings.meshRows = 3;
    dropAll();
    const std::int64_t before = allocationCount();
    ASSERT_EQ(presentations(begin + 2), begin + 2);
    const std::int64_t made = allocationCount() - before;
    ASSERT_GT(made, 0);
    std::uint32_t light = 0;
    headless.onFrame = [&light](const IMG& frame) {
        light = *std::max_element(frame.pixels, frame.pixels + 256 * 256);
    };
    // The palette is 1536 appends.
    for (std::int64_t nth = 1; nth <= made; nth += sparing * (nth < 200 ? 1 : 97)) {
        dropAll();
        const FailingAllocation failure(nth);
        EXPECT_EQ(presentations(begin + 9), begin + 1) << "without allocation " << nth << " of " << made;
        EXPECT_EQ(light, 0U) << nth;
    }
    headless.onFrame = nullptr;
    EXPECT_EQ(presentations(begin + 2), begin + 2) << "it has memory again";

    SAMPLE* const ramp = std::exchange(demo.hueRamp, nullptr);
    if (scene.name != "default" && !scene.name.starts_with("interlude")) {
        EXPECT_EQ(presentations(begin + 9), begin + 1) << "start-up could not make the ramp";
    }
    demo.hueRamp = ramp;
    demo.muted = 0;
    settings.meshColumns = settings.meshRows = 64;
    dropAll();
}

// No scene that is ours to compose flashes more than three times in any second, at either rate. Interlude A
// does, and the pages that warn of it name it.
TEST_P(EveryScene, LastsAsLongAsItShouldAllocatesNothingAndFlashesOnlyAsInterludeA) {
    // Of a scene that waits for Space, or whose length is nobody's concern.
    constexpr std::uint32_t untilSpace = 1500;
    const std::map<std::string_view, std::uint32_t> lengths = {
        {"default", 3000}, {"interlude-a", 750}, {"interlude-b", 501}, {"extra-2", 900},  {"extra-3", 750},
        {"extra-4", 900},  {"extra-5", 750},     {"extra-6", 1000},    {"extra-7", 1000}, {"extra-8", 750},
        {"extra-9", 1500}, {"extra-10", 750},    {"extra-11", 750},    {"extra-12", 750}, {"particles", 900}};
    const auto length = lengths.find(scene.name);
    constexpr std::uint32_t settled = 40; // frames: the fade-out and the first pattern are over
    const std::uint32_t first = headless.frames;
    std::int64_t allocations = 0;
    FlashMeter meter;
    headless.onFrame = [&](const IMG& frame) {
        if (headless.frames - first > settled) {
            ASSERT_EQ(everyAllocationCount(), allocations) << headless.frames - first;
        }
        meter.frame(frame);
        allocations = everyAllocationCount();
    };
    headless.keys.reserve(1000);
    if (length == lengths.end()) {
        const std::uint32_t shown = presentations(untilSpace);
        EXPECT_TRUE(scene.name == "extra-1" ? shown == untilSpace : shown <= untilSpace) << shown;
    } else {
        scene.run();
        EXPECT_EQ(headless.frames - first, begin + length->second);
    }
    EXPECT_EQ(demo.dots, nullptr);
    EXPECT_TRUE(demo.waveColumns == nullptr || demo.waveColumns->y == VELM4030_scrollY);
    constexpr std::int32_t harmless = 3;
    for (const std::int32_t rate : {30, 60}) {
        const WorstSecond worst = meter.worst(rate);
        EXPECT_EQ(worst.flashes > harmless, scene.name == "interlude-a")
            << "at " << rate << ": " << worst.flashes << " flashes in the second from frame "
            << worst.firstFrame;
    }
}

} // namespace
} // namespace test
} // namespace velm
