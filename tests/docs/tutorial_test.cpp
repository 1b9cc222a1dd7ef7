// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The tutorial's effect on the demo's screen.
#include "demo/demo_run.h"
#include "demo/scenes.h"
#include "effects/plasma.h"
#include "foundation/chance.h"
#include "support/flashes.h"
#include "support/images.h"
#include "support/owned.h"

#include <set>

namespace velm::test {
namespace {

TEST(Tutorial, TheSceneShowsAMovingSeaUntilSpace) {
    startDemo();
    std::vector<std::set<std::uint32_t>> colours;
    std::vector<std::uint32_t> middles;
    headless.onFrame = [&](const IMG& frame) {
        colours.emplace_back(frame.pixels, frame.pixels + frame.width * frame.height);
        middles.push_back(IMG_getPixel(&frame, frame.width / 2, frame.height / 2));
    };
    pressAt(headless.frames + 40, ' ');
    SCENE_find("plasma")->run();
    headless.onFrame = nullptr;
    ASSERT_EQ(middles.size(), 40U);
    for (const std::set<std::uint32_t>& frame : colours) {
        EXPECT_GT(frame.size(), 100U);
    }
    EXPECT_GT(std::set(middles.begin(), middles.end()).size(), 10U);
}

// Whatever came before the scene and drew random numbers, the sea is harmless.
TEST(Tutorial, NoSeaFlashes) {
    const Picture shown(IMG_newSized(256, 256));
    for (const std::uint32_t seed : {3U, 4U, 6U, 24U, 29U}) {
        chanceSeed(seed);
        const Owned<PLASMA_delete> sea(PLASMA_new());
        FlashMeter meter;
        for (std::int32_t frame = 0; frame < 300; ++frame) {
            PLASMA_advance(sea);
            PLASMA_draw(sea, shown);
            meter.frame(*shown);
        }
        EXPECT_LE(meter.worst(60).flashes, 3) << "seed " << seed;
    }
}

} // namespace
} // namespace velm::test
