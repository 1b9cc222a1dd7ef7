// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// velm4030-live as it is installed, in a real window, with real saves. The program that it plays shows its
// version and the number of its frame as one colour: 0xVVFFFF.
#include "process.h"
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
    void save(int version, const std::string& deed = "") const {
        std::ofstream(folder / "new") << "#include \"kit/kit.h\"\n"
                                         "int main() {\n"
                                         "    velm::KIT* kit = velm::KIT_new();\n"
                                         "    while (velm::KIT_nextFrame(kit)) {\n"
                                      << deed << "\n    velm::IMG_fill(kit->screen, " << version
                                      << " << 16 | (kit->frame & 0xFFFF));\n    }\n}\n";
        fs::rename(folder / "new", folder / "main.cpp");
    }
    void start() {
        live = std::make_unique<Child>(
            std::vector<std::string>{VELM_LIVE, "--silent", "--scale", "1", folder / "main.cpp"},
            Environment{{"DISPLAY", server.display()}, {"TMPDIR", folder}, {"SDL_VIDEODRIVER", "x11"}});
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
    /// Child processes of the window that are there, dead ones, too.
    [[nodiscard]] std::size_t children() const {
        std::ifstream list("/proc/" + std::to_string(live->id()) + "/task/" + std::to_string(live->id()) +
                           "/children");
        return static_cast<std::size_t>(std::distance(std::istream_iterator<int>(list), {}));
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
    ASSERT_TRUE(shows(1)) << live->errors();
    unsigned long before = frame();
    save(2);
    ASSERT_TRUE(shows(2)) << live->errors();
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
    save(6, "return 3;");
    EXPECT_TRUE(says("ended with status 3"));
    save(7);
    EXPECT_TRUE(shows(7)) << live->errors();
    std::printf("%s", live->output().c_str());
}

TEST_F(Live, TheTutorialsFirstFilePlays) {
    std::ofstream(folder / "main.cpp") << "";
    start();
    EXPECT_TRUE(says("undefined reference to `main'"));
    fs::copy_file(VELM_TUTORIAL, folder / "main.cpp", fs::copy_options::overwrite_existing);
    EXPECT_TRUE(eventually([&] { return live->output().find("playing") != std::string::npos; }, 60));
    std::printf("the tutorial: %s", live->output().c_str());
    live->signal(SIGTERM);
    EXPECT_EQ(live->waitForExit(), 0);
}

TEST_F(Live, TwentySavesInARowLeaveNothingBehind) {
    save(1);
    start();
    ASSERT_TRUE(shows(1)) << live->errors();
    save(2);
    ASSERT_TRUE(shows(2));
    const std::size_t files = countIn(folder);
    const std::size_t open = descriptors();
    EXPECT_EQ(children(), 2U) << "the seen one and the one before";
    for (int number = 11; number <= 30; ++number) {
        save(number, number % 4 == 0 ? "no C++" : "");
        if (number % 5 == 0) {
            pauseBriefly(); // some are compiled to the end, others are overtaken
        }
    }
    EXPECT_TRUE(shows(30)) << live->errors();
    EXPECT_TRUE(eventually([&] {
        return children() == 2 && descriptors() == open && countIn(folder) == files;
    })) << children()
        << " children, " << descriptors() << " descriptors, " << countIn(folder) << " files";
    const std::string path =
        "/proc/" + std::to_string(live->id()) + "/task/" + std::to_string(live->id()) + "/children";
    std::ifstream list(path);
    const std::vector<int> programs{std::istream_iterator<int>(list), {}};
    live->signal(SIGTERM);
    EXPECT_EQ(live->waitForExit(), 0);
    EXPECT_EQ(countIn(folder), 1U) << "the source alone";
    for (const int program : programs) {
        EXPECT_FALSE(fs::exists("/proc/" + std::to_string(program)));
    }
}

} // namespace
} // namespace velm::test
