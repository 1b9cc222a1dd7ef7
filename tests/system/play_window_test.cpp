// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What people expect of a player, on a real X server and with real keys; and the player as a screen saver, in
// a window that another program owns.
#include "play_stage.h"

#include <X11/Xutil.h>
#include <X11/extensions/scrnsaver.h>
#include <set>

namespace velm::test {
namespace {

/// The pixels of a picture file, as netpbm reads it.
Frame pixelsOf(const std::string& png) {
    Child reader({"pngtopnm", png}, {});
    EXPECT_EQ(reader.waitForExit(), 0) << reader.errors();
    const std::string file = reader.output();
    const std::string head = "P6\n256 256\n255\n";
    EXPECT_EQ(file.compare(0, head.size(), head), 0) << file.substr(0, head.size());
    Frame pixels;
    for (std::size_t i = head.size(); i + 2 < file.size(); i += 3) {
        const auto byte = [&](std::size_t at) {
            return static_cast<std::uint32_t>(static_cast<unsigned char>(file[at]));
        };
        pixels.push_back(byte(i) << 16 | byte(i + 1) << 8 | byte(i + 2));
    }
    return pixels;
}

TEST(PlayKeys, KeepThePictureShowTheKeysAndTheVolumeAndNeverTouchTheFrame) {
    const TemporaryFolder home;
    std::filesystem::create_directories(home / ".config");
    std::filesystem::create_directories(home / "Bilder");
    std::ofstream(home / ".config/user-dirs.dirs") << "# folders\nXDG_PICTURES_DIR=\"$HOME/Bilder\"\n";
    std::ofstream(home / "Bilder/velm4030-1.png") << "somebody's";
    Stage stage("24", "640x600");
    stage.more = {{"HOME", home.path}, {"XDG_CONFIG_HOME", ""}};
    stage.play({"--scale", "2"});
    stage.pause();
    stage.expectShown(2, 0, 0);
    const std::size_t number = stage.shown(2, 0, 0);
    ASSERT_NE(number, 0U);
    for (const std::string key : {"h", "minus", "plus", "F12"}) {
        stage.session.press(key);
        EXPECT_TRUE(eventually([&] { return stage.shown(2, 0, 0) == 0; })) << key << " shows something";
        if (key == "h") {
            stage.session.press("F1");
        }
        EXPECT_TRUE(eventually([&] { return stage.shown(2, 0, 0) == number; })) << key << " goes again";
    }
    EXPECT_EQ(stage.player->output(), "sound: none\npicture: " + home / "Bilder/velm4030-2.png\n");
    EXPECT_EQ(pixelsOf(home / "Bilder/velm4030-2.png"), captured()[number - 1]);
    EXPECT_EQ(contents(home / "Bilder/velm4030-1.png"), "somebody's");
    // The next part begins by fading to black.
    stage.session.press("p");
    const std::size_t before = contents(stage.spyLog).size();
    stage.session.press("Right");
    EXPECT_TRUE(
        eventually([&] { return contents(stage.spyLog).find("\n000000\n", before) != std::string::npos; }));
}

TEST(PlayKeys, ThatAreHeldActOnce) {
    Stage stage("24", "640x480");
    stage.play({"--scale", "1"});
    stage.session.xdotool({"keydown", "p"});
    stage.awaitStandstill();
    const std::ptrdiff_t before = stage.puts();
    pauseFor(1.2); // the server repeats a key after 0.66 s, 25 times a second
    EXPECT_EQ(stage.puts(), before) << "the pause stays";
    stage.session.xdotool({"keyup", "p"});
    stage.leave();
}

TEST(PlayWindow, SaysWhatItIsAndFillsTheScreenAtAKeyWithAManagerAndWithout) {
    for (const bool managed : {true, false}) {
        SCOPED_TRACE(managed);
        Stage stage("24", "800x600");
        if (managed) {
            stage.bringManager();
        }
        stage.play({"--scale", "1"});
        XClassHint names{};
        XGetClassHint(stage.session.connection, stage.window, &names);
        EXPECT_STREQ(names.res_class, "VELM4030");
        XFree(names.res_name);
        XFree(names.res_class);
        EXPECT_EQ(stage.session.property(stage.window, "_NET_WM_PID"),
                  std::vector{static_cast<unsigned long>(stage.player->id())});
        const auto icon = stage.session.property(stage.window, "_NET_WM_ICON");
        EXPECT_GT(std::set<unsigned long>(icon.begin(), icon.end()).size(), 100U) << "a painted icon";
        const Session::Place before = stage.session.placeOf(stage.window);
        for (const std::string key : {"F11", "alt+Return"}) {
            stage.session.press(key);
            EXPECT_TRUE(eventually([&] {
                return stage.session.placeOf(stage.window) == Session::Place{0, 0, 800, 600};
            }));
            stage.session.press(key);
            EXPECT_TRUE(eventually([&] { return stage.session.placeOf(stage.window) == before; }));
        }
        stage.leave();
    }
}

TEST(PlayWindow, TheRestingPointerLeavesTheFullScreenAndTheScreenSaverWaits) {
    Stage stage("24", "640x600");
    XSetScreenSaver(stage.session.connection, 1, 0, PreferBlanking, AllowExposures);
    XSync(stage.session.connection, False);
    stage.play({"--fullscreen"});
    stage.pause();
    const std::size_t corner = stage.shown(2, 64, 44);
    EXPECT_NE(corner, 0U) << "a pointer that never moved stays in its corner";
    stage.session.press("p");
    const auto pixelAt = [&](int x, int y) { return stage.session.screen(x, y, 1, 1)[0]; };
    stage.session.movePointer(100, 400);
    EXPECT_TRUE(eventually([&] { return pixelAt(102, 410) != 0; })) << "the drawn pointer";
    const double moved = secondsNow();
    EXPECT_TRUE(eventually([&] { return pixelAt(102, 410) == 0 && pixelAt(104, 412) == 0; }));
    EXPECT_GT(secondsNow() - moved, 1.5);
    stage.session.movePointer(102, 400);
    EXPECT_TRUE(eventually([&] { return pixelAt(104, 410) != 0; })) << "it comes back";
    XScreenSaverInfo* const saver = XScreenSaverAllocInfo();
    XScreenSaverQueryInfo(stage.session.connection, DefaultRootWindow(stage.session.connection), saver);
    EXPECT_NE(saver->state, ScreenSaverOn);
    stage.leave();
    EXPECT_TRUE(eventually([&] {
        XScreenSaverQueryInfo(stage.session.connection, DefaultRootWindow(stage.session.connection), saver);
        return saver->state == ScreenSaverOn;
    })) << "without the player it comes";
    XFree(saver);
}

TEST(PlaySaver, DrawsIntoAWindowOfAnothersFollowsItAndEndsWithIt) {
    Stage stage("24", "640x480");
    ::Display* const display = stage.session.connection;
    for (const bool byVariable : {false, true}) {
        SCOPED_TRACE(byVariable);
        stage.window = stage.makeWindow(20, 30, 300, 280);
        char number[24];
        std::snprintf(number, sizeof number, "0x%lx", stage.window);
        stage.more = {{"XSCREENSAVER_WINDOW", byVariable ? number : ""}};
        stage.start(byVariable ? std::vector<std::string>{"--root"}
                               : std::vector<std::string>{"--window-id", std::to_string(stage.window)});
        EXPECT_TRUE(eventually([&] { return stage.runsAt(1, 22, 12); }));
        XWindowAttributes attributes{};
        XGetWindowAttributes(display, stage.window, &attributes);
        constexpr long input =
            KeyPressMask | KeyReleaseMask | ButtonPressMask | ButtonReleaseMask | PointerMotionMask;
        EXPECT_EQ(attributes.all_event_masks & input, 0) << "its input stays the owner's";
        stage.session.press("Escape");
        XResizeWindow(display, stage.window, 520, 440);
        XSync(display, False);
        EXPECT_TRUE(eventually([&] { return stage.runsAt(1, 132, 92); }));
        XDestroyWindow(display, stage.window);
        XSync(display, False);
        EXPECT_EQ(stage.player->waitForExit(), 0);
        EXPECT_EQ(stage.player->errors(), "");
        EXPECT_EQ(stage.player->output(), "sound: none\n");
    }
    Child missing({VELM_PLAYER, "--window-id", "0x7654321"}, {{"DISPLAY", stage.server.display()}});
    EXPECT_EQ(missing.waitForExit(), 1);
    EXPECT_EQ(missing.errors(), "velm4030-play: no such window \"0x7654321\"\n");
}

TEST(PlaySaver, OnTheRootItDrawsIntoWhatStandsInForIt) {
    Stage stage("24", "640x480");
    ::Display* const display = stage.session.connection;
    stage.window = DefaultRootWindow(display);
    for (const bool hasStandIn : {false, true}) {
        if (hasStandIn) {
            stage.window = stage.makeWindow(20, 30, 400, 300);
            XChangeProperty(display, stage.window, XInternAtom(display, "__SWM_VROOT", False),
                            XInternAtom(display, "WINDOW", False), 32, PropModeReplace,
                            reinterpret_cast<const unsigned char*>(&stage.window), 1);
            XSync(display, False);
        }
        stage.start({"--root"});
        EXPECT_TRUE(hasStandIn ? stage.runsAt(1, 72, 22) : stage.runsAt(1, 192, 112)) << hasStandIn;
        stage.player->signal(SIGTERM);
        EXPECT_EQ(stage.player->waitForExit(), 128 + SIGTERM) << "as screen savers are ended";
    }
}

/// A Wayland compositor; its folder has its socket.
struct Compositor {
    TemporaryFolder folder;
    Child child;

    Compositor(const Stage& stage, std::vector<std::string> arguments)
        : child(complete(std::move(arguments)),
                {{"DISPLAY", stage.server.display()}, {"XDG_RUNTIME_DIR", folder.path}}) {
        EXPECT_TRUE(eventually([this] { return std::filesystem::exists(folder / "velm"); }));
    }
    static std::vector<std::string> complete(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), {"weston", "--no-config", "--socket=velm", "--idle-time=0"});
        return arguments;
    }
    [[nodiscard]] Environment environment() const {
        return {{"WAYLAND_DISPLAY", "velm"}, {"XDG_RUNTIME_DIR", folder.path}};
    }
};

TEST(PlayWayland, ItIsNativeWhereTheCompositorHasASeatAndGoesOnToX11WhereItHasNone) {
    Stage stage("24", "640x600");
    {
        const Compositor seatless(stage, {"--backend=headless-backend.so"});
        stage.more = seatless.environment();
        if (VELM_SDL_NEEDS_SEAT) {
            stage.play({"--scale", "2"});
            EXPECT_TRUE(eventually([&] { return stage.runsAt(2, 0, 0); }));
            stage.leave();
        } else { // nobody sees it there
            Environment environment = stage.more;
            environment.emplace_back("DISPLAY", stage.server.display());
            Child unseen({VELM_PLAYER, "schedule", "--sound", "none", "--frames", "30"}, environment);
            EXPECT_EQ(unseen.waitForExit(), 0) << unseen.errors();
        }
    }
    const Compositor compositor(stage, {"--backend=x11-backend.so", "--shell=kiosk-shell.so", "--use-pixman",
                                        "--width=640", "--height=600"});
    Environment environment = compositor.environment();
    environment.emplace_back("DISPLAY", "");
    stage.player = std::make_unique<Child>(
        std::vector<std::string>{VELM_PLAYER, "schedule", "--sound", "none"}, environment);
    stage.window = DefaultRootWindow(stage.session.connection); // the compositor's window covers it
    EXPECT_TRUE(eventually([&] { return stage.runsAt(2, 64, 44); })) << stage.player->errors();
    stage.session.press("Escape");
    EXPECT_EQ(stage.player->waitForExit(), 0);
}

} // namespace
} // namespace velm::test
