// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What every module's error reporter does: one fixed line on standard output while the module's verbose flag
// is set.
//
//     void IMG_error() { reportLine(IMG_verbose, "IMG error"); }
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

} // namespace velm
