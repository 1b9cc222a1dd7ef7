// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A second client of a display, which sees what a viewer sees and presses what a viewer presses.
//
//     Session session(server.display());
//     session.press("space");
//     EXPECT_NE(session.findDemo(), 0U);
#pragma once

// GoogleTest comes before Xlib, whose macros None and Bool it cannot stand.
// clang-format off
#include <gtest/gtest.h>
#include <X11/Xlib.h>
// clang-format on

#include <cstdint>
#include <string>
#include <vector>

namespace velm::test {

class Session {
public:
    explicit Session(std::string display);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// The window titled "VELM4030", or 0.
    [[nodiscard]] ::Window findDemo() const;

    /// The pixels of the screen from (x, y) on, as the server holds them, row by row.
    [[nodiscard]] std::vector<unsigned long> screen(int x, int y, unsigned int width,
                                                    unsigned int height) const;

    /// Real key presses and pointer moves, through the server's test extension.
    void press(const std::string& key) const;
    void movePointer(int x, int y) const;
    void clickDown(int button) const;
    void clickUp(int button) const;

    /// What a window manager sends when the close button is pressed.
    void sendClose(::Window window) const;

    /// True when the cursor that the server shows has a visible pixel.
    [[nodiscard]] bool cursorIsVisible() const;

    ::Display* connection;

private:
    void xdotool(std::vector<std::string> arguments) const;

    std::string name;
};

} // namespace velm::test
