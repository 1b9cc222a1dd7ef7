// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/caption.h"
#include "demo/scenes/readable.h"
#include "demo_run.h"
#include "support/owned.h"

namespace velm::test {
namespace {

constexpr std::uint32_t penColour = 0x123456;

TEST(Caption, PutsThePenBackAsItWas) {
    startDemo();
    LFONT* const pen = demo.textMedium;
    LFONT_place(pen, 17, 23, 2);
    pen->angle = 99;
    LFONT_setColour(pen, penColour);
    drawCaption(pen, {.text = "VELM", .y = 40});
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

/// The letters of a text, each mark after its letter, '#' for a box.
std::string readable(std::string_view text) {
    std::string letters;
    while (!text.empty()) {
        const ReadableLetter letter = takeLetter(text);
        letters += letter.base == 0 ? '#' : letter.base;
        if (letter.mark != ' ') {
            letters += letter.mark;
        }
    }
    return letters;
}

TEST(Readable, LettersComeOutOfUtf8) {
    EXPECT_EQ(readable("a ~Z"), "a ~Z");
    EXPECT_EQ(readable("ÀÿÐ÷ß"), "A`y\"D-:-s");
    EXPECT_EQ(readable("ĀďĿłŃŒŽſ"), "A~d^L.l/N'OZ^s") << "the table has no gap";
    EXPECT_EQ(readable("e\u0301o\u0308\u0304x"), "eox") << "combining accents belong to the letter before";
    EXPECT_EQ(readable("日本Ж𝄞\x7F\n\u00A9"), "#######");
    EXPECT_EQ(countLetters("grün日"), 5);
}

TEST(Readable, BytesThatAreNoUtf8AreLatin1) {
    EXPECT_EQ(readable("gr\xFCn"), "gru\"n");
    EXPECT_EQ(readable("\xC3"), "A~") << "cut off";
    EXPECT_EQ(readable("\xC3\x28\x80\xFF"), "A~(#y\"");
    EXPECT_EQ(readable("\xE9\x80"), "e'#") << "a lead of three bytes, one of which is missing";
    EXPECT_EQ(readable("\xF9\x80\x80\x80\x80"), "u`####") << "no sequence has five bytes";
}

} // namespace
} // namespace velm::test
