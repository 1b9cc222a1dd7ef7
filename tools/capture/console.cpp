// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "capture/console.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <unistd.h>

namespace velm {

namespace {

bool lineIsOpen = false; ///< the cursor stands behind a progress line

double secondsNow() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

} // namespace

void showProgress(std::uint32_t frames, std::uint32_t allFrames) {
    constexpr std::uint32_t framesBetweenLines = 64;
    constexpr const char* clearToEnd = "\x1b[K";
    static const double start = secondsNow();
    static const bool isTerminal = isatty(STDERR_FILENO) != 0;
    if (!isTerminal || (frames % framesBetweenLines != 0 && frames != allFrames)) {
        return;
    }
    const double rate = frames / std::max(secondsNow() - start, 1e-6);
    std::fprintf(stderr, "\r%u of %u frames, %.0f per second, %.0f s left%s", frames, allFrames, rate,
                 (allFrames - frames) / rate, clearToEnd);
    lineIsOpen = true;
}

void endProgress() {
    if (lineIsOpen) {
        std::fputc('\n', stderr);
        lineIsOpen = false;
    }
}

void say(const std::string& text) {
    endProgress();
    std::fprintf(stderr, "velm4030-capture: %s\n", text.c_str());
}

} // namespace velm
