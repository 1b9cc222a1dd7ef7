#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# parts_test.sh SOURCE_FOLDER WORK_FOLDER: where packages are missing, the demo can be built all the same, also after an
# option was tried that needs one of them; what cannot be built says what is missing and what installs it.
set -euo pipefail

cd "$1"
work=$2
fail() {
    echo "$*" >&2
    exit 1
}

rm -rf "$work"
cmake --preset release -B "$work" -DVELM_BUILD_BENCH=ON -DCMAKE_DISABLE_FIND_PACKAGE_SDL2=ON \
    -DCMAKE_DISABLE_FIND_PACKAGE_benchmark=ON >"$work.log" 2>&1 || fail "$(cat "$work.log")"
cmake --preset release -B "$work" >/dev/null || fail "it cannot be configured again"
ninja -C "$work" -n velm4030 >/dev/null || fail "the demo cannot be built"
for missing in velm4030-play/SDL2/player_packages test_effects/SDL2/test_packages bench_effects/benchmark/bench_packages; do
    IFS=/ read -r target name list <<<"$missing"
    said=$(ninja -C "$work" "$target" 2>&1) && fail "$target was built"
    [[ $said == *"cannot be built without $name. packaging/need.sh $list "* ]] || fail "$target: $said"
done
