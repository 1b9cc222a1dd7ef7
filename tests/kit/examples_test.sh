#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# examples_test.sh SOURCE_FOLDER PREFIX WORK_FOLDER COMPILER: builds the examples outside the tree, with what is installed
# below PREFIX, once for each machine by way of CMake or pkg-config, runs them without a screen, and compares the checksums
# of their frames and their sound with examples.sums. VELM_RENEW=1 writes that file anew.
set -euo pipefail
source=$1
prefix=$2
work=$3
compiler=$4
sums=$source/tests/kit/examples.sums
fail() {
    echo "$*" >&2
    exit 1
}

rm -rf "$work"
mkdir -p "$work"
cp -r "$source/examples" "$work/examples"
cmake -S "$work/examples" -B "$work/build" -G Ninja "-DCMAKE_PREFIX_PATH=$prefix" "-DCMAKE_CXX_COMPILER=$compiler" \
    -DVELM_MACHINE=headless "-DCMAKE_CXX_FLAGS=-O1 -Wall -Wextra -Werror" >"$work/log" || fail "$(cat "$work/log")"
cmake --build "$work/build" >"$work/log" || fail "$(cat "$work/log")"

# run NAME FRAMES: the checksum of all frames, then that of the sound, with the input of docs/examples/renew.sh.
run() {
    VELM_FRAMES=$2 VELM_VIDEO=/dev/stdout VELM_AUDIO=$work/sound VELM_KEYS="$keys" VELM_POINTER="$pointer" \
        "$work/build/$1" | cksum | tr ' ' -
    cksum <"$work/sound" | tr ' ' -
}
# shellcheck source=docs/examples/input.sh
. "$source/docs/examples/input.sh"
while read -r name frames _; do
    echo "$name $frames $(run "$name" "$frames" | tr '\n' ' ')"
done <"$sums" >"$work/sums"
[ -z "${VELM_RENEW:-}" ] || cp "$work/sums" "$sums"
diff "$sums" "$work/sums" || fail 'other frames or another sound than in examples.sums'
diff <(cut -d' ' -f1 "$sums") <(basename -s .cpp -a "$source"/examples/*.cpp) || fail 'an example without a checksum'

# The other machines and the other way to them link, too, and start as far as they can without a screen.
for machine in x11 desktop; do
    # shellcheck disable=SC2046
    "$compiler" -std=c++20 "$work/examples/01_pixel.cpp" -o "$work/pixel-$machine" \
        $(PKG_CONFIG_PATH=$(dirname "$(find "$prefix" -name velm.pc)") pkg-config --cflags --libs "velm-$machine")
    status=0
    env -u DISPLAY -u WAYLAND_DISPLAY SDL_VIDEODRIVER=x11 "$work/pixel-$machine" 2>"$work/log" || status=$?
    [ "$status $(wc -l <"$work/log") $(cut -d: -f1 "$work/log")" = "1 1 pixel-$machine" ] || fail "$machine without a display: $(cat "$work/log")"
done
echo 'find_package(velm 2 REQUIRED)' >>"$work/examples/CMakeLists.txt"
if cmake -S "$work/examples" -B "$work/build" >"$work/log" 2>&1; then
    fail 'version 1 passes for version 2'
fi
