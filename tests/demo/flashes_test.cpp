// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// No scene that is ours to compose flashes more than three times in any second, at either rate. Interlude A
// does, and the pages that warn of it name it.
#include "demo/scenes.h"
#include "demo_run.h"
#include "support/flashes.h"

#include <gtest/gtest.h>
#include <string>

namespace velm::test {
namespace {

constexpr std::int32_t harmless = 3;

FlashMeter meterOf(const SCENE& scene, std::uint32_t frames) {
    startDemo();
    FlashMeter meter;
    headless.onFrame = [&meter](const IMG& frame) { meter.frame(frame); };
    pressAt(headless.frames + frames, ' ');
    scene.run();
    headless.onFrame = nullptr;
    headless.keys.clear();
    headless.nextKey = 0;
    return meter;
}

TEST(Flashes, InterludeAAloneFlashes) {
    for (const SCENE& scene : SCENE_all()) {
        const bool isInterludeA = scene.name == "interlude-a";
        const FlashMeter meter = meterOf(scene, 1500);
        for (const std::int32_t rate : {30, 60}) {
            const WorstSecond worst = meter.worst(rate);
            EXPECT_EQ(worst.flashes > harmless, isInterludeA)
                << std::string(scene.name) << " at " << rate << ": " << worst.flashes
                << " flashes in the second from frame " << worst.firstFrame;
        }
    }
}

} // namespace
} // namespace velm::test
