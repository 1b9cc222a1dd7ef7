// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/readable.h"

#include <gtest/gtest.h>
#include <string>

namespace {

using namespace velm;

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
