// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The player's picture on real X servers of several kinds, with a real window manager and without one.
#include "demo/assets.h"
#include "demo/scenes.h"
#include "play_stage.h"
#include "support/owned.h"

namespace velm::test {
namespace {

/// How a picture may get to the server.
struct Way {
    const char* name;
    std::vector<std::string> serverArguments;
    bool shared;
};

class PlayFrames : public testing::TestWithParam<const char*> {};

TEST_P(PlayFrames, AreTheDemosBitForBitOnEveryWayToTheServer) {
    const Way ways[] = {{"shared", {}, true}, {"without", {"-extension", "MIT-SHM"}, false}};
    for (const Way& way : ways) {
        SCOPED_TRACE(way.name);
        Stage stage(GetParam(), "640x600", way.serverArguments);
        int code = 0;
        EXPECT_EQ(XQueryExtension(stage.session.connection, "MIT-SHM", &code, &code, &code) != 0, way.shared);
        stage.play({"--scale", "2"});
        const std::string maps = contents("/proc/" + std::to_string(stage.player->id()) + "/maps");
        // For 30 bits SDL has no memory of a window's, so none is shared.
        EXPECT_EQ(maps.find("/SYSV") != std::string::npos, way.shared && stage.depth != "30");
        stage.pause();
        stage.expectShown(2, 0, 0);
        EXPECT_EQ(stage.shown(2, 0, 0), static_cast<std::size_t>(stage.puts())) << "that of the same number";
        stage.leave();
        EXPECT_EQ(stage.player->output(), "sound: none\n");
    }
}

INSTANTIATE_TEST_SUITE_P(Depth, PlayFrames, testing::Values("16", "24", "30"),
                         [](const auto& depth) { return std::string(depth.param); });

TEST(Play, TheWindowSuitsTheScreenAndCanBeResizedAlsoDuringAPause) {
    Stage stage("24", "1280x1024", {});
    stage.play({});
    stage.pause();
    EXPECT_EQ(stage.session.placeOf(stage.window), (Session::Place{256, 128, 768, 768}));
    stage.expectShown(3, 0, 0);
    const struct {
        unsigned int width, height;
        int scale, left, top;
    } sizes[] = {{1000, 600, 2, 244, 44}, {300, 257, 1, 22, 0}, {520, 1000, 2, 4, 244}};
    for (const auto& size : sizes) {
        XMoveResizeWindow(stage.session.connection, stage.window, 0, 0, size.width, size.height);
        XSync(stage.session.connection, False);
        SCOPED_TRACE(size.width);
        stage.expectShown(size.scale, size.left, size.top);
    }
    // A cover that goes away leaves nothing of its own.
    XDestroyWindow(stage.session.connection, stage.makeWindow(50, 300, 200, 200));
    XSync(stage.session.connection, False);
    stage.expectShown(2, 4, 244);
    XDestroyWindow(stage.session.connection, stage.window);
    XFlush(stage.session.connection);
    EXPECT_EQ(stage.player->waitForExit(), 1);
    EXPECT_EQ(stage.player->errors(), "velm4030-play: the window is gone \"closed by another program\"\n");
}

TEST(Play, ThePointerIsThatOfThePicture) {
    Stage stage("24", "640x640", {});
    stage.play({});
    XResizeWindow(stage.session.connection, stage.window, 600, 640);
    XMoveWindow(stage.session.connection, stage.window, 0, 0);
    XSync(stage.session.connection, False);
    const std::ptrdiff_t resized = stage.puts();
    ASSERT_TRUE(eventually([&] { return stage.puts() > resized + 2; }));
    const Picture picture(IMG_fromPNM(assets::pointer.bytes, assets::pointer.size));
    const auto showsPointerAt = [&](int x, int y) {
        const auto pixels = stage.session.screen(0, 0, 600, 640);
        for (int i = 0; i < picture->width * picture->height; ++i) {
            const int seenX = 44 + 2 * (x + i % picture->width);
            const int seenY = 64 + 2 * (y + i / picture->width);
            const bool inside = seenX >= 44 && seenX < 44 + 512 && seenY < 64 + 512;
            if (picture->pixels[i] != 0 && inside &&
                pixels[static_cast<std::size_t>(seenY * 600 + seenX)] != picture->pixels[i]) {
                return false;
            }
        }
        return true;
    };
    const int places[][4] = {{44 + 2 * 20, 64 + 2 * 110, 20, 110},
                             {44 + 2 * 60 + 1, 64 + 2 * 150 + 1, 60, 150},
                             {44 - 10, 64 + 2 * 100, -5, 100}}; // in the margin, half of it in the picture
    for (const auto& [x, y, pictureX, pictureY] : places) {
        stage.session.movePointer(x, y);
        EXPECT_TRUE(eventually([&, px = pictureX, py = pictureY] { return showsPointerAt(px, py); }))
            << x << ", " << y;
    }
}

TEST(Play, AManagerFillsTheScreenHidesResizesAndCloses) {
    Stage stage("24", "1280x1050", {});
    stage.bringManager();
    stage.play({"--fullscreen"});
    EXPECT_TRUE(eventually([&] {
        return stage.session.placeOf(stage.window) == Session::Place{0, 0, 1280, 1050};
    }));
    // Four times as wide and high, the picture is enlarged in a part of a processor, busy as the machine may
    // be.
    const double before = stage.player->processorSeconds();
    const double begin = secondsNow();
    pauseFor(2);
    const double share = (stage.player->processorSeconds() - before) / (secondsNow() - begin);
    EXPECT_LT(share, VELM_IS_SANITIZED ? 1.0 : 0.5);
    testing::Test::RecordProperty("processorPercent", static_cast<int>(100 * share));
    stage.pause();
    stage.expectShown(4, 128, 13);
    stage.leave();

    stage.play({"--scale", "2"});
    const std::string id = std::to_string(stage.window);
    stage.session.xdotool({"windowsize", "--sync", id, "800", "600"});
    stage.session.xdotool({"windowminimize", "--sync", id});
    stage.awaitStandstill(); // an iconified window is not drawn
    const std::ptrdiff_t hidden = stage.puts();
    stage.session.xdotool({"windowactivate", "--sync", id});
    EXPECT_TRUE(eventually([&] { return stage.puts() > hidden; }));
    stage.pause();
    stage.expectShown(2, 144, 44);
    stage.session.press("alt+F4");
    EXPECT_EQ(stage.player->waitForExit(), 0) << "the close button counts as Escape";
    EXPECT_EQ(stage.player->errors(), "");
}

TEST(Play, WithoutAManagerItFillsTheScreenAndHasTheKeyboard) {
    Stage stage("24", "800x600", {});
    const ::Window other = stage.makeWindow(0, 0, 10, 10);
    XSetInputFocus(stage.session.connection, other, RevertToPointerRoot, CurrentTime);
    XSync(stage.session.connection, False);
    stage.play({"--fullscreen"});
    EXPECT_EQ(stage.session.placeOf(stage.window), (Session::Place{0, 0, 800, 600}));
    stage.pause();
    stage.expectShown(2, 144, 44);
    stage.leave();
    ::Window focus = 0;
    int revert = 0;
    XGetInputFocus(stage.session.connection, &focus, &revert);
    EXPECT_EQ(focus, other) << "the keyboard is given back";
}

TEST(Play, ALostDisplayEndsItWithOneLine) {
    auto stage = std::make_unique<Stage>("24", "640x480", std::vector<std::string>{});
    stage->play({"--fullscreen"});
    XKillClient(stage->session.connection, stage->window);
    XFlush(stage->session.connection);
    EXPECT_EQ(stage->player->waitForExit(), 1);
    EXPECT_EQ(stage->player->errors(),
              "velm4030-play: lost the display \"" + stage->server.display() + "\"\n");
    Child missing({VELM_PLAYER}, {{"DISPLAY", ":4095"}});
    EXPECT_EQ(missing.waitForExit(), 1);
    EXPECT_EQ(missing.errors(), "velm4030-play: cannot open display \":4095\"\n");
}

TEST(Play, TakesItsArgumentsAndRefusesWrongOnesWithOneLine) {
    for (const std::string wrong :
         {"nothing", "extra-9 nothing", "--scale 0", "--scale 2x", "--sound loud", "--scale 2 --fullscreen",
          "--volume 101", "--rate 50", "--frames 0", "--unknown"}) {
        Child player({"sh", "-c", "exec \"$0\" " + wrong, VELM_PLAYER}, {});
        EXPECT_EQ(player.waitForExit(), 2) << wrong;
        const std::string line = player.errors();
        EXPECT_EQ(line.substr(0, 15), "velm4030-play: ");
        EXPECT_EQ(line.find('\n'), line.size() - 1) << line;
    }
    Child list({VELM_PLAYER, "--list"}, {{"DISPLAY", ""}});
    EXPECT_EQ(list.waitForExit(), 0);
    const std::string lines = list.output();
    EXPECT_EQ(static_cast<std::size_t>(std::count(lines.begin(), lines.end(), '\n')), SCENE_all().size() + 1)
        << "and the schedule";
    const XServer server("24");
    const std::string play = "exec \"$0\" --frames 60 --rate 60 --sound oss interlude-a";
    Child silent({"sh", "-c", play, VELM_PLAYER}, {{"DISPLAY", server.display()}});
    EXPECT_EQ(silent.waitForExit(), 0) << silent.errors();
    EXPECT_EQ(silent.output(), "sound: none (no oss device)\n");
    EXPECT_EQ(runTool({"sh", "-c", play + " >&-", VELM_PLAYER}, {{"DISPLAY", server.display()}}), 0);
}

} // namespace
} // namespace velm::test
