// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// ffmpeg as a child of this process. It is quiet, because the one line that a failure gets is ours.
//
//     Ffmpeg encoder;
//     encoder.start("-i - ...", {fileno(file)});
//     encoder.feed(bytes);
//     const bool done = encoder.wait();
#pragma once

#include <cstdio>
#include <span>
#include <string>
#include <sys/types.h>
#include <vector>

namespace velm {

class Ffmpeg {
public:
    Ffmpeg() = default;
    /// Ends the child.
    ~Ffmpeg();
    Ffmpeg(const Ffmpeg&) = delete;
    Ffmpeg& operator=(const Ffmpeg&) = delete;

    /// Starts it with arguments that spaces part; it inherits the descriptors. False, and errno, when it is
    /// not installed or cannot start.
    bool start(const std::string& arguments, const std::vector<int>& descriptors);

    /// Writes to its standard input; false when it has left.
    bool feed(std::span<const std::byte> bytes);

    /// Ends its standard input and waits for it; false unless it ended with status 0.
    bool wait();

private:
    pid_t child = 0;
    std::FILE* input = nullptr;
};

} // namespace velm
