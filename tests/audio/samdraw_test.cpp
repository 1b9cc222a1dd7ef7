// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "audio/sam.h"
#include "audio/samdraw.h"
#include "audio/samples.h"

namespace velm::test {
namespace {

class SamdrawTest : public testing::Test {
protected:
    /// Draws the view of the values into a new picture of that size.
    IMG* show(const List& from, std::int32_t first, std::int32_t last, std::int32_t width,
              std::int32_t height, void (*operation)(SAMDRAW*) = SAMDRAW_draw) {
        SAM_setSample(sam, sampleOf(from));
        draw->source = sam;
        draw->target = IMG_newSized(width, height);
        draw->first = first;
        draw->last = last;
        operation(draw);
        return draw->target;
    }

    /// A picture of that size with a bar of each value, one a column.
    static IMG* plain(const List& bars, std::int32_t width, std::int32_t height) {
        IMG* img = IMG_newSized(width, height);
        IMG_fill(img, 0x808080);
        for (std::size_t x = 0; x < bars.size(); ++x) {
            const std::int32_t mid = height / 2;
            const std::int32_t y = mid + ((bars[x] * mid) >> 15);
            IMG_drawLine(img, static_cast<std::int32_t>(x), mid, static_cast<std::int32_t>(x), y, 0xFFFFFF);
        }
        return img;
    }

    const Owned<SAM_delete> sam{SAM_new()};
    const Owned<SAMDRAW_delete> draw{SAMDRAW_new()};
};

TEST_F(SamdrawTest, SAMDRAW_stepIgnoresView) {
    Images engine(5);
    for (const std::int32_t length : {100, 1000, 256, 384, 1}) {
        List from = randomValues(engine, length);
        for (std::int32_t& value : from) {
            value %= 40000; // what does not wrap
        }
        List bars;
        for (std::int32_t x = 0; x < 256; ++x) {
            const std::int32_t index = length <= 256 ? x * (length * 65536 / 256) >> 16 : x * (length / 256);
            bars.push_back(from[static_cast<std::size_t>(index)]);
        }
        const Picture actual(show(from, -3, length + 5, 256, 65));
        EXPECT_EQ(difference(actual, Picture(plain(bars, 256, 65))), "") << length;
        EXPECT_EQ(draw->first * 10000 + draw->last, length - 1);
    }
    const Picture view(show(List(1000, 8192), 505, 500, 256, 64));
    EXPECT_EQ(difference(view, Picture(plain({8192, 8192}, 256, 64))), "") << "six values, three a column";
    EXPECT_EQ(draw->first * 1000 + draw->last, 500505);
}

TEST_F(SamdrawTest, SmoothIsTheMeanOfThree) {
    const Picture actual(show({-32768, 3, -9, 30000, 6}, 0, 4, 5, 65536, SAMDRAW_drawSmooth));
    EXPECT_EQ(difference(actual, Picture(plain({-10921, -10924, 9998, 9999, 10002}, 5, 65536))), "");
}

TEST_F(SamdrawTest, SAMDRAW_extremesIgnoreView) {
    draw->markColour = 0x112233;
    const Picture actual(show({0, -32768, 5, 16384, 16384, -32768}, 5, 3, 60, 64, SAMDRAW_drawExtremes));
    EXPECT_EQ(draw->first * 10 + draw->last, 35);
    const Picture expected(IMG_newSized(60, 64));
    IMG_drawVLine(expected, 0x112233, 10, 0, 32);
    IMG_drawVLine(expected, 0x112233, 30, 32, 48);
    EXPECT_EQ(difference(actual, expected), "") << "no background either";
}

TEST_F(SamdrawTest, SAMDRAW_swapLeavesSample) {
    expectReports(SAMPLE_verbose, 3, "SAMPLE error", [this] {
        const Picture actual(show(List(4, 20000), 6, 9, 4, 32));
        EXPECT_EQ(draw->first * 10 + draw->last, 36);
        EXPECT_EQ(difference(actual, Picture(plain({20000, 0, 0, 0}, 4, 32))), "");
    });
}

TEST_F(SamdrawTest, SAMDRAW_newEndsTheProcessAndOtherFailuresAreReported) {
    const Picture picture(show({}, 0, 0, 8, 9));
    EXPECT_EQ(difference(picture, Picture(plain(List(8), 8, 9))), "") << "an empty sample is silence";
    const Picture none(IMG_newSized(0, 0));
    expectReports(SAMDRAW_verbose, 6, "SAMDRAW error.", [&] {
        SAMDRAW_drawExtremes(draw), SAMDRAW_draw(nullptr), SAMDRAW_delete(nullptr);
        SAMPLE_delete(&sam->sample);
        SAMDRAW_draw(draw);
        draw->target = nullptr, SAMDRAW_drawSmooth(draw);
        draw->target = none, draw->source = nullptr, SAMDRAW_draw(draw);
        SAM_setSample(sam, sampleOf({1, 2}));
        draw->source = sam, SAMDRAW_draw(draw), SAMDRAW_drawExtremes(draw); // no columns
    });
    EXPECT_EQ(difference(picture, Picture(plain({}, 8, 9))), "") << "without a sample the background stays";
    const FailingAllocation failure(1);
    EXPECT_EXIT(SAMDRAW_new(), testing::ExitedWithCode(255), "");
}

} // namespace
} // namespace velm::test
