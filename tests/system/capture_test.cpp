// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The capture tool as a whole: its files, its arguments, and all the ways in which it ends.
#include "process.h"
#include "support/images.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <gtest/gtest.h>
#include <iterator>
#include <memory>

namespace velm::test {
namespace {

constexpr std::size_t frameBytes = 256 * 256 * 4;

class CaptureTest : public testing::Test {
protected:
    void TearDown() override { std::filesystem::remove_all(folder); }

    /// Runs the tool and keeps what it said.
    int capture(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), VELM_CAPTURE);
        tool = std::make_unique<Child>(arguments, Environment{});
        return tool->waitForExit(120);
    }

    /// Captures frames with some keys and pointer moves, and gives them one by one.
    std::vector<std::string> frames(int count, std::vector<std::string> more) {
        more.insert(more.end(), {"--frames", std::to_string(count), "--raw", path("raw")});
        EXPECT_EQ(capture(more), 0) << tool->errors();
        const std::string raw = contents(path("raw"));
        std::vector<std::string> all;
        for (std::size_t at = 0; at < raw.size(); at += frameBytes) {
            all.push_back(raw.substr(at, frameBytes));
        }
        return all;
    }

    [[nodiscard]] std::string path(const std::string& name) const { return folder + "/" + name; }

    std::string folder = [] {
        std::string name = std::filesystem::temp_directory_path() / "velm capture-XXXXXX";
        return std::string(mkdtemp(name.data()));
    }();
    std::unique_ptr<Child> tool;
};

TEST_F(CaptureTest, EveryFormTellsTheSame) {
    ASSERT_EQ(capture({"--frames", "40", "--raw", path("raw"), "--crc", path("crc"), "--ppm", path("ppm"),
                       "--audio", path("wav")}),
              0)
        << tool->errors();
    EXPECT_EQ(tool->output() + tool->errors(), "");
    const std::string raw = contents(path("raw"));
    ASSERT_EQ(raw.size(), 40 * frameBytes);
    IMG* last = IMG_newSized(256, 256);
    std::memcpy(last->pixels, &raw[39 * frameBytes], frameBytes);
    const std::string ppm = contents(path("ppm/frame-00040.ppm"));
    IMG* picture = IMG_fromPNM(ppm.data(), ppm.size());
    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(difference(picture, last), "");
    IMG_delete(&last);
    IMG_delete(&picture);
    // gzip ends with the CRC-32 of what it packed, low byte first.
    const std::string sum = "tail -c " + std::to_string(frameBytes) + " '" + path("raw") +
                            "' | gzip -1 | tail -c 8 | head -c 4 | od -A n -t x4 | tr -d ' \\n' > '" +
                            path("sum") + "'";
    ASSERT_EQ(std::system(sum.c_str()), 0);
    const std::string crc = contents(path("crc"));
    EXPECT_EQ(crc.substr(crc.size() - 12), "40 " + contents(path("sum")) + "\n");
    const std::string wav = contents(path("wav"));
    // Logo, 32 passes of a fade-out, 7 frames: the seventh has handed its block over.
    EXPECT_EQ(wav.size(), 44U + 7 * 2942);
    EXPECT_EQ(wav.substr(0, 4) + wav.substr(8, 8) + wav.substr(36, 4), "RIFFWAVEfmt data");
    EXPECT_EQ(static_cast<unsigned char>(wav[40]) | static_cast<unsigned char>(wav[41]) << 8, 7 * 2942);
}

TEST_F(CaptureTest, TheTourFadesFromTheLogoThroughItsScenes) {
    const auto tour = frames(16, {"--tour"});
    const auto brightest = [](const std::string& frame) {
        return static_cast<unsigned char>(*std::max_element(
            frame.begin(), frame.end(), [](unsigned char a, unsigned char b) { return a < b; }));
    };
    for (std::size_t i = 0; i <= 15; ++i) {
        EXPECT_EQ(brightest(tour[i]), 255 - 17 * i) << i;
    }
    const auto onwards = frames(50, {"--tour", "--keys", "20:space"}).back();
    EXPECT_NE(onwards, frames(50, {"--tour"}).back()) << "Space goes on to the next";
}

TEST_F(CaptureTest, TwoRunsGiveTheSameBytesAlsoOnStandardOutput) {
    const auto first = frames(300, {"--keys", "40:b,60:g", "--pointer", "50:10:20:1"});
    const std::string again = std::string(VELM_CAPTURE) +
                              " --frames 300 --keys 40:b,60:g --pointer 50:10:20:1 --raw - |"
                              " cmp - '" +
                              path("raw") + "'";
    EXPECT_EQ(std::system(again.c_str()), 0);
    EXPECT_EQ(first.size(), 300U);
}

TEST_F(CaptureTest, KeysAndPointersArriveAfterTheirFrame) {
    const auto plain = frames(60, {});
    const auto keyed = frames(60, {"--keys", "50:8"});
    EXPECT_TRUE(keyed[49] == plain[49]);
    EXPECT_FALSE(keyed[50] == plain[50]) << "the key is read at the end of frame 50 and acts on frame 51";
    const auto keyedTwice = frames(60, {"--keys", "50:8,50:8,50:,"});
    EXPECT_FALSE(keyedTwice[50] == plain[50]);
    EXPECT_TRUE(keyedTwice[51] == plain[51]) << "two keys of one frame are read one after the other";
    const auto moved = frames(60, {"--pointer", "50:100:100:0,50:200:200:0"});
    const auto movedOnce = frames(60, {"--pointer", "50:100:100:0"});
    EXPECT_TRUE(moved[49] == plain[49]);
    EXPECT_FALSE(moved[50] == plain[50]);
    EXPECT_TRUE(moved == movedOnce) << "of two that are due at one poll the first wins";
}

TEST_F(CaptureTest, OneSceneRunsAgainAndAgain) {
    const auto once = frames(40, {"--scene", "interlude-b"});
    const auto twice = frames(80, {"--scene", "interlude-b", "--keys", "36:space"});
    EXPECT_TRUE(std::equal(twice.begin(), twice.begin() + 36, once.begin()));
    const std::string black(frameBytes, '\0');
    EXPECT_FALSE(twice[35] == black);
    EXPECT_TRUE(twice[38] == black) << "the second run fades out first";
    EXPECT_FALSE(twice[68] == black);
}

TEST_F(CaptureTest, TheFolderThatASceneListsIsTheSameEverywhere) {
    const std::string twice = "cd '" + folder + "' && for sum in crc other-crc; do " + VELM_CAPTURE +
                              " --scene extra-1 --frames 150 --crc $sum || exit; touch new; done";
    ASSERT_EQ(std::system(twice.c_str()), 0);
    EXPECT_TRUE(contents(path("crc")) == contents(path("other-crc")));
}

TEST_F(CaptureTest, EscapeEndsItWithItsFilesComplete) {
    EXPECT_EQ(frames(500, {"--keys", "40:esc"}).size(), 40U + 32U);
}

TEST_F(CaptureTest, AnEndlessPauseIsToldWithItsFilesComplete) {
    EXPECT_EQ(capture({"--frames", "500", "--keys", "40:p,40:p,45:p", "--raw", path("raw"), "--audio",
                       path("wav")}),
              3);
    EXPECT_EQ(tool->errors(), "velm4030-capture: paused after frame 45, and no key is left to end it\n");
    EXPECT_EQ(contents(path("raw")).size(), 45 * frameBytes);
    EXPECT_GT(contents(path("wav")).size(), 44U);
}

TEST_F(CaptureTest, WrongArgumentsGiveOneLineAndStatus2) {
    const std::vector<std::vector<std::string>> wrong = {
        {},
        {"--frames", "0"},
        {"--frames", "x"},
        {"--frames", "1", "--rate", "50"},
        {"--frames", "1", "--scene", "nothing"},
        {"--frames", "1", "--scene", "default", "--tour"},
        {"--frames", "1", "--keys", "5"},
        {"--frames", "1", "--keys", "5:abc"},
        {"--frames", "1", "--pointer", "1:2:3"},
        {"--frames", "1", "--block", "1"},
        {"--frames", "1", "--scale", "0"},
        {"--frames", "1", "--audio", "-"},
        {"--frames", "1", "--raw", "-", "--crc", "-"},
        {"--frames", "1", "--raw", "same", "--audio", "same"},
        {"--frames", "1", "unknown"}};
    for (const auto& arguments : wrong) {
        EXPECT_EQ(capture(arguments), 2) << (arguments.empty() ? "" : arguments.back());
        const std::string line = tool->errors();
        EXPECT_EQ(line.substr(0, 18), "velm4030-capture: ");
        EXPECT_EQ(line.find('\n'), line.size() - 1) << line;
    }
    EXPECT_EQ(capture({"--help"}), 0);
    EXPECT_EQ(capture({"--version"}), 0);
}

TEST_F(CaptureTest, WhatCannotBeWrittenGivesOneLineAndLeavesNothingHalf) {
    EXPECT_EQ(capture({"--frames", "5", "--raw", path("missing/raw")}), 1);
    EXPECT_EQ(tool->errors().find('\n'), tool->errors().size() - 1);
    const std::string full =
        std::string(VELM_CAPTURE) + " --frames 50 --raw - > /dev/full 2> '" + path("errors") + "'";
    EXPECT_EQ(WEXITSTATUS(std::system(full.c_str())), 1);
    EXPECT_EQ(contents(path("errors")),
              "velm4030-capture: cannot write standard output: No space left on device\n");
    // A small limit on the size of files stands in for a full disk.
    const std::string limited = "cd '" + folder + "' && ulimit -f 1024 && trap '' XFSZ && exec " +
                                VELM_CAPTURE + " --frames 50 --raw raw 2> errors";
    EXPECT_EQ(WEXITSTATUS(std::system(limited.c_str())), 1);
    EXPECT_FALSE(std::filesystem::exists(path("raw")));
    EXPECT_FALSE(std::filesystem::exists(path("raw.part")));
}

TEST_F(CaptureTest, PipesAndLinksStayWhatTheyAre) {
    const std::string script =
        "cd '" + folder + "' && mkfifo pipe && ln -s target link && { cat pipe > heard & " + VELM_CAPTURE +
        " --frames 3 --crc pipe --raw link; wait; } && test -p pipe -a -L link";
    EXPECT_EQ(std::system(script.c_str()), 0);
    EXPECT_EQ(contents(path("heard")).substr(0, 2), "1 ");
    EXPECT_EQ(contents(path("target")).size(), 3 * frameBytes);
    EXPECT_EQ(capture({"--frames", "2", "--ppm", path("heard")}), 1);
    EXPECT_EQ(tool->errors(), "velm4030-capture: cannot make the folder " + path("heard") + "\n");
}

TEST_F(CaptureTest, AFailingOutputTakesThePartsOfTheOthersAlong) {
    const std::string limited = "cd '" + folder + "' && ulimit -f 1024 && trap '' XFSZ && exec " +
                                VELM_CAPTURE +
                                " --frames 50 --raw raw --crc crc --audio wav --mp4 film.mp4 2> errors";
    EXPECT_EQ(WEXITSTATUS(std::system(limited.c_str())), 1);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 1)
        << "only the errors are left";
}

// Sanitizers need memory of their own, and time.
#if !VELM_IS_SANITIZED
TEST_F(CaptureTest, LongRunsAreRepeatableAndStaySmall) {
    constexpr long silentLimit = 32 * 1024;
    constexpr long limit = 48 * 1024;
    ASSERT_EQ(capture({"--frames", "20000", "--crc", path("first"), "--audio", path("wav")}), 0);
    const long longRun = tool->peakKilobytes();
    EXPECT_LT(longRun, limit);
    ASSERT_EQ(capture({"--frames", "20000", "--crc", path("second")}), 0);
    EXPECT_LT(tool->peakKilobytes(), silentLimit);
    EXPECT_TRUE(contents(path("first")) == contents(path("second")));
    ASSERT_EQ(capture({"--frames", "1000", "--crc", path("second"), "--audio", path("wav")}), 0);
    EXPECT_LT(longRun - tool->peakKilobytes(), 512) << "memory grows with the frames";
}
#endif

TEST_F(CaptureTest, AClosedPipeEndsItQuietly) {
    const std::string piped = "set -o pipefail; " + std::string(VELM_CAPTURE) +
                              " --frames 100000 --raw - 2> '" + path("errors") +
                              "' | head -c 1000 > /dev/null";
    EXPECT_EQ(WEXITSTATUS(runTool({"bash", "-c", piped}, {}) << 8), 0);
    EXPECT_EQ(contents(path("errors")), "");
}

TEST_F(CaptureTest, AFilmHasAPictureForEveryTickAndItsSound) {
    ASSERT_EQ(capture({"--frames", "123", "--mp4", path("film.mp4"), "--scale", "1", "--quiet"}), 0)
        << tool->errors();
    const std::string probe =
        "ffprobe -v error -count_frames -show_entries stream=codec_type,width,nb_read_frames"
        " -of csv=p=0 '" +
        path("film.mp4") + "' > '" + path("probe") + "'";
    ASSERT_EQ(std::system(probe.c_str()), 0);
    const std::string streams = contents(path("probe"));
    // 90 frames of the scene, a tick each; logo and fade-out take no time.
    EXPECT_NE(streams.find("video,256,90"), std::string::npos) << streams;
    EXPECT_NE(streams.find("audio"), std::string::npos) << streams;
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 2) << "no parts are left";
}

} // namespace
} // namespace velm::test
