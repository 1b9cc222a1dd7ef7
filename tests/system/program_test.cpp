// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The finished program on a real X server: how it starts, what it shows first, and all the ways in which it
// ends.
#include "foundation/identity.h"
#include "running_demo.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

namespace velm::test {
namespace {

using ProgramTest = RunningDemo;

TEST_F(ProgramTest, EscapeFadesOutIn32PresentationsAlsoDuringAPause) {
    waitForScene();
    session->press("p");
    std::size_t before = 0;
    ASSERT_TRUE(eventually([&] {
        const std::size_t earlier = before;
        before = puts().size();
        return earlier == before && (usleep(300000), puts().size() == before);
    })) << "the pause presents nothing";
    session->press("Escape");
    EXPECT_EQ(demo.waitForExit(), 0) << demo.errors();
    const std::vector<Put> all = puts();
    EXPECT_EQ(all.size(), before + 32);
    EXPECT_EQ(all.back().brightest, 0U);
    EXPECT_EQ(demo.errors(), "");
}

TEST_F(ProgramTest, TheCloseButtonFadesOutToo) {
    waitForScene();
    session->sendClose(session->findDemo());
    EXPECT_EQ(demo.waitForExit(), 0) << demo.errors();
    const std::vector<Put> all = puts();
    ASSERT_GT(all.size(), 62U);
    for (std::size_t i = all.size() - 30; i < all.size(); ++i) {
        EXPECT_EQ(all[i].brightest, 0U) << i;
    }
}

TEST_F(ProgramTest, TheFirstPictureComesWithin50Milliseconds) {
    ASSERT_TRUE(eventually([this] { return !puts().empty(); }));
    // Sanitizers slow everything down; the figure is one of the release build.
    EXPECT_LT(puts().front().milliseconds, VELM_IS_SANITIZED ? 1000 : 50);
    EXPECT_EQ(puts().front().brightest, 0xFFFFFFU) << "the first picture is the logo";
}

TEST_F(ProgramTest, ALostConnectionEndsItWithOneLine) {
    waitForScene();
    session.reset(); // our own connection would not survive the server
    server.end();
    EXPECT_EQ(demo.waitForExit(), 1);
    EXPECT_EQ(demo.errors(), "velm4030: lost the display \"" + server.display() + "\"\n");
}

TEST_F(ProgramTest, AKilledClientEndsItWithOneLine) {
    waitForScene();
    XKillClient(session->connection, session->findDemo());
    XFlush(session->connection);
    EXPECT_EQ(demo.waitForExit(), 1);
    EXPECT_EQ(demo.errors(), "velm4030: lost the display \"" + server.display() + "\"\n");
}

TEST_F(ProgramTest, ADestroyedWindowEndsItWithOneLineAlsoDuringAPause) {
    waitForScene();
    session->press("p");
    XDestroyWindow(session->connection, session->findDemo());
    XFlush(session->connection);
    EXPECT_EQ(demo.waitForExit(), 1);
    EXPECT_EQ(demo.errors(), "velm4030: the window is gone \"closed by another program\"\n");
}

TEST(Program, WithoutADisplayItSaysSoAndLeaves) {
    for (const char* display : {":4095", ""}) {
        Child demo({VELM_PROGRAM}, {{"DISPLAY", display}});
        EXPECT_EQ(demo.waitForExit(), 1);
        EXPECT_EQ(demo.errors(), "velm4030: cannot open display \"" + std::string(display) + "\"\n");
        EXPECT_EQ(demo.output(), "");
    }
}

TEST(Program, OnADisplayWithoutChannelMasksItSaysSoAndLeaves) {
    const XServer server("8");
    Child demo({VELM_PROGRAM}, {{"DISPLAY", server.display()}});
    EXPECT_EQ(demo.waitForExit(), 1);
    EXPECT_EQ(demo.errors(), "velm4030: needs a TrueColor display, unlike \"" + server.display() + "\"\n");
}

TEST(Program, CarriesTheIdentificationRecordsOfItsModules) {
    std::ifstream file(VELM_PROGRAM, std::ios::binary);
    const std::string binary{std::istreambuf_iterator<char>(file), {}};
    std::size_t modules = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(VELM_SOURCES)) {
        if (entry.path().extension() != ".h") {
            continue;
        }
        std::ifstream source(entry.path());
        const std::string text{std::istreambuf_iterator<char>(source), {}};
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
