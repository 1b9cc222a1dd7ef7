#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# ./test.sh: installs what is missing, builds everything twice, optimised and under the sanitizers, and runs the tests of
# both builds side by side. CTest's summary of all of them comes last.
# ./test.sh whole: the same, and under the sanitizers each scene from beginning to end, the painter, and the library's headers
# one by one, too, which is two minutes more.
# ./test.sh web: the pages alone, in Chromium: the demo's against what velm4030-capture gives, and those of the kit.
set -euo pipefail
CDPATH="" cd -- "$(dirname -- "$0")"
. packaging/packages.sh

test_web() {
    packaging/need.sh "${web_test_packages[@]}"
    command -v npm >/dev/null || packaging/need.sh npm
    cmake --preset release >/dev/null
    echo "Building velm4030-capture, the library and the page"
    cmake --build --preset release --target velm4030-capture velm_dev -- --quiet
    cmake --preset web >/dev/null
    cmake --build --preset web -- --quiet
    npm install --prefix build/web --no-save --no-audit --no-fund --loglevel error axe-core@4.14.1
    exec ctest --preset web
}

left_out='lint|thorough'
case ${1:-} in
    '') ;;
    whole) left_out=lint ;;
    web) test_web ;;
    *) echo "usage: ./test.sh [whole|web]" >&2 && exit 2 ;;
esac
packaging/need.sh "${test_packages[@]}"
echo "On two cores this builds for some eight minutes the first time and takes 800 MB in build/; the tests take four."
for preset in release sanitize; do
    echo "Building $preset"
    cmake --preset "$preset" >/dev/null
    cmake --build --preset "$preset" -- --quiet
done

# One run over both builds. Half of the tests mostly wait, so twice as many run as there are processors.
echo 'subdirs(release sanitize)' >build/CTestTestfile.cmake
ctest --test-dir build --output-on-failure -LE "$left_out" -j $((2 * $(nproc))) |
    awk '/^ *Start +[0-9]+: / { next } / Passed +[0-9.]+ sec$/ && ++passed % 50 { next } { print; fflush() }'
