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

    /// The window titled "VELM4030", whatever a window manager put around it, or 0.
    [[nodiscard]] ::Window findDemo() const;

    /// The pixels of the screen from (x, y) on, as the server holds them, row by row.
    [[nodiscard]] std::vector<unsigned long> screen(int x, int y, unsigned int width,
                                                    unsigned int height) const;

    /// Real key presses and pointer moves, through the server's test extension.
    void press(const std::string& key) const { xdotool({"key", key}); }
    void movePointer(int x, int y) const { xdotool({"mousemove", std::to_string(x), std::to_string(y)}); }

    /// Sends the window an event, over and over, and waits until the server has passed them on.
    void send(::Window window, XEvent event, long mask, int times = 1) const;

    /// What a window manager sends when the close button is pressed.
    void sendClose(::Window window) const;

    /// The 32-bit words of a property.
    [[nodiscard]] std::vector<unsigned long> property(::Window window, const char* property) const;

    /// True when the cursor that the server shows has a visible pixel.
    [[nodiscard]] bool cursorIsVisible() const;

    /// Where the demo's window is on the screen.
    struct Place {
        int x, y, width, height;
        bool operator==(const Place&) const = default;
    };
    [[nodiscard]] Place placeOf(::Window window) const;

    /// Any command of the tool that presses the keys: "windowsize", the window, a width, a height.
    void xdotool(std::vector<std::string> arguments) const;

    ::Display* connection;

private:
    [[nodiscard]] ::Window findBelow(::Window parent) const;

    std::string name;
};

/// What a server of that depth must hold for a pixel of ours.
unsigned long onScreen(int depth, std::uint32_t pixel);

} // namespace velm::test
