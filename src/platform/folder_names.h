// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The folder of a machine that has none, or whose frames are to be the same wherever it runs: names instead.
//
//     DIR_append(dir, FOLDER_sample[0]);
#pragma once

#include <array>

namespace velm {

/// Short names, a long one, and one that no font has.
inline constexpr std::array<const char*, 17> FOLDER_sample = {
    ".",
    "..",
    "CHANGELOG.md",
    "LICENSE",
    "Makefile",
    "README.md",
    "a.txt",
    "bench",
    "docs",
    "grün",
    "machines",
    "música.mod",
    "src",
    "tests",
    "日本.txt",
    "Žluťoučký.c",
    "A longer name, with spaces, that does not fit into the window.txt"};

} // namespace velm
