// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Processes that velm4030-live starts: they end with it, and their destructor ends them and waits for that.
//
//     Process compiler({"c++", "main.cpp"}, log);
//     if (compiler.hasEnded()) { ... compiler.status() ... }
#pragma once

// IWYU pragma: begin_exports
#include "workshop/window_side.h"
// IWYU pragma: end_exports

#include <cstdint>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace velm {

class Process {
public:
    /// Starts a program in a process group of its own. What it says goes to the file `log`, or where ours
    /// goes for -1; `channel` is a descriptor that it inherits, -1 for none. status() is 127 where it cannot
    /// be started.
    Process(const std::vector<std::string>& arguments, int log, int channel);
    ~Process();
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    /// The time that it has had a processor for, in microseconds.
    [[nodiscard]] std::int64_t worked() const;
    [[nodiscard]] bool hasEnded();
    /// The exit status, or 128 + the number of the signal that ended it. Only after it has ended.
    [[nodiscard]] int status() const { return ended.value_or(-1); }

private:
    pid_t group = -1;
    std::optional<int> ended;
};

/// A compiled program that draws into a channel instead of a window.
class Program {
public:
    /// Starts it; `frame` is the number of its first frame.
    Program(const std::string& path, std::int32_t frame, bool hasSound);

    /// Asks for another frame.
    void ask(std::int32_t frame);
    /// What it has drawn, its sound, and where keys and pointer go.
    [[nodiscard]] WindowSide& side() { return window; }
    /// Why it draws no more, in a few words, or "" while there is hope.
    [[nodiscard]] std::string failure();

private:
    void beginWait();

    WindowSide window;
    Process process;
    std::int64_t waitsSince;       ///< CLOCK_now() when it was asked, or when it was last seen in a pause
    std::int64_t workedBefore = 0; ///< its processor time until then
};

} // namespace velm
