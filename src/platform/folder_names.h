// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The folder of a machine that has none, or whose frames are to be the same wherever it runs: names instead.
//
//     std::int32_t FOLDER_read(DIR* dir) { return FOLDER_list(dir, FOLDER_sample); }
#pragma once

#include "foundation/dir.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace velm {

/// Short names, a long one, and one that no font has.
inline constexpr std::array<std::string_view, 17> FOLDER_sample = {
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

/// Appends a copy of a name, as DIR_read does: 1, or 0 (reported) without a record or memory.
std::int32_t FOLDER_append(DIR* dir, std::string_view name);

/// Appends all of them: 1, or 0 when one could not be.
template <typename Names>
std::int32_t FOLDER_list(DIR* dir, const Names& names) {
    for (const std::string_view name : names) {
        if (FOLDER_append(dir, name) == 0) {
            return 0;
        }
    }
    return 1;
}

} // namespace velm
