// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The finished program on a real sound server: PulseAudio with a null sink, reached through the library that
// stands in for "/dev/dsp", and a recording of what the sink plays.
#include "process.h"
#include "x11_session.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <vector>

namespace velm::test {
namespace {

using Sound = std::vector<std::int16_t>;

constexpr std::size_t samplesPerSecond = 44100;
constexpr std::size_t windowLength = 400;

Sound read(const std::string& path, std::size_t headerBytes) {
    std::ifstream file(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    Sound sound;
    for (std::size_t i = headerBytes; i + 1 < bytes.size(); i += 2) {
        sound.push_back(static_cast<std::int16_t>(static_cast<unsigned char>(bytes[i]) |
                                                  static_cast<unsigned char>(bytes[i + 1]) << 8));
    }
    return sound;
}

double energy(const std::int16_t* begin) {
    double sum = 0;
    for (std::size_t i = 0; i < windowLength; ++i) {
        sum += static_cast<double>(begin[i]) * begin[i];
    }
    return sum;
}

/// The loudest stretch of a sound.
Sound loudestWindow(const Sound& sound) {
    std::size_t best = 0;
    for (std::size_t at = 0; at + windowLength < sound.size(); at += windowLength / 4) {
        if (energy(&sound[at]) > energy(&sound[best])) {
            best = at;
        }
    }
    const auto begin = sound.begin() + static_cast<std::ptrdiff_t>(best);
    return {begin, begin + windowLength};
}

/// True when the stretch stands in the recording, give or take the rounding of a server's volume.
bool contains(const Sound& recording, const Sound& stretch, std::size_t from) {
    constexpr int tolerance = 1;
    const auto near = [](std::int16_t a, std::int16_t b) { return std::abs(a - b) <= tolerance; };
    return std::search(recording.begin() + static_cast<std::ptrdiff_t>(std::min(from, recording.size())),
                       recording.end(), stretch.begin(), stretch.end(), near) != recording.end();
}

class SoundTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(eventually([this] { return runTool({"pactl", "info"}, pulse) == 0; }));
        recorder = std::make_unique<Child>(
            std::vector<std::string>{"sh", "-c",
                                     "exec parec --raw -d velm.monitor --rate=44100 --channels=1"
                                     " --format=s16le --latency-msec=20 > " +
                                         recording},
            pulse);
    }

    void TearDown() override {
        recorder.reset();
        std::filesystem::remove_all(folder);
    }

    [[nodiscard]] Environment withDemo() const {
        Environment environment = pulse;
        environment.emplace_back("DISPLAY", server.display());
        environment.emplace_back("LD_PRELOAD", VELM_PULSE_DSP);
        environment.emplace_back("ASAN_OPTIONS", "verify_asan_link_order=0");
        return environment;
    }

    /// The bar that the sequencer composes first, from the capture tool.
    [[nodiscard]] Sound firstBar() const {
        const std::string wav = folder + "/bar.wav";
        EXPECT_EQ(runTool({VELM_CAPTURE, "--frames", "140", "--quiet", "--audio", wav}, {}), 0);
        return read(wav, 44);
    }

    std::string folder = [] {
        std::string name = std::filesystem::temp_directory_path() / "velm-sound-XXXXXX";
        return std::string(mkdtemp(name.data()));
    }();
    std::string recording = folder + "/recording.raw";
    Environment pulse = {{"PULSE_SERVER", "unix:" + folder + "/native"},
                         {"HOME", folder},
                         {"XDG_RUNTIME_DIR", folder},
                         {"PULSE_COOKIE", folder + "/cookie"}};
    Child pulseaudio{{"pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no",
                      "--load=module-null-sink sink_name=velm rate=44100 format=s16le channels=1",
                      "--load=module-native-protocol-unix auth-anonymous=1 socket=" + folder + "/native"},
                     {{"HOME", folder}, {"XDG_RUNTIME_DIR", folder}}};
    XServer server{"24"};
    Session session{server.display()};
    std::unique_ptr<Child> recorder;
};

TEST_F(SoundTest, TheBarIsHeardMutedAndHeardAgain) {
    const Sound stretch = loudestWindow(firstBar());
    ASSERT_GT(energy(stretch.data()), 0);
    Child demo({VELM_PROGRAM}, withDemo());
    ASSERT_TRUE(eventually([&] { return contains(read(recording, 0), stretch, 0); }, 40))
        << demo.errors() << recorder->errors();

    session.movePointer(128, 128);
    session.press("0");
    const auto isSilent = [this] {
        const Sound heard = read(recording, 0);
        return heard.size() > samplesPerSecond && std::all_of(heard.end() - samplesPerSecond, heard.end(),
                                                              [](std::int16_t s) { return s == 0; });
    };
    EXPECT_TRUE(eventually(isSilent)) << "muted";
    const std::size_t heardSoFar = read(recording, 0).size();
    session.press("0");
    EXPECT_TRUE(eventually([&] { return contains(read(recording, 0), stretch, heardSoFar); }))
        << "heard again";
#if !VELM_IS_SANITIZED
    EXPECT_TRUE(demo.isRunning());
    EXPECT_LT(demo.peakKilobytes(), 48 * 1024);
#endif
    session.press("Escape");
    EXPECT_EQ(demo.waitForExit(), 0);
}

TEST_F(SoundTest, ADeviceThatIsLostNeverStopsThePicture) {
    Child demo({VELM_PROGRAM}, withDemo());
    ASSERT_TRUE(eventually(
        [this] {
            const Sound heard = read(recording, 0);
            return std::any_of(heard.begin(), heard.end(), [](std::int16_t s) { return s != 0; });
        },
        40))
        << demo.errors();
    pulseaudio.signal(9);
    session.movePointer(128, 128);
    const auto picture = [this] { return session.screen(0, 0, 256, 256); };
    for (int i = 0; i < 5; ++i) {
        const auto before = picture();
        EXPECT_TRUE(eventually([&] { return picture() != before; }, 5)) << "the picture stands still";
    }
    session.press("Escape");
    EXPECT_EQ(demo.waitForExit(), 0);
}

} // namespace
} // namespace velm::test
