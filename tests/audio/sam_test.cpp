// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "audio/sam.h"
#include "audio/samples.h"
#include "support/files.h"

namespace velm::test {
namespace {

using namespace std::string_literals;

const List refused{-99};

class SamTest : public testing::Test {
protected:
    void name(const std::string& file) { SAM_setPath(sam, (folder / file).c_str()); }

    /// The bytes that saving the values under that name writes.
    std::string saved(const std::string& file, const List& from, char storage = 'b') {
        name(file);
        sam->storage = storage;
        SAM_setSample(sam, sampleOf(from));
        EXPECT_EQ(SAM_save(sam), 1) << file;
        return contents(sam->path);
    }

    /// The values that a reader takes from the bytes; `refused` when it does not.
    List read(const std::string& bytes, const std::string& file = "x",
              std::int32_t (*reader)(SAM*) = SAM_load) {
        name(file);
        std::ofstream(sam->path, std::ios::binary) << bytes;
        SAM_setSample(sam, sampleOf(refused));
        const bool isRead = reader(sam) != 0;
        EXPECT_NE(isRead, values(sam->sample) == refused);
        EXPECT_EQ(sam->file, nullptr);
        EXPECT_LE(sam->sample->capacity, 32 + 2 * static_cast<std::int32_t>(bytes.size()));
        return values(sam->sample);
    }

    void sox(const std::string& arguments) {
        const std::string script = "cd '" + folder.path + "' && sox -D -R -r 44100 " + arguments;
        ASSERT_EQ(std::system(script.c_str()), 0) << arguments;
    }

    const TemporaryFolder folder{"velm sam-"};
    const Owned<SAM_delete> sam{SAM_new()};
};

std::string number(std::uint32_t value, std::size_t bytes) {
    const char text[] = {static_cast<char>(value), static_cast<char>(value >> 8),
                         static_cast<char>(value >> 16), static_cast<char>(value >> 24)};
    return {text, bytes};
}

std::string wave(std::uint32_t depth, const std::string& data, std::uint32_t size) {
    return "RIFF....WAVEfmt \x10\0\0\0\1\0\2\0"s + number(44100, 4) + number(176400, 4) + number(4, 2) +
           number(depth, 2) + "data" + number(size, 4) + data;
}

TEST_F(SamTest, SAM_chanelsAndSAM_writesSixteenBitsAndSAM_wavHasNoRiffAndSAM_rawLosesLoudPeaks) {
    sam->channels = 2, sam->depth = 8, sam->sign = 'u', sam->endian = 'm'; // nobody reads them
    const std::string form = "signed\nbits 16\nlittle endian\nchanels 1\n3\n";
    EXPECT_EQ(saved("x", {1, -2, 0x12345}, 'B'), "SAM\nbinary\n" + form + "\1\0\xFE\xFF\x45\x23"s);
    EXPECT_EQ(saved("x.WAV", {1, -2, 70000}, 'A'), "SAM\nASCII\n" + form + "1\n-2\n70000\n");
    sam->storage = 'x';
    EXPECT_EQ(SAM_save(sam), 0);
    EXPECT_EQ(contents(sam->path), "SAM\n" + form);

    EXPECT_EQ(saved("x.wav", {127, -128}), "8\n\x7F\x80");
    EXPECT_EQ(saved("x.wav", {128, -32768}), "16\n\0\x80\x80\0"s);
    EXPECT_EQ(saved("x.wav", {0, 32768}), "");
    EXPECT_EQ(saved("x.wav", {}), "8\n");

    const std::string start = "SAM\nbinary\n2\n";
    EXPECT_EQ(saved("x.raw", {1, -1}), start + "8\n\x01\xFF");
    EXPECT_EQ(saved("x.raw", {0, -129}), start + "16\n\0\0\xFF\x7F"s);
    EXPECT_EQ(saved("x.raw", {8388607, -8388608}), start + "24\n\x7F\xFF\xFF\x80\0\0"s);
    EXPECT_EQ(saved("x.raw", {8388608, -8388609}), start + "32\n\0\x80\0\0\xFF\x7F\xFF\xFF"s);
    EXPECT_EQ(saved("x.raw", {8388608, -8388608}), start);
}

TEST_F(SamTest, SAM_headerWordsAreNumbers) {
    EXPECT_EQ(read(saved("x", {5, 6}, 'a'), "x.sam"), List{}) << "what is written here reads as no values";
    EXPECT_EQ(read(saved("x", {5, 6}, 'b'), "x.sam"), List{});
    EXPECT_EQ(read("# b u 7\nsxxSAM\xB1\xFF B u 8 3 2\n\1\2\xFF"), (List{1, 2, 255}));
    EXPECT_EQ(std::string({sam->storage, sam->sign, sam->endian}), "Bum");
    EXPECT_EQ(sam->channels * 10 + sam->depth, 28);
    EXPECT_EQ(read("8 1 1 1000 bSAMsx"), List{'x'}) << "any order; further numbers are dropped";
}

TEST_F(SamTest, SAM_readsBigEndianUnsignedAndSAM_textLosesMinusAndSAM_cutTextIsSuccess) {
    EXPECT_EQ(read("SAM b s 8 2 1\n\1\x80"), (List{1, 128}));
    EXPECT_EQ(read("SAM b s 12 2 1\n\1\x80\xFF\xFE"), (List{0x180, 0xFFFE}));
    EXPECT_EQ(read("SAM b s 24 1 1\n\xFF\2\3"), List{0xFF0203});
    EXPECT_EQ(read("SAM b s 32 1 1\n\xFF\xFF\xFF\xFE"), List{-2});
    EXPECT_EQ(read("SAM b s 2147483647 1 1\n12345678", "x", SAM_readSam), refused);
    EXPECT_EQ(read("SAM a s 99 4 1\n-5, 70000\nx2147483648 4"), (List{5, 70000, INT32_MIN, 4}));
    expectReports(SAM_verbose, 1, "SAM error.", [&] {
        EXPECT_EQ(read("SAM a s 16 2147483647 1\n-5 12", "x", SAM_readSam), (List{5, 12}));
    });
}

TEST_F(SamTest, SAM_waveKeepsBytes) {
    EXPECT_EQ(read(wave(8, "\0\x80\xFF"s, 3)), (List{0, 128, 255}));
    EXPECT_EQ(sam->sign, 'u');
    EXPECT_EQ(read(wave(16, "\xFE\xFF\1\2\3", 6)), (List{-2, 513})) << "channels alternate";
    EXPECT_EQ(std::string({sam->sign, sam->endian}), "sl");
    EXPECT_EQ(sam->channels * 100 + sam->depth, 216);
    EXPECT_EQ(read(wave(24, "abcdefgh", 0xFFFFFFFF)), (List{0, 0}));
    EXPECT_EQ(read(wave(16, "abcd", 2)), List{0x6261}) << "the size ends the data";
}

TEST_F(SamTest, SAM_rawStaysUnsignedAndSAM_rawNameReadsWave) {
    sam->depth = 8;
    EXPECT_EQ(read("\x80\1", "x.raw"), (List{128, 1}));
    sam->depth = 16;
    EXPECT_EQ(read("\x80\1\2", "x.raw"), refused) << "an order is needed";
    sam->endian = 'l';
    EXPECT_EQ(read(saved("y", {300, -2}).substr(52)), (List{300, 65534})) << "SAM's values";
    sam->endian = 'm';
    EXPECT_EQ(read(saved("y.raw", {300, -2}).substr(16)), (List{300, 65534}));
    EXPECT_EQ(read(saved("y.wav", {300, -2}).substr(3)), (List{300, 65534}));
    EXPECT_EQ(read("SAM b u 8 1 1\n\7", "x.raw"), List{7}) << "the other readers come first";
    EXPECT_EQ(read(wave(8, "\7", 1), "x.raw"), List{7});
    for (const std::int32_t depth : {0, -8, 12, 40}) {
        sam->depth = depth;
        EXPECT_EQ(read("\x80\1\2\3", "x.raw"), refused) << depth;
    }
}

TEST_F(SamTest, WavesOfSoxAreReadOrRefused) {
    for (const std::string bits : {"8", "16"}) {
        sox("-n -c 2 -b " + bits + " x.wav synth 0.05 sine 200-9000");
        sox("x.wav -t " + (bits == "8" ? "u8"s : "s16"s) + " x.raw");
        name("x.raw");
        sam->depth = std::stoi(bits);
        sam->endian = 'l';
        ASSERT_EQ(SAM_readRaw(sam), 1);
        List expected = values(sam->sample);
        for (std::int32_t& value : expected) {
            value = bits == "8" ? value : static_cast<std::int16_t>(value);
        }
        name("x.wav");
        ASSERT_EQ(SAM_load(sam), 1);
        EXPECT_EQ(sam->sample->length, 2 * 2205);
        EXPECT_TRUE(values(sam->sample) == expected) << bits;
    }
    for (const char* form : {"-e floating-point -b 32", "-b 24", "-e a-law"}) {
        sox("-n "s + form + " x.wav synth 0.01 sine 440");
        EXPECT_EQ(SAM_readWave(sam), 0) << form;
    }
}

TEST_F(SamTest, HostileFilesAreRefusedAtEveryLength) {
    const std::string whole = wave(16, "abcd", 4);
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        const List cut = size < 44 ? refused : List({0x6261, 0x6463});
        const List expected(cut.begin(), cut.begin() + (size < 44 ? 1 : static_cast<int>(size - 44) / 2));
        EXPECT_EQ(read(whole.substr(0, size), "x", SAM_readWave), expected) << size;
    }
    for (const std::size_t at : {0U, 3U, 8U, 11U, 12U, 14U, 20U, 21U, 36U, 39U}) {
        std::string wrong = whole;
        wrong[at] ^= 2;
        EXPECT_EQ(read(wrong, "x", SAM_readWave), refused) << at;
    }
    EXPECT_EQ(read(wave(7, "abcd", 4), "x", SAM_readWave), refused) << "no whole byte a value";
    const std::string header = "#\n SAM b u 16 999999999 1";
    for (std::size_t size = 0; size < header.size(); ++size) {
        EXPECT_EQ(read(header.substr(0, size), "x", SAM_readSam), refused) << size;
    }
    EXPECT_EQ(read(header + "\nabc"), List{0x6162}) << "half a value is none";
    SAM_setPath(sam, folder.path.c_str());
    EXPECT_EQ(SAM_load(sam), 0) << "a folder is no sound";
}

TEST_F(SamTest, AnOpenFileNeedsNoName) {
    const std::string bytes = saved("x", {1, 2});
    const Owned<SAM_delete> nameless(SAM_new());
    SAM_setSample(nameless, sampleOf({1, 2}));
    nameless->storage = 'b';
    nameless->file = std::fopen(sam->path, "wb");
    EXPECT_EQ(SAM_save(nameless), 1);
    EXPECT_EQ(contents(sam->path), bytes);
    nameless->file = std::fopen(sam->path, "rb");
    EXPECT_EQ(SAM_load(nameless) + nameless->sample->length, 1);
}

TEST_F(SamTest, LoopedReadingWrapsBetweenItsPoints) {
    SAM_setSample(sam, sampleOf({0, 1, 2, 3, 4, 5}));
    sam->state = 'l';
    sam->loopStart = 2;
    sam->loopEnd = 5;
    const Sample block(List(9, 7));
    EXPECT_EQ(SAM_readLooped(sam, block), 9);
    EXPECT_EQ(values(block), (List{0, 1, 2, 3, 4, 2, 3, 4, 2}));
    sam->state = 'p';
    EXPECT_EQ(SAM_readLooped(sam, block), 3);
    EXPECT_EQ(values(block), (List{3, 4, 5, 0, 0, 0, 0, 0, 0})) << "silence follows the end";
    EXPECT_EQ(SAM_isFinished(sam), 0);
    sam->state = 0;
    EXPECT_EQ(SAM_isFinished(sam), 1);
    sam->state = 'l';
    EXPECT_EQ(SAM_readLooped(sam, block), 9);
    EXPECT_EQ(values(block), (List{2, 3, 4, 2, 3, 4, 2, 3, 4})) << "a position past the loop joins it";
    expectReports(SAM_verbose, 4, "SAM error.", [&] {
        sam->loopEnd = 7, SAM_readLooped(sam, block);
        sam->loopEnd = 2, SAM_readLooped(sam, block);
        sam->state = 0, SAM_readLooped(sam, sam->sample);
        sam->position = -1, SAM_readLooped(sam, block);
    });
}

TEST_F(SamTest, SAM_normalizeWholeFactorAndSAM_signExtendFullWidthAndSAM_widthNeededTalks) {
    for (const auto& [from, to] : {std::pair<List, List>{{1, -32767}, {32768, -0x3FFF8000}},
                                   {{0x1FFFC001, 1}, {0x1FFFC001, 1}},
                                   {{INT32_MIN, 5}, {0, 0}}}) {
        SAM_setSample(sam, sampleOf(from));
        SAM_normalize(sam);
        EXPECT_EQ(values(sam->sample), to);
    }
    EXPECT_EQ(SAM_signExtend(0x80, 8), -128);
    EXPECT_EQ(SAM_signExtend(0x17F, 8), 0x17F);
    EXPECT_EQ(SAM_signExtend(INT32_MIN + 5, 32), -1);
    EXPECT_EQ(printedBy([] { EXPECT_EQ(SAM_widthNeeded(-128), 9); }), "BITS: -128\nBITS: 9\n");
    EXPECT_EQ(printedBy([] { EXPECT_EQ(SAM_widthNeeded(INT32_MIN), 33); }), "BITS: -2147483648\nBITS: 33\n");
    EXPECT_EQ(SAM_endsWith("voice.wav", "wav") + SAM_endsWith("wav", "wav"), 2);
    EXPECT_EQ(SAM_endsWith("av", "wav") + SAM_endsWith("x.WAV", "wav") + SAM_endsWith("wavx", "wav"), 0);
}

TEST_F(SamTest, SAM_newEndsTheProcessAndOtherFailuresAreReported) {
    const std::string before = saved("kept", {1, 2});
    expectReports(SAM_verbose, 18, "SAM error.", [&] {
        SAM_setPath(sam, nullptr), SAM_setSample(sam, nullptr), SAM_normalize(nullptr), SAM_delete(nullptr);
        EXPECT_EQ(SAM_load(nullptr) + SAM_readSam(nullptr) + SAM_readWave(nullptr) + SAM_readRaw(nullptr), 0);
        EXPECT_EQ(SAM_save(nullptr) + SAM_writeSam(sam) + SAM_writeWav(sam) + SAM_writeRaw(sam), 0);
        EXPECT_EQ(SAM_isFinished(nullptr) + SAM_signExtend(1, 33) + SAM_endsWith("x", nullptr), 0);
        const Owned<SAM_delete> empty(SAM_new());
        SAM_setPath(empty, sam->path);
        EXPECT_EQ(SAM_save(empty), 0) << "without a sample no file is made empty";
        EXPECT_EQ(contents(sam->path), before);
        SAM_setPath(sam, "/dev/full");
        EXPECT_EQ(SAM_save(sam), 0);
        name("missing/x");
        EXPECT_EQ(SAM_save(sam), 0);
    });
    for (std::int64_t nth = 1; nth <= 3; ++nth) {
        read(wave(8, std::string(33, 'x'), 33));
        const FailingAllocation failure(nth);
        EXPECT_EQ(SAM_readWave(sam), 0) << nth;
    }
    const FailingAllocation failure(1);
    EXPECT_EXIT(SAM_new(), testing::ExitedWithCode(255), "");
}

} // namespace
} // namespace velm::test
