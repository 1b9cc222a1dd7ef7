// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/assets.h"
#include "demo/instruments.h"
#include "demo_run.h"
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
    void SetUp() override { startDemo(); }
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

TEST_F(StartupTest, WhatNoSceneShowsIsMadeAllTheSame) {
    EXPECT_EQ(demo.rastersSecond->count, 256);
    EXPECT_EQ(demo.fontBitmap2->image->height, 16);
    EXPECT_EQ(demo.fontBitmap6->image->height, 256);
    EXPECT_EQ(demo.stripImage->width, 8);
    EXPECT_EQ(SAMPLE_get(demo.palette, 0), 0x007F00) << "a bar begins with half of its hue over black";
    EXPECT_EQ(SAMPLE_get(demo.palette, 8), 0x7FFF83);
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

TEST_F(StartupTest, TheLogoComesBeforeAnythingSlow) {
    EXPECT_TRUE(startDemo().wasEarly);
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
