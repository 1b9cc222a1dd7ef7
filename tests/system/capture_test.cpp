// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The capture tool as a whole: its files, its arguments, and all the ways in which it ends.
#include "capture/wav_file.h"
#include "process.h"
#include "pulse_server.h"
#include "support/owned.h"

#include <csignal>
#include <sys/prctl.h>

namespace velm::test {
namespace {

constexpr std::size_t frameBytes = 256 * 256 * 4;

class CaptureTest : public testing::Test {
protected:
    /// Runs the tool, or shell commands in the folder, "$capture" being the tool, and keeps what they said.
    int capture(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), VELM_CAPTURE);
        tool = std::make_unique<Child>(arguments, Environment{});
        return tool->waitForExit(120);
    }
    int shell(const std::string& commands) {
        const std::string begin =
            "set -o pipefail; cd '" + folder.path + "' && capture='" VELM_CAPTURE "' && ";
        tool =
            std::make_unique<Child>(std::vector<std::string>{"bash", "-c", begin + commands}, Environment{});
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

    /// The names in the folder, in order, each with a space behind it.
    [[nodiscard]] std::string names() const {
        std::vector<std::string> all;
        for (const auto& entry : std::filesystem::directory_iterator(folder.path)) {
            all.push_back(entry.path().filename().string() + " ");
        }
        std::sort(all.begin(), all.end());
        return std::accumulate(all.begin(), all.end(), std::string());
    }

    /// Seconds of a stream of a file.
    [[nodiscard]] double duration(const std::string& name, const std::string& stream) {
        shell("ffprobe -v error -select_streams " + stream + " -show_entries stream=duration -of csv=p=0 " +
              name);
        return std::atof(tool->output().c_str());
    }

    [[nodiscard]] Sound samples(const std::string& name) const { return readSound(path(name), 0); }

    [[nodiscard]] std::string path(const std::string& name) const { return folder / name; }

    const TemporaryFolder folder{"velm capture-"};
    std::unique_ptr<Child> tool;
};

/// How many samples later than expected a quarter of a second of `sound` is found in `film`.
int bestMatch(const Sound& film, std::size_t expected, const Sound& sound, std::size_t start) {
    constexpr int reach = 6000;
    constexpr int length = 11025;
    int best = 0;
    double most = -1;
    for (int shift = -reach; shift <= reach; shift += 4) {
        const auto at = film.begin() + static_cast<std::ptrdiff_t>(expected) + shift;
        const double likeness =
            std::inner_product(at, at + length, sound.begin() + static_cast<std::ptrdiff_t>(start), 0.0);
        const double energy = std::inner_product(at, at + length, at, 1.0);
        if (likeness / std::sqrt(energy) > most) {
            most = likeness / std::sqrt(energy);
            best = shift;
        }
    }
    return best;
}

TEST_F(CaptureTest, EveryFormTellsTheSame) {
    ASSERT_EQ(capture({"--frames", "40", "--raw", path("raw"), "--crc", path("crc"), "--ppm", path("ppm"),
                       "--audio", path("wav")}),
              0)
        << tool->errors();
    EXPECT_EQ(tool->output() + tool->errors(), "");
    const std::string raw = contents(path("raw"));
    ASSERT_EQ(raw.size(), 40 * frameBytes);
    EXPECT_EQ(shell("$capture --frames 40 --raw - | cmp - raw"), 0);
    const Picture last(IMG_newSized(256, 256));
    std::memcpy(last->pixels, &raw[39 * frameBytes], frameBytes);
    const std::string ppm = contents(path("ppm/frame-00040.ppm"));
    const Picture picture(IMG_fromPNM(ppm.data(), ppm.size()));
    EXPECT_EQ(difference(picture, last), "");
    // gzip ends with the CRC-32 of what it packed, low byte first.
    EXPECT_EQ(shell("tail -c 262144 raw | gzip -1 | tail -c 8 | head -c 4 | od -A n -t x4 | tr -d ' '"), 0);
    const std::string crc = contents(path("crc"));
    EXPECT_EQ(crc.substr(crc.size() - 12), "40 " + tool->output());
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

TEST_F(CaptureTest, KeysAndPointersArriveAfterTheirFrame) {
    const auto plain = frames(53, {});
    const auto keyed = frames(53, {"--keys", "50:8"});
    EXPECT_TRUE(keyed[49] == plain[49]);
    EXPECT_FALSE(keyed[50] == plain[50]) << "the key is read at the end of frame 50 and acts on frame 51";
    const auto keyedTwice = frames(53, {"--keys", "50:8,50:8,50:,"});
    EXPECT_FALSE(keyedTwice[50] == plain[50]);
    EXPECT_TRUE(keyedTwice[51] == plain[51]) << "two keys of one frame are read one after the other";
    const auto moved = frames(53, {"--pointer", "50:100:100:0,50:200:200:0"});
    const auto movedOnce = frames(53, {"--pointer", "50:100:100:0"});
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
    const std::string once = "$capture --scene extra-1 --frames 100 --crc ";
    EXPECT_EQ(shell(once + "crc && touch new && " + once + "other-crc && cmp crc other-crc"), 0);
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
    ASSERT_EQ(shell("ln -s new link; ln -s . wider; touch file; ln file 'hard link'; mkfifo pipe"), 0);
    const std::string before = names();
    for (const std::string arguments : {"",
                                        "--frames 0",
                                        "--frames x",
                                        "--frames 1 --rate 50",
                                        "--frames 1 --scene nothing",
                                        "--frames 1 --scene default --tour",
                                        "--frames 1 --keys 5",
                                        "--frames 1 --keys 5:abc",
                                        "--frames 1 --pointer 1:2:3",
                                        "--frames 1 --block 1",
                                        "--frames 1 --scale 0",
                                        "--frames 1 --audio -",
                                        "--frames 1 --gain nan",
                                        "--frames 1 --raw - --crc -",
                                        "--frames 1 --raw same --audio same",
                                        "--frames 1 --raw same --audio ./same",
                                        "--frames 1 --crc new --raw link",
                                        "--frames 1 --crc new --raw wider/new",
                                        "--frames 1 --crc file --mp4 'hard link'",
                                        "--frames 1 --ppm wider --raw frame-00001.ppm",
                                        "--frames 1 --audio pipe",
                                        "--frames 1 --mp4 pipe",
                                        "--frames 1 --mp4 /dev/null",
                                        "--frames 1 unknown"}) {
        EXPECT_EQ(shell("exec $capture " + arguments), 2) << arguments;
        const std::string line = tool->errors();
        EXPECT_EQ(line.substr(0, 18), "velm4030-capture: ");
        EXPECT_EQ(line.find('\n'), line.size() - 1) << line;
    }
    EXPECT_EQ(shell("$capture --frames 1 --crc out --raw - > out"), 2) << "the shell has named the same file";
    EXPECT_EQ(names(), before.substr(0, before.find("pipe")) + "out pipe wider ");
    EXPECT_EQ(capture({"--help"}), 0);
    EXPECT_EQ(capture({"--version"}), 0);
}

TEST_F(CaptureTest, AnOutputThatFailsGivesOneLineAndLeavesTheOthersWholeAndNothingHalf) {
    const struct {
        const char* commands;
        const char* line;
        const char* left;
        int frames; ///< lines of the file of checksums
    } failures[] = {
        {"$capture --frames 5 --raw missing/raw", "missing/raw: No such file or directory", "", 0},
        {"$capture --frames 50 --raw - > /dev/full", "standard output: No space left on device", "", 0},
        {"$capture --frames 50 --raw - --crc crc | head -c 1000",
         "all of standard output: its reader has left", "crc ", 50},
        {"PATH=/nowhere; exec $capture --frames 90 --crc crc --mp4 mp4",
         "mp4: ffmpeg is not installed, which makes the film", "", 0},
        // A small limit on the size of files stands in for a full disk.
        {"ulimit -f 16; exec $capture --frames 90 --crc crc --mp4 mp4", "mp4: File too large", "crc ", 90},
        {"ulimit -f 1024; exec $capture --frames 50 --raw raw --crc crc --audio wav --mp4 mp4 --scale 1"
         " --ppm ppm",
         "raw: File too large", "crc mp4 ppm wav ", 50}};
    for (const auto& [commands, line, left, frames] : failures) {
        EXPECT_EQ(shell(std::string("rm -rf *; ") + commands), 1) << commands;
        EXPECT_EQ(tool->errors(), std::string("velm4030-capture: cannot write ") + line + "\n");
        EXPECT_EQ(names(), left) << commands;
        const std::string crc = contents(path("crc"));
        EXPECT_EQ(std::count(crc.begin(), crc.end(), '\n'), frames) << commands;
    }
    EXPECT_EQ(contents(path("wav")).size(), 44U + 17 * 2942);
    EXPECT_EQ(shell("$capture --frames 100000 --raw - | head -c 1000"), 0) << "enough was read";
    EXPECT_EQ(tool->errors(), "");
}

TEST_F(CaptureTest, NothingElseInTheFolderIsTouched) {
    ASSERT_EQ(shell("mkdir ppm; echo mine | tee target crc.part ppm/frame-00001.ppm.part mp4.part.mp4;"
                    "ln -s target wav.part; ln -s target raw.part; chmod 640 target; ln -s target raw"),
              0);
    EXPECT_EQ(shell("$capture --frames 3 --crc crc --audio wav --ppm ppm --mp4 mp4 --scale 1"), 0);
    for (const char* name : {"target", "crc.part", "ppm/frame-00001.ppm.part", "mp4.part.mp4"}) {
        EXPECT_EQ(contents(path(name)), "mine\n") << name;
    }
    EXPECT_EQ(shell("umask 022; $capture --frames 3 --raw raw --crc crc"), 0);
    EXPECT_EQ(contents(path("target")).size(), 3 * frameBytes) << "the link stays one";
    EXPECT_EQ(shell("test $(stat -c %a target) = 640 -a $(stat -c %a crc) = 644"), 0);
}

TEST_F(CaptureTest, ASignalLeavesNothingBehind) {
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        Child child({VELM_CAPTURE, "--frames", "1000000", "--crc", path("crc"), "--audio", path("wav"),
                     "--mp4", path("mp4"), "--ppm", path("ppm"), "--raw", "/dev/null"},
                    {});
        ASSERT_TRUE(eventually([&] { return std::filesystem::exists(path("ppm/frame-00049.ppm")); }));
        child.signal(number);
        EXPECT_EQ(child.waitForExit(), 128 + number);
        EXPECT_EQ(names(), "ppm ");
        EXPECT_EQ(shell("ls -A ppm | grep -v '^frame-[0-9]*.ppm$'"), 1);
        std::filesystem::remove_all(path("ppm"));
    }
}

TEST_F(CaptureTest, PipesAndLinksStayWhatTheyAre) {
    EXPECT_EQ(shell("mkfifo pipe && ln -s target link && { cat pipe > heard & $capture --frames 3 --crc pipe"
                    " --raw link; wait; } && test -p pipe -a -L link"),
              0);
    EXPECT_EQ(contents(path("heard")).substr(0, 2), "1 ");
    EXPECT_EQ(contents(path("target")).size(), 3 * frameBytes);
    EXPECT_EQ(capture({"--frames", "2", "--ppm", path("heard")}), 1);
    EXPECT_EQ(tool->errors(), "velm4030-capture: cannot make the folder " + path("heard") + "\n");
}

// Sanitizers need memory of their own, and time.
#if !VELM_IS_SANITIZED
TEST_F(CaptureTest, LongRunsAreRepeatableAndStaySmall) {
    constexpr long silentLimit = 32 * 1024;
    constexpr long limit = 48 * 1024;
    prctl(PR_SET_THP_DISABLE, 1, 0, 0, 0); // how much of a large page is used depends on where it lies
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

TEST_F(CaptureTest, AFilmHasAPictureForEveryTickAndItsSound) {
    ASSERT_EQ(capture({"--frames", "123", "--mp4", path("film.mp4"), "--scale", "1", "--quiet"}), 0)
        << tool->errors();
    EXPECT_EQ(names(), "film.mp4 ") << "no parts are left";
    shell("ffprobe -v error -count_frames -show_entries stream=codec_type,width,nb_read_frames -of csv=p=0 "
          "film.mp4");
    const std::string streams = tool->output();
    // 90 frames of the scene, a tick each; logo and fade-out take no time.
    EXPECT_NE(streams.find("video,256,90"), std::string::npos) << streams;
    EXPECT_NE(streams.find("audio"), std::string::npos) << streams;
}

TEST_F(CaptureTest, AWavFileBeyond4GiBTellsItsLength) {
    const std::uint64_t lengths[] = {88200, 0xFFFFFFFF - 73, 0xFFFFFFFF - 71, 6'000'000'000};
    for (const std::uint64_t length : lengths) {
        const std::vector<std::byte> header = wavHeader(length, WavRoom::long64);
        EXPECT_EQ(static_cast<char>(header[3]), length < 0xFFFFFFFF - 72 ? 'F' : '4') << "RIFF or RF64";
        std::ofstream(path("wav"), std::ios::binary)
            .write(reinterpret_cast<const char*>(header.data()), static_cast<std::streamsize>(header.size()));
        std::filesystem::resize_file(path("wav"), header.size() + length); // takes no room on the disk
        EXPECT_NEAR(duration("wav", "a:0"), static_cast<double>(length) / 88200, 0.01) << length;
    }
    // 14 hours might need it, what was made of them does not.
    EXPECT_EQ(capture({"--frames", "1500000", "--keys", "40:esc", "--audio", path("wav")}), 0);
    EXPECT_EQ(contents(path("wav")).substr(12, 4), "JUNK");
    EXPECT_NEAR(duration("wav", "a:0"), 7 * 1471 / 44100.0, 1e-5);
}

TEST_F(CaptureTest, AFilmsSoundLiesWhereItsPicturesAre) {
    const std::vector<std::vector<std::string>> films = {
        {"--frames", "110", "--keys", "50:0,80:0"},
        {"--frames", "110", "--keys", "60:6"},
        {"--frames", "110", "--keys", "60:5", "--rate", "60"},
        {"--frames", "110", "--rate", "60", "--block", "2942"}};
    for (std::vector<std::string> film : films) {
        film.insert(film.end(), {"--mp4", path("mp4"), "--scale", "1"});
        ASSERT_EQ(capture(film), 0) << tool->errors();
        EXPECT_GT(duration("mp4", "v:0"), 1);
        EXPECT_NEAR(duration("mp4", "v:0"), duration("mp4", "a:0"), 0.1) << film[3];
    }
    // Two seconds without sound; the device is handed what comes after them right after what came before.
    ASSERT_EQ(capture({"--frames", "260", "--keys", "120:0,180:0", "--mp4", path("mp4"), "--scale", "1",
                       "--gain", "0", "--audio", path("wav")}),
              0);
    ASSERT_EQ(shell("ffmpeg -v error -i mp4 -f s16le film.pcm; ffmpeg -v error -i wav -f s16le wav.pcm"), 0);
    const Sound film = samples("film.pcm");
    const Sound sound = samples("wav.pcm");
    constexpr std::size_t muted = (120 - 33) * 1470; // samples
    constexpr std::size_t gap = 60 * 1470;
    constexpr std::size_t second = 44100;
    const auto quiet = [](std::int16_t value) { return std::abs(value) < 8; };
    ASSERT_GT(film.size(), muted + gap + 2 * second);
    EXPECT_TRUE(std::all_of(&film[muted + second / 5], &film[muted + gap - second / 5], quiet));
    EXPECT_FALSE(std::all_of(&sound[muted - second], &sound[muted], quiet));
    EXPECT_NEAR(bestMatch(film, muted - second, sound, muted - second), 0, 200);
    EXPECT_NEAR(bestMatch(film, muted + second + gap, sound, muted + second), 0, 200);
}

TEST_F(CaptureTest, FilmsAreLouderAndWavFilesExact) {
    ASSERT_EQ(capture({"--frames", "150", "--audio", path("exact"), "--mp4", path("mp4"), "--scale", "1"}),
              0);
    ASSERT_EQ(capture({"--frames", "150", "--audio", path("loud"), "--gain", "12"}), 0);
    ASSERT_EQ(capture({"--frames", "150", "--audio", path("same"), "--gain", "0"}), 0);
    ASSERT_EQ(
        shell("for f in exact loud mp4; do ffmpeg -v error -i $f -f s16le $f.pcm; done; cmp exact same"), 0);
    const Sound exact = samples("exact.pcm");
    const Sound loud = samples("loud.pcm");
    for (std::size_t i = 0; i < exact.size(); ++i) {
        ASSERT_NEAR(loud[i], std::clamp(exact[i] * 3.9811, -32768.0, 32767.0), 0.6) << i;
    }
    const auto energy = [](const Sound& all) {
        return std::inner_product(all.begin(), all.end(), all.begin(), 0.0);
    };
    EXPECT_GT(energy(exact), 0);
    EXPECT_NEAR(energy(samples("mp4.pcm")) / energy(loud), 1, 0.05);
}

} // namespace
} // namespace velm::test
