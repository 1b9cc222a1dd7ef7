// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Real key presses from a real X server, through the keyboard module, to what the commands change.
#include "demo/state.h"
#include "demo/velm4030.h"
#include "process.h"
#include "x11_session.h"

namespace velm::test {
namespace {

class KeysTest : public testing::Test {
protected:
    void SetUp() override {
        setenv("DISPLAY", server().display().c_str(), 1);
        demo.display = XDPY_open();
        demo.keyboard = XKBD_new();
        demo.fps = FPS_new();
        session.movePointer(128, 128);
    }

    /// Presses a key and lets the demo handle it.
    void press(const char* key) {
        session.press(key);
        bool arrived = false;
        ASSERT_TRUE(eventually([&] {
            XKBD_poll(demo.keyboard);
            arrived = demo.keyboard->keycode != 0 || demo.keyboard->text[0] != 0;
            VELM4030_handleKey(demo.keyboard);
            return arrived;
        })) << key;
    }

    /// The server is the process's, as the connection of XDPY is.
    static XServer& server() {
        static XServer one("24");
        return one;
    }
    Session session{server().display()};
};

TEST_F(KeysTest, TheArrowsOfAnyKeymapMoveTheSelectionAndNothingElseDoes) {
    demo.dirListing = DIR_new();
    for (int i = 0; i < 10; ++i) {
        LIST_append(demo.dirListing->names, demo.dirListing);
    }
    // Each key moves on from where the one before it left the selection.
    const struct {
        const char* key;
        int selected;
    } moves[] = {{"Down", 6}, {"KP_Down", 7}, {"KP_Enter", 7}, {"Up", 6}, {"KP_Up", 5}, {"e", 4}, {"d", 5}};
    demo.dirSelection = 5;
    for (const auto& [key, selected] : moves) {
        press(key);
        EXPECT_EQ(demo.dirSelection, selected) << key;
    }
    LIST_delete(&demo.dirListing->names);
    DIR_delete(&demo.dirListing);
}

} // namespace
} // namespace velm::test
