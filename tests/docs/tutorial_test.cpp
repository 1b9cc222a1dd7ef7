// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The tutorial's effect on the demo's screen.
#include "demo/demo_run.h"
#include "demo/scenes.h"
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

} // namespace
} // namespace velm::test
