// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "support/files.h"
#include "support/owned.h"

namespace velm::test {
namespace {

using namespace std::string_literals;

/// Reads exactly these bytes: they stand at the end of a heap block of their own, so that a sanitizer sees a
/// read past them.
IMG* decode(const std::string& bytes) {
    return IMG_fromPNM(std::vector(bytes.begin(), bytes.end()).data(), bytes.size());
}

IMG* decodeUnsized(const std::string& bytes) {
    return IMG_fromPNM(std::vector(bytes.begin(), bytes.end()).data());
}

/// The size and the pixels as text, or "none".
std::string described(IMG* img) {
    if (img == nullptr) {
        return "none";
    }
    std::string text = std::to_string(img->width) + "x" + std::to_string(img->height) + ":";
    for (std::int32_t i = 0; i < img->width * img->height; ++i) {
        char pixel[12];
        std::snprintf(pixel, sizeof pixel, " %06X", img->pixels[i]);
        text += pixel;
    }
    IMG_delete(&img);
    return text;
}

/// What a reader prints that gives no image.
template <typename Read>
std::string reportOf(Read read) {
    IMG_verbose = 1;
    const std::string output = printedBy([&] { EXPECT_EQ(described(read()), "none"); });
    IMG_verbose = 0;
    return output;
}

std::string decoded(const std::string& bytes) {
    return described(decode(bytes));
}

TEST(Pnm, ReadsAllSixTypesAndRefusesThemCutShort) {
    const std::string pictures[][2] = {
        {"P1 8 1 00000001", "8x1: 000000 000000 000000 000000 000000 000000 000000 FFFFFF"},
        {"P2\n2 1\n255\n7 8", "2x1: 070707 080808"},
        {"P3 1 2 255 1 2 3 4,5,6", "1x2: 010203 040506"},
        {"P4 8 1\n\x01", "8x1: 000000 000000 000000 000000 000000 000000 000000 FFFFFF"},
        {"P5 2 1 255\n\0\x80"s, "2x1: 000000 808080"},
        {"P6\n# a comment\n1 1\n# and another\n255\nabc", "1x1: 616263"}};
    for (const auto& [bytes, expected] : pictures) {
        const bool isText = bytes[1] <= '3';
        EXPECT_EQ(decoded(bytes), expected);
        EXPECT_EQ(described(decodeUnsized(isText ? bytes + '\0' : bytes)), expected);
        for (std::size_t length = 0; length < bytes.size(); ++length) {
            const std::string part = bytes.substr(0, length);
            EXPECT_EQ(reportOf([&] { return decode(part); }), "IMG error\n") << part;
            if (isText) {
                EXPECT_EQ(reportOf([&] { return decodeUnsized(part + '\0'); }), "IMG error\n") << part;
            }
        }
    }
}

TEST(Pnm, RowsOfEveryWidthAreDecoded) {
    for (std::uint32_t seed = 0; seed < 80; ++seed) {
        Images images(seed); // the seed chooses the kind of processor
        const auto width = static_cast<std::int32_t>(seed % 40 + 1);
        const Picture expected(images.image(width, 1));
        std::string file = "P6 " + std::to_string(width) + " 1 255\n";
        std::for_each_n(expected->pixels, width, [&file](std::uint32_t pixel) {
            file += {static_cast<char>(pixel >> 16), static_cast<char>(pixel >> 8), static_cast<char>(pixel)};
        });
        EXPECT_EQ(difference(Picture(decode(file)), expected), "") << width;
    }
}

TEST(Pnm, HeaderTokens) {
    EXPECT_EQ(decoded("P6 1 1 255#abc"), "1x1: 616263") << "the separator is not looked at";
    EXPECT_EQ(decoded("P5\x80\xFF\x7F 1 1 255\na"), "1x1: 616161") << "only printable bytes make tokens";
    EXPECT_EQ(decoded("P5 1 1 Pa"), "1x1: 616161") << "a second P is a number without digits";
    EXPECT_EQ(decoded("9 1 P4\n\x80\x80").substr(0, 4), "9x1:") << "a width before the type is not rounded";
}

TEST(Pnm, IMG_maximumIgnored) {
    EXPECT_EQ(decoded("P2 1 1 15 15 "), "1x1: 0F0F0F");
    EXPECT_EQ(decoded("P3 1 1 65535 1 2 3"), "1x1: 010203");
    EXPECT_EQ(decoded("P5 1 1 1\n\x01"), "1x1: 010101");
}

TEST(Pnm, IMG_bitmapSetIsWhite) {
    EXPECT_EQ(decoded("P1 8 1 01000000"), "8x1: 000000 FFFFFF 000000 000000 000000 000000 000000 000000");
    EXPECT_EQ(decoded("P4 8 1\n\x41"), "8x1: 000000 FFFFFF 000000 000000 000000 000000 000000 FFFFFF");
}

TEST(Pnm, IMG_bitmapWidthRoundsUp) {
    const Picture img(decode("P4 10 2\n\xFF\x3F\0\xC0"s));
    ASSERT_TRUE(img != nullptr && img->width == 16 && img->height == 2);
    EXPECT_EQ(IMG_getPixel(img, 15, 0), 0xFFFFFFU) << "fill bits are pixels";
    EXPECT_EQ(IMG_getPixel(img, 8, 0), 0U);
    EXPECT_EQ(decoded("P1 1 1 10000000").substr(0, 11), "8x1: FFFFFF");
}

TEST(Pnm, IMG_samplesSpill) {
    EXPECT_EQ(decoded("P2 1 1 9 257 "), "1x1: 1010101");
    EXPECT_EQ(decoded("P2 2 1 255 65536 4294967297"), "2x1: 1010000 010101") << "modulo 2^32";
    EXPECT_EQ(decoded("P3 1 1 255 0 256 1 "), "1x1: 010001");
}

TEST(Pnm, RefusesWhatIsMalformedOrHostile) {
    for (const char* bytes :
         {"P7 1 1 255 abc", "P0 1 1", "P6 0 1 255\nabc", "P6 1 0 255\nabc", "P6 65536 65536 255\nabc",
          "P6 4294967297 1 255\nabc", "1 1 255 x P6", "P6 99999999999999999999 9 255\nabc", "P5 PP 1 1 255 a",
          "P6 2147483647 2147483647 255\nabc"}) {
        EXPECT_EQ(reportOf([&] { return decode(bytes); }), "IMG error\n") << bytes;
    }
    EXPECT_EQ(reportOf([] { return decodeUnsized({"P6 1 1 255", 11}); }), "IMG error\n");
    EXPECT_EQ(reportOf([] { return IMG_fromPNM(nullptr); }), "IMG error\n");
    for (const int nth : {1, 2}) {
        const FailingAllocation failure(nth);
        EXPECT_EQ(reportOf([] { return IMG_fromPNM("P2 1 1 255 7"); }), "IMG error\n");
    }
}

TEST(Pnm, RandomBytesNeverCrash) {
    std::uint32_t pictures = 0;
    for (std::uint32_t seed = 1; seed <= 20000; ++seed) {
        Images images(seed);
        constexpr char alphabet[] = "P123456 \n#0789\xFF";
        std::string bytes = {'P', static_cast<char>('0' + images.number(1, 6)), ' '};
        for (std::int32_t i = images.number(0, 30); i > 0; --i) {
            bytes += alphabet[images.number(0, sizeof alphabet - 2)];
        }
        pictures += Picture(decode(bytes)) != nullptr ? 1 : 0;
    }
    EXPECT_GT(pictures, 100U);
}

TEST(Pnm, WritesP6ToTheByte) {
    const TemporaryFolder folder;
    const std::string path = folder / "a.ppm";
    const Picture img(IMG_newSized(2, 1));
    img->pixels[0] = 0x0A0D00;
    img->pixels[1] = 0xFF8001;
    ASSERT_EQ(IMG_writePPM(img, path.c_str()), 1);
    EXPECT_EQ(contents(path), "P6\n# VELM(c)Q.V.N.\n2 1\n255\n\x0A\x0D\0\xFF\x80\x01"s);
    EXPECT_EQ(IMG_writePPM(img, (folder / "missing/a.ppm").c_str()), 0);
    if (std::filesystem::exists("/dev/full")) {
        EXPECT_EQ(IMG_writePPM(img, "/dev/full"), 0);
    }
    for (const auto& [width, height] : {std::pair(0, 3), {3, 0}}) {
        IMG_setSize(img, width, height);
        EXPECT_EQ(IMG_writePPM(img, path.c_str()), 0);
    }
}

/// Their tools read what we write, and we read what they write, in every format.
TEST(Pnm, AgreesWithNetpbm) {
    const TemporaryFolder folder;
    ASSERT_EQ(IMG_writePPM(Picture(noise(24, 9, 11)), (folder / "ours").c_str()), 1);
    const std::string convert = "cd " + folder.path +
                                " && pnmtoplainpnm ours > p3 && ppmtoppm < p3 > p6 && ppmtopgm ours > p5"
                                " && pnmtoplainpnm p5 > p2 && pamthreshold -simple p5 | pamtopnm > p4"
                                " && pnmtoplainpnm p4 > p1";
    ASSERT_EQ(std::system(convert.c_str()), 0) << "netpbm is missing";
    const auto read = [&folder](const char* name) { return decode(contents(folder / name)); };
    const char* const pairs[][2] = {{"ours", "p3"}, {"ours", "p6"}, {"p5", "p2"}, {"p4", "p1"}};
    for (const auto& [one, other] : pairs) {
        const Picture first(read(one));
        const Picture second(read(other));
        ASSERT_TRUE(first != nullptr && second != nullptr) << other;
        EXPECT_EQ(difference(first, second), "") << other;
    }
}

TEST(Text, DumpsSixPixelsALineAndReadsThemBack) {
    const auto textOf = [](const IMG* img) {
        return std::string(std::unique_ptr<char[]>(IMG_toText(img)).get());
    };
    const Picture pixel(IMG_newSized(1, 1));
    pixel->pixels[0] = 0x0A0B0C;
    EXPECT_EQ(textOf(pixel), "IMG{\nP3\n1 1\n255\n 10  11  12\n}\n");
    EXPECT_EQ(textOf(Picture(IMG_newSized(0, 0))), "IMG{}");
    for (const std::int32_t width : {1, 5, 6, 7, 12}) {
        const Picture img(noise(width, 3, static_cast<std::uint32_t>(width)));
        const std::string text = textOf(img);
        EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 4 + (width * 3 + 5) / 6 + 1);
        const Picture back(IMG_fromText(text.c_str()));
        ASSERT_NE(back, nullptr);
        EXPECT_EQ(difference(back, img), "");
    }
    EXPECT_EQ(described(IMG_fromText("IMG{P3\n1 1\n9\n4294967297 18446744073709551618 3}")), "1x1: 010203");
}

TEST(Text, RefusesWhatIsCutShortOrHostile) {
    for (const char* text :
         {"", "IMG", "IMG{}", "IMG{\nP3\n1 1\n255\n 10  11 }", "IMG{P3\n99999 99999\n255\n1 2 3}",
          "IMG{P3\n1 2147483647\n255\n1 2 3}", "IMG{P3\n99999999999999999999 1\n1\n1 2 3}"}) {
        EXPECT_EQ(reportOf([&] { return IMG_fromText(text); }), "IMG error\n") << text;
    }
}

TEST(Text, IMG_findAfterMiscounts) {
    EXPECT_EQ(IMG_findAfter("an IMG here", "IMG"), 6);
    EXPECT_EQ(IMG_findAfter("xMG", "IMG"), 3) << "the byte that did not match counts as the needle's first";
    EXPECT_EQ(IMG_findAfter("IIMG", "IMG"), 4);
    EXPECT_EQ(IMG_findAfter("IM", "IMG"), 0);
}

} // namespace
} // namespace velm::test
