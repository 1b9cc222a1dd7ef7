// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "support/allocation.h"
#include "support/capture_stdout.h"
#include "vector/seg2d.h"

namespace velm::test {

TEST(Seg2d, TransformsBothPointsAndDrawsInTheFirstOnesColour) {
    SEG2D* segment = SEG2D_new();
    ASSERT_NE(segment, nullptr);
    segment->a->colour = 0xAA0000;
    const VEC2D offset{2, 0, 0};
    const VEC2D factor{3, 5, 0};
    SEG2D_translate(segment, &offset); // (2, 0) to (3, 1)
    SEG2D_scale(segment, &factor);     // (6, 0) to (9, 5)
    SEG2D_rotate(segment, 256);        // (0, 5) to (-5, 8)
    const VEC2D back{5, 0, 0};
    SEG2D_translate(segment, &back);
    IMG* img = IMG_new();
    SEG2D_draw(segment, img);
    EXPECT_EQ(IMG_getPixel(img, 5, 5), 0xAA0000U);
    EXPECT_EQ(IMG_getPixel(img, 0, 8), 0xAA0000U);
    IMG_delete(&img);
    SEG2D_delete(&segment);
    EXPECT_EQ(segment, nullptr);
}

TEST(Seg2d, IncompleteSegmentsAreReported) {
    SEG2D_verbose = 1;
    VEC2D_verbose = 0;
    VEC2D point{1, 2, 3};
    SEG2D half{&point, nullptr};
    EXPECT_EQ(printedBy([&] {
                  SEG2D_translate(&half, &point);
                  SEG2D_draw(&half, nullptr);
                  SEG2D_copy(nullptr, &half);
              }),
              "SEG2D error\nSEG2D error\nSEG2D error\n");
    EXPECT_EQ(point.x, 1);
    for (std::int64_t nth = 1; nth <= 3; ++nth) {
        const FailingAllocation failing(nth);
        EXPECT_EQ(printedBy([] { EXPECT_EQ(SEG2D_new(), nullptr); }), "SEG2D error\n");
    }
    SEG2D_verbose = 0;
    VEC2D_verbose = 1;
}

} // namespace velm::test
