// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "foundation/memory.h"
#include "headless/headless.h"
#include "kit/kit.h"
#include "support/owned.h"
#include "vector/vec2d.h"

namespace velm::test {
namespace {

using Kit = Owned<KIT_delete>;

class KitTest : public ::testing::Test {
protected:
    KitTest() {
        headless = {};
        VEC2D_verbose = 0; // it reports by default
    }
    ~KitTest() override { headless = {}; }
};

TEST_F(KitTest, AFrameIsShownAfterItIsDrawnAndTheNextOneBeginsWithTheBackground) {
    std::vector<std::uint32_t> shown;
    headless.onFrame = [&](const IMG& frame) { shown.push_back(frame.pixels[0]); };
    headless.keys = {{1, 'x', 53}, {2, 0, XKBD_up}, {4, 27, 9}};
    headless.pointers = {{2, 30, 40, 2}};
    const Kit kit(KIT_new());
    kit->background = 0x203040;
    std::vector<std::int32_t> seen;
    while (KIT_nextFrame(kit)) {
        kit->keeps = kit->frame == 2;
        seen.insert(seen.end(), {kit->frame, kit->key, kit->keycode, kit->pointer->x, kit->pointer->buttons});
        if (kit->frame < 3) {
            IMG_addColour(kit->screen, 1);
        }
    }
    EXPECT_EQ(shown, (std::vector<std::uint32_t>{1, 0x203041, 0x203041, 0x203041}));
    EXPECT_EQ(seen, (std::vector<std::int32_t>{0, 0, 0,       0,  0, 1, 'x', 53, 0,  0,
                                               2, 0, XKBD_up, 30, 2, 3, 0,   0,  30, 2}));
}

TEST_F(KitTest, PicturesAndSoundKeepTheSamePaceAtAnyRate) {
    for (const std::int32_t rate : {25, 30, 60}) {
        headless = {};
        std::size_t samples = 0;
        headless.onSound = [&](std::span<const std::int16_t> block) { samples += block.size(); };
        const Kit kit(KIT_new());
        const Owned<SAMPLE_delete> tone(SAMPLE_new());
        SAMPLE_setLength(tone, 3 * SAMPLE_rate);
        LIST_append(kit->sound->queue, tone);
        KIT_setRate(kit, rate);
        for (std::int32_t frame = 0; frame <= 2 * rate; ++frame) {
            EXPECT_TRUE(KIT_nextFrame(kit));
        }
        EXPECT_NEAR(static_cast<double>(headless.micros), 2e6, 100) << rate;
        EXPECT_NEAR(static_cast<double>(samples), 2.0 * SAMPLE_rate, 2.0 * rate) << rate;
    }
}

TEST_F(KitTest, BadCallsAndMissingMemoryAreReported) {
    expectReports(KIT_verbose, 4, "KIT error", [] {
        const Kit kit(KIT_new());
        KIT_setRate(kit, 0), KIT_setRate(kit, 101), KIT_setRate(nullptr, 30);
        EXPECT_EQ(kit->rate, 30);
        EXPECT_FALSE(KIT_nextFrame(nullptr));
    });
    std::int64_t refusals = 0;
    for (std::int64_t nth = 1; nth <= 3000; nth += nth < 60 ? 1 : 97) {
        const FailingAllocation failure(nth);
        const std::int64_t before = refusedAllocations;
        const Kit kit(KIT_new());
        EXPECT_EQ(kit == nullptr, refusedAllocations != before) << nth;
        refusals += refusedAllocations - before;
    }
    EXPECT_GT(refusals, 60);
}

} // namespace
} // namespace velm::test
