// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The window's side of a channel: its memory, the frames that it asks for, what the viewer does, and what
// comes back. A program that writes astray may write anything there, which costs its own picture and sound
// alone.
//
//     WindowSide side(frame, hasSound);   // a program inherits side.descriptor()
//     if (side.hasDrawn(8000)) { ... side.picture() ... side.ask(frame + 1); }
#pragma once

// IWYU pragma: begin_exports
#include "platform/channel.h"
// IWYU pragma: end_exports

#include <cstdint>
#include <functional>
#include <span>
#include <string_view>

namespace velm {

class WindowSide {
public:
    /// Asks for a first frame of that number; `hasSound` says whether there is a device for the program's
    /// sound.
    WindowSide(std::int32_t frame, bool hasSound);
    ~WindowSide();
    WindowSide(const WindowSide&) = delete;
    WindowSide& operator=(const WindowSide&) = delete;

    /// Of the memory.
    [[nodiscard]] int descriptor() const { return file; }

    /// True once after a frame is drawn, waiting for it `micros` microseconds at most.
    [[nodiscard]] bool hasDrawn(std::int64_t micros) { return channel->drawn.hasRung(heardDrawn, micros); }
    /// That frame, row by row; the window's until ask().
    [[nodiscard]] std::span<const std::uint32_t> picture() const { return channel->picture; }
    /// Asks for another frame.
    void ask(std::int32_t frame);

    /// A key was pressed: what it stands for, of which 8 bytes are kept, and its keycode. Lost when a
    /// thousand wait.
    void press(std::string_view text, std::int32_t keycode);
    /// Where the pointer is now; the same as before is nothing new.
    void point(const Channel::Pointer& now);

    /// Takes sound, but not more than `most` samples, which `device` takes or refuses. When it refuses all
    /// that waits is dropped, so that the program waits for nothing. Returns the number of samples.
    std::size_t passSound(std::size_t most, const std::function<bool(std::span<const std::int16_t>)>& device);

    /// True when the program has been in a pause since the last call.
    [[nodiscard]] bool hasRested();

private:
    int file;
    Channel* channel;
    Channel::Pointer pointed{};
    std::uint32_t heardDrawn = 0;
    std::uint32_t restsSeen = 0;
};

} // namespace velm
