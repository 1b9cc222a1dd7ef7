// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What a viewer does to a machine and sees of it: the part of the contract that differs from machine to
// machine.
//
//     hands().press("a");
//     XKBD_poll(keyboard);
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace velm::test {

class Hands {
public:
    Hands() = default;
    virtual ~Hands() = default;
    Hands(const Hands&) = delete;
    Hands& operator=(const Hands&) = delete;

    /// Presses a key and lets it go: a letter, "Escape", "Up".
    virtual void press(const std::string& key) = 0;
    /// Presses the window's close button, where the window is the machine's to close.
    virtual void pressClose() { press("Escape"); }

    /// Moves the pointer to a pixel of the picture.
    virtual void point(int x, int y) = 0;
    /// Holds a button, 1 to 3, or lets it go.
    virtual void setButton(int button, bool isHeld) = 0;

    /// The 256 x 256 pixels that can be seen now, row by row; empty without a window.
    [[nodiscard]] virtual std::vector<std::uint32_t> seen() = 0;

    /// From now on there is a sound device, or none.
    virtual void setSound(bool isThere) = 0;
    /// Every sample that was heard since it was brought.
    [[nodiscard]] virtual std::vector<std::int16_t> heard() = 0;

    /// Takes down what a case has left open.
    virtual void tidy() = 0;
};

/// Those of this program's machine. The first call makes what they need, before a window is opened.
Hands& hands();

} // namespace velm::test
