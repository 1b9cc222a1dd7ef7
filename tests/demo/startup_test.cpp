// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/assets.h"
#include "demo_run.h"
#include "effects/partixel.h"
#include "image/imgfx.h"
#include "support/owned.h"

#include <cstring>
#include <gtest/gtest.h>
#include <vector>

namespace velm::test {
namespace {

class StartupTest : public testing::Test {
protected:
    const StartupRecord& record = startDemo();
};

TEST_F(StartupTest, TheInvertedLogoIsShownCentredBeforeAnythingSlow) {
    const Picture expected(IMG_newSized(256, 256));
    const Picture logo(IMG_fromPNM(assets::logo.bytes, assets::logo.size));
    ASSERT_TRUE(logo != nullptr && logo->width == 128 && logo->height == 64);
    IMGFX_invert(logo);
    IMG_blit(logo, expected, 0, 0, 64, 96, 128, 64);
    ASSERT_NE(record.firstPicture, nullptr);
    EXPECT_EQ(difference(record.firstPicture, expected), "");
    EXPECT_TRUE(record.wasEarly);
}

TEST_F(StartupTest, IsCompleteOnlyWithWhatEveryFrameNeeds) {
    const DemoState whole = demo;
    EXPECT_TRUE(VELM4030_isComplete());
    demo.sound = nullptr, demo.music = nullptr, demo.fontSmall = nullptr;
    EXPECT_TRUE(VELM4030_isComplete()) << "poorer, but frames come";
    IMG empty{};
    for (void (*lose)(IMG*) :
         {+[](IMG*) { demo.display = nullptr; }, +[](IMG*) { demo.keyboard = nullptr; },
          +[](IMG*) { demo.fps = nullptr; }, +[](IMG* img) { demo.screen = img; },
          +[](IMG*) { demo.glareImage = nullptr; }, +[](IMG* img) { demo.blurImage = img; }}) {
        demo = whole;
        lose(&empty);
        EXPECT_FALSE(VELM4030_isComplete());
    }
    demo = whole;
}

TEST_F(StartupTest, AssetsHaveTheirSizes) {
    const struct {
        const IMG* img;
        std::int32_t width, height;
    } pictures[] = {{demo.pictureA, 128, 64},           {demo.pictureB, 128, 64},
                    {demo.pictureMask, 256, 128},       {demo.pictureWide, 256, 128},
                    {demo.stripImage, 8, 128},          {demo.fontBitmap1->image, 256, 256},
                    {demo.fontBitmap2->image, 256, 16}, {demo.fontBitmap3->image, 256, 1024},
                    {demo.fontBitmap4->image, 16, 256}, {demo.fontBitmap5->image, 16, 1280},
                    {demo.fontBitmap6->image, 16, 256}, {demo.mouseTrail->image, 16, 16}};
    for (const auto& [img, width, height] : pictures) {
        ASSERT_NE(img, nullptr);
        EXPECT_EQ(img->width, width);
        EXPECT_EQ(img->height, height);
    }
    constexpr std::int32_t printableEnd = 127;
    for (const LIST* font : {demo.fontSmall, demo.fontMedium}) {
        ASSERT_EQ(font->count, printableEnd);
        for (std::int32_t code = 0; code < printableEnd; ++code) {
            const auto* glyph = static_cast<const OBJ2D*>(LIST_get(font, code));
            EXPECT_EQ(glyph->segments->count > 0, code > 32) << code;
        }
    }
    EXPECT_GE(demo.fontLarge->count, 64);
    for (std::int32_t i = 0; i < demo.fontLarge->count; ++i) {
        EXPECT_GT(static_cast<const OBJ2D*>(LIST_get(demo.fontLarge, i))->segments->count, 0) << i;
    }
}

TEST_F(StartupTest, TheRollingStripDissolvesItsDigitsIntoEachOther) {
    const IMG* digits = demo.fontBitmap4->image;
    const IMG* strip = demo.fontBitmap5->image;
    const auto cellOf = [](const IMG* img, std::int32_t cell) {
        return std::vector<std::uint32_t>(img->pixels + cell * 256, img->pixels + cell * 256 + 256);
    };
    const auto mixed = [](const std::vector<std::uint32_t>& src, std::vector<std::uint32_t> dst) {
        for (std::size_t i = 0; i < dst.size(); ++i) {
            dst[i] = src[i] == 0 ? dst[i] : ((src[i] >> 1) & 0x7F7F7F) + ((dst[i] >> 1) & 0x7F7F7F);
        }
        return dst;
    };
    for (std::int32_t digit = 0; digit < 10; ++digit) {
        // Of the eight cells of a digit the first is it blended with the one before, over and over; the fifth
        // is pure.
        const auto pure = cellOf(digits, digit + 2);
        const auto before = cellOf(digits, (digit + 9) % 10 + 2);
        EXPECT_EQ(cellOf(strip, 8 * digit + 7), pure) << digit;
        const auto first = mixed(before, pure);
        EXPECT_EQ(cellOf(strip, 8 * digit), mixed(before, mixed(before, first))) << digit;
        EXPECT_EQ(cellOf(strip, 8 * digit + 3), first) << digit;
    }
}

TEST_F(StartupTest, TheHueRampRunsAroundTheCircle) {
    const struct {
        std::int32_t index, colour;
    } entries[] = {{0, 0x00FF00},    {255, 0x00FFFF},  {256, 0x00FFFF},  {511, 0x0000FF},  {512, 0x0000FF},
                   {767, 0xFF00FF},  {768, 0xFF00FF},  {1023, 0xFF0000}, {1024, 0xFF0000}, {1279, 0xFFFF00},
                   {1280, 0xFFFF00}, {1535, 0x00FF00}, {100, 0x00FF64},  {300, 0x00D3FF}};
    ASSERT_EQ(demo.hueRamp->length, 1536);
    for (const auto& [index, colour] : entries) {
        EXPECT_EQ(SAMPLE_get(demo.hueRamp, index), colour) << index;
    }
    EXPECT_EQ(demo.rasters->count, 6144);
    EXPECT_EQ(demo.rasters->colours[403], 0x00FF64U);
    EXPECT_EQ(demo.rastersSecond->count, 256);
    ASSERT_EQ(demo.palette->length, 1536);
    EXPECT_EQ(SAMPLE_get(demo.palette, 0), 0x007F00) << "a bar begins with half of its hue over black";
    EXPECT_EQ(SAMPLE_get(demo.palette, 8), 0x7FFF83);
}

TEST_F(StartupTest, TheScrollTextListsTheKeys) {
    const char* at = assets::scroll_text.bytes;
    EXPECT_EQ(std::strlen(at), assets::scroll_text.size) << "no NUL inside";
    std::string opening = "\n\n";
    opening += std::string(32, ' ') + "\n" + std::string(32, ' ') + "\n";
    opening += std::string(12, '\t') + std::string(8, ' ') + "\n";
    opening += std::string(60, '\b') + std::string(8, ' ') + "\n";
    opening += std::string(12, '\v') + std::string(8, ' ') + "\n";
    EXPECT_EQ(std::string(at).substr(0, opening.size()), opening);
    for (const char* line :
         {"VELM 4030", "DATE: 20150614", "PRESS KEYS: ", "1: SCROLL", "4: RASTERS", "5: 30 F.P.S.",
          "6: 60 F.P.S.", "8: FRAMES PER SECOND (F.P.S.)", "0: MUTE MUSIC", "ESC: EXIT", "SPACE: NEXT PART",
          "F: FADE ON/OFF", "B: BLURR ON/OFF", "G: GLARE ON/OFF", "P: PAUSE DEMO", "W: CLEAR MODE",
          "Q: WHITE/BLACK BACKGROUND", "!\"#$%&'()*+,-./0123456789 "}) {
        const char* next = std::strstr(at, line);
        ASSERT_NE(next, nullptr) << line;
        at = next;
    }
}

TEST_F(StartupTest, TheOwnGeneratorStartsWhereItShould) {
    EXPECT_EQ(record.generator.counter, 0x6789ABCDU);
    EXPECT_EQ(PARTIXEL_random, demo.random) << "sparks draw from the demo's own generator";
    EXPECT_EQ(record.generator.state, 1U);
    EXPECT_EQ(record.targetRate, 30);
    EXPECT_EQ(demo.logoFly->x, 96);
    EXPECT_EQ(demo.logoFly->y, 224);
}

} // namespace
} // namespace velm::test
