#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# ./test.sh: installs what is missing, then builds and runs the whole suite, optimised and under the sanitizers.
set -euo pipefail
CDPATH="" cd -- "$(dirname -- "$0")"
. packaging/packages.sh

packaging/need.sh "${test_packages[@]}"
for preset in sanitize release; do
    cmake --preset "$preset" -DVELM_BUILD_TESTS=ON -DVELM_BUILD_TOOLS=ON -DVELM_BUILD_BENCH=OFF -DVELM_LINT=OFF
    cmake --build --preset "$preset"
done
status=0
for preset in sanitize release; do
    ctest --preset "$preset" || status=1
done
exit "$status"
