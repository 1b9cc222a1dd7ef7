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
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>
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

    /// Waits for the scene and sends eleven minutes of keys that do nothing, at one key a frame.
    void crowd() {
        waitForScene();
        XEvent event{};
        event.type = KeyPress;
        event.xkey.keycode = XKeysymToKeycode(session->connection, XK_x);
        session->send(session->findDemo(), event, KeyPressMask, 20000);
    }
};

/// A display on a loopback address that answers the first message of a connection, as a real server told it,
/// and then is gone.
class ShortLivedDisplay {
public:
    explicit ShortLivedDisplay(const XServer& server) {
        sockaddr_in place{};
        place.sin_family = AF_INET;
        place.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof place;
        bind(listener, reinterpret_cast<const sockaddr*>(&place), size);
        getsockname(listener, reinterpret_cast<sockaddr*>(&place), &size);
        name = "127.0.0.1:" + std::to_string(ntohs(place.sin_port) - 6000);
        listen(listener, 1);
        thread = std::thread([this, socketOfServer = "/tmp/.X11-unix/X" + server.display().substr(1)] {
            answerOnce(socketOfServer);
        });
    }
    ~ShortLivedDisplay() {
        thread.join();
        close(listener);
    }
    ShortLivedDisplay(const ShortLivedDisplay&) = delete;
    ShortLivedDisplay& operator=(const ShortLivedDisplay&) = delete;

    std::string name;

private:
    void answerOnce(const std::string& socketOfServer) const {
        const int client = accept(listener, nullptr, nullptr);
        const int server = socket(AF_UNIX, SOCK_STREAM, 0);
        sockaddr_un place{};
        place.sun_family = AF_UNIX;
        socketOfServer.copy(place.sun_path, sizeof place.sun_path - 1);
        connect(server, reinterpret_cast<const sockaddr*>(&place), sizeof place);
        std::array<char, 65536> message{};
        send(server, message.data(), bytes(recv(client, message.data(), message.size(), 0)), 0);
        // Eight bytes, the last two of which count the words that follow.
        const std::size_t head = bytes(recv(server, message.data(), 8, MSG_WAITALL));
        std::uint16_t words = 0;
        std::memcpy(&words, &message[6], sizeof words);
        const std::size_t rest = bytes(recv(server, &message[8], 4U * words, MSG_WAITALL));
        send(client, message.data(), head + rest, 0);
        close(server);
        close(client);
    }
    static std::size_t bytes(ssize_t count) { return count < 0 ? 0 : static_cast<std::size_t>(count); }

    int listener = socket(AF_INET, SOCK_STREAM, 0);
    std::thread thread;
};

TEST_F(ProgramTest, EscapeFadesOutIn32PresentationsAlsoDuringAPause) {
    waitForScene();
    pause();
    const std::size_t before = puts().size();
    session->press("Escape");
    EXPECT_EQ(demo.waitForExit(), 0) << demo.errors();
    const std::vector<std::uint32_t> all = puts();
    EXPECT_EQ(all.size(), before + 32);
    EXPECT_EQ(all.back(), 0U);
    EXPECT_EQ(demo.errors(), "");
}

TEST_F(ProgramTest, TheCloseButtonFadesOutAlsoDuringAPause) {
    waitForScene();
    pause();
    session->sendClose(session->findDemo());
    EXPECT_EQ(demo.waitForExit(), 0) << demo.errors();
    const std::vector<std::uint32_t> all = puts();
    ASSERT_GT(all.size(), 62U);
    for (std::size_t i = all.size() - 30; i < all.size(); ++i) {
        EXPECT_EQ(all[i], 0U) << i;
    }
}

TEST_F(ProgramTest, EscapeOvertakesACrowdOfKeys) {
    crowd();
    session->press("Escape");
    EXPECT_EQ(demo.waitForExit(), 0);
}

TEST_F(ProgramTest, TheCloseButtonOvertakesACrowdOfKeys) {
    crowd();
    session->sendClose(session->findDemo());
    EXPECT_EQ(demo.waitForExit(), 0);
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

TEST_F(ProgramTest, TheFirstPictureIsTheLogo) {
    ASSERT_TRUE(eventually([this] { return !puts().empty(); }));
    EXPECT_EQ(puts().front(), 0xFFFFFFU);
}

TEST_F(ProgramTest, ALostConnectionEndsItWithOneLine) {
    waitForScene();
    session.reset(); // our own connection would not survive the server
    server.end();
    expectEnd("lost the display \"" + server.display() + "\"");
}

TEST_F(ProgramTest, AKilledClientEndsItWithOneLine) {
    waitForScene();
    XKillClient(session->connection, session->findDemo());
    XFlush(session->connection);
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

TEST(Program, ADisplayThatIsLostWhileItConnectsIsOneThatCannotBeOpened) {
    const XServer server("24");
    const ShortLivedDisplay display(server);
    Child demo({VELM_PROGRAM}, {{"DISPLAY", display.name}});
    expectEnd(demo, "cannot open display \"" + display.name + "\"");
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
        constexpr std::string_view declaration = "extern const IDENTITY ";
        const std::size_t at = text.find(declaration);
        if (at == std::string::npos) {
            continue;
        }
        ++modules;
        const std::size_t word = at + declaration.size();
        std::string field = text.substr(word, text.find("_identity;", word) - word);
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
