// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "image/imgfx.h"
#include "image/rgb888.h"
#include "support/owned.h"

namespace velm::test {
namespace {

class ImgTest : public testing::Test {
protected:
    void TearDown() override {
        IMG_verbose = 0;
        IMGFX_verbose = 0;
        IMG_delete(&img);
    }

    /// The coordinates of the pixels that are not 0, row by row.
    [[nodiscard]] std::string lit() const {
        std::string text;
        for (std::int32_t i = 0; i < img->width * img->height; ++i) {
            if (img->pixels[i] != 0) {
                text += std::to_string(i % img->width) + "," + std::to_string(i / img->width) + " ";
            }
        }
        return text;
    }

    IMG* img = IMG_new();
};

TEST_F(ImgTest, IMG_lineRoundsEarly) {
    IMG_drawLine(img, 0, 0, 4, 2, 1);
    EXPECT_EQ(lit(), "0,0 1,1 2,1 3,2 4,2 ") << "a half step already moves sideways";
    IMG_fill(img, 0);
    IMG_drawLine(img, 2, 4, 0, 0, 1);
    EXPECT_EQ(lit(), "0,0 0,1 1,2 1,3 2,4 ");
    IMG_fill(img, 0);
    IMG_drawLine(img, 0, 0, 3, 0, 1);
    IMG_drawLine(img, 7, 7, 7, 7, 1);
    EXPECT_EQ(lit(), "0,0 1,0 2,0 3,0 7,7 ");
}

TEST_F(ImgTest, LinesThatLeaveTheImageEqualLinesInside) {
    const Picture large(IMG_newSized(64, 64));
    const Picture window(IMG_new());
    for (std::uint32_t seed = 1; seed <= 500; ++seed) {
        Images images(seed);
        const auto place = [&images] { return images.number(0, 63); };
        const std::int32_t ends[] = {place(), place(), place(), place()};
        IMG_fill(large, 0);
        IMG_fill(img, 0);
        IMG_fill(window, 0);
        IMG_drawLine(large, ends[0], ends[1], ends[2], ends[3], 0xFFFFFF);
        IMG_drawLine(img, ends[0] - 20, ends[1] - 20, ends[2] - 20, ends[3] - 20, 0xFFFFFF);
        IMG_blit(large, window, 20, 20, 0, 0, 16, 16);
        ASSERT_EQ(difference(img, window), "") << "seed " << seed;
    }
}

TEST_F(ImgTest, PixelsOutsideAreIgnored) {
    IMG_putPixel(img, -1, 0, 1);
    IMG_putPixel(img, 16, 0, 1);
    IMG_putPixel(img, 0, 16, 1);
    IMGFX_addPixel(img, -1, 3, 1);
    EXPECT_EQ(lit(), "");
    EXPECT_EQ(IMG_getPixel(img, 16, 0), 0U);
    IMG_putPixel(img, 3, 4, 0xF01010);
    IMGFX_addPixel(img, 3, 4, 0x202020);
    EXPECT_EQ(IMG_getPixel(img, 3, 4), 0xFF3030U);
}

TEST_F(ImgTest, DrawCopiesToItsOwnPlace) {
    const Picture sprite(IMG_newSized(2, 1));
    IMG_fill(sprite, 5);
    sprite->x = 15;
    sprite->y = 2;
    IMG_draw(sprite, img);
    EXPECT_EQ(lit(), "15,2 ");
    const Picture clone(IMG_clone(sprite));
    EXPECT_EQ(difference(clone, sprite), "");
    EXPECT_EQ(clone->x + clone->y, 0) << "a clone does not take the place along";
}

TEST_F(ImgTest, FailuresAreReportedAndChangeNothing) {
    IMG_verbose = 1;
    const Picture other(IMG_newSized(3, 3));
    IMG_fill(other, 9);
    const std::string output = printedBy([&] {
        IMG_copy(other, img);
        IMG_setSize(img, -1, 4);
        IMG_setSize(img, 0x7FFFFFFF, 0x7FFFFFFF);
        for (const auto& [from, onto] : {std::pair(3, 0), {-1, 0}, {0, 16}, {0, -1}}) {
            IMG_copyRowWrapped(other, img, from, onto, 0);
            IMG_copyColumnWrapped(other, img, from, onto, 0);
        }
        const FailingAllocation failure(1);
        IMG_setSize(img, 4, 4);
    });
    EXPECT_EQ(std::count(output.begin(), output.end(), '\n'), 12);
    EXPECT_EQ(img->width, 16);
    EXPECT_EQ(lit(), "");
    for (const int nth : {1, 2}) {
        const FailingAllocation failure(nth);
        EXPECT_EQ(printedBy([] { EXPECT_EQ(IMG_new(), nullptr); }), "IMG error\n");
    }
    EXPECT_EQ(printedBy([this] { IMG_setSize(img, 5, 0); }), "");
    EXPECT_EQ(img->width, 5);
    EXPECT_EQ(img->height, 0);
}

TEST_F(ImgTest, IMGFX_addPixelReportsAsImgAndIMG_fillRectReportsAsImgfx) {
    IMG_putPixel(img, 8, 8, 0xFFFFFF);
    IMGFX_verbose = 1;
    expectReports(IMG_verbose, 10, "IMG error", [this] {
        IMG_fill(nullptr, 1), IMG_putPixel(nullptr, 0, 0, 1), IMG_andMask(img, nullptr);
        IMG_blit(img, nullptr, 0, 0, 0, 0, 1, 1), IMG_blit(nullptr, img, 0, 0, 0, 0, 1, 1);
        EXPECT_EQ(IMG_getPixel(nullptr, 0, 0), 0U);
        EXPECT_EQ(IMG_equal(img, nullptr) + IMG_findAfter(nullptr, "a") + IMG_findAfter("a", nullptr), 0);
        IMGFX_addPixel(nullptr, 0, 0, 1);
    });
    IMG_verbose = 1;
    expectReports(IMGFX_verbose, 9, "IMGFX error", [this] {
        IMGFX_invert(nullptr), IMGFX_addLine(nullptr, 0, 0, 1, 1, 1), IMG_fillRect(nullptr, 0, 0, 1, 1, 1);
        IMGFX_addBlit(img, nullptr, 0, 0, 0, 0, 1, 1), IMGFX_averageBlit(nullptr, img, 0, 0, 0, 0, 1, 1);
        IMGFX_blur(img, nullptr), IMGFX_blur(img, img);
        IMGFX_glare(img, img, 1), IMGFX_blurRadius(img, img, 1);
    });
    EXPECT_EQ(lit(), "8,8 ");
}

TEST_F(ImgTest, IMG_equalReportsSuccess) {
    IMG_verbose = 1;
    const Picture twin(IMG_clone(img));
    EXPECT_EQ(printedBy([&] { EXPECT_EQ(IMG_equal(img, twin), 1); }), "IMG error\n");
    twin->pixels[255] = 1;
    EXPECT_EQ(printedBy([&] { EXPECT_EQ(IMG_equal(img, twin), 0); }), "");
    IMG_setSize(twin, 8, 32);
    EXPECT_EQ(printedBy([&] { EXPECT_EQ(IMG_equal(img, twin), 0); }), "");
}

TEST(Rgb888, MixesAndAdjusts) {
    EXPECT_EQ(RGB888_average(0xFFFFFF, 0x000001), 0x7F7F80U);
    EXPECT_EQ(RGB888_mix(0x000000, 0xFFFFFF, 128), 0x7F7F7FU);
    EXPECT_EQ(RGB888_mix(0x123456, 0xFEDCBA, 0), 0x123456U);
    EXPECT_EQ(RGB888_mix(0x123456, 0xFEDCBA, 256), 0xFEDCBAU);
    EXPECT_EQ(RGB888_adjust(0x808080, -16), 0x707070U);
    EXPECT_EQ(RGB888_adjust(0x808080, 16), 0x909090U);
    EXPECT_EQ(RGB888_adjust(0x808080, -256), 0x808080U);
    EXPECT_EQ(RGB888_adjust(0xFFD010, -200), 0x370800U);
    EXPECT_EQ(RGB888_swapBR(0x123456), 0x563412U);
    std::uint8_t bytes[3];
    RGB888_toBytes(0x123456, bytes);
    EXPECT_EQ(RGB888_fromBytes(bytes[0], bytes[1], bytes[2]), 0x123456U);
    RGB888_verbose = 1;
    EXPECT_EQ(printedBy([] { RGB888_toBytes(0x123456, nullptr); }), "");
    EXPECT_EQ(printedBy(RGB888_error), "RGB888 error\n");
    RGB888_verbose = 0;
}

} // namespace
} // namespace velm::test
