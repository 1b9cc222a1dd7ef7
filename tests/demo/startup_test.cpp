// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/assets.h"
#include "demo/instruments.h"
#include "demo_run.h"
#include "effects/partixel.h"
#include "foundation/chance.h"
#include "foundation/list.h"
#include "foundation/owned.h"
#include "image/imgfx.h"
#include "support/owned.h"
#include "support/test.h"

namespace velm::test {
namespace {

class StartupTest : public testing::Test {
protected:
    const StartupRecord& record = startDemo();
};

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

TEST_F(StartupTest, TheHuesFillBarsAndPalette) {
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

TEST_F(StartupTest, TheLogoComesBeforeAnythingSlowAndTheOwnGeneratorStartsWhereItShould) {
    EXPECT_TRUE(record.wasEarly);
    EXPECT_EQ(record.generator.counter, 0x6789ABCDU);
    EXPECT_EQ(record.generator.state, 1U);
    EXPECT_EQ(PARTIXEL_random, demo.random) << "sparks draw from the demo's own generator";
    EXPECT_EQ(record.targetRate, 30);
}

/// FNV-1a over the words of all instruments.
std::uint32_t checksum(const MUSIC* music) {
    std::uint32_t sum = 2166136261U;
    for (std::int32_t i = 0; i < music->instruments->count; ++i) {
        const auto* instrument = static_cast<const SAMPLE*>(LIST_get(music->instruments, i));
        for (std::int32_t k = 0; k < instrument->length; ++k) {
            sum = (sum ^ static_cast<std::uint32_t>(instrument->data[k])) * 16777619U;
        }
    }
    return sum;
}

TEST(Instruments, TheBankIsTheSameToTheBit) {
    chanceSeed(273880913);
    const Owned<MUSIC_delete> music(VELM4030_buildMusic());
    EXPECT_EQ(chance(), 86123232) << "the next draw of whoever comes after the bank";
    EXPECT_EQ(music->period, 360);
    ASSERT_EQ(music->instruments->count, 120);
    EXPECT_EQ(checksum(music), 0x04C77F08U);
}

} // namespace
} // namespace velm::test
