// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "objects.h"
#include "support/allocation.h"

#include <random>

namespace velm::test {
namespace {

std::string parsed(const std::string& text) {
    return Objects(text.c_str()).shown();
}

/// What a number reads as.
std::string number(const std::string& written) {
    const std::string all = parsed("{ s " + written + " 0 0 0 }\n");
    return all.substr(1, all.find(',') - 1);
}

/// The colour that the words behind "color" set.
std::string colour(const std::string& written) {
    const std::string all = parsed("{ color " + written + " s 0 0 0 0 }\n");
    return all.substr(all.rfind(',') + 1, all.size() - all.rfind(',') - 3);
}

/// A mix of what means something and of any byte, NUL excepted.
std::string randomText(std::mt19937& random) {
    constexpr std::string_view pieces[] = {"{",     "}\n", "s ",  "1 ",   "-23, ",      "name x y\n", "$",
                                           "FF00 ", "c ",  "#\n", " ",    "\n",         "type\n",     "0x9",
                                           "h12 ",  "\"",  "n",   "{ s ", "4 5 6 7 }\n"};
    std::string text;
    for (auto left = random() % 60; left > 0; --left) {
        const char any = static_cast<char>(1 + random() % 255);
        text += random() % 8 == 0 ? std::string_view(&any, 1) : pieces[random() % std::size(pieces)];
    }
    return text;
}

TEST(Obj2dParse, ReadsAFontText) {
    EXPECT_EQ(
        parsed(
            "# a comment { }\nname font 2D 8x8\nversion 20150101\nauthor s o m e\ntype 2D\n# codes\n{ } {}\n"
            "{\nname space\n}\n{\nname {\ns 3, 0, 3, 4\ns 5,0;5,4,\n}\n{ name }\nsegment 8,0 8,9, }\n"),
        "{}{}{space:}{{:3,0,0 3,4,0 5,0,0 5,4,0 }{}:8,0,0 8,9,0 }");
}

TEST(Obj2dParse, ColoursGoOnUntilTheNext) {
    EXPECT_EQ(parsed("{\ncolor $FF0000\ns 0 0 - 5 5\n}\n{ s 1 1 color $00ff7f 2 2 }\n"),
              "{0,0,ff0000 -5,5,ff0000 }{1,1,ff0000 2,2,ff7f }");
    const char* const colours[][2] = {{"5 $456 $789", "456"}, {"xAbC", "abc"},    {"HfgF", "f"},
                                      {"$zoo", "0"},          {"$ \n, 12", "12"}, {"$123456789", "23456789"},
                                      {"$-$9", "fffffff7"}}; // punctuation ends the "$" and is read as itself
    for (const auto& [written, expected] : colours) {
        EXPECT_EQ(colour(written), expected);
    }
}

TEST(Obj2dParse, WordsAbbreviateKeywords) {
    for (const char* word : {"n", "nAm", "NAME"}) {
        EXPECT_EQ(parsed("{ " + std::string(word) + " hello, world \n}\n"), "{hello, world :}");
    }
    EXPECT_EQ(parsed("{ names } {\n}\n"), "{}{}");
    EXPECT_EQ(parsed("{ name = x\n}\n"), "{= x:}");
    EXPECT_EQ(parsed("{ name\t,a\n} { name b\n name \xC3\n}\n"), "{,a:}{\xC3:}");
    EXPECT_EQ(parsed("{ Stop 1 2 3 4 CAR $7 s 5 6 7 8 }\n"), "{1,2,0 3,4,0 5,6,7 7,8,7 }");
}

TEST(Obj2dParse, OBJ2D_zeroXIsDecimalAndWordsEndWhereTheyShould) {
    EXPECT_EQ(number("0x12"), "0");
    EXPECT_EQ(colour("0xFF $3"), "3");
    EXPECT_EQ(number("8x8"), "8");
    EXPECT_EQ(number("7-1}"), "7");
    EXPECT_EQ(number("4294967299"), "3");
    EXPECT_EQ(number("- 2147483648"), "-2147483648");
    EXPECT_EQ(parsed("{s\x7F-1\x7F+2\x80\xFF;3\1,4 }\n"), "{-1,2,0 3,4,0 }");
    EXPECT_EQ(parsed("{ s 0 " + std::string(254, '0') + "12 3 }\n"), "{0,1,0 2,3,0 }"); // cut after 255
    EXPECT_EQ(parsed(std::string(255, 'z') + "{}\n"), "{}");
    EXPECT_EQ(parsed(std::string(254, 'z') + "{}\n"), "-"); // the "{" still belongs to the word
}

TEST(Obj2dParse, OBJ2D_stringsInBracesAreLost) {
    const Objects objects("{ version 1 s 1 2 3 4 }\n author\t,; me }\n type 2D }\n}\n");
    EXPECT_EQ(objects.shown(), "{}");
    EXPECT_TRUE(objects[0]->version == nullptr && objects[0]->author == nullptr &&
                objects[0]->type == nullptr);
}

TEST(Obj2dParse, OdditiesAreKept) {
    const char* const texts[][3] = {
        {"OBJ2D_lastTokenNeedsAByte", "{ }\n", "{}"},
        {"OBJ2D_lastTokenNeedsAByte", "{ }", ""},
        {"OBJ2D_signWaitsForANumber", "- { name x\n s #\n 1 2 3 4 }\n", "{x:-1,2,0 3,4,0 }"},
        {"OBJ2D_signWaitsForANumber", "{ - 7 s 1 2 3 4 }\n", "{1,2,0 3,4,0 }"},
        {"OBJ2D_signWaitsForANumber", "{ s - $7 1 2 3 4 }\n", "{1,2,0 3,4,0 }"},
        {"OBJ2D_signWaitsForANumber", "{ s --1 2 3 4 }\n", "{-1,2,0 3,4,0 }"},
        {"OBJ2D_nameCrossesLines", "{ name\n\n }\n}\n", "{}:}"},
        {"OBJ2D_nameCrossesLines", "type\n {\n}\n{\n}\n", "-{}"},
        {"OBJ2D_strayBraceCounts", "} { { s 1 2 3 4 } }\n", "-{1,2,0 3,4,0 }-"},
        {"OBJ2D_segmentOutlivesItsObject", "{ s 1 2 3 } { s 4 }\n", "{}{1,2,0 3,4,0 }"},
        {"OBJ2D_segmentOutlivesItsObject", "s 1 2 3 4 { 5 s 6 7 8 9 }\n", "{6,7,0 8,9,0 }"}};
    for (const auto& [name, text, expected] : texts) {
        EXPECT_EQ(parsed(text), expected) << name;
    }
    EXPECT_EQ(colour("- $1"), "ffffffff");
}

TEST(Obj2dParse, SurvivesAnyTextAndAnyFailingAllocation) {
    VEC2D_verbose = 0;
    std::mt19937 random(4030);
    std::int32_t points = 0;
    for (int round = 0; round < 3000; ++round) {
        // The text fills its buffer to the last byte, so that the address sanitizer sees a read past the NUL.
        const std::string text = randomText(random);
        const auto exact = std::make_unique<char[]>(text.size() + 1);
        std::copy(text.begin(), text.end(), exact.get());
        const Objects objects(exact.get());
        for (std::int32_t i = 0; i < objects.list->count; ++i) {
            if (const OBJ2D* obj = objects[i]; obj != nullptr) {
                ASSERT_EQ(obj->points->count, 2 * obj->segments->count);
                points += obj->points->count;
            }
        }
        const FailingAllocation failing(1 + static_cast<std::int64_t>(random() % 40));
        const Objects starved(exact.get());
    }
    EXPECT_GT(points, 1000);
    VEC2D_verbose = 1;
    EXPECT_EQ(OBJ2D_parse(nullptr), nullptr);
}

} // namespace
} // namespace velm::test
