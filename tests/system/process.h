// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Real programs as children of a test: an X server, the demo, the tools that press keys.
//
//     XServer server("24");
//     Child demo({VELM_PROGRAM}, {{"DISPLAY", server.display()}});
//     EXPECT_EQ(demo.waitForExit(), 0);
#pragma once

#include "support/files.h"

#include <sys/types.h>

namespace velm::test {

using Environment = std::vector<std::pair<std::string, std::string>>;

/// What a program needs to be watched: every picture that it sends becomes a line of the log.
Environment spied(const std::string& display, const std::string& log, const Environment& more);

/// Makes an empty file, which the caller removes.
std::string temporaryFile();

/// A child process; its standard output and error go to files of its own. The destructor ends it.
class Child {
public:
    /// Starts a program. A variable with an empty value is taken out of the child's environment.
    Child(const std::vector<std::string>& arguments, const Environment& environment);
    ~Child();
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    /// The exit status, 128 + the signal's number after a signal, or -1 when it still runs after `seconds`.
    int waitForExit(double seconds = 60);
    [[nodiscard]] bool isRunning();
    void signal(int number) const;

    [[nodiscard]] std::string output() const { return contents(outputPath); }
    [[nodiscard]] std::string errors() const { return contents(errorPath); }
    /// The most resident memory that it has had; while it runs, up to when it was last seen running.
    [[nodiscard]] long peakKilobytes() const { return peak; }
    /// The processor time that it and its own children that still run have used, in seconds.
    [[nodiscard]] double processorSeconds() const;
    /// How often it has given its processor away to wait for something.
    [[nodiscard]] long waits() const;
    [[nodiscard]] pid_t id() const { return pid; }

private:
    pid_t pid = -1;
    int status = -1;
    bool ended = false;
    long peak = 0;
    std::string outputPath;
    std::string errorPath;
};

/// A private Xvfb with one screen.
class XServer {
public:
    explicit XServer(const std::string& depth, const std::string& size = "640x480",
                     const std::vector<std::string>& more = {});

    [[nodiscard]] const std::string& display() const { return name; }
    void end() { child.signal(15); }

private:
    int readEnd = -1;
    Child child;
    std::string name;
};

/// Runs a program to its end and gives its status.
int runTool(const std::vector<std::string>& arguments, const Environment& environment);

/// Calls `holds` until it is true; false after `seconds`. Between two calls it rests, for longer than they
/// take: who waits leaves the processor to those that are waited for.
template <typename Condition>
bool eventually(Condition holds, double seconds = 60);

/// True once `count` stays the same for a fifth of a second in which the program has waited twenty times for
/// its next frame or key: on a busy machine nothing may happen for long although it runs.
template <typename Count>
bool standsStill(const Child& program, Count count);

void pauseFor(double seconds);
double secondsNow();

template <typename Condition>
bool eventually(Condition holds, double seconds) {
    constexpr double least = 0.002;
    constexpr double most = 0.1;
    const double end = secondsNow() + seconds;
    for (double begin = secondsNow(); !holds(); begin = secondsNow()) {
        const double now = secondsNow();
        if (now > end) {
            return false;
        }
        pauseFor(std::clamp(3 * (now - begin), least, most));
    }
    return true;
}

template <typename Count>
bool standsStill(const Child& program, Count count) {
    constexpr int manyWaits = 20;
    constexpr double fifth = 0.2;
    return eventually([&] {
        const auto before = count();
        const long waits = program.waits();
        const double begin = secondsNow();
        const auto isOver = [&] {
            return program.waits() >= waits + manyWaits && secondsNow() >= begin + fifth;
        };
        return eventually(isOver, 10) && count() == before;
    });
}

} // namespace velm::test
