// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The finished program on a real X server: how it starts, what it shows first, and all the ways in which it
// ends.
#include "foundation/identity.h"
#include "running_demo.h"

#include <X11/keysym.h>
#include <arpa/inet.h>
#include <csignal>
#include <regex>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace velm::test {
namespace {

/// Expects it to leave with status 1 and one line.
void expectEnd(Child& demo, const std::string& line) {
    EXPECT_EQ(demo.waitForExit(), 1);
    EXPECT_EQ(demo.errors(), "velm4030: " + line + "\n");
}

class ProgramTest : public RunningDemo {
protected:
    void expectEnd(const std::string& line) { velm::test::expectEnd(demo, line); }
};

/// Leaves by the Escape key, or by the close button.
class LeavingTest : public ProgramTest, public testing::WithParamInterface<const char*> {
protected:
    void leave() {
        GetParam() == std::string("Escape") ? session->press("Escape")
                                            : session->sendClose(session->findDemo());
        EXPECT_EQ(demo.waitForExit(), 0) << demo.errors();
        EXPECT_EQ(demo.errors(), "");
    }
};

INSTANTIATE_TEST_SUITE_P(By, LeavingTest, testing::Values("Escape", "CloseButton"),
                         [](const auto& way) { return std::string(way.param); });

TEST_P(LeavingTest, FadesOutIn32PresentationsAlsoDuringAPause) {
    waitForScene();
    pause();
    const std::size_t before = puts().size();
    leave();
    const std::vector<std::string> all = puts();
    ASSERT_EQ(all.size(), before + 32);
    EXPECT_EQ(std::count(all.end() - 30, all.end(), "000000"), 30);
}

TEST_P(LeavingTest, OvertakesACrowdOfKeys) {
    waitForScene();
    XEvent event{};
    event.type = KeyPress;
    event.xkey.keycode = XKeysymToKeycode(session->connection, XK_x); // does nothing
    constexpr int elevenMinutes = 20000;                              // at a key a frame
    session->send(session->findDemo(), event, KeyPressMask, elevenMinutes);
    leave();
}

TEST_F(ProgramTest, APauseRestsAndNothingPilesUpInIt) {
    waitForScene();
    pause();
    const double before = demo.processorSeconds();
    const double begin = secondsNow();
    pauseFor(2);
    EXPECT_LT((demo.processorSeconds() - before) / (secondsNow() - begin), VELM_IS_SANITIZED ? 0.2 : 0.05);
    EXPECT_TRUE(demo.isRunning());
    const long kilobytes = demo.peakKilobytes();
    XEvent motion{};
    motion.type = MotionNotify;
    for (int burst = 0; burst < 60; ++burst) {
        session->send(session->findDemo(), motion, PointerMotionMask, 5000);
        pauseFor(0.03); // a mouse, however fast, lets the program come to its turn
    }
    const std::size_t pictures = puts().size();
    session->press("p");
    EXPECT_TRUE(eventually([&] { return puts().size() > pictures; })) << "a key acts";
    EXPECT_TRUE(demo.isRunning());
    // The sanitizer keeps back what is freed.
    EXPECT_LT(demo.peakKilobytes() - kilobytes, (VELM_IS_SANITIZED ? 512 : 16) * 1024);
}

TEST_F(ProgramTest, ALostConnectionEndsItWithOneLine) {
    waitForScene();
    session.reset(); // our own connection would not survive the server
    server.end();
    expectEnd("lost the display \"" + server.display() + "\"");
}

TEST_F(ProgramTest, ADestroyedWindowEndsItWithOneLineAlsoDuringAPause) {
    waitForScene();
    pause();
    XDestroyWindow(session->connection, session->findDemo());
    XFlush(session->connection);
    expectEnd("the window is gone \"closed by another program\"");
}

TEST(Program, WithoutADisplayItSaysSoAndLeaves) {
    for (const char* display : {":4095", ""}) {
        Child demo({VELM_PROGRAM}, {{"DISPLAY", display}});
        expectEnd(demo, "cannot open display \"" + std::string(display) + "\"");
        EXPECT_EQ(demo.output(), "");
    }
}

TEST(Program, AnswersQuestionsWithoutADisplayAndTakesNoOtherArgument) {
    const std::pair<const char*, const char*> answers[] = {
        {"--help", "flashes"}, {"-h", "Escape"}, {"--version", "velm4030 "}};
    for (const auto& [question, answer] : answers) {
        Child demo({VELM_PROGRAM, question}, {{"DISPLAY", ""}});
        EXPECT_EQ(demo.waitForExit(), 0) << question;
        EXPECT_NE(demo.output().find(answer), std::string::npos) << demo.output();
        EXPECT_EQ(demo.errors(), "");
    }
    Child demo({VELM_PROGRAM, "extra-9"}, {{"DISPLAY", ""}});
    EXPECT_EQ(demo.waitForExit(), 2);
    EXPECT_EQ(demo.output(), "");
    EXPECT_EQ(demo.errors(), "velm4030: no such argument: 'extra-9'; --help tells more\n");
}

// A display on a loopback address answers the first message of a connection, as a real server tells it, and
// then is gone.
TEST(Program, ADisplayThatIsLostWhileItConnectsIsOneThatCannotBeOpened) {
    const XServer real("24");
    const int listener = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    bind(listener, reinterpret_cast<const sockaddr*>(&address), size);
    getsockname(listener, reinterpret_cast<sockaddr*>(&address), &size);
    listen(listener, 1);
    const std::string name = "127.0.0.1:" + std::to_string(ntohs(address.sin_port) - 6000);
    Child demo({VELM_PROGRAM}, {{"DISPLAY", name}});
    const int client = accept(listener, nullptr, nullptr);
    const int server = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un place{};
    place.sun_family = AF_UNIX;
    ("/tmp/.X11-unix/X" + real.display().substr(1)).copy(place.sun_path, sizeof place.sun_path - 1);
    connect(server, reinterpret_cast<const sockaddr*>(&place), sizeof place);
    std::array<char, 65536> message{};
    const auto bytes = [](ssize_t count) { return static_cast<std::size_t>(std::max<ssize_t>(count, 0)); };
    send(server, message.data(), bytes(recv(client, message.data(), message.size(), 0)), 0);
    // Eight bytes, the last two of which count the words that follow.
    const std::size_t head = bytes(recv(server, message.data(), 8, MSG_WAITALL));
    std::uint16_t words = 0;
    std::memcpy(&words, &message[6], sizeof words);
    send(client, message.data(), head + bytes(recv(server, &message[8], 4U * words, MSG_WAITALL)), 0);
    for (const int end : {server, client, listener}) {
        close(end);
    }
    expectEnd(demo, "cannot open display \"" + name + "\"");
}

TEST(Program, OnADisplayWithoutChannelMasksItSaysSoAndLeaves) {
    const XServer server("8");
    Child demo({VELM_PROGRAM}, {{"DISPLAY", server.display()}});
    expectEnd(demo, "needs a TrueColor display, unlike \"" + server.display() + "\"");
}

TEST(Program, CarriesTheIdentificationRecordsOfItsModules) {
    const std::string binary = contents(VELM_PROGRAM);
    std::size_t modules = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(VELM_SOURCES)) {
        const bool isKit = entry.path().parent_path().filename() == "kit"; // which is for other programs
        if (entry.path().extension() != ".h" || isKit) {
            continue;
        }
        const std::string text = contents(entry.path());
        std::smatch declaration;
        if (!std::regex_search(text, declaration, std::regex("extern const IDENTITY (\\w+)_identity;"))) {
            continue;
        }
        ++modules;
        std::string field = declaration[1];
        field.resize(8, ' ');
        field += '\0';
        bool found = false;
        for (std::size_t i = binary.find(field); i != std::string::npos; i = binary.find(field, i + 1)) {
            found = found || binary.substr(i, sizeof(IDENTITY)).find("ZENDORAK") != std::string::npos;
        }
        EXPECT_TRUE(found) << field;
    }
    EXPECT_GT(modules, 30U);
}

} // namespace
} // namespace velm::test
