#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# tests/style/includes.sh ROOT FILE: what include-what-you-use has to say about the headers of ours that a source and its
# header include: each is used, and each that is used is included, by the file itself or by one that hands it on ("IWYU
# pragma: export"). Prints a line for each finding and fails when there is one. Forward declarations are the author's choice.
set -euo pipefail
cd -- "$1"
read -ra sdl <<<"$(pkg-config --cflags sdl2)"
definitions=('-DVELM_VERSION=""' '-DVELM_INCLUDE_FOLDER=""' '-DVELM_LIBRARY_FOLDER=""')
include-what-you-use -std=c++20 "${definitions[@]}" -Isrc -Imachines -Itools "${sdl[@]}" -Xiwyu --no_comments \
    -Xiwyu --no_fwd_decls -Xiwyu --mapping_file=tests/style/includes.imp "$2" 2>&1 |
    awk '/ error: / { print; found = 1; next }
        / should add these lines:$/ { file = $1; section = "lacks"; next }
        / should remove these lines:$/ { file = $1; section = "does not need"; next }
        /^The full include-list/ || /^---$/ || NF == 0 { section = ""; next }
        section == "lacks" && /^#include "[^"]*\// { print file ": lacks " $2; found = 1 }
        section == "does not need" && /^- #include "[^"]*\// { print file ": does not need " $3; found = 1 }
        END { exit found }'
