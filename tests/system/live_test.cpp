// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// velm4030-live as it is installed, in a real window, with real saves. The program that it plays shows its
// version and the number of its frame as one colour: 0xVVFFFF.
#include "process.h"
#include "pulse_server.h"
#include "x11_session.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace velm::test {
namespace {

namespace fs = std::filesystem;

class Live : public ::testing::Test {
protected:
    Live() : server("24", "256x256"), session(server.display()) { fs::create_directory(folder); }
    ~Live() override { fs::remove_all(folder); }

    /// Writes a version that does something before each frame, beside the source, and moves it there as
    /// editors do.
    void save(int version, const std::string& deed = "", const std::string& headers = "") const {
        std::ofstream(folder / "new") << headers
                                      << "#include \"kit/kit.h\"\n"
                                         "int main() {\n"
                                         "    velm::KIT* kit = velm::KIT_new();\n"
                                         "    while (velm::KIT_nextFrame(kit)) {\n"
                                      << deed << "\n    velm::IMG_fill(kit->screen, " << version
                                      << " << 16 | (kit->frame & 0xFFFF));\n    }\n}\n";
        fs::rename(folder / "new", folder / "main.cpp");
    }
    /// Programs on a library with the sanitizers in it need them, too, and crash as any other one.
    void start(const std::vector<std::string>& options = {"--silent"}, Environment more = {}) {
        std::vector<std::string> command{VELM_LIVE, "--scale", "1", folder / "main.cpp"};
        command.insert(command.end(), options.begin(), options.end());
        more.insert(more.end(), {{"DISPLAY", server.display()},
                                 {"TMPDIR", folder},
                                 {"SDL_VIDEODRIVER", "x11"},
                                 {"CXX", VELM_COMPILER},
                                 {"CXXFLAGS", VELM_IS_SANITIZED ? "-fsanitize=address,undefined" : ""},
                                 {"ASAN_OPTIONS", VELM_IS_SANITIZED ? "handle_segv=0:handle_abort=0" : ""}});
        live = std::make_unique<Child>(command, more);
    }
    /// In the middle of the window.
    [[nodiscard]] unsigned long colour() const { return session.screen(128, 100, 1, 1)[0] & 0xFFFFFF; }
    [[nodiscard]] int version() const { return static_cast<int>(colour() >> 16); }
    [[nodiscard]] unsigned long frame() const { return colour() & 0xFFFF; }
    /// True when the last line stands on the ground of an error.
    [[nodiscard]] bool hasLine() const { return (session.screen(0, 253, 1, 1)[0] & 0xFFFFFF) == 0x300010; }
    [[nodiscard]] bool shows(int wanted) const {
        return eventually([&] { return version() == wanted && !hasLine(); }, 60);
    }
    [[nodiscard]] bool says(const std::string& words) const {
        return eventually([&] { return live->errors().find(words) != std::string::npos && hasLine(); }, 60);
    }
    [[nodiscard]] bool runsOn() const {
        const unsigned long now = frame();
        return eventually([&] { return frame() > now; }, 10);
    }
    /// Frames a second, over a second: on a busy machine some seconds have too few.
    [[nodiscard]] double rate() const {
        const unsigned long first = frame();
        const double begin = secondsNow();
        pauseFor(1);
        const unsigned long last = frame();
        return static_cast<double>(last - first) / (secondsNow() - begin);
    }
    /// Child processes of the window that are there, dead ones, too.
    [[nodiscard]] std::vector<std::string> children() const {
        const std::string id = std::to_string(live->id());
        std::ifstream list("/proc/" + id + "/task/" + id + "/children");
        return {std::istream_iterator<std::string>(list), {}};
    }
    [[nodiscard]] std::size_t countIn(const fs::path& place) const {
        return static_cast<std::size_t>(std::distance(fs::recursive_directory_iterator(place), {}));
    }
    [[nodiscard]] std::size_t descriptors() const {
        return countIn("/proc/" + std::to_string(live->id()) + "/fd");
    }

    fs::path folder = temporaryFile() + ".live";
    XServer server;
    Session session;
    std::unique_ptr<Child> live;
};

TEST_F(Live, WhatFailsCostsTheNewVersionAlone) {
    save(1);
    start();
    ASSERT_TRUE(shows(1)) << live->output() << live->errors();
    unsigned long before = frame();
    save(2);
    ASSERT_TRUE(shows(2)) << live->output() << live->errors();
    EXPECT_GT(frame(), before) << "the count of frames goes on";
    save(3, "this is no C++");
    EXPECT_TRUE(says("main.cpp:5:1: error: "));
    EXPECT_EQ(version(), 2);
    before = frame();
    save(4, "static int n = 0; if (++n > 5) { *static_cast<volatile int*>(nullptr) = 1; }");
    EXPECT_TRUE(says("crashed: "));
    EXPECT_TRUE(eventually([&] { return version() == 2; })) << "after frames of the new one";
    EXPECT_GT(frame(), before);
    EXPECT_TRUE(runsOn());
    save(5, "for (volatile bool ever = true; ever;) {}");
    EXPECT_TRUE(says("gave no frame"));
    EXPECT_EQ(version(), 2);
    EXPECT_TRUE(runsOn());
    save(6, "_exit(3);", "#include <unistd.h>\n");
    EXPECT_TRUE(says("ended with status 3"));
    save(7);
    EXPECT_TRUE(shows(7)) << live->output() << live->errors();
}

TEST_F(Live, TheTutorialsFirstFilePlays) {
    std::ofstream(folder / "main.cpp") << "";
    start();
    EXPECT_TRUE(says("undefined reference to `main'"));
    fs::copy_file(VELM_TUTORIAL, folder / "main.cpp", fs::copy_options::overwrite_existing);
    EXPECT_TRUE(eventually([&] { return live->output().find("playing") != std::string::npos; }, 60));
    live->signal(SIGTERM);
    EXPECT_EQ(live->waitForExit(), 0) << live->output() << live->errors();
}

TEST_F(Live, AProgramKeepsItsOwnRate) {
    save(1, "if (kit->sound->fd >= 0) { return 1; } // the window is silent");
    start();
    ASSERT_TRUE(shows(1)) << live->output() << live->errors();
    double seen = 0;
    const auto isNear = [&](double wanted) {
        return eventually([&] { return std::abs((seen = rate()) - wanted) < wanted / 5; });
    };
    EXPECT_TRUE(isNear(30)) << seen;
    save(2, "if (kit->rate == 30) { velm::KIT_setRate(kit, 60); }");
    ASSERT_TRUE(shows(2)) << live->output() << live->errors();
    EXPECT_TRUE(isNear(60)) << seen;
}

// It may take its time, and rest for longer than the window waits for one that hangs.
TEST_F(Live, AProgramGetsEveryKeyInOrder) {
    constexpr double longerThanAnyWait = 11;
    save(1, R"(
        static int sum = 0;
        const auto note = [kit](char key) {
            sum = (sum * 3 + key) & 0xFFFF;
            velm::IMG_fill(kit->screen, 1 << 16 | sum);
        };
        if (kit->key == 'p') {
            for (char key = 0; key != 'g'; velm::XKBD_rest(kit->keyboard)) {
                velm::XKBD_poll(kit->keyboard);
                if ((key = std::exchange(kit->keyboard->text[0], 0)) != 0) { note(key); }
            }
        } else if (kit->key != 0) {
            velm::CLOCK_sleep(500000);
            note(kit->key);
        }
        kit->keeps = true;
        continue;)",
         "#include \"platform/clock.h\"\n#include <utility>\n");
    start();
    session.movePointer(128, 128);
    const auto type = [this](const std::string& keys) {
        std::vector<std::string> command{"key", "--delay", "1"};
        for (const char key : keys) {
            command.push_back(std::string(1, key));
        }
        session.xdotool(command);
    };
    unsigned long sum = 0;
    const auto shows = [&](const std::string& keys) {
        for (const char key : keys) {
            sum = (sum * 3 + static_cast<unsigned long>(key)) & 0xFFFF;
        }
        return eventually([&] { return colour() == (1UL << 16 | sum); });
    };
    ASSERT_TRUE(eventually([this] { return live->output().find("playing") != std::string::npos; }));
    type("abcabd");
    EXPECT_TRUE(shows("abcabd"));
    type("p");
    pauseFor(longerThanAnyWait);
    EXPECT_FALSE(hasLine()) << live->output() << live->errors();
    type("uvwugx");
    EXPECT_TRUE(shows("uvwugx")) << "the pause is over";
}

TEST_F(Live, WhoWritesOverTheChannelIsAloneWithIt) {
    save(1);
    start({});
    ASSERT_TRUE(shows(1)) << live->output() << live->errors();
    for (const char* const garbage : {"255", "1", "i * n"}) {
        save(2,
             std::string(R"(
            static char* const channel = static_cast<char*>(
                mmap(nullptr, sizeof(velm::Channel), PROT_READ | PROT_WRITE, MAP_SHARED,
                     atoi(getenv(velm::channelVariable)), 0));
            for (std::size_t i = 0; i < sizeof(velm::Channel); ++i) { channel[i] = )") +
                 garbage + "; } if (++n == 1) { alarm(1); }",
             "#include \"platform/channel.h\"\n#include <cstdlib>\n#include <sys/mman.h>\n#include "
             "<unistd.h>\nint n;\n");
        EXPECT_TRUE(says("crashed: ")) << garbage;
        save(3);
        EXPECT_TRUE(shows(3)) << garbage << live->output() << live->errors();
        EXPECT_TRUE(runsOn());
    }
    live->signal(SIGTERM);
    EXPECT_EQ(live->waitForExit(), 0) << live->output() << live->errors();
}

/// Half periods of a square wave in the longest stretch without a tenth of a second of silence: what a busy
/// sound server loses is shorter.
int longestWave(const Sound& heard, int halfPeriod) {
    constexpr int silence = samplesPerSecond / 10;
    int longest = 0;
    int count = 0;
    int length = 0;
    for (std::size_t i = 1; i < heard.size(); ++i) {
        ++length;
        if ((heard[i] < 0) != (heard[i - 1] < 0)) {
            count = length > silence ? 0 : count + (std::abs(length - halfPeriod) <= 1 ? 1 : 0);
            longest = std::max(longest, count);
            length = 0;
        }
    }
    return longest;
}

TEST_F(Live, AProgramIsHeardWithoutABreak) {
    constexpr int halfPeriod = 50;
    constexpr int seconds = 2;
    PulseServer sound;
    sound.startServer();
    save(1, R"(
        if (kit->sound->queue->count < 2) {
            static velm::SAMPLE* const wave = velm::SAMPLE_new();
            for (int i = 0; wave->length < velm::SAMPLE_rate; ++i) {
                velm::SAMPLE_append(wave, i / 50 % 2 == 0 ? 1000 : -1000);
            }
            velm::LIST_append(kit->sound->queue, wave);
        }
        if (kit->frame == 100) { velm::KIT_setRate(kit, 60); })");
    start({}, sound.pulse);
    EXPECT_TRUE(eventually([&] {
        return longestWave(sound.recorded(), halfPeriod) >=
               seconds * static_cast<int>(samplesPerSecond) / halfPeriod;
    })) << longestWave(sound.recorded(), halfPeriod);
}

TEST_F(Live, TwentySavesInARowLeaveNothingBehind) {
    save(1);
    start();
    ASSERT_TRUE(shows(1)) << live->output() << live->errors();
    save(2);
    ASSERT_TRUE(shows(2));
    const std::size_t files = countIn(folder);
    const std::size_t open = descriptors();
    EXPECT_EQ(children().size(), 2U) << "the seen one and the one before";
    for (int number = 11; number <= 30; ++number) {
        save(number, number % 4 == 0 ? "no C++" : "");
        if (number % 5 == 0) {
            pauseFor(0.002); // some are compiled to the end, others are overtaken
        }
    }
    EXPECT_TRUE(shows(30)) << live->output() << live->errors();
    EXPECT_TRUE(eventually([&] {
        return children().size() == 2 && descriptors() == open && countIn(folder) == files;
    })) << children().size()
        << " children, " << descriptors() << " descriptors, " << countIn(folder) << " files";
    const std::vector<std::string> programs = children();
    live->signal(SIGTERM);
    EXPECT_EQ(live->waitForExit(), 0);
    EXPECT_EQ(countIn(folder), 1U) << "the source alone";
    for (const std::string& program : programs) {
        EXPECT_FALSE(fs::exists("/proc/" + program));
    }
}

} // namespace
} // namespace velm::test
