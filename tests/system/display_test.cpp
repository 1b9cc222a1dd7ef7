// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The window modules against a real X server, at the depth that VELM_TEST_DEPTH names.
#include "platform/xdpy.h"
#include "platform/xkbd.h"
#include "platform/xptr.h"
#include "process.h"
#include "support/owned.h"
#include "x11_session.h"

#include <X11/Xutil.h>
#include <unistd.h>

namespace velm::test {
namespace {

constexpr std::int32_t windowSize = 256;
constexpr int border = 2;

std::string testDepth() {
    const char* depth = std::getenv("VELM_TEST_DEPTH");
    return depth == nullptr ? "24" : depth;
}

/// The server is the process's, as the connection of XDPY is; every test has a window of its own.
XServer& server() {
    static XServer one(testDepth());
    return one;
}

class DisplayTest : public testing::Test {
protected:
    void SetUp() override {
        setenv("DISPLAY", server().display().c_str(), 1);
        display = XDPY_open();
        window = session.findDemo();
        ASSERT_NE(window, 0U);
    }

    void TearDown() override {
        XDestroyWindow(session.connection, window);
        XSync(session.connection, False);
        XDPY_close(&display);
    }

    /// "" when the screen shows the part of the frame from (x, y) on at the window's place.
    [[nodiscard]] std::string seen(int left, int top, int x, int y) const {
        const unsigned int width = static_cast<unsigned int>(windowSize - x);
        const unsigned int height = static_cast<unsigned int>(windowSize - y);
        const int depth = std::stoi(testDepth());
        const auto pixels = session.screen(left + x + border, top + y + border, width, height);
        for (std::size_t i = 0; i < pixels.size(); ++i) {
            const std::int32_t column = x + static_cast<std::int32_t>(i % width);
            const std::int32_t row = y + static_cast<std::int32_t>(i / width);
            if (pixels[i] != onScreen(depth, IMG_getPixel(frame, column, row))) {
                return "pixel " + std::to_string(column) + ", " + std::to_string(row);
            }
        }
        return "";
    }

    /// Waits for the server: it reads our connection and the viewer's in the order that it likes.
    void expectSeen(int left, int top, int x, int y) const {
        std::string difference;
        EXPECT_TRUE(eventually([&] { return (difference = seen(left, top, x, y)).empty(); })) << difference;
    }

    Session session{server().display()};
    XDPY* display = nullptr;
    ::Window window = 0;
    const Picture frame{noise(windowSize, windowSize, 1)};
};

TEST_F(DisplayTest, TheWindowHasItsTitleSizeAndPlace) {
    EXPECT_EQ(session.placeOf(window), (Session::Place{border, border, windowSize, windowSize}));
    EXPECT_EQ(std::to_string(display->depth), testDepth());
}

TEST_F(DisplayTest, TheWindowTellsADesktopWhatItIs) {
    XClassHint names{};
    ASSERT_NE(XGetClassHint(session.connection, window, &names), 0);
    EXPECT_STREQ(names.res_name, "velm4030");
    EXPECT_STREQ(names.res_class, "VELM4030");
    XTextProperty machine{};
    ASSERT_NE(XGetWMClientMachine(session.connection, window, &machine), 0);
    char host[256] = "";
    gethostname(host, sizeof host - 1);
    EXPECT_STREQ(reinterpret_cast<const char*>(machine.value), host);
    EXPECT_EQ(session.property(window, "_NET_WM_PID"),
              std::vector<unsigned long>{static_cast<unsigned long>(getpid())});
    const auto icon = session.property(window, "_NET_WM_ICON");
    ASSERT_EQ(icon.size(), 2U + 48 * 48);
    EXPECT_EQ(icon[0], 48U);
    EXPECT_EQ(icon[1], 48U);
    EXPECT_EQ(icon[2] >> 24, 0U) << "the corner of the tile is round";
    EXPECT_EQ(icon[2 + 24 * 48 + 24] >> 24 & 0xFF, 0xFFU) << "its middle is not";
    XFree(names.res_name);
    XFree(names.res_class);
    XFree(machine.value);
}

TEST_F(DisplayTest, AFrameIsOnTheScreenBitForBit) {
    XDPY_present(display, frame);
    expectSeen(0, 0, 0, 0);
    IMG_subColour(frame, 0x102030);
    XDPY_present(display, frame);
    expectSeen(0, 0, 0, 0); // the second frame goes through the kept image
}

TEST_F(DisplayTest, AWindowPartlyOffTheScreenIsDrawn) {
    XMoveWindow(session.connection, window, -100, -50);
    XSync(session.connection, False);
    XDPY_present(display, frame);
    expectSeen(-100, -50, 98, 48);
}

TEST_F(DisplayTest, AHiddenWindowIsSkippedWhileDumpsGoOn) {
    const TemporaryFolder folder;
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder.path);
    XDPY_dump = {.on = 1, .count = 0};
    XDPY_present(display, frame);
    XUnmapWindow(session.connection, window);
    XSync(session.connection, False);
    IMG_fill(frame, 0x00FF00);
    XDPY_present(display, frame);
    XDPY_present(display, frame);
    XMapWindow(session.connection, window);
    XSync(session.connection, False);
    EXPECT_NE(seen(0, 0, 0, 0), "") << "nothing was drawn while the window was hidden";
    for (const char* name : {"frame-00001.ppm", "frame-00002.ppm", "frame-00003.ppm"}) {
        EXPECT_EQ(runTool({"pamfile", name}, {}), 0) << name;
    }
    EXPECT_FALSE(std::filesystem::exists("frame-00004.ppm"));
    XDPY_dump.on = 0;
    std::filesystem::current_path(before);
}

TEST_F(DisplayTest, TheSystemPointerIsInvisibleOverTheWindowOnly) {
    const Owned<XPTR_delete> pointer(XPTR_new());
    session.movePointer(128, 128);
    EXPECT_TRUE(eventually([&] {
        XPTR_poll(pointer);
        return !session.cursorIsVisible();
    }));
    session.movePointer(400, 400);
    EXPECT_TRUE(eventually([&] { return session.cursorIsVisible(); }));
}

TEST_F(DisplayTest, TheArrowsOfAnyKeymapHaveTheirCodesAndNoOtherKeyDoes) {
    XKBD* const keyboard = XKBD_new();
    session.movePointer(128, 128);
    const std::pair<const char*, std::int32_t> keys[] = {{"Down", XKBD_down},
                                                         {"KP_Down", XKBD_down},
                                                         {"KP_Enter", 0}, // it has the code of an arrow
                                                         {"Up", XKBD_up},
                                                         {"KP_Up", XKBD_up}};
    for (const auto& [key, keycode] : keys) {
        keyboard->keycode = -1;
        session.press(key);
        EXPECT_TRUE(eventually([&] {
            XKBD_poll(keyboard);
            return keyboard->keycode != -1;
        }));
        EXPECT_EQ(keyboard->keycode, keycode) << key;
    }
}

} // namespace
} // namespace velm::test
