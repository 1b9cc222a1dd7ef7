#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# docs/examples/renew.sh [PREFIX]: takes the pictures of docs/examples.md anew, each the last frame that the test of the
# examples runs to. Without a PREFIX the library is built and installed first, into build/kit.
set -euo pipefail
cd "$(dirname "$0")/../.."
prefix=${1:-}
if [ -z "$prefix" ]; then
    prefix=build/kit
    cmake --preset release >/dev/null
    cmake --build --preset release -- --quiet
    cmake --install build/release --component dev --prefix "$prefix" >/dev/null
fi
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT
. docs/examples/input.sh

cmake -S examples -B "$work" -G Ninja "-DCMAKE_PREFIX_PATH=$(realpath "$prefix")" -DVELM_MACHINE=headless >/dev/null
cmake --build "$work" -- --quiet
while read -r name frames _; do
    VELM_FRAMES=$frames VELM_VIDEO=/dev/stdout VELM_KEYS="$keys" VELM_POINTER="$pointer" "$work/$name" |
        tail -c $((256 * 256 * 3)) | rawtoppm 256 256 2>/dev/null |
        pnmtopng -compression 9 >"docs/examples/$name.png" 2>/dev/null
done <tests/kit/examples.sums
