// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What every module's error reporter does: one fixed line on standard output while the module's verbose flag
// is set; and what every operation does that is asked for the impossible.
//
//     void IMG_error() { reportLine(IMG_verbose, "IMG error"); }
//
//     if (refused(img == nullptr, IMG_error)) {
//         return;
//     }
#pragma once

#include <cstdint>
#include <cstdio>

namespace velm {

/// Prints `line` and a line end when `verbose` is not 0.
inline void reportLine(std::uint8_t verbose, const char* line) {
    if (verbose != 0) {
        std::puts(line);
    }
}

/// True, and reported, for what cannot be done.
[[nodiscard]] inline bool refused(bool cannot, void (*report)()) {
    if (cannot) {
        report();
    }
    return cannot;
}

} // namespace velm
