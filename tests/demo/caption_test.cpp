// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/caption.h"
#include "demo_run.h"
#include "support/owned.h"

#include <gtest/gtest.h>
#include <utility>

namespace velm::test {
namespace {

constexpr std::uint32_t penColour = 0x123456;

/// The pixels that a caption draws on black, and the first and last of their columns.
struct Writing {
    std::int32_t pixels = 0;
    std::int32_t left = 256, right = -1;
};

Writing written(LFONT* pen, const Caption& caption) {
    IMG_fill(demo.screen, 0);
    LFONT_setColour(pen, penColour);
    drawCaption(pen, caption);
    Writing writing;
    for (std::int32_t i = 0; i < 256 * 256; ++i) {
        if (demo.screen->pixels[i] != 0) {
            EXPECT_EQ(demo.screen->pixels[i], curveDim(caption.colour, caption.weight));
            ++writing.pixels;
            writing.left = std::min(writing.left, i % 256);
            writing.right = std::max(writing.right, i % 256);
        }
    }
    return writing;
}

TEST(Caption, StandsAboutItsMiddleIsTypedInPlaceAndDims) {
    startDemo();
    for (LFONT* const pen : {demo.textSmall, demo.textMedium}) {
        for (const std::int32_t scale : {1, 3}) {
            const std::int32_t cell = pen->spacing->x * scale;
            const Caption whole{.text = "HHHH", .x = 120, .scale = scale, .colour = 0x80C0FF};
            const Writing all = written(pen, whole);
            EXPECT_NEAR(all.left + all.right, 2 * whole.x, cell / 2);
            Caption part = whole;
            part.weight = 100, part.first = 1, part.typed = 3;
            const Writing some = written(pen, part);
            EXPECT_EQ(some.pixels, all.pixels / 2);
            EXPECT_EQ(some.left, all.left + cell);
            EXPECT_EQ(some.right, all.right - cell);
        }
    }
    EXPECT_EQ(written(demo.textMedium, {.text = "H", .weight = 0}).pixels, 0);
}

TEST(Caption, PutsThePenBackAsItWas) {
    startDemo();
    LFONT* const pen = demo.textMedium;
    LFONT_place(pen, 17, 23, 2);
    pen->angle = 99;
    written(pen, {.text = "VELM", .y = 40});
    EXPECT_EQ(pen->position->x, 17);
    EXPECT_EQ(pen->position->y, 23);
    EXPECT_EQ(pen->scale->x * 10 + pen->scale->y, 22);
    EXPECT_EQ(std::exchange(pen->angle, 0), 99);
    IMG_fill(demo.screen, 0);
    LFONT_drawLine(pen, "VELM");
    EXPECT_GT(lit(demo.screen), 0);
    for (std::int32_t i = 0; i < 256 * 256; ++i) {
        ASSERT_TRUE(demo.screen->pixels[i] == 0 || demo.screen->pixels[i] == penColour) << i;
    }
    IMG_fill(demo.screen, 0);
}

} // namespace
} // namespace velm::test
