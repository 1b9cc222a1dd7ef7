#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# house_links.sh ROOT: which of the project's targets links which, as CMake knows it: "A B" lines, sorted.
set -euo pipefail

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
printf 'set(GRAPHVIZ_EXTERNAL_LIBS FALSE)\nset(GRAPHVIZ_IGNORE_TARGETS "velm_archive.*")\n' >"$work/CMakeGraphVizOptions.cmake"
cmake -S "$1" -B "$work" -G Ninja -DVELM_BUILD_TESTS=OFF "--graphviz=$work/links.dot" >"$work/log" || {
    cat "$work/log" >&2
    exit 1
}
sed -n 's|^ *"node[0-9]*" -> "node[0-9]*".* // \([^ ]*\) -> \([^ ]*\)$|\1 \2|p' "$work/links.dot" | LC_ALL=C sort -u
